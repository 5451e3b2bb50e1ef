// What the user waits for on the catalogue forms, each beside what the bare parts take.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

#include "AnaFormErisimi.h"
#include "BuyukVeri.h"
#include "Cift.h"
#include "Deyimler.h"
#include "MalzemeEkleSilFormu.h"
#include "MalzemeListesiOlusturFormu.h"
#include "MesajKutusu.h"
#include "OlcumFormOrtami.h"
#include "SayiYereli.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ÇokSatır = 1'000'000;  // 100,000 materials
constexpr int AzSatır = 10'000;      // 1,000 materials
constexpr int Yaygın = 10'000;       // rows that use one material
constexpr int ListeBoyu = 200;       // rows of a transferred list

// A main form with one selected product and nothing to reload.
class SessizAnaForm : public AnaFormErişimi {
  public:
    void ÜrünAğacınıYenile() override {}
    void DüğümüSeç(std::int32_t) override {}
    std::optional<Ürün> SeçiliÜrün() const override { return Ürün{u"ÖLÇÜM"_s, u"Ölçüm Ürünü"_s}; }
    QStringList KullanılanMalzemeAdları() const override { return {}; }
    void FiyatGeçmişiniGöster(const QString&, QWidget*) override {}
    void VeriDeğişti(const VeriDeğişimi&) override {}
    void MalzemeTablosuYükle() override {}
};

// A form of the program on one data file, opened.
template <typename Form>
std::unique_ptr<Form> Aç(const QString& klasör) {
    static SessizAnaForm anaForm;
    ÖlçümOrtamı::Bağlan(klasör);
    auto form = std::make_unique<Form>(anaForm);
    form->Yükle();
    form->show();
    QApplication::processEvents();
    return form;
}

void FormAçılışı(benchmark::State& durum) {
    for (auto _ : durum) {
        auto form = Aç<MalzemeEkleSilFormu>(ÖlçümOrtamı::VeriKlasörü(ÇokSatır));
        durum.PauseTiming();
        if (form->findChild<QListWidget*>()->count() != ÇokSatır / 10) durum.SkipWithError("the list is not filled");
        form.reset();
        durum.ResumeTiming();
    }
}

void ÇıplakAçılış(benchmark::State& durum) {
    const auto vt = ÖlçümOrtamı::ÇıplakAç(ÖlçümOrtamı::VeriKlasörü(ÇokSatır));
    for (auto _ : durum) {
        auto form = std::make_unique<QWidget>();
        auto* liste = new QListWidget;
        liste->setUniformItemSizes(true);
        (new QVBoxLayout(form.get()))->addWidget(liste);
        const auto sorgu = ÖlçümOrtamı::ÇıplakSorgu(vt.get(), Deyimler::MalzemeListesi().toUtf8());
        QStringList adlar;
        while (sqlite3_step(sorgu.get()) == SQLITE_ROW) adlar.append(ÖlçümOrtamı::ÇıplakMetin(sorgu.get(), 0));
        liste->addItems(adlar);
        form->resize(720, 460);
        form->show();
        QApplication::processEvents();
        durum.PauseTiming();
        form.reset();
        durum.ResumeTiming();
    }
}

ÖlçümYüzü AramaTuşu(int satırSayısı) {
    return [satırSayısı](benchmark::State& durum) {
        const auto form = Aç<MalzemeEkleSilFormu>(ÖlçümOrtamı::VeriKlasörü(satırSayısı));
        auto* bul = form->findChild<QLineEdit*>(u"MalzemeBulKutusu"_s);
        auto* liste = form->findChild<QListWidget*>();
        const QString başı = BüyükMalzemeAdı(0).chopped(3);
        int sıra = 0;
        for (auto _ : durum) {
            durum.PauseTiming();
            bul->setText(başı);
            QApplication::processEvents();
            durum.ResumeTiming();
            QTest::keyClick(bul, Qt::Key(Qt::Key_0 + sıra % 10));
            liste->viewport()->repaint();
            ++sıra;
        }
        if (liste->currentRow() < 0) durum.SkipWithError("nothing was found");
    };
}

// A data file in which one material is used by very many rows.
QString YaygınKlasörü() {
    static const QString klasör = [] {
        const QString yeni = ÖlçümOrtamı::VeriKlasörü(2'000);
        ÖlçümOrtamı::Yaz(yeni, [](VeriYazıcısı& veri) {
            veri.Çalıştır(Deyimler::GrubunMalzemeleriniSil(u"YAYGIN"_s));
            const QString tarih = Deyimler::Tarih(QDate::currentDate());
            for (int i = 0; i < Yaygın; ++i)
                veri.Çalıştır(Deyimler::KullanılanMalzemeEkle(
                    {u"YAYGIN"_s, BüyükÜrünAdı(i), BüyükMalzemeAdı(0), u"2 Adet"_s, u"1"_s, tarih}));
        });
        return yeni;
    }();
    return klasör;
}

void FiyatDeğişimi(benchmark::State& durum) {
    const auto form = Aç<MalzemeEkleSilFormu>(YaygınKlasörü());
    auto* fiyat = form->findChild<QLineEdit*>(u"MalzemeFiyatıKutusu"_s);
    auto* düğme = form->findChild<QAbstractButton*>(u"MalzemeFiyatıDeğiştirButonu"_s);
    int kuruş = 0;
    for (auto _ : durum) {
        durum.PauseTiming();
        QTest::mouseClick(düğme, Qt::LeftButton);
        fiyat->setText(u"%1,5"_s.arg(++kuruş));
        durum.ResumeTiming();
        QTest::mouseClick(düğme, Qt::LeftButton);
    }
    const auto vt = ÖlçümOrtamı::ÇıplakAç(YaygınKlasörü());
    const auto sorgu = ÖlçümOrtamı::ÇıplakSorgu(
        vt.get(),
        "SELECT Count(*) FROM UrunMalzemeTablosu WHERE UrunGrubu='YAYGIN' AND KullanilanMalzemeFiyati % 10000 = 5000");
    if (sqlite3_step(sorgu.get()) != SQLITE_ROW || sqlite3_column_int(sorgu.get(), 0) < Yaygın) {
        durum.SkipWithError("the price did not reach every row");
    }
}

void Yürüt(sqlite3* vt, const QString& sql, benchmark::State& durum) {
    if (sqlite3_exec(vt, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        durum.SkipWithError(sqlite3_errmsg(vt));
    }
}

// The bare library keeps what it is told as surely as the driver does.
ÖlçümOrtamı::Sqlite DayanıklıAç(const QString& klasör, benchmark::State& durum) {
    auto vt = ÖlçümOrtamı::ÇıplakAç(klasör);
    Yürüt(vt.get(), u"PRAGMA synchronous=EXTRA"_s, durum);
    return vt;
}

void ÇıplakFiyat(benchmark::State& durum) {
    const auto vt = DayanıklıAç(YaygınKlasörü(), durum);
    int fiyat = 0;
    for (auto _ : durum) {
        fiyat += 10'000;
        Yürüt(vt.get(),
              u"UPDATE MalzemeTablosu SET MalzemeFiyati=%1 WHERE MalzemeAdi='%2'"_s.arg(fiyat + 5000)
                  .arg(BüyükMalzemeAdı(0)),
              durum);
        Yürüt(vt.get(),
              u"UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati=%1 WHERE KullanilanMalzemeAdi='%2'"_s
                  .arg(fiyat + 5000)
                  .arg(BüyükMalzemeAdı(0)),
              durum);
    }
}

void AktarılanlarıSil(const QString& klasör) {
    ÖlçümOrtamı::Yaz(klasör, [](VeriYazıcısı& veri) { veri.Çalıştır(Deyimler::GrubunMalzemeleriniSil(u"ÖLÇÜM"_s)); });
}

void Aktarma(benchmark::State& durum) {
    const QString klasör = ÖlçümOrtamı::VeriKlasörü(AzSatır);
    for (auto _ : durum) {
        durum.PauseTiming();
        auto form = Aç<MalzemeListesiOluşturFormu>(klasör);
        form->findChild<QLineEdit*>(u"MalzemeMiktarıKutusu"_s)->setText(u"2,5"_s);
        form->findChild<QComboBox*>(u"MiktarTürüListesi"_s)->setEditText(u"Adet"_s);
        auto* katalog = form->findChild<QListWidget*>(u"MalzemeListesi"_s);
        for (int i = 0; i < ListeBoyu; ++i) {
            katalog->setCurrentRow(i);
            form->findChild<QAbstractButton*>(u"ListeyeEkleButonu"_s)->click();
        }
        durum.ResumeTiming();
        form->findChild<QAbstractButton*>(u"ListeyiAktarButonu"_s)->click();
        durum.PauseTiming();
        form.reset();
        AktarılanlarıSil(klasör);
        durum.ResumeTiming();
    }
}

void ÇıplakAktarma(benchmark::State& durum) {
    const QString klasör = ÖlçümOrtamı::VeriKlasörü(AzSatır);
    const auto vt = DayanıklıAç(klasör, durum);
    for (auto _ : durum) {
        for (int i = 0; i < ListeBoyu; ++i) {
            Yürüt(vt.get(),
                  u"INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
                  "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (%1, 'ÖLÇÜM', 'Ölçüm Ürünü', '%2', "
                  "'2,5 Adet', 15000)"_s.arg(QDate::currentDate().toString(u"yyyyMMdd"_s), BüyükMalzemeAdı(i)),
                  durum);
        }
        durum.PauseTiming();
        AktarılanlarıSil(klasör);
        durum.ResumeTiming();
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ÖlçümOrtamı::Kur();
    QApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    MesajKutusu::GöstericiyiAyarla([](const MesajKutusu::İstek&) { return MesajKutusu::Yanıt::Evet; });
    ÇiftEkle("open material form: 100,000 / bare", 1.5, FormAçılışı, ÇıplakAçılış);
    ÇiftEkle("find box keystroke: 100,000 / 1,000", 3.0, AramaTuşu(ÇokSatır), AramaTuşu(AzSatır));
    ÇiftEkle("price change of 10,000 rows / bare", 1.5, FiyatDeğişimi, ÇıplakFiyat);
    ÇiftEkle("transfer of 200 rows / bare", 1.5, Aktarma, ÇıplakAktarma);
    return ÇiftleriÖlç(argc, argv);
}

// What the user waits for on the reports: a day's movements on the screen, the catalogue in a PDF file.
#include <QApplication>
#include <QFile>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <memory>

#include "Cift.h"
#include "Deyimler.h"
#include "MalzemeHareketleriFormu.h"
#include "OlcumFormOrtami.h"
#include "OrtakFonksiyonlarModulu.h"
#include "RaporCiktilari.h"
#include "Saat.h"
#include "SayiYereli.h"
#include "Yazdirma.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ÇokSatır = 1'000'000;
constexpr int GününSatırı = 10'000;
constexpr int KatalogSatırı = 10'000;
const QDate Gün(2001, 2, 3);  // no other row of the file has this day

// A data file in which one day has very many rows.
QString GünKlasörü() {
    static const QString klasör = [] {
        const QString yeni = ÖlçümOrtamı::VeriKlasörü(ÇokSatır);
        const auto vt = ÖlçümOrtamı::ÇıplakAç(yeni);
        const auto sayı = ÖlçümOrtamı::ÇıplakSorgu(
            vt.get(), "SELECT Count(*) FROM UrunMalzemeTablosu WHERE KullanimTarihi = 20010203");
        if (sqlite3_step(sayı.get()) == SQLITE_ROW && sqlite3_column_int(sayı.get(), 0) > 0) return yeni;
        sqlite3_reset(sayı.get());
        ÖlçümOrtamı::Yaz(yeni, [](VeriYazıcısı& veri) {
            for (int i = 0; i < GününSatırı; ++i)
                veri.Çalıştır(Deyimler::KullanılanMalzemeEkle({u"GÜN"_s, u"Ürün %1"_s.arg(i * 7919 % 500),
                                                               u"Malzeme %1"_s.arg(i), u"%1,25 Adet"_s.arg(i % 300 + 1),
                                                               u"%1,5075"_s.arg(i * 7 % 2500), Deyimler::Tarih(Gün)}));
        });
        return yeni;
    }();
    return klasör;
}

// The form as it stands open; a closed dialog makes it load again.
class AçıkForm : public MalzemeHareketleriFormu {
  public:
    using MalzemeHareketleriFormu::Liste;
    using MalzemeHareketleriFormu::PencereKapandı;

    static std::unique_ptr<AçıkForm> Aç() {
        ÖlçümOrtamı::Bağlan(GünKlasörü());
        SaatiAyarla([] { return Gün; });
        auto form = std::make_unique<AçıkForm>();
        form->show();
        QApplication::processEvents();
        form->PencereKapandı();
        return form;
    }
};

void Hareketler(benchmark::State& durum) {
    const auto form = AçıkForm::Aç();
    for (auto _ : durum) {
        form->PencereKapandı();
        form->Liste().viewport()->repaint();
    }
    if (form->Liste().topLevelItemCount() != GününSatırı) durum.SkipWithError("the list is not filled");
}

// Reads the same rows, and puts the texts that the form shows for them into the same list.
void ÇıplakHareketler(benchmark::State& durum) {
    const auto form = AçıkForm::Aç();
    QTreeWidget& liste = form->Liste();
    QList<QStringList> metinler;
    for (int i = 0; i < liste.topLevelItemCount(); ++i) {
        QStringList satır;
        for (int sütun = 0; sütun < liste.columnCount(); ++sütun) satır += liste.topLevelItem(i)->text(sütun);
        metinler += satır;
    }
    const auto vt = ÖlçümOrtamı::ÇıplakAç(GünKlasörü());
    for (auto _ : durum) {
        liste.clear();
        const auto sorgu = ÖlçümOrtamı::ÇıplakSorgu(
            vt.get(),
            "SELECT KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, UrunAdi FROM "
            "UrunMalzemeTablosu WHERE KullanimTarihi = 20010203 ORDER BY UrunAdi");
        QList<QTreeWidgetItem*> satırlar;
        while (sqlite3_step(sorgu.get()) == SQLITE_ROW) {
            for (int sütun = 0; sütun < 4; ++sütun) {
                benchmark::DoNotOptimize(ÖlçümOrtamı::ÇıplakMetin(sorgu.get(), sütun));
            }
            satırlar += new QTreeWidgetItem(metinler[satırlar.size()]);
        }
        liste.addTopLevelItems(satırlar);
        QApplication::processEvents();
        liste.viewport()->repaint();
    }
    if (liste.topLevelItemCount() != GününSatırı) durum.SkipWithError("the list is not filled");
}

QList<QStringList> Katalog() {
    QList<QStringList> satırlar;
    for (int i = 0; i < KatalogSatırı; ++i) {
        satırlar.append({u"Çam kereste, sınıf %1"_s.arg(i), u"%1,50"_s.arg(i * 7 % 2500)});
    }
    return satırlar;
}

QString PdfYolu() {
    return QStringLiteral(VARNEK_BIN "/../../olcum/katalog.pdf");
}

void KatalogPdf(benchmark::State& durum) {
    const QList<QStringList> satırlar = Katalog();
    const Yazdırılacak iş{u"Malzeme Listesi"_s, [&satırlar](SayfaYüzeyi& yüzey) {
                              MalzemeListesiniYaz(yüzey, u"Malzeme Listesi"_s, satırlar);
                          }};
    for (auto _ : durum) {
        if (!PdfYaz(PdfYolu(), iş)) durum.SkipWithError("the file cannot be written");
    }
}

// The same texts and rules, drawn with the toolkit's own means at fixed places.
void ÇıplakKatalogPdf(benchmark::State& durum) {
    const QList<QStringList> satırlar = Katalog();
    for (auto _ : durum) {
        QFile dosya(PdfYolu());
        if (!dosya.open(QIODevice::WriteOnly)) durum.SkipWithError("the file cannot be written");
        QPdfWriter yazar(&dosya);
        yazar.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()});
        QPainter boyacı(&yazar);
        boyacı.setFont(QFont(u"Liberation Sans Narrow"_s, 11));
        const double mm = yazar.logicalDpiX() / 25.4;
        double y = 31;
        for (const QStringList& satır : satırlar) {
            if (y >= 282) {
                yazar.newPage();
                y = 15;
            }
            boyacı.drawText(QPointF(21, y + 4) * mm, satır.at(0));
            boyacı.drawText(QRectF(120 * mm, y * mm, 65 * mm, 5 * mm), Qt::AlignRight, satır.at(1));
            y += 4.4;
            boyacı.drawLine(QPointF(21, y) * mm, QPointF(185, y) * mm);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ÖlçümOrtamı::Kur();
    QApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    ÇiftEkle("movements of a day, 10,000 / bare", 2.0, Hareketler, ÇıplakHareketler);
    ÇiftEkle("catalogue of 10,000 to PDF / bare", 2.0, KatalogPdf, ÇıplakKatalogPdf);
    return ÇiftleriÖlç(argc, argv);
}

// Materials that stand for products: a price change below six levels of them beside the bare changes it amounts to.
#include <QCoreApplication>

#include "Cift.h"
#include "Deyimler.h"
#include "OdbcModulu.h"
#include "OlcumFormOrtami.h"
#include "SayiYereli.h"
#include "YariMamulYayilimi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Katlar = 6;
constexpr int Kullananlar = 10'000;  // products that use the topmost material

QString Malzeme(int kat) {
    return kat < 0 ? u"Ölçüm Temeli"_s : u"Ölçüm Yarı Mamulü %1"_s.arg(kat);
}

// One product is tied on each level, and used once by the next.
QString Klasör() {
    static const QString klasör = [] {
        const QString yeni = ÖlçümOrtamı::VeriKlasörü(3'000);
        ÖlçümOrtamı::Yaz(yeni, [](VeriYazıcısı& veri) {
            const QString tarih = Deyimler::Tarih(QDate::currentDate());
            const auto kullan = [&](const QString& ürün, const QString& malzeme) {
                veri.Çalıştır(Deyimler::KullanılanMalzemeEkle({u"YARI"_s, ürün, malzeme, u"1 Adet"_s, u"1"_s, tarih}));
            };
            veri.Çalıştır(Deyimler::GrubuSil(u"YARI"_s));
            veri.Çalıştır(Deyimler::GrubunMalzemeleriniSil(u"YARI"_s));
            for (int kat = -1; kat < Katlar; ++kat) {
                veri.Çalıştır(Deyimler::MalzemeSil(Malzeme(kat)));
                veri.Çalıştır(Deyimler::MalzemeEkle(Malzeme(kat), u"1"_s));
            }
            for (const QString& deyim : Deyimler::YarıMamul::TablolarıOluştur()) {
                try {
                    veri.Çalıştır(deyim);
                } catch (const VeriHatası&) {  // made by an earlier run
                }
            }
            for (int kat = 0; kat < Katlar; ++kat) {
                const QString ürün = u"Kat %1"_s.arg(kat);
                veri.Çalıştır(Deyimler::ÜrünEkle(u"YARI"_s, ürün));
                kullan(ürün, Malzeme(kat - 1));
                veri.Çalıştır(Deyimler::YarıMamul::BağSil(Malzeme(kat)));
                veri.Çalıştır(
                    Deyimler::YarıMamul::BağEkle(Saklanan({Malzeme(kat), {u"YARI"_s, ürün}, TutarTürü::Toplam})));
            }
            for (int i = 0; i < Kullananlar; ++i) kullan(u"Son %1"_s.arg(i), Malzeme(Katlar - 1));
        });
        return yeni;
    }();
    return klasör;
}

void Yayılma(benchmark::State& durum) {
    ÖlçümOrtamı::Bağlan(Klasör());
    int fiyat = 1;
    for (auto _ : durum) {
        fiyat = fiyat % 1000 + 1;
        const QString metin = QString::number(fiyat);
        DeyimiYürüt(Deyimler::FiyatDeğiştir(Malzeme(-1), metin));
        DeyimiYürüt(Deyimler::ÜrünlerdeFiyatDeğiştir(Malzeme(-1), metin));
        if (YarıMamulleriYürüt(ODBCBağlantısı(), {.Malzemeler = {Malzeme(-1)}}).Değişenler != Katlar)
            durum.SkipWithError("the prices did not follow");
    }
}

void ÇıplakYayılma(benchmark::State& durum) {
    const auto vt = ÖlçümOrtamı::ÇıplakAç(Klasör());
    const auto yürüt = [&](const QString& sql) {
        if (sqlite3_exec(vt.get(), sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            durum.SkipWithError(sqlite3_errmsg(vt.get()));
    };
    yürüt(u"PRAGMA synchronous=EXTRA"_s);
    int fiyat = 0;
    for (auto _ : durum) {
        fiyat = fiyat % 10'000'000 + 20'000;
        for (int kat = -1; kat < Katlar; ++kat) {
            yürüt(u"UPDATE MalzemeTablosu SET MalzemeFiyati=%1 WHERE MalzemeAdi='%2'"_s.arg(fiyat).arg(Malzeme(kat)));
            yürüt(
                u"UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati=%1 WHERE KullanilanMalzemeAdi='%2'"_s.arg(fiyat)
                    .arg(Malzeme(kat)));
            if (kat < 0) yürüt(u"BEGIN IMMEDIATE"_s);
        }
        yürüt(u"COMMIT"_s);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    ÖlçümOrtamı::Kur();
    ÇiftEkle("price below 6 levels and 10,000 products / bare", 2.0, Yayılma, ÇıplakYayılma);
    return ÇiftleriÖlç(argc, argv);
}

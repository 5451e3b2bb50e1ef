#include <QDate>
#include <QHash>

#include "AracTesti.h"
#include "OrnekVeri.h"
#include "SayiMetni.h"
#include "TurkceMetin.h"

using namespace Qt::StringLiterals;

namespace {

using ÖrnekVeriTesti = AraçTesti;

}  // namespace

// What is written reads back through the driver, each used material with its catalogue price, in a form that the forms
// would have stored, over days that reach back from today.
TEST_F(ÖrnekVeriTesti, YazılanGeriOkunur) {
    ASSERT_EQ(Çalıştır({u"ornek"_s, Yol(u"Örnek.vtb"_s)}).kod, 0);
    TestVerisi veri(Yol(u"Örnek.vtb"_s));
    QHash<QString, QString> fiyatlar;
    for (const QStringList& satır : veri.Oku(u"SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu"_s))
        fiyatlar.insert(satır[0], satır[1]);
    EXPECT_EQ(fiyatlar.size(), ÖrnekMalzemeler().size());
    for (const ÖrnekMalzeme& malzeme : ÖrnekMalzemeler()) {
        const QString ad = malzeme.ad.toString();
        EXPECT_EQ(TürkçeBaşHarfBüyüt(ad), ad);
        EXPECT_EQ(ParaOku(NoktayıVirgüleÇevir(fiyatlar.value(ad))), ParaOku(malzeme.fiyat, NoktaKuralı::Yerinde));
    }
    qsizetype satırSayısı = 0;
    for (const ÖrnekÜrün& ürün : ÖrnekÜrünler()) {
        EXPECT_EQ(TürkçeBüyükHarf(ürün.grup.toString()), ürün.grup.toString());
        const auto satırlar = veri.Oku(
            u"SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu "
            u"WHERE UrunGrubu= '%1' AND UrunAdi= '%2'"_s.arg(ürün.grup, ürün.ad));
        EXPECT_EQ(satırlar.size(), ürün.malzemeler.size()) << ürün.ad.toString().toStdString();
        satırSayısı += satırlar.size();
        for (const QStringList& satır : satırlar) {
            EXPECT_TRUE(SayıMı(satır[0].section(u' ', 0, 0))) << satır[0].toStdString();
            EXPECT_EQ(satır[2], fiyatlar.value(satır[1]));
        }
    }
    int gün = 0;
    qsizetype hareket = 0;
    for (int önce = 0; önce < 60; ++önce) {
        const QDate tarih = QDate::currentDate().addDays(-önce);
        const auto satırlar =
            veri.Oku(u"SELECT UrunAdi FROM UrunMalzemeTablosu WHERE KullanimTarihi = #%1/%2/%3#"_s.arg(tarih.month())
                         .arg(tarih.day())
                         .arg(tarih.year()));
        gün += !satırlar.isEmpty();
        hareket += satırlar.size();
    }
    EXPECT_GE(gün, 7);
    EXPECT_EQ(hareket, satırSayısı);
}

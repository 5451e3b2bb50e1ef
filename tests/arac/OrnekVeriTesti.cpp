#include <QDate>
#include <QHash>
#include <QSet>
#include <algorithm>

#include "AracTesti.h"
#include "OrnekVeri.h"
#include "SayiMetni.h"
#include "TurkceMetin.h"

using namespace Qt::StringLiterals;

using ÖrnekVeriTesti = AraçTesti;

// The rows are such as the forms would have stored, each used material at its catalogue price, over days that reach
// back from today.
TEST_F(ÖrnekVeriTesti, FormlarınYazacağıGibidir) {
    ASSERT_EQ(Çalıştır({u"ornek"_s, Yol(u"Örnek.vtb"_s)}).kod, 0);
    TestVerisi veri(Yol(u"Örnek.vtb"_s));
    QHash<QString, QString> fiyatlar;
    for (const QStringList& satır : veri.Oku(u"SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu"_s)) {
        EXPECT_EQ(TürkçeBaşHarfBüyüt(satır[0]), satır[0]);
        fiyatlar.insert(satır[0], satır[1]);
    }
    EXPECT_EQ(fiyatlar.size(), ÖrnekMalzemeler().size());
    qsizetype satırSayısı = 0;
    for (const ÖrnekÜrün& ürün : ÖrnekÜrünler()) {
        EXPECT_EQ(TürkçeBüyükHarf(ürün.grup.toString()), ürün.grup.toString());
        satırSayısı += ürün.malzemeler.size();
    }
    const auto satırlar = veri.Oku(
        u"SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati, KullanimTarihi FROM "
        u"UrunMalzemeTablosu"_s);
    EXPECT_EQ(satırlar.size(), satırSayısı);
    QSet<QDate> günler;
    for (const QStringList& satır : satırlar) {
        EXPECT_TRUE(SayıMı(satır[0].section(u' ', 0, 0))) << satır[0].toStdString();
        EXPECT_EQ(satır[2], fiyatlar.value(satır[1]));
        günler += QDate::fromString(satır[3].left(10), Qt::ISODate);
    }
    EXPECT_GE(günler.size(), 7);
    EXPECT_LE(*std::max_element(günler.begin(), günler.end()), QDate::currentDate());
}

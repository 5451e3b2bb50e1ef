#include "AccessUreteci.h"
#include "ErisimMetinleri.h"
#include "HazirlikTesti.h"
#include "OdbcModulu.h"

namespace {

using MesajKutusu::Simge;

void ErişimDosyasıYap(const AccessÜreteci& dosya, const QString& yol) {
    QDir().mkpath(QFileInfo(yol).path());
    dosya.Yaz(yol.toStdString());
}

// The day's rule sees the Access file's own time: taken over and backed up in one start.
TEST_F(HazırlıkTesti, AccessDosyasınıAlırVeYedekler) {
    const AccessÜreteci örnek;
    ErişimDosyasıYap(örnek, VeriDosyası());
    ZamanVer(VeriDosyası(), ÖncekiGün);
    ASSERT_TRUE(VeritabanınıHazırla());
    ODBCBağlantısınıKapat();
    EXPECT_EQ(Baytlar(VeriDosyası() + QStringLiteral(".access")).toStdString(), örnek.Baytlar());
    const Satırlar satırlar = Oku(VeriDosyası());
    EXPECT_EQ(satırlar.size(), 4 + 10 + 6);
    EXPECT_EQ(Oku(Yedek()), satırlar);
}

TEST_F(HazırlıkTesti, AccessBiçimindekiYedektenDöner) {
    AccessÜreteci dosya;
    dosya.SatırlarıKoy("MalzemeTablosu", {{AccessÜreteci::Metin(u"Çıta"), std::nullopt}});
    ErişimDosyasıYap(dosya, Yedek());
    ZamanVer(Yedek(), QDateTime::currentDateTime());
    Söyler(true, Simge::Bilgi,
           Metin(ErişimMetni::Değiştirilenler)
               .arg(QStringLiteral("1 değer olduğu gibi alınamadı (1 boş değer). Liste: Varnek.vtb.access.txt")));
    ODBCBağlantısınıKapat();
    EXPECT_EQ(Baytlar(Yedek()).toStdString(), dosya.Baytlar());
    EXPECT_EQ(Oku(VeriDosyası()).size(), 4 + 1 + 6);
}

TEST_F(HazırlıkTesti, AlınamayanAccessDosyasınıOlduğuGibiBırakır) {
    const AccessÜreteci örnek;
    ErişimDosyasıYap(örnek, VeriDosyası());
    const QString kilit = ProgramKlasörü() + QStringLiteral("Varnek.ldb");
    ASSERT_TRUE(QFile(kilit).open(QIODevice::WriteOnly));
    Söyler(
        false, Simge::Kritik,
        Metin(ErişimMetni::Alınamadı)
            .arg(QStringLiteral("Access dosyası açık görünüyor: yanında Varnek.ldb var. Öbür bilgisayardaki programı "
                                "kapatın; açık değilse bu dosyayı silip yeniden deneyin."),
                 VeriDosyası()));
    EXPECT_EQ(Baytlar(VeriDosyası()).toStdString(), örnek.Baytlar());
}

}  // namespace

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
    ZamanVer(Yedek(), ÖncekiGün);
    Söyler(true, Simge::Bilgi,
           Metin(ErişimMetni::Değiştirilenler)
               .arg(QStringLiteral("1 değer olduğu gibi alınamadı (1 boş değer). Liste: Varnek.vtb.access.txt")));
    ODBCBağlantısınıKapat();
    // The same start's compaction has replaced the backup: its original is kept, as is any other that it replaces.
    EXPECT_EQ(Baytlar(VeriDosyası() + QStringLiteral(".access")).toStdString(), dosya.Baytlar());
    EXPECT_EQ(Oku(VeriDosyası()).size(), 4 + 1 + 6);
    EXPECT_EQ(Oku(Yedek()), Oku(VeriDosyası()));
    ErişimDosyasıYap(AccessÜreteci(), Yedek());
    ZamanVer(VeriDosyası(), ÖncekiGün);
    ASSERT_TRUE(VeritabanınıHazırla());
    ODBCBağlantısınıKapat();
    EXPECT_EQ(Baytlar(VeriDosyası() + QStringLiteral(".access-2")).toStdString(), AccessÜreteci().Baytlar());
    EXPECT_EQ(Oku(Yedek()), Oku(VeriDosyası()));
}

// Where taking over fails, the dated copies are offered; not for a file that is merely open elsewhere.
TEST_F(HazırlıkTesti, BozukAccessDosyasındaKopyalarSunulur) {
    const QString kopyalar = YedekKlasörü() + QStringLiteral("Varnek 12345678/");
    QDir().mkpath(kopyalar);
    DosyaYaz(kopyalar + QStringLiteral("Varnek 2026-11-22 1803 000001.ydk"), {});
    DosyaYaz(kopyalar + QStringLiteral("yer.txt"), "/");
    const QByteArray kesik = QByteArray::fromStdString(AccessÜreteci().Baytlar()).left(32 * 4096);
    int sunulan = 0;
    const auto hazırla = [&](bool geriYüklenir) {
        Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
        const bool tamam = VeritabanınıHazırla([&] {
            ++sunulan;
            if (geriYüklenir) DosyaYap(VeriDosyası(), QStringLiteral("Çıta"), ÖncekiGün);
            return geriYüklenir;
        });
        ODBCBağlantısınıKapat();
        return tamam;
    };
    DosyaYaz(VeriDosyası(), kesik);
    EXPECT_FALSE(hazırla(false));
    EXPECT_EQ(sunulan, 1);
    EXPECT_TRUE(hazırla(true));
    EXPECT_EQ(sunulan, 2);
    QFile::remove(VeriDosyası());
    DosyaYaz(Yedek(), kesik);
    EXPECT_TRUE(hazırla(true));
    EXPECT_EQ(sunulan, 3);
    DosyaYaz(VeriDosyası(), kesik);
    DosyaYaz(ProgramKlasörü() + QStringLiteral("Varnek.ldb"), {});
    EXPECT_FALSE(hazırla(false));
    EXPECT_EQ(sunulan, 3);
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

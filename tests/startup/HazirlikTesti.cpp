#include "HazirlikTesti.h"

#include <sys/stat.h>
#include <unistd.h>

#include "CocukSureci.h"
#include "DegiskenModulu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "VeritabaniHazirlik.h"

namespace {

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

QString İkiSatır(int metin, const QString& yol) {
    return Metin(metin) + QLatin1Char('\n') + yol;
}

TEST_F(HazırlıkTesti, İlkBaşlatmaTarihSormadanYedekAlır) {
    // Blanks, a percent sign and Turkish letters in the path reach the driver whole.
    UygulamaYolu = ProgramKlasörü() + QStringLiteral("Ağaç %20 işleri/");
    const QString dosya = UygulamaYolu + QStringLiteral("Varnek.vtb");
    DosyaYap(dosya, QStringLiteral("Çıta"), QDateTime::currentDateTime());
    const Satırlar önce = Oku(dosya);
    ASSERT_GT(önce.size(), 100);
    ASSERT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(Yedek()), önce);
    EXPECT_EQ(Baytlar(dosya), Baytlar(Yedek()));
    EXPECT_EQ(QFileInfo(dosya).permissions() & 0x0077, 0) << "readable by others";
    EXPECT_TRUE(Baytlar(OdbcDosyası()).contains("[Varnek]"));
}

TEST_F(HazırlıkTesti, GündeBirKezSıkıştırır) {
    DosyaYap(Yedek(), QStringLiteral("Eski"), ÖncekiGün.addDays(-5));
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), ÖncekiGün);
    const Satırlar önce = Oku(VeriDosyası());
    const auto başlat = [](QDate gün) {
        SaatiAyarla([gün] { return gün; });
        const bool tamam = VeritabanınıHazırla();
        ODBCBağlantısınıKapat();
        return tamam;
    };
    // On the file's own day nothing is made, nor when the clock has been put back.
    for (const QDate gün : {ÖncekiGün.date(), ÖncekiGün.date().addDays(-1)}) {
        const QByteArray yedek = Baytlar(Yedek());
        EXPECT_TRUE(başlat(gün));
        EXPECT_EQ(Baytlar(Yedek()), yedek);
        EXPECT_EQ(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
    }
    EXPECT_TRUE(başlat(Gün));
    EXPECT_EQ(Oku(Yedek()), önce);
    EXPECT_EQ(Baytlar(VeriDosyası()), Baytlar(Yedek()));
    // The second start of the day leaves both alone, the day's own changes included.
    TestVerisi(VeriDosyası()).Çalıştır(QStringLiteral("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Yeni'"));
    EXPECT_TRUE(başlat(Gün));
    EXPECT_EQ(Oku(Yedek()), önce);
    EXPECT_EQ(Oku(VeriDosyası()).size(), önce.size() - 1);
    EXPECT_TRUE(başlat(Gün.addDays(1)));
    EXPECT_EQ(Oku(Yedek()).size(), önce.size() - 1);
}

TEST_F(HazırlıkTesti, EksikDosyaYedektenGelir) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const Satırlar yedek = Oku(Yedek());
    SaatiAyarla([this] { return ÖncekiGün.date(); });
    ASSERT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(VeriDosyası()), yedek);
    EXPECT_EQ(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
    // The restored file's day is the backup's: the next day's start compacts at once.
    ODBCBağlantısınıKapat();
    QFile::remove(VeriDosyası());
    SaatiAyarla(nullptr);
    ASSERT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(VeriDosyası()), yedek);
    EXPECT_GT(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
}

TEST_F(HazırlıkTesti, EskiGünlükGeriYüklenenDosyayaDokunmaz) {
    // A killed statement's journal stays beside a data file that is then lost.
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    DosyaYap(VeriDosyası(), QStringLiteral("Kaybolan"), ÖncekiGün);
    const QString günlük = VeriDosyası() + QStringLiteral("-journal");
    for (int n = 1; !QFile::exists(günlük) && n < 50; ++n) {
        ÇocukSüreci(
            {QStringLiteral("yaz"), ProgramKlasörü(),
             QStringLiteral("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '7' WHERE UrunGrubu= 'MASA'")},
            QStringLiteral("oldur %1").arg(n))
            .Sonuç();
        if (QFileInfo(günlük).size() < 1000) QFile::remove(günlük);
    }
    ASSERT_TRUE(QFile::exists(günlük));
    ASSERT_TRUE(QFile::remove(VeriDosyası()));
    const Satırlar yedek = Oku(Yedek());
    ASSERT_TRUE(VeritabanınıHazırla());
    EXPECT_FALSE(QFile::exists(günlük));
    EXPECT_EQ(Oku(VeriDosyası()), yedek);
}

TEST_F(HazırlıkTesti, BağınUcundakiDosyaYenilenir) {
    const QString asıl = Klasör() + QStringLiteral("baska/Veri.vtb");
    DosyaYap(asıl, QStringLiteral("Uzak"), ÖncekiGün);
    ASSERT_TRUE(QFile::link(asıl, VeriDosyası()));
    const Satırlar önce = Oku(asıl);
    ASSERT_TRUE(VeritabanınıHazırla());
    EXPECT_TRUE(QFileInfo(VeriDosyası()).isSymLink());
    EXPECT_EQ(Baytlar(asıl), Baytlar(Yedek()));
    EXPECT_EQ(Oku(asıl), önce);
}

TEST_F(HazırlıkTesti, NeDosyaNeYedekVarsaBaşlamaz) {
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_FALSE(VeritabanınıHazırla());
    Kutular().TekKutu(Simge::Kritik, Metin(150));
    EXPECT_TRUE(QDir(ProgramKlasörü()).isEmpty());
    EXPECT_FALSE(QFile::exists(OdbcDosyası()));
}

TEST_F(HazırlıkTesti, BozukYedekGeriYüklenmez) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QByteArray sağlam = Baytlar(Yedek());
    for (const QByteArray& bozuk : {QByteArray(), QByteArray("bu bir veri dosyasi degil"),
                                    sağlam.left(sağlam.size() / 2), QByteArray(100, '\0') + sağlam.mid(100)}) {
        Yaz(Yedek(), bozuk);
        Kutular().Yanıtla(Yanıt::Tamam);
        EXPECT_FALSE(VeritabanınıHazırla());
        Kutular().TekKutu(Simge::Kritik, İkiSatır(2122, Yedek()));
        EXPECT_EQ(Baytlar(Yedek()), bozuk);
        EXPECT_TRUE(QDir(ProgramKlasörü()).isEmpty());
    }
}

TEST_F(HazırlıkTesti, BozukDosyaSağlamYedeğinYeriniAlmaz) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QByteArray yedek = Baytlar(Yedek());
    // A page in the middle is damaged: the file opens, but must not become the backup.
    QByteArray dosya = yedek;
    constexpr int sayfa = 4096;
    dosya.replace(dosya.size() / 2 / sayfa * sayfa, sayfa, QByteArray(sayfa, '\xee'));
    Yaz(VeriDosyası(), dosya);
    ZamanVer(VeriDosyası(), ÖncekiGün);
    EXPECT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Baytlar(Yedek()), yedek);
    EXPECT_EQ(Baytlar(VeriDosyası()), dosya);
    ODBCBağlantısınıKapat();
    // One that does not open at all ends the start with the driver's own words.
    for (const QByteArray& çöp : {QByteArray(), QByteArray("cop")}) {
        Yaz(VeriDosyası(), çöp);
        ZamanVer(VeriDosyası(), ÖncekiGün);
        Kutular().Yanıtla(Yanıt::Tamam);
        EXPECT_FALSE(VeritabanınıHazırla());
        const auto kutular = Kutular().Al();
        ASSERT_EQ(kutular.size(), 1u);
        EXPECT_EQ(kutular[0].başlık, Metin(180));
        EXPECT_EQ(Baytlar(Yedek()), yedek);
        EXPECT_EQ(Baytlar(VeriDosyası()), çöp);
    }
}

TEST_F(HazırlıkTesti, KopyalanamayanYedekSöylenir) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QByteArray yedek = Baytlar(Yedek());
    QDir().mkpath(VeriDosyası() + QStringLiteral(".yeni/dolu"));
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_FALSE(VeritabanınıHazırla());
    Kutular().TekKutu(Simge::Kritik, İkiSatır(2121, VeriDosyası()));
    EXPECT_FALSE(QFile::exists(VeriDosyası()));
    EXPECT_EQ(Baytlar(Yedek()), yedek);
}

TEST_F(HazırlıkTesti, YedekKlasörüYapılamazsaYedeksizBaşlar) {
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), ÖncekiGün);
    Yaz(KullanıcıKlasörü() + QStringLiteral("Tovrek"), "klasor degil");
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_TRUE(VeritabanınıHazırla());
    Kutular().TekKutu(Simge::Ünlem, İkiSatır(2123, YedekKlasörü()));
    EXPECT_EQ(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
}

TEST_F(HazırlıkTesti, YazılamayanProgramKlasörüSöylenir) {
    // Outside the build folder, where another user may go; root is bound by no permissions, so it plays another user.
    const QTemporaryDir klasör;
    chmod(klasör.path().toUtf8(), 0755);
    UygulamaYolu = klasör.path() + QLatin1Char('/');
    DosyaYap(UygulamaYolu + QStringLiteral("Varnek.vtb"), QStringLiteral("Yeni"), ÖncekiGün);
    chmod(klasör.path().toUtf8(), 0555);
    Kutular().Yanıtla(Yanıt::Tamam);
    const bool kök = geteuid() == 0;
    ASSERT_TRUE(!kök || seteuid(65534) == 0);
    EXPECT_FALSE(VeritabanınıHazırla());
    ASSERT_TRUE(!kök || seteuid(0) == 0);
    chmod(klasör.path().toUtf8(), 0755);
    Kutular().TekKutu(Simge::Kritik, İkiSatır(2120, UygulamaYolu));
    EXPECT_EQ(QDir(UygulamaYolu).entryList(QDir::Files), QStringList(QStringLiteral("Varnek.vtb")));
}

TEST_F(HazırlıkTesti, BaşkasıYazarkenDosyaDeğiştirilmez) {
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), ÖncekiGün);
    const Satırlar önce = Oku(VeriDosyası());
    TestVerisi başkası(VeriDosyası());
    başkası.ElleOnayla();
    başkası.Çalıştır(QStringLiteral("INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Araya', '2')"));
    EXPECT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(Yedek()), önce);
    başkası.Onayla();
    EXPECT_EQ(Oku(VeriDosyası()).size(), önce.size() + 1);
}

}  // namespace

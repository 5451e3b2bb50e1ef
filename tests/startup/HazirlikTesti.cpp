#include "HazirlikTesti.h"

#include <sys/stat.h>
#include <unistd.h>

#include "ApilerModulu.h"
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
    return Metin(static_cast<MetinNo>(metin)) + QLatin1Char('\n') + yol;
}

// The start, on that day, and its end.
bool Başlat(QDate gün = QDate::currentDate()) {
    SaatiAyarla([gün] { return gün; });
    const bool tamam = VeritabanınıHazırla();
    ODBCBağlantısınıKapat();
    return tamam;
}

TEST_F(HazırlıkTesti, İlkBaşlatmaTarihSormadanYedekAlır) {
    // Blanks, a percent sign, Turkish letters and what parts or holds values reach the driver whole.
    UygulamaYolu = ProgramKlasörü() + QStringLiteral("{Ağaç; %20 işleri}/");
    const QString dosya = UygulamaYolu + QStringLiteral("Varnek.vtb");
    DosyaYap(dosya, QStringLiteral("Çıta"), QDateTime::currentDateTime());
    const Satırlar önce = Oku(dosya);
    ASSERT_GT(önce.size(), 100);
    ASSERT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(Yedek()), önce);
    EXPECT_EQ(Oku(dosya), önce);
    EXPECT_EQ(QFileInfo(dosya).permissions() & 0x0077, 0) << "readable by others";
    EXPECT_TRUE(Baytlar(OdbcDosyası()).contains("[Varnek]"));
}

TEST_F(HazırlıkTesti, GündeBirKezSıkıştırır) {
    DosyaYap(Yedek(), QStringLiteral("Eski"), ÖncekiGün.addDays(-5));
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), ÖncekiGün);
    const Satırlar önce = Oku(VeriDosyası());
    // On the file's own day nothing is made, nor when the clock has been put back.
    for (const QDate gün : {ÖncekiGün.date(), ÖncekiGün.date().addDays(-1)}) {
        const QByteArray yedek = Baytlar(Yedek());
        EXPECT_TRUE(Başlat(gün));
        EXPECT_EQ(Baytlar(Yedek()), yedek);
        EXPECT_EQ(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
    }
    EXPECT_TRUE(Başlat(Gün));
    EXPECT_EQ(Oku(Yedek()), önce);
    EXPECT_EQ(Oku(VeriDosyası()), önce);
    // The second start of the day leaves both alone, the day's own changes included.
    TestVerisi(VeriDosyası()).Çalıştır(QStringLiteral("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Yeni'"));
    EXPECT_TRUE(Başlat(Gün));
    EXPECT_EQ(Oku(Yedek()), önce);
    EXPECT_EQ(Oku(VeriDosyası()).size(), önce.size() - 1);
    EXPECT_TRUE(Başlat(Gün.addDays(1)));
    EXPECT_EQ(Oku(Yedek()).size(), önce.size() - 1);
}

TEST_F(HazırlıkTesti, EksikDosyaYedektenGelir) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const Satırlar yedek = Oku(Yedek());
    ASSERT_TRUE(Başlat(ÖncekiGün.date()));
    EXPECT_EQ(Oku(VeriDosyası()), yedek);
    EXPECT_EQ(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
    // The restored file's day is the backup's: the next day's start compacts at once.
    QFile::remove(VeriDosyası());
    ASSERT_TRUE(Başlat());
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

TEST_F(HazırlıkTesti, BağlarınUcundakiDosyalarYenilenir) {
    // The backup's link leads by ".." out of the folder that the backup's folder really is.
    const QString asılYedek = Klasör() + QStringLiteral("baska/yedekler/Yedek.ydk");
    const QString asıl = Klasör() + QStringLiteral("baska/Veri.vtb");
    DosyaYap(asılYedek, QStringLiteral("Eski"), ÖncekiGün.addDays(-3));
    DosyaYap(asıl, QStringLiteral("Yeni"), ÖncekiGün);
    QDir().mkpath(Klasör() + QStringLiteral("baska/klasor"));
    QDir().mkpath(KullanıcıKlasörü() + QStringLiteral("Tovrek"));
    ASSERT_TRUE(QFile::link(Klasör() + QStringLiteral("baska/klasor"), YedekKlasörü().chopped(1)));
    ASSERT_TRUE(QFile::link(QStringLiteral("../yedekler/Yedek.ydk"), Yedek()));
    ASSERT_TRUE(QFile::link(asıl, VeriDosyası()));
    const Satırlar önce = Oku(asıl);
    ASSERT_TRUE(VeritabanınıHazırla());
    EXPECT_TRUE(QFileInfo(VeriDosyası()).isSymLink() && QFileInfo(Yedek()).isSymLink());
    EXPECT_EQ(Oku(asılYedek), önce);
    EXPECT_EQ(Oku(asıl), önce);
}

TEST_F(HazırlıkTesti, BoşDosyaDoluYedeğinYeriniAlmaz) {
    const QString boşAdı =
        ProgramKlasörü() + QStringLiteral("Varnek-bos-") + Gün.toString(Qt::ISODate) + QStringLiteral(".vtb");
    const QString yedekAdı =
        YedekKlasörü() + QStringLiteral("Varnek-") + ÖncekiGün.date().toString(Qt::ISODate) + QStringLiteral(".ydk");
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const Satırlar dolu = Oku(Yedek());
    const QByteArray yedek = Baytlar(Yedek());
    VeriDosyasıOluştur(VeriDosyası());
    // No, twice: the empty file stays, and the backup stays under both names.
    for (const int gün : {0, 1}) {
        Kutular().Yanıtla(Yanıt::Hayır);
        EXPECT_TRUE(Başlat(Gün.addDays(gün)));
        const auto kutular = Kutular().Al();
        ASSERT_EQ(kutular.size(), 1u);
        EXPECT_EQ(kutular[0].varsayılan, Yanıt::Evet);
        for (const QString& ad : {VeriDosyası(), Yedek(), QFileInfo(yedekAdı).fileName()})
            EXPECT_TRUE(kutular[0].metin.contains(ad)) << ad.toStdString();
        EXPECT_EQ(Oku(VeriDosyası()), Satırlar());
        EXPECT_EQ(Baytlar(Yedek()), yedek);
        EXPECT_EQ(QDir(YedekKlasörü()).entryList(QDir::Files).size(), 2);
    }
    // With its first row the data file is the user's work: the backup follows it, and its old content is still there.
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), ÖncekiGün);
    EXPECT_TRUE(Başlat(Gün.addDays(1)));
    EXPECT_EQ(Oku(Yedek()), Oku(VeriDosyası()));
    EXPECT_EQ(Oku(yedekAdı), dolu);
    // Yes: the backup's rows come back, the empty file is kept.
    SaatiAyarla(nullptr);
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün.addDays(-2));
    QFile::remove(VeriDosyası());
    VeriDosyasıOluştur(VeriDosyası());
    const QByteArray boş = Baytlar(VeriDosyası());
    Kutular().Yanıtla(Yanıt::Evet);
    EXPECT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(VeriDosyası()), dolu);
    EXPECT_EQ(Baytlar(boşAdı), boş);
    EXPECT_EQ(Oku(Yedek()), dolu);
}

TEST_F(HazırlıkTesti, BozukYedekBoşDosyanınÜzerineGelmez) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QByteArray yedek = SayfasıBozuk(Baytlar(Yedek()));
    DosyaYaz(Yedek(), yedek);
    VeriDosyasıOluştur(VeriDosyası());
    const QByteArray boş = Baytlar(VeriDosyası());
    Kutular().Yanıtla(Yanıt::Evet);
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_FALSE(VeritabanınıHazırla());
    EXPECT_EQ(Kutular().Al().back().metin, İkiSatır(2157, Yedek()));
    EXPECT_EQ(Baytlar(Yedek()), yedek);
    EXPECT_EQ(Baytlar(VeriDosyası()), boş);
    // One whose rows cannot even be counted is told, without the advice to go back to it.
    DosyaYaz(Yedek(), "cop");
    ZamanVer(VeriDosyası(), ÖncekiGün);
    Söyler(true, Simge::Ünlem,
           Metin(MetinNo::YedekAlınamadı).arg(Metin(MetinNo::BoştaYedekBozuk), VeriDosyası(), Yedek()));
    EXPECT_EQ(Baytlar(Yedek()), "cop");
}

TEST_F(HazırlıkTesti, BozukYedekGeriYüklenmez) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QByteArray sağlam = Baytlar(Yedek());
    // Also one whose damage the opening does not see.
    for (const QByteArray& bozuk : {QByteArray("bu bir veri dosyasi degil"), sağlam.left(sağlam.size() / 2),
                                    QByteArray(100, '\0') + sağlam.mid(100), SayfasıBozuk(sağlam)}) {
        DosyaYaz(Yedek(), bozuk);
        Söyler(false, Simge::Kritik, İkiSatır(2122, Yedek()));
        EXPECT_EQ(Baytlar(Yedek()), bozuk);
        EXPECT_TRUE(QDir(ProgramKlasörü()).isEmpty());
    }
    // What is no damage keeps the driver's own words: one that holds what the program never writes.
    QByteArray yabancıÖğeli = sağlam;
    yabancıÖğeli.replace(R"("KullanimTarihi", "UrunAdi"))", R"("KullanimTarihi", abs(-101)))");
    DosyaYaz(Yedek(), yabancıÖğeli);
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_FALSE(VeritabanınıHazırla());
    EXPECT_TRUE(Kutular().Al().back().metin.contains(QStringLiteral("programın yazmadığı bir öğe")));
}

TEST_F(HazırlıkTesti, BozukDosyaSağlamYedeğinYeriniAlmaz) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QByteArray yedek = Baytlar(Yedek());
    // A page in the middle is damaged: the file opens, but must not become the backup.
    const QByteArray dosya = SayfasıBozuk(yedek);
    DosyaYaz(VeriDosyası(), dosya);
    ZamanVer(VeriDosyası(), ÖncekiGün);
    // Told once a day.
    Kutular().Yanıtla(Yanıt::Tamam);
    for (int başlatma = 0; başlatma < 2; ++başlatma) {
        EXPECT_TRUE(Başlat());
        EXPECT_EQ(Baytlar(Yedek()), yedek);
        EXPECT_EQ(Baytlar(VeriDosyası()), dosya);
    }
    auto uyarı = Kutular().Al();
    ASSERT_EQ(uyarı.size(), 1u);
    for (const QString& parça : {VeriDosyası(), Yedek(), Metin(MetinNo::SonYedekDuruyor)})
        EXPECT_TRUE(uyarı[0].metin.contains(parça)) << uyarı[0].metin.toStdString();
    // One that does not open at all ends the start with the driver's own words.
    DosyaYaz(VeriDosyası(), QByteArray());
    ZamanVer(VeriDosyası(), ÖncekiGün);
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_FALSE(VeritabanınıHazırla());
    EXPECT_EQ(Kutular().Al().back().başlık, Metin(MetinNo::OdbcHatası));
    EXPECT_EQ(Baytlar(Yedek()), yedek);
    EXPECT_EQ(Baytlar(VeriDosyası()), QByteArray());
}

TEST_F(HazırlıkTesti, KopyalanamayanYedekSöylenir) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QByteArray yedek = Baytlar(Yedek());
    QDir().mkpath(VeriDosyası() + QStringLiteral(".yeni/dolu"));
    Söyler(false, Simge::Kritik, İkiSatır(2121, VeriDosyası()));
    EXPECT_FALSE(QFile::exists(VeriDosyası()));
    EXPECT_EQ(Baytlar(Yedek()), yedek);
}

TEST_F(HazırlıkTesti, YedekKlasörüYapılamazsaYedeksizBaşlar) {
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), ÖncekiGün);
    DosyaYaz(KullanıcıKlasörü() + QStringLiteral("Tovrek"), "klasor degil");
    Söyler(true, Simge::Ünlem, İkiSatır(2123, YedekKlasörü()));
    EXPECT_EQ(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
}

TEST_F(HazırlıkTesti, OdbcAyarlarıYazılamazsaVeriKaynağıOlmadanBağlanır) {
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), QDateTime::currentDateTime());
    qputenv("ODBCINI", QFile::encodeName(Klasör() + QStringLiteral("yok/odbc.ini")));
    EXPECT_TRUE(VeritabanınıHazırla());
    EXPECT_FALSE(QFile::exists(Klasör() + QStringLiteral("yok")));
}

TEST_F(HazırlıkTesti, ÇokUzunYolSöylenir) {
    DosyaYap(Yedek(), QStringLiteral("Yedekteki"), ÖncekiGün);
    const QString kök = ProgramKlasörü();
    const QString ad = QStringLiteral("Varnek.vtb");
    const auto boydaKlasör = [&](qsizetype boy) {
        UygulamaYolu = kök + QString(boy - kök.toUtf8().size() - 1, QLatin1Char('u')) + QLatin1Char('/');
        for (qsizetype i = kök.size() + 100; i < UygulamaYolu.size() - 1; i += 101) UygulamaYolu[i] = QLatin1Char('/');
        return QDir().mkpath(UygulamaYolu);
    };
    // Where a data file may lie, its backup can be restored as well.
    constexpr int enUzun = 492;
    ASSERT_TRUE(boydaKlasör(enUzun - ad.size()));
    EXPECT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(UygulamaYolu + ad), Oku(Yedek()));
    ODBCBağlantısınıKapat();
    const QString dosya = UygulamaYolu + ad;
    ASSERT_TRUE(boydaKlasör(enUzun + 1 - ad.size()) && QFile::rename(dosya, UygulamaYolu + ad));
    Söyler(false, Simge::Kritik, İkiSatır(2160, UygulamaYolu));
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

TEST_F(HazırlıkTesti, SıkıştırmaBaşkasınınYazdığınıYutmaz) {
    DosyaYap(VeriDosyası(), QStringLiteral("Yeni"), ÖncekiGün);
    const Satırlar önce = Oku(VeriDosyası());
    TestVerisi başkası(VeriDosyası());
    başkası.ElleOnayla();
    başkası.Çalıştır(Deyimler::MalzemeEkle(QStringLiteral("Araya"), QStringLiteral("2")));
    EXPECT_TRUE(VeritabanınıHazırla());
    EXPECT_EQ(Oku(Yedek()), önce);
    başkası.Onayla();
    EXPECT_EQ(Oku(VeriDosyası()).size(), önce.size() + 1);
}

}  // namespace

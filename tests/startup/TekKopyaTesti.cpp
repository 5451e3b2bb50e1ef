#include "TekKopya.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>
#include <csignal>
#include <memory>

#include "OrtakFonksiyonlarModulu.h"
#include "CocukSureci.h"
#include "MetinTablosu.h"
#include "ModalBekleyici.h"
#include "SurumKaydi.h"
#include "TestVerisi.h"
#include "VarnekTesti.h"

namespace {

class TekKopyaTesti : public VarnekTesti {
  protected:
    void SetUp() override { VeriDosyasıOluştur(VeriDosyası()); }
    QStringList Başla() const { return {QStringLiteral("basla"), ProgramKlasörü()}; }
    // Where the lock and the socket of this user and version lie.
    static QString Yol(const char* ek) {
        return QStringLiteral("%1/%2-%3")
                   .arg(qEnvironmentVariable("XDG_RUNTIME_DIR"), Sürüm().Başlık(), KullanıcıKimliği()) +
               QLatin1String(ek);
    }
};

TEST_F(TekKopyaTesti, İkinciBaşlatmaPencereleriÖneGetirir) {
    TekKopya kopya;
    ASSERT_TRUE(kopya.Başla(Sürüm().Başlık()));
    TekKopya başkaSürüm;
    EXPECT_TRUE(başkaSürüm.Başla(QStringLiteral("Tovrek - Varnek 2.25")));

    QWidget pencere;
    pencere.showMinimized();
    ÇocukSüreci ikinci(Başla());
    EXPECT_TRUE(Bekle([&] { return !pencere.isMinimized() && pencere.isActiveWindow(); }));
    EXPECT_EQ(ikinci.Sonuç(), ÇocukSüreci::BAŞKA_KOPYA);
    EXPECT_FALSE(QFile::exists(OdbcDosyası())) << "the second copy went on";
}

TEST_F(TekKopyaTesti, ÖldürülenKopyaYoluKapatmaz) {
    EXPECT_TRUE(ÇocukSüreci(Başla()).BaşladıMı());  // and is killed
    // A copy that hangs still counts as running, and the second start does not wait for it.
    ÇocukSüreci asılı(Başla());
    ASSERT_TRUE(asılı.BaşladıMı());
    ::kill(static_cast<pid_t>(asılı.Süreç.processId()), SIGSTOP);
    EXPECT_EQ(ÇocukSüreci(Başla()).Sonuç(), ÇocukSüreci::BAŞKA_KOPYA);
}

TEST_F(TekKopyaTesti, SorulurkenBitenKopyaYoluAçar) {
    auto kilit = std::make_unique<DosyaKilidi>();
    ASSERT_EQ(kilit->Al(Yol(".kilit")), DosyaKilidi::Sonuç::Alındı);
    QLocalServer sunucu;
    ASSERT_TRUE(sunucu.listen(Yol(".soket")));
    ÇocukSüreci soran(Başla());
    ASSERT_TRUE(Bekle([&sunucu] { return sunucu.hasPendingConnections(); }));
    kilit.reset();
    sunucu.close();
    EXPECT_TRUE(soran.BaşladıMı());
}

TEST_F(TekKopyaTesti, KilitYapılamıyorsaYineBaşlar) {
    ASSERT_TRUE(QDir().mkpath(Yol(".kilit")));
    EXPECT_TRUE(ÇocukSüreci(Başla()).BaşladıMı());
}

TEST_F(TekKopyaTesti, BaşkaOturumdakiKopyaAynıVeriyiAçamaz) {
    const QString kilit = VeriDosyası() + QStringLiteral(".kilit");
    const QByteArray oturum = qgetenv("XDG_RUNTIME_DIR");
    {
        TekKopya kopya;
        ASSERT_TRUE(kopya.Başla(Sürüm().Başlık()));
        ASSERT_TRUE(kopya.VeriyiKilitle(VeriDosyası()));
        QWidget pencere;
        pencere.showMinimized();
        const QTemporaryDir başkaOturum;
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(başkaOturum.path()));
        // Also under another name of the same file.
        const QString bağ = Klasör() + QStringLiteral("bag/");
        ASSERT_TRUE(QDir().mkpath(bağ) && QFile::link(VeriDosyası(), bağ + QStringLiteral("Varnek.vtb")));
        for (const QString& klasör : {ProgramKlasörü(), bağ}) {
            ÇocukSüreci ikinci({QStringLiteral("basla"), klasör});
            EXPECT_TRUE(Bekle([&] { return ikinci.Süreç.state() == QProcess::NotRunning; }));
            EXPECT_EQ(ikinci.Sonuç(), 1);
            EXPECT_TRUE(ikinci.Kutular().contains(Metin(MetinNo::VeriBaşkaKopyada)));
        }
        EXPECT_FALSE(pencere.isMinimized());
    }
    EXPECT_FALSE(QFile::exists(kilit));
    // A killed copy's lock file hinders nobody.
    ÇocukSüreci(Başla()).BaşladıMı();
    EXPECT_TRUE(QFile::exists(kilit));
    EXPECT_TRUE(ÇocukSüreci(Başla()).BaşladıMı());
    qputenv("XDG_RUNTIME_DIR", oturum);
}

TEST_F(TekKopyaTesti, SinyalAyarlarıKaydedipBitirir) {
    for (const int sinyal : {SIGTERM, SIGHUP, SIGINT}) {
        ÇocukSüreci kopya(Başla());
        ASSERT_TRUE(kopya.BaşladıMı());
        ::kill(static_cast<pid_t>(kopya.Süreç.processId()), sinyal);
        EXPECT_EQ(kopya.Sonuç(), 0) << sinyal;
        EXPECT_FALSE(Baytlar(OdbcDosyası()).contains("[Varnek]"));
        EXPECT_FALSE(QFile::exists(VeriDosyası() + QStringLiteral(".kilit")));
        EXPECT_EQ(KayıtlıSol(), 10);
        QFile::remove(AyarDosyası());
    }
}

TEST_F(TekKopyaTesti, KullanıcınınVeriKaynaklarınaDokunmaz) {
    const QString ayarlar = Klasör() + QStringLiteral("ayarlar/Tovrek/Varnek-odbc.ini");
    qunsetenv("ODBCINI");
    const QByteArray ev = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(Klasör()));
    {
        ÇocukSüreci kopya(Başla());
        EXPECT_TRUE(kopya.BaşladıMı());
        EXPECT_TRUE(Baytlar(ayarlar).contains("[Varnek]"));
    }
    EXPECT_FALSE(QFile::exists(Klasör() + QStringLiteral(".odbc.ini")));
    qputenv("HOME", ev);
}

TEST_F(TekKopyaTesti, KendiSürücüsünüBulur) {
    // What the user's surroundings say about drivers does not count.
    const auto başlat = [this] {
        qputenv("ODBCSYSINI", "/yok");
        qputenv("ODBCINSTINI", "yok.ini");
        auto kopya = std::make_unique<ÇocukSüreci>(Başla());
        qputenv("ODBCSYSINI", VARNEK_BIN);
        qunsetenv("ODBCINSTINI");
        return kopya;
    };
    const QString sürücüler = ProgramKlasörü() + QStringLiteral("odbcinst.ini");
    ASSERT_TRUE(QFile::copy(QStringLiteral(VARNEK_BIN "/odbcinst.ini"), sürücüler));
    EXPECT_TRUE(başlat()->BaşladıMı());
    // Without its driver the program cannot read the backup, but does not call it damaged.
    ASSERT_TRUE(QFile::remove(sürücüler) && QFile::remove(VeriDosyası()));
    const auto kopya = başlat();
    EXPECT_EQ(kopya->Sonuç(), 1);
    const QString kutular = kopya->Kutular();
    EXPECT_TRUE(kutular.contains(QStringLiteral("[unixODBC]"))) << kutular.toStdString();
    EXPECT_FALSE(kutular.contains(Metin(MetinNo::YedekZararGörmüş)) || kutular.contains(Metin(MetinNo::VeriDosyasıYok)))
        << kutular.toStdString();
}

TEST_F(TekKopyaTesti, AynıAndaBaşlayanlardanBiriÇalışır) {
    for (int tur = 0; tur < 5; ++tur) {
        std::vector<std::unique_ptr<ÇocukSüreci>> süreçler;
        for (int i = 0; i < 4; ++i) süreçler.push_back(std::make_unique<ÇocukSüreci>(Başla()));
        int çalışan = 0;
        for (auto& süreç : süreçler) {
            if (süreç->BaşladıMı()) {
                ++çalışan;
            } else {
                EXPECT_EQ(süreç->Sonuç(), ÇocukSüreci::BAŞKA_KOPYA);
            }
        }
        EXPECT_EQ(çalışan, 1);
    }
}

}  // namespace

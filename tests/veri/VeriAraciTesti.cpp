#include <QElapsedTimer>
#include <QThread>
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

#include "AracTesti.h"
#include "BuyukVeri.h"

using namespace Qt::StringLiterals;

namespace {

class VeriAracıTesti : public AraçTesti {
  protected:
    // A run that takes long enough to be met in the middle: comes back once its file is growing.
    void UzunİşiBaşlat(QProcess& süreç) {
        süreç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), {u"buyuk"_s, Yol(u"Uzun.vtb"_s), u"50000000"_s});
        ASSERT_TRUE(süreç.waitForStarted());
        QElapsedTimer süre;
        süre.start();
        while (GeçiciBoy() < 100'000 && süre.elapsed() < 30'000) QThread::msleep(5);
        ASSERT_GE(GeçiciBoy(), 100'000);
        ASSERT_EQ(süreç.state(), QProcess::Running);
    }

    // Bytes of everything in the folders beside the target.
    qint64 GeçiciBoy() const {
        qint64 boy = 0;
        for (const QFileInfo& klasör : QDir(m_klasör.path()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            for (const QFileInfo& dosya : QDir(klasör.filePath()).entryInfoList(QDir::Files)) boy += dosya.size();
        }
        return boy;
    }
};

}  // namespace

TEST_F(VeriAracıTesti, WrongUseSaysHowAndMakesNothing) {
    const QString dosya = Yol(u"A.vtb"_s);
    const QList<QStringList> yanlışlar{{},
                                       {u"yeni"_s},
                                       {u"yeni"_s, dosya, u"5"_s},
                                       {u"buyuk"_s, dosya},
                                       {u"buyuk"_s, dosya, u"0"_s},
                                       {u"buyuk"_s, dosya, u"-5"_s},
                                       {u"buyuk"_s, dosya, u"12x"_s},
                                       {u"sil"_s, dosya}};
    for (const QStringList& sözler : yanlışlar) {
        const Sonuç sonuç = Çalıştır(sözler);
        EXPECT_EQ(sonuç.kod, 2) << sözler.join(u' ').toStdString();
        EXPECT_TRUE(sonuç.hata.contains(u"varnek-veri ornek DOSYA"_s));
        EXPECT_TRUE(sonuç.çıktı.isEmpty());
    }
    EXPECT_EQ(Klasördekiler(), QStringList());
}

TEST_F(VeriAracıTesti, NeverWritesOverAnythingThatExists) {
    QFile dosya(Yol(u"Dosya.vtb"_s));
    ASSERT_TRUE(dosya.open(QIODevice::WriteOnly));
    dosya.write("elle yazılmış");
    dosya.close();
    ASSERT_TRUE(QDir().mkdir(Yol(u"Klasör.vtb"_s)));
    ASSERT_TRUE(QFile::link(Yol(u"yok"_s), Yol(u"Bağ.vtb"_s)));
    const QStringList önce = Klasördekiler();
    for (const QString& ad : {u"Dosya.vtb"_s, u"Klasör.vtb"_s, u"Bağ.vtb"_s}) {
        const Sonuç sonuç = Çalıştır({u"ornek"_s, Yol(ad)});
        EXPECT_EQ(sonuç.kod, 1) << ad.toStdString();
        EXPECT_TRUE(sonuç.hata.contains(u"zaten var"_s)) << sonuç.hata.toStdString();
    }
    EXPECT_EQ(Klasördekiler(), önce);
    EXPECT_EQ(İçerik(Yol(u"Dosya.vtb"_s)), "elle yazılmış");
}

TEST_F(VeriAracıTesti, FileThatAppearsMeanwhileIsKept) {
    QProcess süreç;
    süreç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), {u"buyuk"_s, Yol(u"Arada.vtb"_s), u"50000"_s});
    ASSERT_TRUE(süreç.waitForStarted());
    while (Klasördekiler().filter(u"Arada"_s).isEmpty()) QThread::msleep(1);
    QFile araya(Yol(u"Arada.vtb"_s));
    ASSERT_TRUE(araya.open(QIODevice::WriteOnly | QIODevice::NewOnly));
    araya.write("araya giren");
    araya.close();
    ASSERT_TRUE(süreç.waitForFinished(120000));
    EXPECT_EQ(süreç.exitCode(), 1);
    EXPECT_EQ(İçerik(Yol(u"Arada.vtb"_s)), "araya giren");
    EXPECT_EQ(Klasördekiler().filter(u"Arada"_s), QStringList(u"Arada.vtb"_s));
}

TEST_F(VeriAracıTesti, KilledOrInterruptedRunLeavesNoFileUnderTheName) {
    QProcess öldürülen;
    ASSERT_NO_FATAL_FAILURE(UzunİşiBaşlat(öldürülen));
    öldürülen.kill();
    ASSERT_TRUE(öldürülen.waitForFinished());
    EXPECT_FALSE(QFile::exists(Yol(u"Uzun.vtb"_s)));

    // What the killed run left behind is in nobody's way.
    ASSERT_EQ(Çalıştır({u"yeni"_s, Yol(u"Uzun.vtb"_s)}).kod, 0);
    ASSERT_TRUE(QFile::remove(Yol(u"Uzun.vtb"_s)));
    for (const QString& kalan : Klasördekiler()) QDir(Yol(kalan)).removeRecursively();

    for (const int sinyal : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess kesilen;
        ASSERT_NO_FATAL_FAILURE(UzunİşiBaşlat(kesilen));
        ::kill(pid_t(kesilen.processId()), sinyal);
        ASSERT_TRUE(kesilen.waitForFinished());
        EXPECT_EQ(kesilen.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(kesilen.exitCode(), 1);
        EXPECT_EQ(Klasördekiler(), QStringList()) << "signal " << sinyal;
    }
}

TEST_F(VeriAracıTesti, FailureLeavesNothingBehind) {
    const Sonuç klasörsüz = Çalıştır({u"yeni"_s, Yol(u"yok/A.vtb"_s)});
    EXPECT_EQ(klasörsüz.kod, 1);
    EXPECT_FALSE(klasörsüz.hata.isEmpty());

    // A disk that takes no more: no file may grow beyond 200,000 bytes.
    QProcess süreç;
    süreç.setChildProcessModifier([] {
        const rlimit sınır{200'000, 200'000};
        setrlimit(RLIMIT_FSIZE, &sınır);
        std::signal(SIGXFSZ, SIG_IGN);
    });
    süreç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), {u"buyuk"_s, Yol(u"Dolu.vtb"_s), u"200000"_s});
    ASSERT_TRUE(süreç.waitForFinished(120000));
    EXPECT_EQ(süreç.exitCode(), 1);
    EXPECT_FALSE(süreç.readAllStandardError().isEmpty());
    EXPECT_EQ(Klasördekiler(), QStringList());
}

TEST_F(VeriAracıTesti, WorksWhereverItsFolderLies) {
    const QString klasör = Yol(u"Taşınmış Klasör %20 şğıİ"_s);
    ASSERT_TRUE(QDir().mkdir(klasör));
    for (const QString& ad : {u"varnek-veri"_s, u"libvarnek-motor.so"_s, u"odbcinst.ini"_s}) {
        ASSERT_TRUE(QFile::copy(QStringLiteral(VARNEK_BIN "/") + ad, klasör + u'/' + ad)) << ad.toStdString();
    }
    const QString dosya = Yol(u"Boş Dosya %41 ğüşıİöç.vtb"_s);
    const Sonuç sonuç = Çalıştır({u"yeni"_s, dosya}, klasör + u"/varnek-veri"_s);
    EXPECT_EQ(sonuç.kod, 0) << sonuç.hata.toStdString();
    EXPECT_TRUE(QFile::exists(dosya));
    EXPECT_EQ(Klasördekiler().size(), 2);
}

TEST_F(VeriAracıTesti, EmptyFileTakesTheProgramsStatements) {
    ASSERT_EQ(Çalıştır({u"yeni"_s, Yol(u"A.vtb"_s)}).kod, 0);
    EXPECT_EQ(QFile::permissions(Yol(u"A.vtb"_s)) &
                  (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
              QFile::Permissions());
    VeriBağlantısı veri(Yol(u"A.vtb"_s));
    for (const QString& tablo : {u"UrunTablosu"_s, u"MalzemeTablosu"_s, u"UrunMalzemeTablosu"_s}) {
        EXPECT_TRUE(veri.Oku(u"SELECT * FROM "_s + tablo).isEmpty()) << tablo.toStdString();
    }
    // The program names no percentages when it adds a product; names may repeat there, but not among the materials.
    for (int i = 0; i < 2; ++i) {
        veri.Çalıştır(u"INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('MASA', 'Sehpa')"_s);
        veri.Çalıştır(
            u"INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
            u"KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#3/7/2004#, 'MASA', 'Sehpa', 'Vida', "
            u"'12,5 Adet', '1.250,5001')"_s);
    }
    veri.Çalıştır(u"INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Iğne', '0,5')"_s);
    EXPECT_THROW(veri.Çalıştır(u"INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('ığne', '1')"_s),
                 VeriHatası);
    EXPECT_EQ(veri.Oku(u"SELECT IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu "
                       u"WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Sehpa'"_s),
              QList<QStringList>(2, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}));
    EXPECT_EQ(veri.Oku(u"SELECT KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, UrunAdi FROM "
                       u"UrunMalzemeTablosu WHERE KullanimTarihi = #3/7/2004# ORDER BY UrunAdi ASC"_s),
              QList<QStringList>(2, {u"Vida"_s, u"12,5 Adet"_s, u"1250.5001"_s, u"Sehpa"_s}));
}

TEST_F(VeriAracıTesti, LargeFileHoldsAsManyRowsAsAsked) {
    ASSERT_EQ(Çalıştır({u"buyuk"_s, Yol(u"B.vtb"_s), u"1010"_s}).kod, 0);
    VeriBağlantısı veri(Yol(u"B.vtb"_s));
    const auto sayı = [&](const QString& sorgu) { return veri.Oku(sorgu).value(0).value(0).toInt(); };
    EXPECT_EQ(veri.Oku(u"SELECT UrunAdi FROM UrunMalzemeTablosu"_s).size(), 1010);
    EXPECT_EQ(sayı(u"SELECT Count(UrunAdi) AS KayitSayisi FROM UrunTablosu"_s), 51);
    EXPECT_EQ(sayı(u"SELECT Count(MalzemeAdi) AS KayitSayisi FROM MalzemeTablosu"_s), 101);
    const auto malzemeler = [&](int ürün) {
        return veri
            .Oku(
                u"SELECT KullanilanMalzemeAdi FROM UrunMalzemeTablosu WHERE UrunGrubu= '%1' AND UrunAdi= '%2' "
                u"ORDER BY KullanilanMalzemeAdi ASC"_s.arg(BüyükGrupAdı(ürün / BÜYÜK_GRUBUN_ÜRÜNÜ), BüyükÜrünAdı(ürün)))
            .size();
    };
    EXPECT_EQ(malzemeler(0), BÜYÜK_ÜRÜNÜN_MALZEMESİ);
    EXPECT_EQ(malzemeler(49), BÜYÜK_ÜRÜNÜN_MALZEMESİ);
    EXPECT_EQ(malzemeler(50), 10);
}

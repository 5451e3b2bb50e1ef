#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// A fresh folder for each test, and the data-file tool as its users run it.
class VeriAracıTesti : public testing::Test {
  protected:
    struct Sonuç {
        int kod;
        QString hata;
    };

    QString Yol(const QString& ad) const { return m_klasör.filePath(ad); }
    // Everything that lies in the test's folder, hidden files too.
    QStringList Klasördekiler() const {
        return QDir(m_klasör.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    static Sonuç Çalıştır(const QStringList& sözler, const QString& araç = QStringLiteral(VARNEK_BIN "/varnek-veri")) {
        QProcess süreç;
        süreç.start(araç, sözler);
        EXPECT_TRUE(süreç.waitForFinished(120000)) << süreç.errorString().toStdString();
        EXPECT_EQ(süreç.exitStatus(), QProcess::NormalExit);
        return {süreç.exitCode(), QString::fromUtf8(süreç.readAllStandardError())};
    }
    static QByteArray İçerik(const QString& yol) {
        QFile dosya(yol);
        EXPECT_TRUE(dosya.open(QIODevice::ReadOnly)) << yol.toStdString();
        return dosya.readAll();
    }

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

    QTemporaryDir m_klasör;
};

}  // namespace

TEST_F(VeriAracıTesti, NeverWritesOverAnythingThatExists) {
    QFile dosya(Yol(u"Dosya.vtb"_s));
    ASSERT_TRUE(dosya.open(QIODevice::WriteOnly));
    dosya.write("elle yazılmış");
    dosya.close();
    ASSERT_TRUE(QFile::link(Yol(u"yok"_s), Yol(u"Bağ.vtb"_s)));
    const QStringList önce = Klasördekiler();
    for (const QString& ad : {u"Dosya.vtb"_s, u"Bağ.vtb"_s}) {
        const Sonuç sonuç = Çalıştır({u"ornek"_s, Yol(ad)});
        EXPECT_EQ(sonuç.kod, 1) << ad.toStdString();
        EXPECT_TRUE(sonuç.hata.contains(u"zaten var"_s)) << sonuç.hata.toStdString();
    }
    EXPECT_EQ(Çalıştır({u"buyuk"_s, Yol(u"A.vtb"_s), u"12x"_s}).kod, 2) << "wrong use makes nothing";
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

    for (const QString& kalan : Klasördekiler()) QDir(Yol(kalan)).removeRecursively();

    QProcess kesilen;
    ASSERT_NO_FATAL_FAILURE(UzunİşiBaşlat(kesilen));
    ::kill(pid_t(kesilen.processId()), SIGTERM);
    ASSERT_TRUE(kesilen.waitForFinished());
    EXPECT_EQ(kesilen.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(kesilen.exitCode(), 1);
    EXPECT_EQ(Klasördekiler(), QStringList());
}

// The work of the driver's ends as well.
TEST_F(VeriAracıTesti, InterruptedRepairAndReadingLeaveNothing) {
    ASSERT_EQ(Çalıştır({u"buyuk"_s, Yol(u"Bir.vtb"_s), u"300000"_s}).kod, 0);
    const QString geçici = Yol(u"gecici"_s);
    ASSERT_TRUE(QDir().mkdir(geçici));
    const QStringList önce = Klasördekiler();
    for (const QString& komut : {u"onar"_s, u"disari-aktar"_s}) {
        QProcess kesilen;
        QProcessEnvironment ortam = QProcessEnvironment::systemEnvironment();
        ortam.insert(u"TMPDIR"_s, geçici);
        kesilen.setProcessEnvironment(ortam);
        kesilen.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), {komut, Yol(u"Bir.vtb"_s), Yol(u"Yeni"_s)});
        ASSERT_TRUE(kesilen.waitForStarted());
        while (QDir(geçici).isEmpty() && kesilen.state() == QProcess::Running) QThread::msleep(1);
        QThread::msleep(20);
        ::kill(pid_t(kesilen.processId()), SIGINT);
        ASSERT_TRUE(kesilen.waitForFinished());
        EXPECT_EQ(kesilen.exitCode(), 1) << komut.toStdString();
        EXPECT_EQ(Klasördekiler(), önce) << komut.toStdString();
        EXPECT_TRUE(QDir(geçici).isEmpty()) << komut.toStdString();
    }
}

TEST_F(VeriAracıTesti, FailureLeavesNothingBehind) {
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

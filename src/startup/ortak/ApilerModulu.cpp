#include "ApilerModulu.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPrinterInfo>
#include <QScreen>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace {

// Closes a file descriptor on every path.
class Tanıtıcı {
  public:
    explicit Tanıtıcı(int no) : m_no(no) {}
    Tanıtıcı(const Tanıtıcı&) = delete;
    Tanıtıcı& operator=(const Tanıtıcı&) = delete;
    ~Tanıtıcı() {
        if (m_no >= 0) ::close(m_no);
    }
    bool Açık() const { return m_no >= 0; }
    int No() const { return m_no; }

  private:
    int m_no;
};

bool HepsiniYaz(int no, const char* veri, ssize_t boy) {
    while (boy > 0) {
        const ssize_t yazılan = ::write(no, veri, static_cast<size_t>(boy));
        if (yazılan < 0 && errno == EINTR) continue;
        if (yazılan <= 0) return false;
        veri += yazılan;
        boy -= yazılan;
    }
    return true;
}

// The source's bytes and modification time in a new file, on disk when it returns true.
bool EşiniYaz(const QByteArray& kaynak, const QByteArray& eş) {
    ::unlink(eş.constData());
    const Tanıtıcı oku(::open(kaynak.constData(), O_RDONLY | O_CLOEXEC));
    const Tanıtıcı yaz(::open(eş.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!oku.Açık() || !yaz.Açık()) return false;
    std::array<char, 1 << 16> tampon;
    for (;;) {
        const ssize_t okunan = ::read(oku.No(), tampon.data(), tampon.size());
        if (okunan < 0 && errno == EINTR) continue;
        if (okunan < 0) return false;
        if (okunan == 0) break;
        if (!HepsiniYaz(yaz.No(), tampon.data(), okunan)) return false;
    }
    struct stat bilgi {};
    if (::fstat(oku.No(), &bilgi) != 0) return false;
    const struct timespec zamanlar[2] = {bilgi.st_atim, bilgi.st_mtim};
    return ::futimens(yaz.No(), zamanlar) == 0 && ::fsync(yaz.No()) == 0;
}

void KlasörüDiskeYaz(const QString& klasör) {
    const Tanıtıcı no(::open(QFile::encodeName(klasör).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (no.Açık()) ::fsync(no.No());
}

// Where a chain of links ends, whether or not there is a file.
QString BağınUcu(const QString& yol) {
    constexpr int enUzunZincir = 40;
    QFileInfo bilgi(yol);
    for (int i = 0; i < enUzunZincir && bilgi.isSymLink(); ++i) bilgi.setFile(bilgi.symLinkTarget());
    return bilgi.filePath();
}

QByteArray YarımKopya(const QString& hedef) {
    return QFile::encodeName(hedef) + ".yeni";
}

// What lies beside a data file that is about to be replaced must not be taken for the new one's. It is gone from the
// disk before the new file comes, in whatever order the system writes.
bool GünlükleriSil(const QString& dosya, const QString& klasör) {
    bool silindi = false;
    for (const char* ek : {"-journal", "-wal", "-shm"}) {
        if (::unlink((QFile::encodeName(dosya) + ek).constData()) == 0) {
            silindi = true;
        } else if (errno != ENOENT) {
            return false;
        }
    }
    if (silindi) KlasörüDiskeYaz(klasör);
    return true;
}

}  // namespace

bool DosyaKopyala(const QString& kaynak, const QString& hedef) {
    const QString asıl = BağınUcu(hedef);
    const QString klasör = QFileInfo(asıl).absolutePath();
    const QByteArray yeni = YarımKopya(asıl);
    const bool tamam = EşiniYaz(QFile::encodeName(kaynak), yeni) && GünlükleriSil(asıl, klasör) &&
                       ::rename(yeni.constData(), QFile::encodeName(asıl).constData()) == 0;
    if (!tamam) {
        ::unlink(yeni.constData());
        return false;
    }
    KlasörüDiskeYaz(klasör);
    return true;
}

void YarımKopyayıSil(const QString& hedef) {
    ::unlink(YarımKopya(BağınUcu(hedef)).constData());
}

bool KlasöreYazılabilir(const QString& klasör) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(klasör).constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

DosyaKilidi::~DosyaKilidi() {
    if (m_no >= 0) ::close(m_no);
}

DosyaKilidi::Sonuç DosyaKilidi::Al(const QString& yol) {
    if (m_no >= 0) return Sonuç::Alındı;
    const int no = ::open(QFile::encodeName(yol).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (no < 0) return Sonuç::Yapılamadı;
    if (::flock(no, LOCK_EX | LOCK_NB) != 0) {
        const bool başkasında = errno == EWOULDBLOCK;
        ::close(no);
        return başkasında ? Sonuç::Başkasında : Sonuç::Yapılamadı;
    }
    m_no = no;
    return Sonuç::Alındı;
}

QString KullanıcıKimliği() {
    return QString::number(::geteuid());
}

bool SistemSürümünüAl(SistemSürümü& sürüm) {
    struct utsname ad {};
    if (::uname(&ad) != 0) return false;
    unsigned ana = 0;
    unsigned ikincil = 0;
    const QStringList parçalar = QString::fromLatin1(ad.release).split(QLatin1Char('.'));
    if (!parçalar.isEmpty()) ana = parçalar.at(0).toUInt();
    if (parçalar.size() > 1) ikincil = parçalar.at(1).toUInt();
    sürüm = {ana, ikincil, 0, QString()};
    return true;
}

int YazıcıSayısı() {
    return static_cast<int>(QPrinterInfo::availablePrinterNames().size());
}

int EkranGenişliği() {
    const QScreen* ekran = QGuiApplication::primaryScreen();
    return ekran ? ekran->size().width() : 0;
}

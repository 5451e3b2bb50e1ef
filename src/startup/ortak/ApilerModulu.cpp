#include "ApilerModulu.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPrinterInfo>
#include <QScreen>

#include <fcntl.h>
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
    const Tanıtıcı oku(::open(kaynak.constData(), O_RDONLY | O_CLOEXEC));
    const Tanıtıcı yaz(::open(eş.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
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

}  // namespace

bool DosyaKopyala(const QString& kaynak, const QString& hedef) {
    const QByteArray hedefAdı = QFile::encodeName(hedef);
    const QByteArray yeni = hedefAdı + ".yeni";
    bool tamam = EşiniYaz(QFile::encodeName(kaynak), yeni);
    if (tamam) {
        const QByteArray günlük = hedefAdı + "-journal";
        tamam = ::unlink(günlük.constData()) == 0 || errno == ENOENT;
    }
    tamam = tamam && ::rename(yeni.constData(), hedefAdı.constData()) == 0;
    if (!tamam) {
        ::unlink(yeni.constData());
        return false;
    }
    KlasörüDiskeYaz(QFileInfo(hedef).absolutePath());
    return true;
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

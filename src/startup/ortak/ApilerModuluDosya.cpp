// Files, folders and locks.
#include "ApilerModulu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>

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

// The source's bytes and modification time in a new file, on disk when it returns true. What bears the copy's name is
// unlinked and never opened: it may be a link, or another name of a file that is somebody's.
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

QByteArray Klasörü(const QByteArray& yol) {
    const qsizetype ayraç = yol.lastIndexOf('/');
    return ayraç < 0 ? QByteArray(".") : ayraç == 0 ? QByteArray("/") : yol.left(ayraç);
}

// Puts the names in a folder on disk. False where the disk failed; a file system that cannot sync folders, or a folder
// that must not be read, is no reason to give up.
bool KlasörüDiskeYaz(const QByteArray& klasör) {
    const Tanıtıcı no(::open(klasör.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!no.Açık() || ::fsync(no.No()) == 0) return true;
    return errno != EIO && errno != ENOSPC && errno != EDQUOT;
}

QByteArray GerçekKlasör(const QByteArray& klasör) {
    std::array<char, PATH_MAX> tampon;
    return ::realpath(klasör.constData(), tampon.data()) ? QByteArray(tampon.data()) : QByteArray();
}

QByteArray BağınHedefi(const QByteArray& yol) {
    std::array<char, PATH_MAX> tampon;
    const ssize_t boy = ::readlink(yol.constData(), tampon.data(), tampon.size());
    return boy > 0 ? QByteArray(tampon.data(), boy) : QByteArray();
}

// Where a chain of links ends, whether or not there is a file. The system itself follows each folder on the way: ".."
// after a folder that is a link does not lead to what stands before it in the text.
QByteArray GerçekBaytYolu(const QByteArray& yol) {
    constexpr int enUzunZincir = 40;
    QByteArray varılan = yol;
    for (int i = 0; i < enUzunZincir; ++i) {
        const QByteArray klasör = GerçekKlasör(Klasörü(varılan));
        if (klasör.isEmpty()) return yol;
        varılan = klasör + '/' + varılan.mid(varılan.lastIndexOf('/') + 1);
        const QByteArray hedef = BağınHedefi(varılan);
        if (hedef.isEmpty()) return varılan;
        varılan = hedef.startsWith('/') ? hedef : klasör + '/' + hedef;
    }
    return yol;
}

QByteArray YarımKopya(const QByteArray& hedef) {
    return hedef + ".yeni";
}

// What lies beside a data file that is about to be replaced must not be taken for the new one's. It is gone from the
// disk before the new file comes, in whatever order the system writes.
bool GünlükleriSil(const QByteArray& dosya) {
    bool silindi = false;
    for (const char* ek : {"-journal", "-wal", "-shm"}) {
        if (::unlink((dosya + ek).constData()) == 0) {
            silindi = true;
        } else if (errno != ENOENT) {
            return false;
        }
    }
    return !silindi || KlasörüDiskeYaz(Klasörü(dosya));
}

// Whether this name still leads to the file that was opened.
bool AynıDosya(int no, const QByteArray& yol) {
    struct stat açılan {};
    struct stat yerdeki {};
    return ::fstat(no, &açılan) == 0 && ::stat(yol.constData(), &yerdeki) == 0 && açılan.st_dev == yerdeki.st_dev &&
           açılan.st_ino == yerdeki.st_ino;
}

}  // namespace

QString GerçekYol(const QString& yol) {
    return QFile::decodeName(GerçekBaytYolu(QFile::encodeName(yol)));
}

bool DosyaKopyala(const QString& kaynak, const QString& hedef) {
    const QByteArray asıl = GerçekBaytYolu(QFile::encodeName(hedef));
    const QByteArray yeni = YarımKopya(asıl);
    const bool tamam = EşiniYaz(QFile::encodeName(kaynak), yeni) && GünlükleriSil(asıl) &&
                       ::rename(yeni.constData(), asıl.constData()) == 0;
    if (!tamam) {
        ::unlink(yeni.constData());
        return false;
    }
    KlasörüDiskeYaz(Klasörü(asıl));
    return true;
}

bool DosyayıSakla(const QString& kaynak, const QString& yeniAd) {
    const QByteArray ad = QFile::encodeName(yeniAd);
    if (::link(GerçekBaytYolu(QFile::encodeName(kaynak)).constData(), ad.constData()) == 0)
        return KlasörüDiskeYaz(Klasörü(ad));
    // File systems without a second name for a file, or the link's end on another one.
    return errno != EEXIST && !QFileInfo::exists(yeniAd) && !QFileInfo(yeniAd).isSymLink() &&
           DosyaKopyala(kaynak, yeniAd);
}

void YarımKopyayıSil(const QString& hedef) {
    const QByteArray yeni = YarımKopya(GerçekBaytYolu(QFile::encodeName(hedef)));
    {
        // One that another process writes just now is locked.
        const Tanıtıcı no(::open(yeni.constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
        if (no.Açık() && ::flock(no.No(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return;
        ::unlink(yeni.constData());
    }
    GünlükleriSil(yeni);
}

bool KlasörYap(const QString& klasör) {
    const QString yol = QDir::cleanPath(klasör);
    if (::mkdir(QFile::encodeName(yol).constData(), 0700) == 0 || errno == EEXIST) return QFileInfo(yol).isDir();
    if (errno != ENOENT || yol.isEmpty()) return false;
    const QString üst = QFileInfo(yol).path();
    return üst != yol && KlasörYap(üst) && ::mkdir(QFile::encodeName(yol).constData(), 0700) == 0;
}

bool KlasöreYazılabilir(const QString& klasör) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(klasör).constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool DosyayaYazılabilir(const QString& dosya) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(dosya).constData(), W_OK, AT_EACCESS) == 0;
}

DosyaKilidi::~DosyaKilidi() {
    if (m_no < 0) return;
    // While it is still locked: whoever waits for it notices that its name leads elsewhere.
    if (m_artık == Artık::Silinir) ::unlink(m_yol.constData());
    ::close(m_no);
}

DosyaKilidi::Sonuç DosyaKilidi::Al(const QString& yol, Artık artık) {
    if (m_no >= 0) return Sonuç::Alındı;
    const QByteArray ad = QFile::encodeName(yol);
    for (;;) {
        const int no = ::open(ad.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
        if (no < 0) return Sonuç::Yapılamadı;
        if (::flock(no, LOCK_EX | LOCK_NB) != 0) {
            const bool başkasında = errno == EWOULDBLOCK;
            ::close(no);
            return başkasında ? Sonuç::Başkasında : Sonuç::Yapılamadı;
        }
        if (AynıDosya(no, ad)) {
            m_no = no;
            m_yol = ad;
            m_artık = artık;
            return Sonuç::Alındı;
        }
        ::close(no);  // its last holder has taken it away
    }
}

void DosyaKilidi::NotYaz(const QString& not_) {
    const QByteArray baytlar = QFile::encodeName(not_);
    if (m_no >= 0 && ::ftruncate(m_no, 0) == 0) HepsiniYaz(m_no, baytlar.constData(), baytlar.size());
}

QString DosyaKilidi::NotOku(const QString& yol) {
    const Tanıtıcı no(::open(QFile::encodeName(yol).constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    std::array<char, PATH_MAX> tampon;
    const ssize_t boy = no.Açık() ? ::read(no.No(), tampon.data(), tampon.size()) : 0;
    return boy > 0 ? QFile::decodeName(QByteArray(tampon.data(), boy)) : QString();
}

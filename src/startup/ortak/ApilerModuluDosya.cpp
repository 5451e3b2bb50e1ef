// Files, folders and locks.
#include "ApilerModulu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>

#include "GeciciDosya.h"

namespace {

std::string Bayt(const QString& yol) {
    return QFile::encodeName(yol).toStdString();
}

std::string GerçekBayt(const QString& yol) {
    std::error_code hata;
    const std::string gerçek = Dosya::GerçekYol(Bayt(yol), hata);
    return hata ? Bayt(yol) : gerçek;
}

}  // namespace

QString GerçekYol(const QString& yol) {
    return QFile::decodeName(QByteArray::fromStdString(GerçekBayt(yol)));
}

bool DosyaKopyala(const QString& kaynak, const QString& hedef) {
    const std::string asıl = GerçekBayt(hedef);
    Dosya::GeçiciDosya eş(asıl);
    return eş.Aç().Tamam() && eş.Doldur(Bayt(kaynak)).Tamam() && Dosya::GünlükleriSil(asıl) &&
           eş.Yerleştir(Dosya::Yerleştirme::Değiştir).Yapıldı();
}

bool DosyayıSakla(const QString& kaynak, const QString& yeniAd) {
    const Dosya::Sonuç sonuç = Dosya::EşAdVer(GerçekBayt(kaynak), Bayt(yeniAd));
    if (sonuç.Ne != Dosya::Sonuç::Tür::Yapılamadı) return sonuç.Tamam();
    // File systems without a second name for a file, or the link's end on another one.
    return !Dosya::YolVar(Bayt(yeniAd)) && DosyaKopyala(kaynak, yeniAd);
}

void YarımKopyayıSil(const QString& hedef) {
    const std::string asıl = GerçekBayt(hedef);
    const std::string yarım = Dosya::GeçiciDosya::YarımAd(asıl);
    const Dosya::Sonuç sonuç = Dosya::GeçiciDosya::KalıntıyıSil(asıl);
    if (sonuç.Ne == Dosya::Sonuç::Tür::Meşgul) return;
    // Another user's cannot be opened to be asked for its lock; it would be in the way of every copy to come.
    if (!sonuç.Tamam()) Dosya::Sil(yarım);
    Dosya::GünlükleriSil(yarım);
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
    return Dosya::Yazılabilir(Bayt(dosya));
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
        if (!Dosya::Kilitle(no)) {
            const bool başkasında = errno == EWOULDBLOCK;
            ::close(no);
            return başkasında ? Sonuç::Başkasında : Sonuç::Yapılamadı;
        }
        if (Dosya::AynıDosya(no, ad.toStdString())) {
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
    if (m_no >= 0 && ::ftruncate(m_no, 0) == 0)
        Dosya::HepsiniYaz(m_no, baytlar.constData(), static_cast<std::size_t>(baytlar.size()));
}

QString DosyaKilidi::NotOku(const QString& yol) {
    const Dosya::Tanıtıcı no(
        ::open(QFile::encodeName(yol).constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    std::array<char, PATH_MAX> tampon;
    const ssize_t boy = no.Açık() ? ::read(no.No(), tampon.data(), tampon.size()) : 0;
    return boy > 0 ? QFile::decodeName(QByteArray(tampon.data(), boy)) : QString();
}

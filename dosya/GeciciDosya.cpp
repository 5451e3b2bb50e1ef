#include "GeciciDosya.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

namespace Dosya {

namespace {

Sonuç Yapılamadı() {
    return {Sonuç::Tür::Yapılamadı, errno};
}

// Renames without ever replacing; where the file system does not know that, by a look before the renaming.
int YeniAdVer(const std::string& eski, const std::string& yeni) {
    const int sonuç = renameat2(AT_FDCWD, eski.c_str(), AT_FDCWD, yeni.c_str(), RENAME_NOREPLACE);
    if (sonuç == 0 || (errno != EINVAL && errno != ENOSYS)) return sonuç;
    if (YolVar(yeni)) {
        errno = EEXIST;
        return -1;
    }
    return std::rename(eski.c_str(), yeni.c_str());
}

// A new name was given or refused: the folder follows.
Sonuç AdVerildi(int sonuç, const std::string& ad) {
    if (sonuç != 0 && errno == EEXIST) return {Sonuç::Tür::Var, errno};
    if (sonuç != 0) return Yapılamadı();
    if (!KlasörüEşitle(ad)) return {Sonuç::Tür::Doğrulanamadı, errno};
    return {};
}

// Takes away what lies under the name of a file in the making, unless another process is at work on it, which its lock
// tells. A link is taken away itself, what it leads to is left alone.
Sonuç EskisiniKaldır(const std::string& yol) {
    const Tanıtıcı eski(open(yol.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
    if (!eski.Açık() && errno == ENOENT) return {};
    if (!eski.Açık() && errno != ELOOP) return Yapılamadı();
    if (eski.Açık() && !Kilitle(eski.No())) return {Sonuç::Tür::Meşgul, errno};
    if (eski.Açık() && !AynıDosya(eski.No(), yol)) return {};  // renamed meanwhile by its maker
    GünlükleriSil(yol);
    return Sil(yol) ? Sonuç() : Yapılamadı();
}

bool BaytlarıAktar(int kaynak, int hedef) {
    std::array<char, 1 << 16> tampon;
    for (;;) {
        const ssize_t okunan = read(kaynak, tampon.data(), tampon.size());
        if (okunan < 0 && errno == EINTR) continue;
        if (okunan <= 0) return okunan == 0;
        if (!HepsiniYaz(hedef, tampon.data(), static_cast<std::size_t>(okunan))) return false;
    }
}

}  // namespace

Sonuç Taşı(const std::string& kaynak, const std::string& hedef, Yerleştirme biçim) {
    const bool yeni = biçim == Yerleştirme::Yeni;
    return AdVerildi(yeni ? YeniAdVer(kaynak, hedef) : std::rename(kaynak.c_str(), hedef.c_str()), hedef);
}

Sonuç EşAdVer(const std::string& dosya, const std::string& ad) {
    return AdVerildi(link(dosya.c_str(), ad.c_str()), ad);
}

GeçiciDosya::~GeçiciDosya() {
    if (!m_bizim) return;
    GünlükleriSil(m_yol);
    Sil(m_yol);
}

// Between making the file and locking it another process may take it for a crash's and remove it: then anew.
Sonuç GeçiciDosya::Aç() {
    while (!m_bizim) {
        const Sonuç yer = EskisiniKaldır(m_yol);
        if (!yer.Tamam()) return yer;
        m_dosya = Tanıtıcı(open(m_yol.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (!m_dosya.Açık() && errno == EEXIST) continue;
        if (!m_dosya.Açık()) return Yapılamadı();
        if (!Kilitle(m_dosya.No())) return {Sonuç::Tür::Meşgul, errno};
        m_bizim = AynıDosya(m_dosya.No(), m_yol);
    }
    return fchmod(m_dosya.No(), S_IRUSR | S_IWUSR) == 0 ? Sonuç() : Yapılamadı();
}

Sonuç GeçiciDosya::Doldur(const std::string& kaynak) {
    const Tanıtıcı oku(open(kaynak.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat bilgi;
    if (!oku.Açık() || !BaytlarıAktar(oku.No(), m_dosya.No()) || fstat(oku.No(), &bilgi) != 0) return Yapılamadı();
    const struct timespec zamanlar[2] = {bilgi.st_atim, bilgi.st_mtim};
    return futimens(m_dosya.No(), zamanlar) == 0 ? Sonuç() : Yapılamadı();
}

Sonuç GeçiciDosya::Yerleştir(Yerleştirme biçim) {
    GünlükleriSil(m_yol);
    if (biçim == Yerleştirme::Değiştir) İzinleriAl(m_hedef);
    if (fsync(m_dosya.No()) != 0) return Yapılamadı();
    const Sonuç sonuç = Taşı(m_yol, m_hedef, biçim);
    if (sonuç.Yapıldı()) m_bizim = false;
    return sonuç;
}

Sonuç GeçiciDosya::KalıntıyıSil(const std::string& hedef) {
    const std::string yol = YarımAd(hedef);
    return YolVar(yol) ? EskisiniKaldır(yol) : Sonuç();
}

}  // namespace Dosya

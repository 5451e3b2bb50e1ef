#include "DosyaIslemleri.h"

#include "Hata.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace Motor {

namespace {

[[noreturn]] void YazılamadıHatası(const std::string& yol) {
    const int neden = errno;
    const std::string dosya = std::filesystem::path(yol).filename().string();
    if (neden == ENOSPC || neden == EDQUOT || neden == EFBIG)
        throw Hata(Durum::Genel, "Diskte yer kalmadığı için dosya yazılamadı: " + dosya, neden);
    throw Hata(Durum::Genel, "Dosya yazılamadı; klasörün yazma iznini ve diski denetleyin: " + dosya, neden);
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

bool AynıDüğüm(int dosya, const std::string& yol) {
    struct stat açılan;
    struct stat yerdeki;
    return fstat(dosya, &açılan) == 0 && lstat(yol.c_str(), &yerdeki) == 0 && açılan.st_ino == yerdeki.st_ino &&
           açılan.st_dev == yerdeki.st_dev;
}

bool Kilitle(int dosya) {
    return flock(dosya, LOCK_EX | LOCK_NB) == 0;
}

// Takes away what lies under the name of a file in the making; false while another process is at work on it, which its
// lock tells. A link is taken away itself, what it leads to is left alone.
bool EskisiniKaldır(const std::string& yol) {
    const Tanıtıcı eski(open(yol.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
    if (!eski.Açık() && errno == ENOENT) return true;
    if (!eski.Açık() && errno != ELOOP) YazılamadıHatası(yol);
    if (eski.Açık() && !Kilitle(eski.No())) return false;
    if (eski.Açık() && !AynıDüğüm(eski.No(), yol)) return true;  // renamed meanwhile by its maker
    GünlükleriSil(yol);
    if (unlink(yol.c_str()) != 0 && errno != ENOENT) YazılamadıHatası(yol);
    return true;
}

}  // namespace

Tanıtıcı::~Tanıtıcı() {
    if (m_no >= 0) close(m_no);
}

std::string GerçekYol(const std::string& yol) {
    namespace fs = std::filesystem;
    constexpr int enÇokBağ = 40;
    std::error_code hata;
    fs::path gerçek = fs::absolute(yol, hata);
    // The last name's links are followed by hand, since it need not exist.
    for (int i = 0; i < enÇokBağ && fs::is_symlink(fs::symlink_status(gerçek, hata)); ++i)
        gerçek = gerçek.parent_path() / fs::read_symlink(gerçek, hata);
    const fs::path klasör = fs::canonical(gerçek.parent_path(), hata);
    if (hata) throw Hata(Durum::Bağlanamadı, "Klasör bulunamadı: " + gerçek.parent_path().string(), hata.value());
    return (klasör / gerçek.filename()).string();
}

bool OlağanDosyaVar(const std::string& yol) {
    struct stat bilgi;
    return stat(yol.c_str(), &bilgi) == 0 && S_ISREG(bilgi.st_mode);
}

bool YolVar(const std::string& yol) {
    struct stat bilgi;
    return lstat(yol.c_str(), &bilgi) == 0;
}

bool AynıDosya(const std::string& a, const std::string& b) {
    struct stat ilk;
    struct stat ikinci;
    return stat(a.c_str(), &ilk) == 0 && stat(b.c_str(), &ikinci) == 0 && ilk.st_dev == ikinci.st_dev &&
           ilk.st_ino == ikinci.st_ino;
}

bool Yazılabilir(const std::string& yol) {
    return access(yol.c_str(), W_OK) == 0;
}

bool GünlükVar(const std::string& yol) {
    return YolVar(yol + "-journal") || YolVar(yol + "-wal");
}

void GünlükleriSil(const std::string& yol) {
    for (const char* ek : {"-journal", "-wal", "-shm"}) unlink((yol + ek).c_str());
}

void RollbackGünlüğünüSil(const std::string& yol) {
    unlink((yol + "-journal").c_str());
}

void GünlükleriDenetle(const std::string& yol) {
    for (const char* ek : {"-journal", "-wal", "-shm"}) {
        struct stat bilgi;
        if (lstat((yol + ek).c_str(), &bilgi) != 0 || S_ISREG(bilgi.st_mode)) continue;
        throw Hata(Durum::Bağlanamadı, "Veri dosyasının günlük adını dosya olmayan bir şey taşıyor; onu kaldırın: " +
                                           std::filesystem::path(yol + ek).filename().string());
    }
}

bool KlasörüEşitle(const std::string& dosya) {
    const std::string klasör = std::filesystem::path(dosya).parent_path().string();
    const Tanıtıcı tanıtıcı(open(klasör.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return !tanıtıcı.Açık() || fsync(tanıtıcı.No()) == 0 || (errno != EIO && errno != ENOSPC && errno != EDQUOT);
}

// Between making the file and locking it another process may take it for a crash's and remove it: then anew.
GeçiciDosya::GeçiciDosya(const std::string& hedef) : m_hedef(hedef), m_yol(hedef + ".yeni") {
    bool bizim = false;
    while (!bizim) {
        const bool boş = EskisiniKaldır(m_yol);
        if (boş) m_dosya = Tanıtıcı(open(m_yol.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (boş && !m_dosya.Açık() && errno == EEXIST) continue;
        if (boş && !m_dosya.Açık()) YazılamadıHatası(m_yol);
        if (!boş || !Kilitle(m_dosya.No()))
            throw Hata(Durum::ZamanAşımı, "Bu dosyayı şu anda başka bir program yazıyor; biraz sonra tekrar deneyin.");
        bizim = AynıDüğüm(m_dosya.No(), m_yol);
    }
    if (fchmod(m_dosya.No(), S_IRUSR | S_IWUSR) == 0) return;
    const int neden = errno;
    unlink(m_yol.c_str());
    errno = neden;
    YazılamadıHatası(m_yol);
}

GeçiciDosya::~GeçiciDosya() {
    if (m_yerleşti) return;
    GünlükleriSil(m_yol);
    unlink(m_yol.c_str());
}

void GeçiciDosya::KalıntıyıSil(const std::string& hedef) {
    if (!YolVar(hedef + ".yeni")) return;
    try {
        EskisiniKaldır(hedef + ".yeni");
    } catch (const Hata&) {  // in nobody's way; the next one to make such a file is told
    }
}

void GeçiciDosya::Yerleştir(Yerleştirme biçim) {
    GünlükleriSil(m_yol);
    if (fsync(m_dosya.No()) != 0) YazılamadıHatası(m_yol);
    const int sonuç =
        biçim == Yerleştirme::Yeni ? YeniAdVer(m_yol, m_hedef) : std::rename(m_yol.c_str(), m_hedef.c_str());
    if (sonuç != 0 && errno == EEXIST)
        throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " +
                                     std::filesystem::path(m_hedef).filename().string());
    if (sonuç != 0) YazılamadıHatası(m_hedef);
    m_yerleşti = true;
    if (!KlasörüEşitle(m_hedef))
        throw Hata(Durum::Genel,
                   "Dosya yazıldı ama diskin onu kalıcı olarak sakladığı doğrulanamadı; diski denetleyin: " +
                       std::filesystem::path(m_hedef).filename().string());
}

}  // namespace Motor

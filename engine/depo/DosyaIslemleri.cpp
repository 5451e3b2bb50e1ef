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

// A folder that cannot be synced (some network drives) is no reason to give up a complete file.
void KlasörüEşitle(const std::string& dosya) {
    const std::string klasör = std::filesystem::path(dosya).parent_path().string();
    const int tanıtıcı = open(klasör.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (tanıtıcı < 0) return;
    fsync(tanıtıcı);
    close(tanıtıcı);
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

}  // namespace

std::string TamYol(const std::string& yol) {
    return std::filesystem::absolute(yol).lexically_normal().string();
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

bool GünlükVar(const std::string& yol) {
    return YolVar(yol + "-journal") || YolVar(yol + "-wal");
}

void GünlükleriSil(const std::string& yol) {
    for (const char* ek : {"-journal", "-wal", "-shm"}) unlink((yol + ek).c_str());
}

GeçiciDosya::GeçiciDosya(const std::string& hedef) : m_hedef(hedef), m_yol(hedef + ".yeni") {
    Kilitle();
    GünlükleriSil(m_yol);
    if (ftruncate(m_dosya, 0) != 0 || fchmod(m_dosya, S_IRUSR | S_IWUSR) != 0) {
        const int neden = errno;
        close(m_dosya);
        errno = neden;
        YazılamadıHatası(m_yol);
    }
}

// The lock tells a file that another process is writing from one that a crash left. Between opening and locking the
// other process may have renamed the file away: then a new one is opened.
void GeçiciDosya::Kilitle() {
    for (;;) {
        m_dosya = open(m_yol.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (m_dosya < 0) YazılamadıHatası(m_yol);
        const bool kilitli = flock(m_dosya, LOCK_EX | LOCK_NB) == 0;
        struct stat açılan;
        struct stat yerdeki;
        const bool aynı = fstat(m_dosya, &açılan) == 0 && stat(m_yol.c_str(), &yerdeki) == 0 &&
                          açılan.st_ino == yerdeki.st_ino && açılan.st_dev == yerdeki.st_dev;
        if (kilitli && aynı) return;
        close(m_dosya);
        if (!kilitli)
            throw Hata(Durum::ZamanAşımı, "Bu dosyayı şu anda başka bir program yazıyor; biraz sonra tekrar deneyin.");
    }
}

GeçiciDosya::~GeçiciDosya() {
    if (!m_yerleşti) {
        GünlükleriSil(m_yol);
        unlink(m_yol.c_str());
    }
    close(m_dosya);
}

void GeçiciDosya::Yerleştir(Yerleştirme biçim) {
    GünlükleriSil(m_yol);
    if (fsync(m_dosya) != 0) YazılamadıHatası(m_yol);
    const int sonuç =
        biçim == Yerleştirme::Yeni ? YeniAdVer(m_yol, m_hedef) : std::rename(m_yol.c_str(), m_hedef.c_str());
    if (sonuç != 0 && errno == EEXIST)
        throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " +
                                     std::filesystem::path(m_hedef).filename().string());
    if (sonuç != 0) YazılamadıHatası(m_hedef);
    m_yerleşti = true;
    KlasörüEşitle(m_hedef);
}

}  // namespace Motor

#include "DosyaSistemi.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace Dosya {

namespace {

bool BirDosya(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace

std::string GerçekYol(const std::string& yol, std::error_code& hata) {
    namespace fs = std::filesystem;
    constexpr int enÇokBağ = 40;
    std::error_code önemsiz;
    fs::path gerçek = fs::absolute(yol, hata);
    if (hata) return yol;
    // The last name's links are followed by hand, since it need not exist.
    for (int i = 0; i < enÇokBağ && fs::is_symlink(fs::symlink_status(gerçek, önemsiz)); ++i)
        gerçek = gerçek.parent_path() / fs::read_symlink(gerçek, önemsiz);
    const fs::path klasör = fs::canonical(gerçek.parent_path(), hata);
    return hata ? gerçek.string() : (klasör / gerçek.filename()).string();
}

bool YolVar(const std::string& yol) {
    struct stat bilgi;
    return lstat(yol.c_str(), &bilgi) == 0;
}

bool OlağanDosyaVar(const std::string& yol) {
    struct stat bilgi;
    return stat(yol.c_str(), &bilgi) == 0 && S_ISREG(bilgi.st_mode);
}

bool Yazılabilir(const std::string& yol) {
    return faccessat(AT_FDCWD, yol.c_str(), W_OK, AT_EACCESS) == 0;
}

bool AynıDosya(const std::string& a, const std::string& b) {
    struct stat ilk;
    struct stat ikinci;
    return stat(a.c_str(), &ilk) == 0 && stat(b.c_str(), &ikinci) == 0 && BirDosya(ilk, ikinci);
}

bool AynıDosya(int no, const std::string& yol) {
    struct stat açılan;
    struct stat yerdeki;
    return fstat(no, &açılan) == 0 && lstat(yol.c_str(), &yerdeki) == 0 && BirDosya(açılan, yerdeki);
}

bool Sil(const std::string& yol) {
    return unlink(yol.c_str()) == 0 || errno == ENOENT;
}

bool GünlükVar(const std::string& dosya) {
    return YolVar(dosya + "-journal") || YolVar(dosya + "-wal");
}

bool GünlükleriSil(const std::string& dosya) {
    bool silindi = false;
    bool kalmadı = true;
    for (const char* ek : {"-journal", "-wal", "-shm"}) {
        if (unlink((dosya + ek).c_str()) == 0)
            silindi = true;
        else if (errno != ENOENT)
            kalmadı = false;
    }
    return kalmadı && (!silindi || KlasörüEşitle(dosya));
}

bool KlasörüEşitle(const std::string& dosya) {
    const std::filesystem::path klasör = std::filesystem::path(dosya).parent_path();
    const Tanıtıcı no(open(klasör.empty() ? "." : klasör.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return !no.Açık() || fsync(no.No()) == 0 || (errno != EIO && errno != ENOSPC && errno != EDQUOT);
}

ssize_t DoluncayaDekOku(int no, std::vector<char>& tampon) {
    std::size_t okunan = 0;
    while (okunan < tampon.size()) {
        const ssize_t adet = read(no, tampon.data() + okunan, tampon.size() - okunan);
        if (adet < 0 && errno == EINTR) continue;
        if (adet < 0) return -1;
        if (adet == 0) break;
        okunan += static_cast<std::size_t>(adet);
    }
    return static_cast<ssize_t>(okunan);
}

bool HepsiniYaz(int no, const char* veri, std::size_t boy) {
    while (boy > 0) {
        const ssize_t yazılan = write(no, veri, boy);
        if (yazılan < 0 && errno == EINTR) continue;
        if (yazılan <= 0) return false;
        veri += yazılan;
        boy -= static_cast<std::size_t>(yazılan);
    }
    return true;
}

void İzinleriVer(int no, const std::string& örnek) {
    struct stat istenen;
    struct stat verilen;
    if (lstat(örnek.c_str(), &istenen) != 0 || !S_ISREG(istenen.st_mode)) return;
    mode_t izinler = istenen.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    const bool verildi = fchown(no, istenen.st_uid, istenen.st_gid) == 0 ||
                         fchown(no, static_cast<uid_t>(-1), istenen.st_gid) == 0 ||
                         (fstat(no, &verilen) == 0 && verilen.st_gid == istenen.st_gid);
    // Another group gets no more than everybody.
    if (!verildi) izinler = (izinler & ~static_cast<mode_t>(S_IRWXG)) | ((izinler & S_IRWXO) << 3);
    static_cast<void>(fchmod(no, izinler));
}

bool Kilitle(int no) {
    return flock(no, LOCK_EX | LOCK_NB) == 0;
}

Tanıtıcı::~Tanıtıcı() {
    if (m_no >= 0) close(m_no);
}

}  // namespace Dosya

#include "DisKopya.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <vector>

#include "GeciciDosya.h"

namespace Dosya {

namespace {

constexpr std::size_t PARÇA = 1 << 20;

using İlerle = std::function<bool(std::int64_t)>;

DisKopyaSonucu Yaz(int kaynak, int hedef, std::int64_t& yapılan, const İlerle& ilerle) {
    std::vector<char> tampon(PARÇA);
    for (;;) {
        const ssize_t okunan = DoluncayaDekOku(kaynak, tampon);
        if (okunan < 0) return DisKopyaSonucu::Yazılamadı;
        if (okunan == 0) break;
        if (!HepsiniYaz(hedef, tampon.data(), static_cast<std::size_t>(okunan))) return DisKopyaSonucu::Yazılamadı;
        if (!ilerle(yapılan += okunan)) return DisKopyaSonucu::Durduruldu;
    }
    return fsync(hedef) == 0 ? DisKopyaSonucu::Yazıldı : DisKopyaSonucu::Yazılamadı;
}

// From the disk, not from what the system remembers of it.
DisKopyaSonucu GeriDoluncayaDekOku(int kaynak, int hedef, std::int64_t& yapılan, const İlerle& ilerle) {
    posix_fadvise(hedef, 0, 0, POSIX_FADV_DONTNEED);
    if (lseek(kaynak, 0, SEEK_SET) != 0 || lseek(hedef, 0, SEEK_SET) != 0) return DisKopyaSonucu::Yazılamadı;
    std::vector<char> asıl(PARÇA);
    std::vector<char> eş(PARÇA);
    for (;;) {
        const ssize_t okunan = DoluncayaDekOku(kaynak, asıl);
        if (okunan < 0) return DisKopyaSonucu::Yazılamadı;
        if (DoluncayaDekOku(hedef, eş) != okunan ||
            std::memcmp(asıl.data(), eş.data(), static_cast<std::size_t>(okunan)) != 0)
            return DisKopyaSonucu::Tutmadı;
        if (okunan == 0) return DisKopyaSonucu::Yazıldı;
        if (!ilerle(yapılan += okunan)) return DisKopyaSonucu::Durduruldu;
    }
}

}  // namespace

DisKopyaSonucu DışarıKopyala(const std::string& kaynak, const std::string& hedef, const İlerle& ilerle) {
    if (YolVar(hedef)) return DisKopyaSonucu::Var;
    const Tanıtıcı oku(open(kaynak.c_str(), O_RDONLY | O_CLOEXEC));
    if (!oku.Açık()) return DisKopyaSonucu::Yazılamadı;
    // A name that is taken belongs to something else: the next number is tried, and nothing there is ever deleted.
    constexpr int enÇokAd = 100;
    std::string yarım;
    Tanıtıcı yaz;
    for (int sıra = 1; !yaz.Açık() && sıra <= enÇokAd; ++sıra) {
        yarım = hedef + ".yeni" + std::to_string(sıra);
        yaz = Tanıtıcı(open(yarım.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (!yaz.Açık() && errno != EEXIST) return DisKopyaSonucu::Yazılamadı;
    }
    if (!yaz.Açık()) return DisKopyaSonucu::Yazılamadı;
    std::int64_t yapılan = 0;
    DisKopyaSonucu sonuç = Yaz(oku.No(), yaz.No(), yapılan, ilerle);
    if (sonuç == DisKopyaSonucu::Yazıldı) sonuç = GeriDoluncayaDekOku(oku.No(), yaz.No(), yapılan, ilerle);
    if (sonuç == DisKopyaSonucu::Yazıldı) {
        const Sonuç taşındı = Taşı(yarım, hedef, Yerleştirme::Yeni);
        if (taşındı.Tamam()) return sonuç;
        sonuç = taşındı.Ne == Sonuç::Tür::Var ? DisKopyaSonucu::Var : DisKopyaSonucu::Yazılamadı;
    }
    Sil(yarım);
    return sonuç;
}

bool AynıDisk(const std::string& a, const std::string& b) {
    struct stat ilk;
    struct stat ikinci;
    return stat(a.c_str(), &ilk) != 0 || stat(b.c_str(), &ikinci) != 0 || ilk.st_dev == ikinci.st_dev;
}

}  // namespace Dosya

#include "YanKopya.h"

#include <fcntl.h>

#include <cerrno>
#include <cstring>

namespace Dosya {

bool İçerikleriAynı(const std::string& a, const std::string& b, const std::function<void()>& bak) {
    constexpr std::size_t parça = 1 << 18;
    if (!OlağanDosyaVar(a) || !OlağanDosyaVar(b)) return false;
    const Tanıtıcı ilk(open(a.c_str(), O_RDONLY | O_CLOEXEC));
    const Tanıtıcı ikinci(open(b.c_str(), O_RDONLY | O_CLOEXEC));
    if (!ilk.Açık() || !ikinci.Açık()) return false;
    std::vector<char> x(parça);
    std::vector<char> y(parça);
    for (;;) {
        if (bak) bak();
        const ssize_t okunan = DoluncayaDekOku(ilk.No(), x);
        if (okunan < 0 || DoluncayaDekOku(ikinci.No(), y) != okunan ||
            std::memcmp(x.data(), y.data(), static_cast<std::size_t>(okunan)) != 0)
            return false;
        if (okunan == 0) return true;
    }
}

YanKopya YanaKopyala(const std::string& dosya, const std::string& kök, const std::string& ek,
                     const std::function<void()>& bak) {
    for (int sıra = 1;; ++sıra) {
        const std::string ad = kök + (sıra == 1 ? "" : "-" + std::to_string(sıra)) + ek;
        if (İçerikleriAynı(dosya, ad, bak)) return {{}, ad, false};
        if (YolVar(ad)) continue;
        GeçiciDosya kopya(ad);
        Sonuç sonuç = kopya.Aç();
        if (sonuç.Tamam()) sonuç = kopya.Doldur(dosya);
        if (sonuç.Tamam() && !İçerikleriAynı(dosya, kopya.Yol(), bak)) sonuç = {Sonuç::Tür::Yapılamadı, EIO};
        if (!sonuç.Tamam()) return {sonuç, ad, false};
        kopya.İzinleriAl(dosya);
        sonuç = kopya.Yerleştir(Yerleştirme::Yeni);
        if (sonuç.Ne != Sonuç::Tür::Var) return {sonuç, ad, true};
    }
}

}  // namespace Dosya

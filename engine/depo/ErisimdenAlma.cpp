#include "ErisimdenAlma.h"

#include "AccessBasligi.h"
#include "AlmaSureci.h"
#include "Hata.h"

#include <dlfcn.h>

#include <filesystem>

namespace Motor {

bool ErişimDosyası(const std::string& yol) {
    return Erişim::AccessTürünüOku(yol) != Erişim::AccessTürü::Değil;
}

namespace {

// The folder that holds this code, whichever program has loaded it: never one that PATH or the current folder names.
std::string AraçYolu() {
    static const char yer = 0;
    Dl_info bilgi{};
    std::error_code hata;
    const bool bulundu = dladdr(&yer, &bilgi) != 0 && bilgi.dli_fname;
    const std::filesystem::path kitaplık =
        std::filesystem::canonical(bulundu ? bilgi.dli_fname : "/proc/self/exe", hata);
    if (hata) throw Hata(Durum::Bağlanamadı, "Access dosyasını alacak araç bulunamadı; programı yeniden kurun.");
    return (kitaplık.parent_path() / "varnek-veri").string();
}

void Al(const Erişim::Almaİsteği& istek) {
    const Erişim::AlmaSonucu sonuç = Erişim::ErişimdenAl(istek, [](int) { return true; });
    // Another client may have had the same file taken over just before.
    if (sonuç.Ne != Erişim::AlmaSonucu::Tür::Alındı && ErişimDosyası(istek.Kaynak))
        throw Hata(Durum::Bağlanamadı, sonuç.Metin);
}

}  // namespace

void ErişimdenAl(const std::string& kaynak) {
    Al({AraçYolu(), kaynak, {}, {}});
}

void ErişimdenAl(const std::string& kaynak, const std::string& hedef, const std::string& liste) {
    Al({AraçYolu(), kaynak, hedef, liste});
}

}  // namespace Motor

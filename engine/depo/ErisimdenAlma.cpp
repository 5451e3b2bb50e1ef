#include "ErisimdenAlma.h"

#include "AccessBasligi.h"
#include "AlmaSureci.h"
#include "DosyaSistemi.h"
#include "Hata.h"
#include "Sqlite.h"

#include <dlfcn.h>

#include <array>
#include <filesystem>

namespace Motor {

bool ErişimDosyası(const std::string& yol) {
    if (!Dosya::OlağanDosyaVar(yol)) return false;
    // Opened, and no more: reading anything of it as a data file would play a journal back that lies beside it.
    sqlite3* ham = nullptr;
    const int sonuç = sqlite3_open_v2(yol.c_str(), &ham, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    const SqliteBağlantısı vt(ham);
    sqlite3_file* dosya = nullptr;
    if (sonuç != SQLITE_OK || sqlite3_file_control(ham, "main", SQLITE_FCNTL_FILE_POINTER, &dosya) != SQLITE_OK ||
        !dosya || !dosya->pMethods)
        return false;
    std::array<char, Erişim::ACCESS_BAŞLIĞI> baş{};
    if (dosya->pMethods->xRead(dosya, baş.data(), static_cast<int>(baş.size()), 0) != SQLITE_OK) return false;
    return Erişim::AccessTürünüBul({baş.data(), baş.size()}) != Erişim::AccessTürü::Değil;
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

void Al(const Erişim::Almaİsteği& istek, const std::string& dur = {}) {
    const Erişim::AlmaSonucu sonuç =
        Erişim::ErişimdenAl(istek, [&dur](int) { return dur.empty() || !Dosya::YolVar(dur); });
    // Another client may have had the same file taken over just before.
    if (sonuç.Ne != Erişim::AlmaSonucu::Tür::Alındı && ErişimDosyası(istek.Kaynak))
        throw Hata(Durum::Bağlanamadı, sonuç.Metin);
}

}  // namespace

void ErişimdenAl(const std::string& kaynak) {
    Al({AraçYolu(), kaynak, {}, {}});
}

void ErişimdenAl(const std::string& kaynak, const std::string& hedef, const std::string& liste,
                 const std::string& dur) {
    Al({AraçYolu(), kaynak, hedef, liste}, dur);
}

}  // namespace Motor

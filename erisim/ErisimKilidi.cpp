#include "ErisimKilidi.h"

#include <filesystem>

#include "DosyaSistemi.h"

namespace Erişim {

std::string AçıkGörünmeNedeni(const std::string& yol) {
    for (const char* ek : {".ldb", ".LDB"}) {
        const std::filesystem::path kilit = std::filesystem::path(yol).replace_extension(ek);
        if (Dosya::YolVar(kilit.string()))
            return "Access dosyası açık görünüyor: yanında " + kilit.filename().string() +
                   " var. Öbür bilgisayardaki programı kapatın; açık değilse bu dosyayı silip yeniden deneyin.";
    }
    return {};
}

}  // namespace Erişim

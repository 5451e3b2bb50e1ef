#include "DosyaKimligi.h"

#include <sys/stat.h>

namespace Dosya {

std::optional<DosyaKimliği> KimliğiAl(const std::string& yol) {
    struct stat bilgi {};
    if (stat(yol.c_str(), &bilgi) != 0) return std::nullopt;
    return DosyaKimliği{bilgi.st_dev, bilgi.st_ino};
}

}  // namespace Dosya

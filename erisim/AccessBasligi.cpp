#include "AccessBasligi.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <string_view>

#include "DosyaSistemi.h"

namespace Erişim {

AccessTürü AccessTürünüBul(std::string_view baş) {
    using namespace std::string_view_literals;
    constexpr std::size_t adYeri = 4;
    constexpr std::size_t sürümYeri = 20;
    if (baş.size() < ACCESS_BAŞLIĞI || !baş.starts_with("\0\1\0\0"sv)) return AccessTürü::Değil;
    if (baş.substr(adYeri).starts_with("Standard ACE DB\0"sv)) return AccessTürü::Yeni;
    if (!baş.substr(adYeri).starts_with("Standard Jet DB\0"sv)) return AccessTürü::Değil;
    return baş[sürümYeri] == 0 ? AccessTürü::Jet3 : baş[sürümYeri] == 1 ? AccessTürü::Jet4 : AccessTürü::Yeni;
}

AccessTürü AccessTürünüOku(const std::string& yol) {
    std::array<char, ACCESS_BAŞLIĞI> baş{};
    // A pipe under the file's name is not waited for.
    const Dosya::Tanıtıcı no(open(yol.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!no.Açık() || pread(no.No(), baş.data(), baş.size(), 0) != static_cast<ssize_t>(baş.size()))
        return AccessTürü::Değil;
    return AccessTürünüBul({baş.data(), baş.size()});
}

}  // namespace Erişim

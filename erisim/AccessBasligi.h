#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Erişim {

// What a file's first bytes say.
enum class AccessTürü {
    Değil,
    Jet3,  // Access 97
    Jet4,  // Access 2000 to 2003
    Yeni   // Access 2007 and later (.accdb), which cannot be taken over
};

inline constexpr std::size_t ACCESS_BAŞLIĞI = 21;  // bytes that tell
AccessTürü AccessTürünüBul(std::string_view baş);

// A file that cannot be read is none. Not for one that the database library has open in this process: closing it here
// would take that library's locks away.
AccessTürü AccessTürünüOku(const std::string& yol);

}  // namespace Erişim

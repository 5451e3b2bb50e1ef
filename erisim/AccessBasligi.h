#pragma once

#include <string>

namespace Erişim {

// What a file's first bytes say.
enum class AccessTürü {
    Değil,
    Jet3,  // Access 97
    Jet4,  // Access 2000 to 2003
    Yeni   // Access 2007 and later (.accdb), which cannot be taken over
};

// A file that cannot be read is none.
AccessTürü AccessTürünüOku(const std::string& yol);

}  // namespace Erişim

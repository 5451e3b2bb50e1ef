#pragma once

#include <string>

namespace Motor {

// Whether the file is one of Access, by its header. That is read through SQLite: opening and closing the file beside it
// would take away the locks that connections of this process hold. False too when the file cannot be opened.
bool ErişimDosyası(const std::string& yol);

// Has the data-file tool take it over, in its place or into a new file: the engine knows no tables. The tool is the one
// beside the engine. Throws Hata (08001); the files are then as they were.
void ErişimdenAl(const std::string& kaynak);
void ErişimdenAl(const std::string& kaynak, const std::string& hedef, const std::string& liste, const std::string& dur);

}  // namespace Motor

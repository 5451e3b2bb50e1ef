#pragma once

#include "Sqlite.h"

#include <string_view>

namespace Motor {

// The password of a data file: a salted hash in a table of the engine's own. It keeps others out of the program's way,
// the rows themselves are not encrypted.
void ParolayıYaz(sqlite3* vt, std::string_view parola);

// Throws Hata (native SQLITE_CORRUPT) when what is stored is no such hash.
bool ParolaDoğru(sqlite3* vt, std::string_view parola);
[[noreturn]] void ParolaBilgisiBozuk();

}  // namespace Motor

#pragma once

#include "Sqlite.h"

#include <string>
#include <string_view>

namespace Motor {

// The password of a data file: a salted hash in a table of the engine's own. It keeps others out of the program's way,
// the rows themselves are not encrypted.
void ParolayıYaz(sqlite3* vt, std::string_view parola);

// Stores it anew with another salt, and so with another mark.
void ParolayıYenile(sqlite3* vt, std::string_view parola);

// The file's random mark, which all its copies bear and no other file: a hash of the salt, 16 hex digits. It says
// nothing about the salt or the password.
std::string DosyaDamgası(sqlite3* vt);

// Throws Hata (native SQLITE_CORRUPT) when what is stored is no such hash.
bool ParolaDoğru(sqlite3* vt, std::string_view parola);
[[noreturn]] void ParolaBilgisiBozuk();

}  // namespace Motor

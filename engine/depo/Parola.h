#pragma once

#include "Sqlite.h"

#include <string_view>

namespace Motor {

// The password of a data file: a salted hash in a table of the engine's own. It keeps others out of the program's way,
// the rows themselves are not encrypted.
void ParolayıYaz(sqlite3* vt, std::string_view parola);
bool ParolaDoğru(sqlite3* vt, std::string_view parola);

}  // namespace Motor

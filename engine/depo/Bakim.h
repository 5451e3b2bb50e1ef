#pragma once

#include "Sqlite.h"

#include <string>
#include <string_view>

namespace Motor {

// Reads every page; throws Hata (native SQLITE_CORRUPT) when something does not agree.
void BütünlüğüDenetle(sqlite3* vt);

// Lets the connection's long work end (S1008) when the file appears; "": it cannot be ended. `dur` outlives the work.
void DurdurulurYap(sqlite3* vt, const std::string& dur);

// For work that reads the whole file more than once.
void BellekVer(sqlite3* vt);

// Creates an empty data file with this password. An existing file is never overwritten. Throws Hata; nothing is left
// behind then.
void VeriDosyasıOluştur(const std::string& yol, std::string_view parola);

// Writes a compacted copy of `kaynak` to `hedef`: same password, tables, indexes and order of rows. The source is
// checked first, so that a damaged one never replaces a good target; an existing target stays until the copy is
// complete. A target that is a link is written through. Throws Hata; the target is then as it was.
//
// Where both lead to one file, it is compacted in place, in one transaction: other clients stay connected, mode and
// owner stay, and a crash leaves the old content or the new.
//
// The work ends when the file `dur` appears; "": it cannot be ended.
//
// A source of Access is left as it is where the target is another file; what could not be stored as it stands is then
// listed beside the target.
void VeriDosyasıSıkıştır(const std::string& kaynak, const std::string& hedef, std::string_view parola,
                         const std::string& dur = {});

}  // namespace Motor

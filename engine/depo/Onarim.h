#pragma once

#include <string>
#include <string_view>

namespace Motor {

// Saves what can be read of a damaged data file into a new one: same password, tables, indexes and order of rows. The
// work is done on a copy of the file and its journal; `kaynak` is only read, whatever its state. Each table is walked
// by row number from both ends, past what cannot be read; values that the engine would not have written count as
// unreadable. An existing target is never overwritten.
//
// What is lost is written to the file `rapor` ("": nowhere), a line for each; no line: everything could be read. Throws
// Hata where nothing could be saved; nothing is left behind then.
void VeriDosyasıOnar(const std::string& kaynak, const std::string& hedef, std::string_view parola,
                     const std::string& rapor);

}  // namespace Motor

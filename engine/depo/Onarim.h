#pragma once

#include <string>

namespace Motor {

struct Onarımİsteği {
    std::string Kaynak;
    std::string Hedef;
    std::string Parola;
    std::string Rapor;        // where what is lost is written, a line for each; "": nowhere
    std::string Bildirimler;  // a data file with every table that its client knows; "": none is known
    std::string Dur;          // the work ends when this file appears; "": it cannot be ended
};

// Saves what can be read of a damaged data file into a new one: same password, tables, indexes and order of rows. The
// work is done on a copy of the file and its journal; `Kaynak` is only read, whatever its state. A table whose
// declaration is damaged is read by the known one; one whose place in the file is lost is looked for by its rows. Each
// table is walked by row number from both ends, past what cannot be read; values that the engine would not have written
// count as unreadable. An existing target is never overwritten.
//
// No line in the report: everything could be read, and the file passes the engine's check. Otherwise it names the rows
// that are lost, those too of which only an index knows, and the tables that do not pass. Throws Hata where nothing
// could be saved; nothing is left behind then.
void VeriDosyasıOnar(const Onarımİsteği& istek);

}  // namespace Motor

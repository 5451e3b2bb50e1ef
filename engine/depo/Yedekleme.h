#pragma once

#include <string>
#include <string_view>

namespace Motor {

// Work on backups of data files. Long work ends with S1008 as soon as a file named `dur` is there; "" cannot be
// stopped.

// Reads the file whole; Hata when it is damaged, another version's, or no data file. Nothing is written, not even what
// a crash left is undone: a file with a journal beside it is refused.
void VeriDosyasıDenetle(const std::string& yol, std::string_view parola, const std::string& dur);

// Writes a compacted copy to a new file. The source is checked first and the copy before it gets its name; an existing
// target is never replaced. Throws Hata; nothing is left behind then.
void VeriDosyasıYedekle(const std::string& kaynak, const std::string& hedef, std::string_view parola,
                        const std::string& dur);

// Puts a whole copy of `kaynak` into the target's place, its time of change included. The source is checked first. The
// target is locked meanwhile; it is refused while another client has a transaction in it. A target that is damaged or
// missing is replaced as well. Throws Hata; the target is then as it was.
void VeriDosyasıGeriYükle(const std::string& kaynak, const std::string& hedef, std::string_view parola);

// Gives a copied file a mark of its own; the password stays.
void VeriDosyasıDamgala(const std::string& yol, std::string_view parola);

}  // namespace Motor

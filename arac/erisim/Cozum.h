#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Cerceve.h"
#include "Ondalik.h"

// What the bytes of an Access file's cells mean. Read here and not by the library for such files, which writes numbers
// by the locale, cuts texts at a zero byte and knows a hundred years.
namespace Erişim {

struct ÇözülenMetin {
    std::string Metin;          // UTF-8
    bool Değiştirildi = false;  // it held something that is no character
};

// A text, in Access 97 by the Turkish code page, later in UTF-16 or packed. What no text can hold becomes a blank (a
// zero) or "�" (half a character).
ÇözülenMetin MetniÇöz(std::string_view baytlar, bool jet3);

// The number of a cell of any kind that holds one. Nothing: it is none (not finite, no number text, damaged).
std::optional<Ondalık> SayıyıÇöz(HücreTürü tür, std::uint8_t ölçek, std::string_view baytlar, bool jet3);

// The double of a column of doubles, with every bit; a single is the double of its shortest decimal.
std::optional<double> DoubleÇöz(std::string_view baytlar);
std::optional<float> TekÇöz(std::string_view baytlar);

struct ÇözülenTarih {
    std::int64_t Gün = 0;  // yyyymmdd
    bool SaatiVar = false;
};

// Nothing: no day that a calendar of the years 100 to 9999 has.
std::optional<ÇözülenTarih> TarihiÇöz(std::string_view baytlar);

// A finite double without loss: the shortest decimal that gives it back.
Ondalık EnKısaOndalık(double değer);
Ondalık EnKısaOndalık(float değer);

}  // namespace Erişim

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Motor {

// A decimal number as it was written: digits only, no separators; at least one digit in the two parts together.
struct OnlukSayı {
    bool Eksi = false;
    std::string Tam;
    std::string Kesir;
};

// A number text as users type it: blanks around it, a sign, digits, at most one decimal comma. Dots count only where a
// thousands dot can stand (1.250,5); "12.5" and "0.500" are no numbers here. Nothing when the text is no number.
std::optional<OnlukSayı> SayıMetniÇöz(std::string_view metin);

// A number as SQL writes it: digits with at most one decimal point, a sign before them.
std::optional<OnlukSayı> SayıYazımıÇöz(std::string_view metin);

// Ten-thousandths, halves beyond the fourth decimal to even. Throws Hata (22003) when the range of 64 bits ends.
std::int64_t ParayaÇevir(const OnlukSayı& sayı);

// The nearest double, never a negative zero. Throws Hata (22003) when there is no finite one.
double OndalığaÇevir(const OnlukSayı& sayı);

}  // namespace Motor

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "Ondalik.h"

namespace Motor {

// A number text as users type it (SayıÇöz): dots count only where a thousands dot can stand (1.250,5), so "12.5" and
// "0.500" are no numbers here; blanks are " " alone. Nothing when the text is no number.
std::optional<Ondalık> SayıMetniÇöz(std::string_view metin);

// A number as SQL writes it: digits with at most one decimal point, a sign before them, no blanks.
std::optional<Ondalık> SayıYazımıÇöz(std::string_view metin);

// Ten-thousandths, halves beyond the fourth decimal to even. Throws Hata (22003) when the range of 64 bits ends.
std::int64_t ParayaÇevir(const Ondalık& sayı);

// The nearest double, never a negative zero. Throws Hata (22003) when there is no finite one.
double OndalığaÇevir(const Ondalık& sayı);

}  // namespace Motor

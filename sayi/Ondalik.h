#pragma once

#include <cstdint>
#include <optional>
#include <string>

// A decimal number of any length, digit by digit: what all readings, roundings and formattings go through, so that none
// of them depends on binary fractions.
struct Ondalık {
    bool Eksi = false;  // never with a zero
    std::string Tam;    // digits before the comma, at least one, no needless zero in front
    std::string Kesir;  // digits behind the comma, may be empty
};

// What becomes of a remainder of exactly one half.
enum class Yarım { Çifte, SıfırdanUzağa };

// The number with exactly `basamak` decimals.
Ondalık Yuvarla(Ondalık sayı, int basamak, Yarım yarım);

// The value's 15 significant digits; what stands behind them is noise of the binary form. Not finite: nullopt.
std::optional<Ondalık> OnBeşHaneyle(double değer);

// A count of 10^-basamak as a decimal, and back (nullopt: more decimals than that, or beyond 64 bits).
Ondalık Ölçekten(std::int64_t sayım, int basamak);
std::optional<std::int64_t> Ölçeğe(Ondalık sayı, int basamak);

// The nearest double; beyond the range of doubles: nullopt.
std::optional<double> EnYakınDouble(const Ondalık& sayı);

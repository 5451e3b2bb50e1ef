#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// A decimal number of any length, digit by digit: what all readings, roundings and formattings go through, so that none
// of them depends on binary fractions.
struct Ondalık {
    bool Eksi = false;        // never with a zero
    std::string Rakamlar;     // all digits; before the comma at least one, no needless zero in front
    std::size_t Basamak = 0;  // how many of them stand behind the comma

    std::string_view Tam() const { return std::string_view(Rakamlar).substr(0, Rakamlar.size() - Basamak); }
    std::string_view Kesir() const { return std::string_view(Rakamlar).substr(Rakamlar.size() - Basamak); }
};

// What becomes of a remainder of exactly one half.
enum class Yarım { Çifte, SıfırdanUzağa };

// The number with exactly `basamak` decimals.
Ondalık Yuvarla(Ondalık sayı, int basamak, Yarım yarım);

// Exact, with as many digits as it takes.
Ondalık Çarp(const Ondalık& a, const Ondalık& b);
Ondalık Topla(const Ondalık& a, const Ondalık& b);

// The value's 15 significant digits; what stands behind them is noise of the binary form. Not finite: nullopt.
std::optional<Ondalık> OnBeşHaneyle(double değer);

// A count of ten-thousandths as a decimal, and back: halves to the even one, nullopt beyond 64 bits.
Ondalık Ölçekten(std::int64_t onBindeBir);
std::optional<std::int64_t> Ölçeğe(const Ondalık& sayı);

// Writes a count of ten-thousandths without grouping and needless decimals (-1250, 12,5) and returns the place behind
// it; needs `ÖlçekMetniBoyu` characters at `yer`.
inline constexpr std::size_t ÖlçekMetniBoyu = 21;
char* ÖlçektenYaz(std::int64_t onBindeBir, char virgül, char* yer) noexcept;

// The nearest double; beyond the range of doubles: nullopt.
std::optional<double> EnYakınDouble(const Ondalık& sayı);

#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace Motor {

// Enough for every text that the functions below write.
inline constexpr std::size_t DeğerMetniBoyu = 64;
using DeğerTamponu = std::span<char, DeğerMetniBoyu>;

// Values as clients read them: "." as decimal mark, no needless zeros, no grouping. The result lies in the buffer.
std::string_view ParaYaz(std::int64_t onBinde, DeğerTamponu tampon) noexcept;
std::string_view OndalıkYaz(double değer, DeğerTamponu tampon) noexcept;  // the shortest text that reads back the same
std::string_view TamSayıYaz(std::int64_t değer, DeğerTamponu tampon) noexcept;

// Dates are numbers yyyymmdd; the text is "yyyy-mm-dd 00:00:00".
std::string_view TarihYaz(std::int64_t tarih, DeğerTamponu tampon) noexcept;

// yyyymmdd of a day that the calendar has (years 100 to 9999), otherwise 0.
std::int64_t TarihOluştur(int yıl, int ay, int gün) noexcept;

// Whether it is such a number.
bool TarihGeçerli(std::int64_t tarih) noexcept;

}  // namespace Motor

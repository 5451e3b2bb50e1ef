#pragma once

#include <cstdint>

// What the reading process sends: frames of a length (4 bytes, of what follows), a kind and its content. Numbers are
// the machine's own: both ends are one program.
namespace Erişim {

enum class ÇerçeveTürü : std::uint8_t {
    Tablolar,  // for each of TABLOLAR: rows by its header (4 bytes), then type and scale of each column
    Satır,     // for each column: 2 bytes of length, BOŞ_HÜCRE for NULL, and the bytes as they lie in the file
    TabloSonu,
    Bitti,
    Hata  // OkumaHatası, then the name of what it is about
};

inline constexpr std::uint16_t BOŞ_HÜCRE = 0xFFFF;

// Bytes of a text that are sent: no whole text that is longer can be stored.
inline constexpr std::uint16_t EN_UZUN_HÜCRE = 8192;

enum class OkumaHatası : std::uint8_t { Açılamadı, TabloYok, SütunYok, SütunTürü, Bozuk, SatırEksik, ListeEksik };

// The kinds of columns, as the file names them.
enum class HücreTürü : std::uint8_t {
    Bayt = 0x02,
    Kısa = 0x03,
    Uzun = 0x04,
    Para = 0x05,
    Tek = 0x06,
    Çift = 0x07,
    Tarih = 0x08,
    Metin = 0x0A,
    UzunMetin = 0x0C,
    Ondalık = 0x10
};

}  // namespace Erişim

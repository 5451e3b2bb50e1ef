#pragma once

#include <cstddef>
#include <string_view>

// The character at the start of a UTF-8 text. Boy 0: the text is empty, or its first byte begins no well-formed
// character (overlong forms, surrogates and what lies above U+10FFFF are none).
struct Utf8Karakteri {
    char32_t Kod = 0;
    std::size_t Boy = 0;
};

constexpr bool Utf8DevamBaytı(char bayt) noexcept {
    return (bayt & 0xC0) == 0x80;
}

// Number of bytes of a character that begins with this one; 0 when none does.
constexpr std::size_t Utf8Boyu(char ilk) noexcept {
    const auto bayt = static_cast<unsigned char>(ilk);
    return bayt < 0x80 ? 1 : bayt < 0xC2 ? 0 : bayt < 0xE0 ? 2 : bayt < 0xF0 ? 3 : bayt < 0xF5 ? 4 : 0;
}

constexpr Utf8Karakteri Utf8Çöz(std::string_view metin) noexcept {
    const std::size_t boy = metin.empty() ? 0 : Utf8Boyu(metin.front());
    if (boy == 0 || boy > metin.size()) return {};
    if (boy == 1) return {static_cast<char32_t>(metin.front()), 1};
    char32_t kod = static_cast<unsigned char>(metin.front()) & (0x7F >> boy);
    for (std::size_t yer = 1; yer < boy; ++yer) {
        if (!Utf8DevamBaytı(metin[yer])) return {};
        kod = kod << 6 | (metin[yer] & 0x3F);
    }
    const char32_t enAz = boy == 2 ? 0x80 : boy == 3 ? 0x800 : 0x10000;
    if (kod < enAz || kod > 0x10FFFF || (kod >= 0xD800 && kod <= 0xDFFF)) return {};
    return {kod, boy};
}

// Whether the bytes are well-formed UTF-8.
bool Utf8Geçerli(std::string_view metin) noexcept;

// Number of UTF-16 code units of a well-formed UTF-8 text: the "characters" that a text column counts.
std::size_t Utf16Uzunluğu(std::string_view metin) noexcept;

// The text without a last character of which only the first bytes are there.
std::string_view YarımKarakteriAt(std::string_view metin) noexcept;

// The longest beginning of `metin` of at most `azami` bytes that ends at a whole character.
std::string_view BütünKarakterlerleKes(std::string_view metin, std::size_t azami) noexcept;

// ASCII letters in lower case, everything else as it is: names of tables and columns, keywords, attribute names.
bool AsciiEşit(std::string_view a, std::string_view b) noexcept;

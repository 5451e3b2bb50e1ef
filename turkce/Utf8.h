#pragma once

#include <cstddef>
#include <string_view>

namespace Motor {

// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF).
bool Utf8Geçerli(std::string_view metin) noexcept;

// Number of UTF-16 code units of a well-formed UTF-8 text: the "characters" that a text column counts.
std::size_t Utf16Uzunluğu(std::string_view metin) noexcept;

// The longest beginning of `metin` of at most `azami` bytes that ends at a whole character.
std::string_view BütünKarakterlerleKes(std::string_view metin, std::size_t azami) noexcept;

// ASCII letters in lower case, everything else as it is: names of tables and columns, keywords, attribute names.
bool AsciiEşit(std::string_view a, std::string_view b) noexcept;

}  // namespace Motor

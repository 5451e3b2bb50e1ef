#include "Utf8.h"

#include <algorithm>

namespace Motor {

namespace {

bool DevamBaytı(unsigned char bayt) {
    return (bayt & 0xC0) == 0x80;
}

// Length of the well-formed character at the start of `metin`, 0 when there is none.
std::size_t KarakterUzunluğu(std::string_view metin) {
    const auto bayt = [&](std::size_t i) { return static_cast<unsigned char>(metin[i]); };
    const unsigned char ilk = bayt(0);
    if (ilk < 0x80) return 1;
    const std::size_t uzunluk = ilk >= 0xF0 ? 4 : ilk >= 0xE0 ? 3 : 2;
    if (ilk < 0xC2 || ilk > 0xF4 || metin.size() < uzunluk) return 0;
    for (std::size_t i = 1; i < uzunluk; ++i)
        if (!DevamBaytı(bayt(i))) return 0;
    const bool uzatılmış = (ilk == 0xE0 && bayt(1) < 0xA0) || (ilk == 0xF0 && bayt(1) < 0x90);
    const bool vekil = ilk == 0xED && bayt(1) > 0x9F;
    const bool büyük = ilk == 0xF4 && bayt(1) > 0x8F;
    return uzatılmış || vekil || büyük ? 0 : uzunluk;
}

char AsciiKüçük(char harf) {
    return harf >= 'A' && harf <= 'Z' ? static_cast<char>(harf - 'A' + 'a') : harf;
}

}  // namespace

bool Utf8Geçerli(std::string_view metin) noexcept {
    while (!metin.empty()) {
        const std::size_t uzunluk = KarakterUzunluğu(metin);
        if (uzunluk == 0) return false;
        metin.remove_prefix(uzunluk);
    }
    return true;
}

std::size_t Utf16Uzunluğu(std::string_view metin) noexcept {
    std::size_t sayı = 0;
    for (const char harf : metin) {
        const auto bayt = static_cast<unsigned char>(harf);
        if (!DevamBaytı(bayt)) sayı += bayt >= 0xF0 ? 2 : 1;
    }
    return sayı;
}

std::string_view BütünKarakterlerleKes(std::string_view metin, std::size_t azami) noexcept {
    if (metin.size() <= azami) return metin;
    while (azami > 0 && DevamBaytı(static_cast<unsigned char>(metin[azami]))) --azami;
    return metin.substr(0, azami);
}

bool AsciiEşit(std::string_view a, std::string_view b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return AsciiKüçük(x) == AsciiKüçük(y); });
}

}  // namespace Motor

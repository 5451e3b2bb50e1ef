#include "Utf8.h"

#include <algorithm>

namespace {

char AsciiKüçük(char harf) {
    return harf >= 'A' && harf <= 'Z' ? static_cast<char>(harf - 'A' + 'a') : harf;
}

}  // namespace

bool Utf8Geçerli(std::string_view metin) noexcept {
    while (!metin.empty()) {
        const std::size_t boy = Utf8Çöz(metin).Boy;
        if (boy == 0) return false;
        metin.remove_prefix(boy);
    }
    return true;
}

std::size_t Utf16Uzunluğu(std::string_view metin) noexcept {
    std::size_t sayı = 0;
    for (const char bayt : metin)
        if (!Utf8DevamBaytı(bayt)) sayı += Utf8Boyu(bayt) == 4 ? 2 : 1;
    return sayı;
}

std::string_view YarımKarakteriAt(std::string_view metin) noexcept {
    std::size_t ilk = metin.size();
    while (ilk > 0 && Utf8DevamBaytı(metin[ilk - 1])) --ilk;
    if (ilk == 0) return metin;
    --ilk;
    return Utf8Boyu(metin[ilk]) > metin.size() - ilk ? metin.substr(0, ilk) : metin;
}

std::string_view BütünKarakterlerleKes(std::string_view metin, std::size_t azami) noexcept {
    return metin.size() <= azami ? metin : YarımKarakteriAt(metin.substr(0, azami));
}

bool AsciiEşit(std::string_view a, std::string_view b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return AsciiKüçük(x) == AsciiKüçük(y); });
}

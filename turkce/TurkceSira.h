#pragma once

#include <QStringView>
#include <cstdint>
#include <string_view>

// The one table of Turkish letter order and case that the data engine, the sorted lists and the prefix searches share.
// Case does not count (ı/I, i/İ); c ç, g ğ, ı i, o ö, s ş and u ü are letters of their own, in that order; letters with
// a circumflex stand right after their plain letter. The order is fixed here, not taken from the platform: indexes are
// stored in it, and a data file must read the same on every machine and after every update.
namespace Türkçe {

// Below 0, 0 or above 0 as a stands before, beside or after b.
int Karşılaştır(QStringView a, QStringView b) noexcept;

// The same for UTF-8 texts, without conversion or allocation; bytes that are no UTF-8 are ordered after all letters.
int Karşılaştır(std::string_view a, std::string_view b) noexcept;

inline bool Aynı(QStringView a, QStringView b) noexcept {
    return Karşılaştır(a, b) == 0;
}

// True when `metin` begins with `ön` by the same rules; an empty `ön` begins every text.
bool İleBaşlar(QStringView metin, QStringView ön) noexcept;

// True when `aranan` stands anywhere in `metin` by the same rules; an empty one stands in every text.
bool İçerir(QStringView metin, QStringView aranan) noexcept;

// The same number for UTF-8 texts that Karşılaştır finds equal, and hardly ever for others. `önceki`: of a text before
// this one, so that several are taken together.
std::uint64_t Özet(std::string_view metin, std::uint64_t önceki = 0) noexcept;

// One code unit's upper and lower case: the four I letters by our own rule, everything else as Unicode has it.
char16_t Büyük(char16_t harf) noexcept;
char16_t Küçük(char16_t harf) noexcept;

}  // namespace Türkçe

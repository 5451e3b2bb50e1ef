#pragma once

#include <algorithm>
#include <span>

#include "MetinTablosu.h"

// How the texts stand: in tables by subject, each in the order of its numbers.
struct MetinSatırı {
    MetinNo Numara;
    const char* Metin;  // UTF-8
};

constexpr bool Sıralı(std::span<const MetinSatırı> tablo) {
    return std::adjacent_find(tablo.begin(), tablo.end(), [](const MetinSatırı& bu, const MetinSatırı& sonraki) {
               return bu.Numara >= sonraki.Numara;
           }) == tablo.end();
}

// Null: the table has no such number.
inline const char* MetniBul(std::span<const MetinSatırı> tablo, MetinNo numara) {
    const auto satır = std::lower_bound(tablo.begin(), tablo.end(), numara,
                                        [](const MetinSatırı& s, MetinNo n) { return s.Numara < n; });
    return satır == tablo.end() || satır->Numara != numara ? nullptr : satır->Metin;
}

// The tables; a number stands in one of them only.
const char* AnaMetniBul(MetinNo numara);
const char* FiyatMetniBul(MetinNo numara);
const char* ÜrünMetniBul(MetinNo numara);
const char* KullanımMetniBul(MetinNo numara);
const char* ArşivMetniBul(MetinNo numara);
const char* YarıMamulMetniBul(MetinNo numara);
const char* ÇizelgeMetniBul(MetinNo numara);
const char* ErişimMetniBul(MetinNo numara);
const char* YedekMetniBul(MetinNo numara);
const char* GetirmeMetniBul(MetinNo numara);
inline constexpr const char* (*Bulucular[])(MetinNo) = {
    AnaMetniBul,       FiyatMetniBul,   ÜrünMetniBul,   KullanımMetniBul, ArşivMetniBul,
    YarıMamulMetniBul, ÇizelgeMetniBul, ErişimMetniBul, YedekMetniBul,    GetirmeMetniBul};

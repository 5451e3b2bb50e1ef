#pragma once

#include <cstdint>
#include <optional>

#include "Para.h"

struct Ondalık;

// How a new price is found: exactly, as a quotient of whole numbers, and rounded once, straight to the step.

// A positive, zero or negative amount before its rounding.
class KesinTutar {
  public:
    explicit KesinTutar(Para tutar);
    // Any number of decimals. Nothing: too long to be reckoned with exactly.
    static std::optional<KesinTutar> Ondalıktan(const Ondalık& sayı);

    // Each gives nothing when the exact result leaves 128 bits.
    std::optional<KesinTutar> YüzdeEkle(Para yüzde) const;  // × (100 + yüzde) ÷ 100; a negative one is taken off
    std::optional<KesinTutar> Ekle(Para tutar) const;
    std::optional<KesinTutar> Kat(Para çarpan) const;
    std::optional<KesinTutar> Böl(Para bölen) const;  // bölen > 0

  private:
    __extension__ using Sayı = __int128;
    KesinTutar(Sayı pay, Sayı payda) : m_pay(pay), m_payda(payda) {}
    static std::optional<KesinTutar> Oranla(Sayı pay, Sayı payda, Sayı çarpan, Sayı bölen);

    Sayı m_pay;    // of ten-thousandths
    Sayı m_payda;  // above 0

    friend std::optional<Para> Yuvarla(const KesinTutar&, const struct Yuvarlama&);
};

enum class YuvarlamaYönü { EnYakın, Yukarı, Aşağı };

struct Yuvarlama {
    std::int64_t Adım =
        0;  // ten-thousandths; 0: none, that is to four decimals, halves to even, whatever the direction
    YuvarlamaYönü Yön = YuvarlamaYönü::EnYakın;  // halves away from zero
};

// The steps that are offered, in ten-thousandths, none first.
inline constexpr std::int64_t YUVARLAMA_ADIMLARI[] = {0,      100,    500,     1'000,   2'500,    5'000,
                                                      10'000, 50'000, 100'000, 500'000, 1'000'000};

// Nothing: beyond the range of money.
std::optional<Para> Yuvarla(const KesinTutar& tutar, const Yuvarlama& yuvarlama);

// What becomes of a price.
enum class FiyatDurumu {
    Değişir,
    Olağandışı,  // more than ten times, or less than a tenth of the old price: only if the user wants it
    Değişmiyor,
    TersineDöndü,  // rounding turned a rise into a fall or into no change, or a cut likewise
    SıfırYaDaAltı,
    ÇokBüyük
};
// Whether such a price may be written at all.
constexpr bool Yazılır(FiyatDurumu durum) {
    return durum == FiyatDurumu::Değişir || durum == FiyatDurumu::Olağandışı;
}

struct YeniFiyat {
    Para Fiyat;  // the old one where none can be formed
    FiyatDurumu Durum = FiyatDurumu::Değişmiyor;
};

// The price that `kesin` (nothing: beyond all bounds) gives a material that costs `eski` now.
YeniFiyat FiyatıBelirle(Para eski, const std::optional<KesinTutar>& kesin, const Yuvarlama& yuvarlama);

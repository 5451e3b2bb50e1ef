#pragma once

#include <QString>
#include <array>
#include <optional>
#include <span>
#include <vector>

#include "MaliyetHesabi.h"
#include "Para.h"

// Why a product's total is another than it was: the old sheet is turned into the new one step by step, in the order of
// FarkTürü, and each step's part is the difference of two consecutive totals of four decimals.

struct FarkMalzemesi {
    QString Ad;
    QString Birim;
    std::optional<double> Miktar;  // nothing: the row does not count
    Para Fiyat;
};

struct FarkTarafı {
    std::vector<FarkMalzemesi> Malzemeler;
    MaliyetOranları Oranlar;
};

enum class FarkTürü { Çıkan, Miktar, Fiyat, Eklenen, İşçilik, Kâr, Diğer, Vade };
inline constexpr std::size_t FARK_TÜRÜ_SAYISI = 8;
inline constexpr std::size_t İLK_YÜZDE = static_cast<std::size_t>(FarkTürü::İşçilik);

struct FarkKalemi {
    FarkTürü Tür;
    QString Malzeme;  // "" of a percentage
    Para Tutar;
};

struct FarkAyrımı {
    Para Eski;
    Para Yeni;
    std::array<Para, FARK_TÜRÜ_SAYISI> Parçalar;  // they add up to Yeni - Eski
    std::vector<FarkKalemi> Kalemler;             // the same by material; those of nothing are left out
    bool Taştı = false;                           // a sum on the way left money's range: the parts do not add up
};

// A material that is listed twice on either side, or whose unit changed, is taken out and put in.
FarkAyrımı FarkıAyır(const FarkTarafı& eski, const FarkTarafı& yeni);

// a - b; 0 beyond the range of money.
Para TutarFarkı(Para a, Para b);

// What is missing for the shown parts to add up to the shown difference.
Para YuvarlamaKalanı(Para gösterilenFark, std::span<const Para> parçalar, int basamak);

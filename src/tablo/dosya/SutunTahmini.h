#pragma once

#include <span>

#include "Cizelge.h"

// Where a list's names and prices seem to stand; the user has the last word.
struct SütunTahmini {
    qint64 BaşlıkSatırı = 0;  // ÇizelgeSatırı::No; 0: none seen
    int AdSütunu = -1;        // from 0; -1: none seen
    int FiyatSütunu = -1;
};

inline constexpr int TahmineYetenSatır = 50;

// From a list's first rows.
SütunTahmini SütunlarıTahminEt(std::span<const ÇizelgeSatırı> satırlar);

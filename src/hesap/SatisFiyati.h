#pragma once

#include <optional>

#include "FiyatKurali.h"

// Prices for customers.

// The main form's total rounded to the step; without a step to the kuruş, halves away from zero. Nothing: beyond the
// range of money.
std::optional<Para> SatışFiyatı(Para toplam, const Yuvarlama& yuvarlama);

// With the tax of `oran` per cent, which is reckoned from the price and rounded to the kuruş, halves away from zero.
std::optional<Para> KdvliFiyat(Para fiyat, Para oran);

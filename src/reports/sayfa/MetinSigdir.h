#pragma once

#include <QString>
#include <functional>

#include "SayfaYuzeyi.h"

// A text as it goes into its room.
struct Sığdırılan {
    QString Metin;
    double Oran = 1;      // of the letters' natural width
    double Genişlik = 0;  // taken, in the unit of the measure
};

// A text that is too wide for its room is narrowed, to 70 % at most; if that is not enough, its end gives way to "…".
// ölçü: a text's natural width.
Sığdırılan MetniSığdır(const QString& metin, SayfaYüzeyi::Yer yer, const std::function<double(const QString&)>& ölçü);

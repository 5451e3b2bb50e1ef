#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "SayfaYuzeyi.h"

// Letters are narrowed to this part of their natural width, and no further.
constexpr double ENDAR = 0.7;

// A text as it goes into its room.
struct Sığdırılan {
    QString Metin;
    double Oran = 1;      // of the letters' natural width
    double Genişlik = 0;  // taken, in the unit of the measure
};

// A text that is too wide for its room is narrowed, down to ENDAR; if that is not enough, its end gives way to "…".
// What may not be cut is narrowed as far as it must. ölçü: a text's natural width.
Sığdırılan MetniSığdır(const QString& metin, SayfaYüzeyi::Yer yer, const std::function<double(const QString&)>& ölçü);

// The lines of a text in a column of this width, broken at blanks. The first `korunan` characters stay together. A word
// that is too wide for a line stands alone, narrowed; one that is too wide even so is broken. At least one line.
QStringList MetniBöl(const QString& metin, double genişlik, qsizetype korunan,
                     const std::function<double(const QString&)>& ölçü);

#pragma once

#include <QString>

// A movement's figures as the list shows them.
struct HareketSatırı {
    QString Miktar;
    QString Fiyat;
    QString Tutar;
};

// miktar: as stored (a number, a blank, a unit). fiyat: as the data file gives it, with "." as its decimal mark.
// The amount is price times quantity, taken as money (four decimals) before it is shown with `basamak` decimals. An
// unreadable quantity or price is shown as it is stored and counts 0; an amount out of range is left empty.
HareketSatırı HareketiBiçimle(const QString& miktar, const QString& fiyat, int basamak);

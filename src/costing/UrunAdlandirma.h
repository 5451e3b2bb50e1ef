#pragma once

#include <QString>

// Renaming in the data file. Names are the keys, so a rename is carried into the rows of the used materials too. A
// statement that the data file refuses has shown its boxes.

enum class AdlandırmaSonucu {
    Değişti,
    MalzemelerKaldı,  // the products bear the new name, their used materials still the old one
    Değişmedi,        // the data file refused; nothing is renamed
    Yinelenen         // the group has another product of that name; nothing is renamed
};

// A group that bears the new name already takes the products in.
AdlandırmaSonucu GrubuAdlandır(const QString& eski, const QString& yeni);

AdlandırmaSonucu ÜrünüAdlandır(const QString& grup, const QString& eski, const QString& yeni);

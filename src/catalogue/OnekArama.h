#pragma once

#include <QString>

#include "TurkceSira.h"

class QListWidget;

// Searches by the beginning of a text, without regard to case, by the one table of Turkish letters.

// The first row of a list in Turkish order whose text begins with `ön`; -1 when none does. Takes logarithmic time.
int ÖnekAra(const QListWidget& sıralıListe, const QString& ön);

// The first of the positions 0 to sayı - 1 at which `koşul` holds, sayı when there is none; it must hold from there on.
template <typename Koşul>
int İlkYer(int sayı, Koşul koşul) {
    int alt = 0;
    int üst = sayı;
    while (alt < üst) {
        const int orta = alt + (üst - alt) / 2;
        if (koşul(orta)) {
            üst = orta;
        } else {
            alt = orta + 1;
        }
    }
    return alt;
}

// Where a text belongs among `sayı` texts in Turkish order, behind all that are not greater; metinAl(i) gives the i-th.
template <typename MetinAl>
int SıralıYer(int sayı, MetinAl metinAl, const QString& metin) {
    return İlkYer(sayı,
                  [&](int yer) { return Türkçe::Karşılaştır(QStringView(metinAl(yer)), QStringView(metin)) > 0; });
}

#pragma once

#include <QListWidget>
#include <QString>

#include "TekSecimli.h"
#include "TurkceSira.h"

// A list of names for tens of thousands of rows, in which Enter moves on. A name that it cuts is told by a tooltip.
class KatalogListesi : public TekSeçimli<QListWidget> {
  public:
    explicit KatalogListesi(const QString& ad);

    // The first row whose text begins with `ön`, by the one table of Turkish letters and without regard to case; -1
    // when none does. The rows must stand in Turkish order. Takes logarithmic time.
    int ÖnekAra(const QString& ön) const;
};

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

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class SayfaYüzeyi;

// The printouts of the three report lists. Rows are the list's rows, every column's text as it is shown.

// material, quantity, price, amount, product
void MalzemeHareketleriniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar);

// material, price; a rule under every row
void MalzemeListesiniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar);

// group (only on its first row), product; a group that runs over a page's end is named again at the top
void ÜrünListesiniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar);

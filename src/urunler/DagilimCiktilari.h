#pragma once

#include <QImage>

#include "CizelgeYazici.h"
#include "DagilimSatirlari.h"

class SayfaYüzeyi;

// The tables and plots of a product's total, all rows in their own order. Black on white.
void DağılımıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const ÜrünDağılımı& dağılım);
QImage DağılımResmi(const QString& başlık, const ÜrünDağılımı& dağılım);
YazmaSonucu DağılımıÇizelgeyeYaz(const QString& yol, const QString& başlık, const ÜrünDağılımı& dağılım, int basamak);

#pragma once

#include <QString>

#include "CizelgeYazici.h"
#include "DegisimTablosu.h"

class SayfaYüzeyi;

// The plan as its preview shows it; what is left out comes last, with its reason.
void DeğişimiYaz(SayfaYüzeyi& yüzey, const QString& başlık, const DeğişimSatırları& satırlar, const TabloModeli& model);
YazmaSonucu DeğişimiÇizelgeyeYaz(const QString& yol, const QString& başlık, const DeğişimSatırları& satırlar,
                                 const TabloModeli& model);

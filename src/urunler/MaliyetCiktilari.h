#pragma once

#include <QString>

#include "CizelgeYazici.h"
#include "MaliyetSatirlari.h"

class SayfaYüzeyi;

// The cost table as it stands on screen: its shown rows in their order.
void MaliyetTablosunuYaz(SayfaYüzeyi& yüzey, const QString& başlık, const MaliyetSatırları& satırlar,
                         const TabloModeli& model);
YazmaSonucu MaliyetTablosunuÇizelgeyeYaz(const QString& yol, const QString& başlık, const MaliyetSatırları& satırlar,
                                         const TabloModeli& model);

#pragma once

#include <QString>

#include "ArsivKayitlari.h"
#include "CizelgeYazici.h"
#include "FarkTablosu.h"
#include "MaliyetFisi.h"

class SayfaYüzeyi;

// The difference table as it stands on screen: its shown rows in their order.
void FarklarıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const FarkSatırları& satırlar, const TabloModeli& model);
YazmaSonucu FarklarıÇizelgeyeYaz(const QString& yol, const QString& başlık, const FarkSatırları& satırlar,
                                 const TabloModeli& model);

// A frozen sheet for the cost sheet's printout; the title, which stands on every page, names day and archive, and says
// so where the sheet is not what was archived.
MaliyetFişi ArşivFişi(const Başlık& arşiv, const OkunanFöy& föy);

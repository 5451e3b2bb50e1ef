#pragma once

#include <QString>

#include "CizelgeYazici.h"
#include "KullanimSatirlari.h"

class SayfaYüzeyi;

// Where a material is used, as it stands on screen.
void KullanımıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const KullanımSatırları& satırlar,
                  const TabloModeli& model);
YazmaSonucu KullanımıÇizelgeyeYaz(const QString& yol, const QString& başlık, const KullanımSatırları& satırlar,
                                  const TabloModeli& model);

#pragma once

#include <QString>

#include "CizelgeYazici.h"
#include "SatisSatirlari.h"

class SayfaYüzeyi;

// What goes to customers: the ticked ones of the shown rows, and of them nothing but names and prices.
struct SatışListesi {
    QString Başlık;   // "": none
    QString AltYazı;  // "": none
    const SatışSatırları& Satırlar;
    const TabloModeli& Model;
};
void SatışListesiniYaz(SayfaYüzeyi& yüzey, const SatışListesi& liste);
YazmaSonucu SatışListesiniÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı, const SatışListesi& liste);

#pragma once

#include <QString>

#include "CizelgeYazici.h"
#include "FiyatOnizlemeTablolari.h"

class SayfaYüzeyi;

// A plan as its preview shows it.
struct GörünenPlan {
    const PlanınMalzemeleri& Malzemeler;
    const TabloModeli& MalzemeModeli;
    const PlanınÜrünleri& Ürünler;
    const TabloModeli& ÜrünModeli;
};

// Both put the rows down as they stand on screen; what is left out comes last, with its reason.
void PlanıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const GörünenPlan& plan);
YazmaSonucu PlanıÇizelgeyeYaz(const QString& yol, const QString& başlık, const GörünenPlan& plan);

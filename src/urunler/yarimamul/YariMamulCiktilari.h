#pragma once

#include <QString>

#include "CizelgeYazici.h"
#include "SayfaYuzeyi.h"
#include "UrunAcilimi.h"
#include "YariMamulTablolari.h"

// The ties as the table shows them, on paper and in a spreadsheet.
void BağlarıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const BağlarınKaynağı& bağlar, const TabloModeli& model);
YazmaSonucu BağlarıÇizelgeyeYaz(const QString& yol, const QString& başlık, const BağlarınKaynağı& bağlar,
                                const TabloModeli& model);

// A quantity of a shopping list: six decimals, more of a very small one, no needless ones.
QString AçılımMiktarı(double miktar);
// What has to be known of a sum beside its figure; "" for nothing.
QString AçılımNotu(const AçılımToplamı& toplam);

// The shopping list.
void AçılımıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const std::vector<AçılımToplamı>& toplamlar);
YazmaSonucu AçılımıÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı,
                                const std::vector<AçılımToplamı>& toplamlar);

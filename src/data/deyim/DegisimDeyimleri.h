#pragma once

#include "FiyatDeyimleri.h"

// The statements of putting another material in one's place, and the table of the rows that went and came.
namespace Deyimler {

// Group, product, material, quantity, price, date: the columns of TümKullanılanlar, of one material.
QString MalzemeninSatırları(const QString& malzeme);

namespace Değiştirme {

inline constexpr const char* TABLO = "MalzemeDegisimTablosu";

// Made by the first writing; a data file without it is whole.
QStringList TabloyuOluştur();

// `sonraki`: a row that the operation wrote; else one that it deleted.
QString SatırEkle(std::int64_t işlem, bool sonraki, const KullanılanSatır& satır);
// Sonraki (1 or 0), then the columns of MalzemeninSatırları.
QString İşleminSatırları(std::int64_t işlem);
QString Malzemeninİşlemleri(const QString& malzeme);  // the numbers of those that deleted or wrote rows of it

}  // namespace Değiştirme

}  // namespace Deyimler

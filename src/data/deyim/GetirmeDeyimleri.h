#pragma once

#include <array>

#include "FiyatDeyimleri.h"

// The statements of bringing products in from a backup, and the table of what they were before and after. Their rows
// stand in the table of Değiştirme.
namespace Deyimler {

// Group, product, material, quantity, price, date: the columns of TümKullanılanlar, of one product.
QString ÜrününSatırları(const QString& grup, const QString& ürün);

namespace Getirme {

inline constexpr const char* TABLO = "UrunDegisimTablosu";

// Made by the first writing; a data file without it is whole.
QStringList TabloyuOluştur();

// A product as an operation found it (`sonraki` false) or left it; one that was not there has no such row.
struct ÜrünKaydı {
    std::int64_t İşlem = 0;
    bool Sonraki = false;
    QString Grup;
    QString Ad;
    std::array<QString, 4> Yüzdeler;  // labour, profit, other costs, maturity difference; with "," as decimal mark
};
QString ÜrünEkle(const ÜrünKaydı& ürün);
QString İşleminÜrünleri(std::int64_t işlem);  // Sonraki (1 or 0), group, name, the four percentages

}  // namespace Getirme

}  // namespace Deyimler

#pragma once

#include <QDate>
#include <QStringView>

// The statements that fill a data file. They are those that users' own additions come as, so that sample and
// measuring files hold what a lived-in file would.
namespace VeriDeyimleri {

QString Tarih(QDate tarih);  // #month/day/year#
QString MalzemeEkle(QStringView malzeme, QStringView fiyat);
QString ÜrünEkle(QStringView grup, QStringView ürün);
QString YüzdeleriYaz(QStringView grup, QStringView ürün, QStringView işçilik, QStringView kâr, QStringView diğer,
                     QStringView vade);
QString KullanılanMalzemeEkle(QStringView tarih, QStringView grup, QStringView ürün, QStringView malzeme,
                              QStringView miktar, QStringView fiyat);

}  // namespace VeriDeyimleri

#pragma once

#include <QDate>
#include <QList>
#include <QStringView>
#include <map>

#include "Para.h"

class VeriYazıcısı;

// The sample: a small furniture workshop. Numbers are written as a user types them.

struct ÖrnekMalzeme {
    QStringView ad;
    QStringView fiyat;
};

struct ÖrnekMiktar {
    QStringView malzeme;
    QStringView miktar;  // number, one blank, unit
};

struct ÖrnekYüzdeler {
    QStringView işçilik;
    QStringView kâr;
    QStringView diğer;
    QStringView vade;
};

struct ÖrnekÜrün {
    QStringView grup;
    QStringView ad;
    ÖrnekYüzdeler yüzdeler;
    int günÖnce;  // days before today on which the materials were used
    QList<ÖrnekMiktar> malzemeler;
};

const QList<ÖrnekMalzeme>& ÖrnekMalzemeler();
const QList<ÖrnekÜrün>& ÖrnekÜrünler();

// The months before: prices that rose in several ways; and a supplier whose list has names of its own.
void ÖrnekGeçmişiYaz(VeriYazıcısı& yazıcı, QDate bugün);
void ÖrnekTedarikçiYaz(VeriYazıcısı& yazıcı);

// Writes the sample into a data file that has the tables. Throws VeriHatası.
void ÖrnekVeriYaz(VeriYazıcısı& yazıcı, QDate bugün);
// Its part: two currencies, and the materials whose prices follow them.
void ÖrnekDövizleriYaz(VeriYazıcısı& yazıcı, QDate bugün);

// Its part: materials that stand for products.
void ÖrnekYarıMamulleriYaz(VeriYazıcısı& yazıcı);

// What each material cost so many days ago.
std::map<QString, Para> ÖrnekFiyatları(int günÖnce);
// Its part, the last one: two archives of former months, of the products as they were then.
void ÖrnekArşivleriYaz(VeriYazıcısı& yazıcı, QDate bugün);

#pragma once

#include "Cizelge.h"

// Prices and names as suppliers' lists write them.

enum class FiyatTürü { Yok, Sayı, Kuşkulu, Okunamaz };

// Which sign stands before a list's decimals; Seçilmedi: each text is judged by itself.
enum class Ondalıkİmi { Seçilmedi, Virgül, Nokta };

struct OkunanFiyat {
    FiyatTürü Tür = FiyatTürü::Yok;
    OkunamazNedeni Neden = OkunamazNedeni::Yok;
    Ondalık Değer;  // Sayı; Kuşkulu: as the Turkish rule has it ("1.250" is 1250, "12,500" is 12,5)
};

// The price in a cell: a number as it is, a text by FiyatMetniOku, what is unreadable with its own reason.
OkunanFiyat FiyatOku(const ÇizelgeHücresi& hücre, Ondalıkİmi im = Ondalıkİmi::Seçilmedi);

// A text is read with "," as decimal sign and "." between thousands, and the other way round, both strictly: groups of
// three. With a chosen sign only one of them counts. Else what has one reading is a number ("1.250,50", "1,250.50"),
// and what has two that differ is Kuşkulu: one sign, up to three digits before it and three behind ("1.250", "12,500").
// ₺, TL or TRY before or behind is dropped; blanks within, any other sign or word, a negative number: Okunamaz.
OkunanFiyat FiyatMetniOku(QStringView metin, Ondalıkİmi im = Ondalıkİmi::Seçilmedi);

// A name as the catalogue keeps it: NFC, without marks that cannot be seen, each run of blanks of any kind, tabs and
// line breaks one blank, none at the ends, ' as ’.
QString ListeAdı(const QString& metin);

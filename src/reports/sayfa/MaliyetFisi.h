#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class SayfaYüzeyi;

// A product's cost sheet: what the main form shows, as the texts that stand there.
struct MaliyetFişi {
    QString Ürün;
    QList<QStringList> Satırlar;  // the list's rows: quantity, name, price, amount

    QString MalzemeMaliyeti;
    QString İşçilikYüzdesi;
    QString KârYüzdesi;
    QString DiğerYüzdesi;
    QString VadeYüzdesi;
    QString ToplamMaliyet;

    QString ToplamMiktar;
    QString BirimMaliyet;
    QString FireOranı;
    QString FireliMiktar;
    QString FireliBirimMaliyet;

    int OndalıkBasamak = 2;  // of the figures that are formatted for the printout
};

// A line of the summary below the rows.
struct FişÖzeti {
    QString Etiket;
    QString Değer;
    bool Toplam = false;
};
QList<FişÖzeti> FişinÖzeti(const MaliyetFişi& fiş);

// Prints title, rows and summary. The texts stand on paper as they are given; only the amounts of the percentages are
// computed here, each on the material cost alone, and quantities and waste are formatted. A figure that cannot be read
// leaves its place empty.
void MaliyetFişiniYaz(SayfaYüzeyi& yüzey, const MaliyetFişi& fiş);

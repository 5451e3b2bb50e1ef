#pragma once

#include <QString>
#include <optional>

#include "Para.h"

// The cost calculation: plain functions of the texts that the boxes show, no window needed.

// The boxes' texts.
struct MaliyetGirdisi {
    QString MalzemeMaliyeti;
    QString İşçilik;  // percentages
    QString Kâr;
    QString Diğer;
    QString Vade;
};

// The same as money: what the texts say.
struct MaliyetOranları {
    Para İşçilik;
    Para Kâr;
    Para Diğer;
    Para Vade;
};

struct MaliyetTutarları {
    Para İşçilik;
    Para Kâr;
    Para Diğer;
    Para Vade;
    Para Toplam;
};

// Each percentage's amount on the material cost, and the total, in money steps of four decimals. A step that cannot be
// done is skipped: an unreadable percentage counts 0; where the material cost is unreadable or the product overflows,
// an amount keeps its percentage's value; where the total cannot be formed, it stays 0.
MaliyetTutarları MaliyetHesapla(const MaliyetGirdisi& girdi);
MaliyetTutarları MaliyetHesapla(std::optional<Para> malzeme, const MaliyetOranları& oranlar);

// A percentage as its box shows it: `saklanan` as the data file gives it ("12.5"), with `basamak` decimals; what is no
// number as it is, nothing as "0".
QString YüzdeMetni(const QString& saklanan, int basamak);

// What such a text counts as a percentage.
Para YüzdeOranı(const QString& metin);

// An amount as it is shown with `basamak` decimals (0 or more), halves away from zero. Beyond the range: nullopt.
std::optional<Para> GösterilenTutar(Para tutar, int basamak);

// A product's total as the main form shows it, from the sum of its used materials: the form reckons with the material
// cost that it shows, and shows the total rounded again.
Para GösterilenToplam(Para malzeme, const MaliyetOranları& oranlar, int basamak);

// The total cost for one unit of quantity. nullopt: the text is no number, the quantity is not above 0.
std::optional<double> BirimMaliyet(const QString& toplamMaliyet, double toplamMiktar);
std::optional<double> BirimMaliyet(Para toplam, double toplamMiktar);  // `toplam` as it is shown

// The usable quantity that a waste rate (%) leaves. nullopt: a text is no number.
std::optional<double> FireliMiktar(const QString& toplamMiktar, const QString& fireOranı);

// The material cost for one usable unit. nullopt: a text is no number, the quantity is 0.
std::optional<double> FireliBirimMaliyet(const QString& malzemeMaliyeti, const QString& fireliMiktar);

// A percentage's amount on the material cost as the amounts form and the cost sheet show it: computed in floating
// point, not rounded to money. nullopt: a text is no number, or the result is not finite.
std::optional<double> YüzdeTutarı(const QString& malzemeMaliyeti, const QString& yüzde);
std::optional<double> YüzdeTutarı(Para malzemeMaliyeti, double yüzde);  // both as they are shown

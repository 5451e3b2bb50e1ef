#pragma once

#include <QString>
#include <QStringView>
#include <optional>

#include "Para.h"
#include "SayiCozumu.h"

// Numbers as the user reads and writes them: "," before the decimals, "." between the thousands, "-" as the sign.
// These three signs hold whatever the system's locale: of the users' regional settings only those are followed that
// have just these signs, all others give way to the Turkish ones; so "12,5" can never be read as 125.

// The numeric test, by the grammar of SayıÇöz. A blank is whatever Unicode calls one; the data file, which reads number
// texts by the same grammar with dots Yerinde, takes " " alone.
bool SayıMı(QStringView metin, NoktaKuralı kural = NoktaKuralı::Yerinde);

// The text as money, read on its exact decimals; more than four are rounded half to even.
// nullopt: no number, or out of range.
std::optional<Para> ParaOku(QStringView metin, NoktaKuralı kural = NoktaKuralı::Serbest);

// The text as the nearest double. nullopt: no number, or not finite.
std::optional<double> DoubleOku(QStringView metin, NoktaKuralı kural = NoktaKuralı::Serbest);

// Whether a double gives the number back digit by digit: it does for 15 significant digits, and for more it may not.
bool DoubleSaklar(QStringView metin, NoktaKuralı kural = NoktaKuralı::Serbest);

// The text's decimals, however many. nullopt: no number.
std::optional<Ondalık> OndalıkOku(QStringView metin, NoktaKuralı kural = NoktaKuralı::Serbest);

// FormatNumber: exactly `basamak` decimals (0 and up), thousands grouped, leading zero, "-" in front; halves are
// rounded away from zero on the decimal value; a value that rounds to zero never bears a sign.
QString SayıBiçimle(Para değer, int basamak);
QString SayıBiçimle(const Ondalık& değer, int basamak);
// A double is taken at its 15 significant digits (2,675 with two decimals gives 2,68). Not finite: nullopt.
std::optional<QString> SayıBiçimle(double değer, int basamak);
// A text is taken at its exact decimals, however long. No number: nullopt.
std::optional<QString> SayıMetniBiçimle(QStringView metin, int basamak, NoktaKuralı kural = NoktaKuralı::Serbest);

// From the data file's decimal mark to the user's: the first "." becomes ",", the rest stays.
QString NoktayıVirgüleÇevir(const QString& metin);

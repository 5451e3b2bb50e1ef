#pragma once

#include <QString>
#include <optional>

// A percentage's amount on the material cost as the amounts form and the cost sheet show it: computed in floating
// point, not rounded to money. nullopt: a text is no number, or the result is not finite.
std::optional<double> YüzdeTutarı(const QString& malzemeMaliyeti, const QString& yüzde);

#pragma once

#include <QString>
#include <QStringList>

// The quantity types (units such as "Adet") that the user typed before, remembered in the settings, section
// "Miktarlar", keys "Miktar-" + number. At most ten are kept; gaps, empty values and surplus entries are survived.
namespace MiktarTürleri {

// In the order of their keys, empty ones left out.
QStringList Oku();

// Remembers a type that no kept type begins with, newest first in `türler` (the list as it is on screen). With fewer
// than ten it gets a free key of its own; with exactly ten the last of `türler` gives way and all are written anew;
// with more nothing is remembered.
void Hatırla(QStringList& türler, const QString& tür);

}  // namespace MiktarTürleri

#pragma once

#include <QString>

// The first data file of somebody new. The packages bring an empty one under a name of its own below the program's
// folder; where it is missing there is no first file.

// Whether nothing tells of earlier work: no data file, no backup, no settings.
bool İlkBaşlatma();

// Puts the empty file into the data file's place at the first start of all, and notes in the settings that it has been.
// False: it could not be put there.
bool İlkDosyayıKoy(const QString& programKlasörü);

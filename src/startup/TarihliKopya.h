#pragma once

#include <QDateTime>

#include "VeriYollari.h"

// The start's part in the dated copies, which stand beside the one backup and never touch it.

// Copies the backup that was made just now; `değişme` is the data file's last change before that. What cannot be copied
// is told once a day.
void GünlükKopyaAl(const VeriYolları& yollar, const QDateTime& değişme);

// Whether there are dated copies, of whatever data file.
bool KopyaVar(const VeriYolları& yollar);

// Whether the start could not go on with what there is: the data file is damaged, or missing without a backup to bring
// it back.
bool BaşlangıçBiter(const VeriYolları& yollar);

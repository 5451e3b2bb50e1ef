#pragma once

#include <QList>

#include "CizelgeHedefi.h"

struct MaliyetFişi;

// A cost sheet's summary below its rows in a spreadsheet (quantity, unit, name, price, amount): the captions under the
// names, the figures under the amounts.
QList<QList<ÇizelgeDeğeri>> FişÖzetininSatırları(const MaliyetFişi& fiş);

#pragma once

#include "CizelgeHedefi.h"

// Writes .csv as Turkish spreadsheet programs read it. A text that they would take for a formula gets an apostrophe.
std::unique_ptr<ÇizelgeHedefi> CsvHedefi(const QString& yol, const QList<ÇizelgeSütunu>& sütunlar);

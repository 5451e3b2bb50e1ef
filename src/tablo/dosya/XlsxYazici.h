#pragma once

#include "CizelgeHedefi.h"

// Writes .xlsx, with a further sheet where one is full.
std::unique_ptr<ÇizelgeHedefi> XlsxHedefi(const QString& yol, const QString& sayfaAdı,
                                          const QList<ÇizelgeSütunu>& sütunlar);

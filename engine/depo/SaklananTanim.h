#pragma once

#include "DosyaSemasi.h"

#include <optional>
#include <string_view>

namespace Motor {

// The definitions in a file's schema, read in exactly the form in which Ceviri.cpp writes them and in no other:
// whatever else SQLite would understand there is none of ours.

// CREATE TABLE "name" ("column" TEXT(n) COLLATE TURKCE | CURRENCY | DOUBLE | DATETIME [DEFAULT (number)] [NOT NULL],
// ...)
std::optional<TabloTanımı> SaklananTabloyuOku(std::string_view sql);

// CREATE [UNIQUE ]INDEX "dizin" ON "tablo" ("column"[ DESC], ...)
bool SaklananDizinMi(std::string_view sql, std::string_view dizin, std::string_view tablo);

}  // namespace Motor

#pragma once

#include "Deyim.h"
#include "Katalog.h"

#include <functional>

namespace Motor {

// A statement made ready for SQLite: its text with parameters, their values, and what its rows consist of.
struct SqliteKomutu {
    enum class Sınıf { Sorgu, Değişiklik, Tanım };

    Sınıf Tür = Sınıf::Sorgu;
    std::string Sql;
    std::vector<Değer> Değerler;
    std::vector<SütunTanımı> Sütunlar;  // of a query
};

// Looks a table up; nullptr when there is none.
using TabloBulucu = std::function<const TabloTanımı*(std::string_view)>;

// Checks the statement against the tables, turns its literals into the columns' stored values and writes the SQL.
// Throws Hata: unknown table or column (S0001, S0002, S0022), a literal that does not suit its column (22005, 22003),
// a text too long to be stored (22001).
SqliteKomutu Çevir(const Deyim& deyim, const TabloBulucu& tablolar);

}  // namespace Motor

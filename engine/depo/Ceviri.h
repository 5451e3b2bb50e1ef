#pragma once

#include "Deyim.h"
#include "DosyaSemasi.h"

#include <cstddef>

namespace Motor {

// A statement made ready for SQLite: its text with parameters, their values, and what its rows consist of.
struct SqliteKomutu {
    enum class Sınıf { Sorgu, Değişiklik, Tanım };

    Sınıf Tür = Sınıf::Sorgu;
    std::string Sql;
    std::vector<Değer> Değerler;
    std::vector<SütunTanımı> Sütunlar;  // of a query
};

// What a statement may refer to.
class Şema {
  public:
    virtual ~Şema() = default;
    virtual const TabloTanımı* Tablo(std::string_view ad) = 0;  // nullptr when there is none
    virtual bool DizinVar(std::string_view ad) = 0;
};

// Most columns that a statement may name: what SQLite takes, and few enough for ODBC's 16 bits.
inline constexpr std::size_t AzamiSütun = 2000;

// Checks the statement against the schema, turns its literals into the columns' stored values and writes the SQL.
// Throws Hata: unknown table or column, a name in use (S0001, S0002, S0011, S0022), too many columns (37000), a literal
// that does not suit its column (22005, 22003), a text too long to be stored (22001).
SqliteKomutu Çevir(const Deyim& deyim, Şema& şema);

}  // namespace Motor

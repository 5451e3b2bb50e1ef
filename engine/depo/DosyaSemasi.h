#pragma once

#include "Sqlite.h"

#include <string>
#include <string_view>
#include <vector>

namespace Motor {

// How a column's values are stored and shown.
enum class SütunTürü {
    Metin,    // UTF-8 text
    Para,     // integer, ten-thousandths
    Ondalık,  // double
    Tarih,    // integer yyyymmdd
    TamSayı   // integer; only of results (counts, figures about tables and columns)
};

struct SütunTanımı {
    std::string Ad;
    SütunTürü Tür = SütunTürü::Metin;
    int Uzunluk = 0;  // characters of a text column
    bool BoşOlamaz = false;
};

struct TabloTanımı {
    std::string Ad;
    std::vector<SütunTanımı> Sütunlar;

    // Throws Hata (S0022) when there is no such column.
    const SütunTanımı& Sütun(std::string_view ad) const;
};

// The tables and indexes of a data file that clients see. The engine's own table has a name that no statement can
// spell.
class DosyaŞeması {
  public:
    static constexpr std::string_view GizliTablo = "Varnek#Parola";
    static constexpr std::string_view GizliTabloSql =
        R"(CREATE TABLE "Varnek#Parola" (Tuz BLOB, Tekrar INTEGER, Ozet BLOB))";

    // Reads the file's schema. Throws Hata (08001, native SQLITE_AUTH: no damage) when it holds anything that the
    // engine does not write: a view, a trigger, a virtual table or an expression would run as part of the program's
    // statements.
    explicit DosyaŞeması(sqlite3* vt);

    const TabloTanımı* Bul(std::string_view tablo) const;
    bool DizinVar(std::string_view dizin) const;
    bool ParolaTablosuVar() const { return m_parolaTablosuVar; }

  private:
    std::vector<TabloTanımı> m_tablolar;
    std::vector<std::string> m_dizinler;
    bool m_parolaTablosuVar = false;
};

}  // namespace Motor

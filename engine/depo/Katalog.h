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
    TamSayı   // integer; only of results (counts, catalogue figures)
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

// The tables of a data file that clients see. The engine's own table has a name that no statement can spell.
class Katalog {
  public:
    static constexpr const char* GizliTablo = "Varnek#Parola";

    explicit Katalog(sqlite3* vt);
    const TabloTanımı* Bul(std::string_view tablo) const;

  private:
    std::vector<TabloTanımı> m_tablolar;
};

}  // namespace Motor

#pragma once

#include "Sqlite.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Motor {

// A row of a file's schema.
struct ŞemaÖğesi {
    std::string Tür;  // "table", "index"; of a foreign one anything
    std::string Ad;
    std::string Tablo;
    std::int64_t Kök = 0;  // 0: where it begins is not known
    std::string Sql;

    bool Dizin() const { return Tür == "index"; }
};

struct OkunanŞema {
    std::vector<ŞemaÖğesi> Öğeler;
    bool Tam = true;  // all of them could be read
};

// Reads what can be read of it. `vt`: any connection to the file.
OkunanŞema ŞemayıOku(sqlite3* vt);

// Puts the schema of a damaged file right, by the declarations that the file's client knows. Nothing foreign stays in
// it.
class ŞemaKurtarma {
  public:
    // `kopya` is changed where its schema has to be. `bilinenler`: what may be in it; where a name stands among them,
    // that declaration holds. Throws Hata when it is no data file.
    ŞemaKurtarma(std::string kopya, std::vector<ŞemaÖğesi> bilinenler);

    // The tables and indexes that the file holds or held, in order.
    const std::vector<ŞemaÖğesi>& Öğeler() const { return m_öğeler; }

    // A line for each that was put right or is lost.
    const std::string& Rapor() const { return m_rapor; }

    // Whether the copy's schema was written anew.
    bool Değişti() const { return m_değişti; }

  private:
    void Tanı(const ŞemaÖğesi& okunan);
    const ŞemaÖğesi* Bilinen(const ŞemaÖğesi& okunan) const;
    bool Var(std::string_view ad) const;
    void KökleriDenetle();
    void EksikleriBul();
    void Yaz();

    std::string m_kopya;
    std::vector<ŞemaÖğesi> m_bilinenler;
    std::vector<ŞemaÖğesi> m_öğeler;
    std::string m_rapor;
    bool m_değişti = false;
    bool m_eksikOlabilir = false;
};

}  // namespace Motor

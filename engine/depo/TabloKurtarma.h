#pragma once

#include "DosyaSemasi.h"
#include "Hata.h"
#include "Sqlite.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Motor {

// Row numbers between two others, which are not among them.
struct SatırAralığı {
    std::int64_t Alt;
    std::int64_t Üst;
};

// Whether the engine could have written the value into the column.
bool DeğerGeçerli(const SütunTanımı& sütun, sqlite3_value* değer);

// What a damaged page says of itself; everything else (no memory, a full disk) ends the work.
bool Hasar(const Hata& hata);

// Reads the rows of a table of which pages may be damaged, and writes them under their own numbers into the same table
// of another file.
class TabloKurtarma {
  public:
    // `sınır`: no row number is looked for beyond it where the table's own end cannot be read.
    TabloKurtarma(sqlite3* kaynak, sqlite3* hedef, const TabloTanımı& tablo, std::int64_t sınır);

    void Yürü();

    std::int64_t Kurtarılan() const { return m_kurtarılan; }

    // Row numbers where something may be lost, rising; those that never were are among them.
    std::vector<SatırAralığı> Kayıplar() const;
    std::int64_t Sınır() const { return m_sınır; }

  private:
    struct Okunan {
        std::int64_t Son;  // the last row read; where it began when there was none
        bool Tamam;        // the rows ended; otherwise something could not be read
    };
    Okunan Oku(SqliteDeyimi& deyim, SatırAralığı aralık, bool geri);
    void Al(SqliteDeyimi& deyim, std::int64_t no);
    bool Geçerli(const SqliteDeyimi& deyim) const;
    void Ara(SatırAralığı bilinmeyen);
    void AlınmayanlarıEkle(SatırAralığı aralık);
    void Böl(std::vector<SatırAralığı>& bilinmeyenler, SatırAralığı aralık);

    const TabloTanımı& m_tablo;
    std::int64_t m_sınır;
    SqliteDeyimi m_ileri;
    SqliteDeyimi m_geri;
    SqliteDeyimi m_ekle;
    SqliteDeyimi m_alınanlar;
    std::int64_t m_kurtarılan = 0;
    bool m_sırasız = false;  // a row bore a number that does not belong where it stood
    std::vector<SatırAralığı> m_kayıplar;
};

}  // namespace Motor

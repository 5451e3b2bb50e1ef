#pragma once

#include "DosyaSemasi.h"
#include "SemaKurtarma.h"
#include "TabloKurtarma.h"

#include <map>
#include <string>
#include <vector>

namespace Motor {

// The rows of a table that an index of the damaged file still knows and the new file has not, with what the index holds
// of them.
class KayıpAdları {
  public:
    KayıpAdları(sqlite3* kaynak, sqlite3* hedef, const TabloTanımı& tablo, const std::vector<ŞemaÖğesi>& öğeler);

    // A line for each that lies there; they are not given again.
    std::string Al(SatırAralığı aralık);

    // How many there are still, and a line for each.
    std::size_t Sayı() const { return m_kayıplar.size(); }
    std::string Hepsi() const;

  private:
    void DizindenOku(sqlite3* kaynak, const ŞemaÖğesi& dizin);
    bool Oku(sqlite3* kaynak, const std::string& sql);
    void Ekle(const SqliteDeyimi& deyim);
    std::string Satır(std::int64_t no, const std::string& adı) const;

    const TabloTanımı& m_tablo;
    SqliteDeyimi m_alındıMı;
    std::vector<const SütunTanımı*> m_sütunlar;  // of the index at hand
    std::map<std::int64_t, std::string> m_kayıplar;
};

// The columns in an index's declaration, without their directions.
std::string DizinSütunları(std::string_view sql);

}  // namespace Motor

#pragma once

#include "DosyaSemasi.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace Motor {

// The pages of a data file as they lie there, without SQLite: where it would not look any more.
class SayfaTarama {
  public:
    explicit SayfaTarama(const std::string& yol);

    std::uint32_t SayfaSayısı() const { return m_sayı; }

    // For each table the page at which the tree of its rows begins; 0: there is none, or more than one table could have
    // it. `dolu`: pages at which others begin.
    std::vector<std::int64_t> KökleriBul(const std::vector<TabloTanımı>& tablolar,
                                         const std::vector<std::int64_t>& dolu);

    // Makes the file's schema an empty one. Its free pages are forgotten, so that none is written over that is none.
    void ŞemayıBoşalt();

  private:
    std::string Oku(std::uint32_t sayfa);
    std::vector<std::uint32_t> Çocuklar(const std::string& sayfa) const;
    // Pages of tables that are in no other's list.
    std::vector<std::uint32_t> Ağaçlar(const std::vector<std::int64_t>& dolu);
    std::string İlkYaprak(std::uint32_t kök);
    std::size_t AltSayfalar(std::uint32_t kök);
    bool Uyuyor(const std::string& yaprak, const TabloTanımı& tablo) const;

    std::fstream m_dosya;
    std::uint32_t m_boy = 0;  // of a page
    std::uint32_t m_sayı = 0;
};

}  // namespace Motor

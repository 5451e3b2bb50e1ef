#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Finds a number by a name (or by two, as group and product) as the data file compares names. Made for a million
// look-ups: the names lie one behind the other, and a look-up touches one place and one name.
class AdDizini {
  public:
    static constexpr std::uint32_t YOK = ~std::uint32_t{0};

    // The number under which the names stand; `yeni` where they stood under none.
    std::uint32_t BulYaDaEkle(std::string_view ad, std::uint32_t yeni) { return BulYaDaEkle({}, ad, yeni); }
    std::uint32_t BulYaDaEkle(std::string_view grup, std::string_view ad, std::uint32_t yeni);
    std::uint32_t Bul(std::string_view ad) const { return Bul({}, ad); }
    std::uint32_t Bul(std::string_view grup, std::string_view ad) const;

  private:
    struct Yer {
        std::uint64_t Özet = 0;
        std::uint32_t Sayı = YOK;
        std::uint32_t Baş = 0;  // in m_adlar
        std::uint32_t GrupBoyu = 0;
        std::uint32_t AdBoyu = 0;
        bool Dolu = false;
    };
    std::size_t Bak(std::uint64_t özet, std::string_view grup, std::string_view ad) const;
    bool Aynı(const Yer& yer, std::string_view grup, std::string_view ad) const;
    void Büyü();

    std::vector<Yer> m_yerler;  // a power of two, at most half of them taken
    std::size_t m_dolu = 0;
    std::string m_adlar;
};

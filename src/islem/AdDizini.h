#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Finds a number by a name (or by two, as group and product) as the data file compares names. Made for a million
// look-ups, which wait for little but memory: the places are small, and each name lies beside its number.
class AdDizini {
  public:
    static constexpr std::uint32_t YOK = ~std::uint32_t{0};

    // The number under which the names stand; `yeni` where they stood under none.
    std::uint32_t BulYaDaEkle(std::string_view ad, std::uint32_t yeni) { return BulYaDaEkle({}, ad, yeni); }
    std::uint32_t BulYaDaEkle(std::string_view grup, std::string_view ad, std::uint32_t yeni);
    std::uint32_t Bul(std::string_view ad) const { return Bul({}, ad); }
    std::uint32_t Bul(std::string_view grup, std::string_view ad) const { return Bul(Ara(grup, ad)); }

    // A look-up in two steps: what the caller does between them it does while memory brings the place. The names have
    // to last until the second.
    struct Aranan {
        std::uint32_t Özet;
        std::string_view Grup;
        std::string_view Ad;
    };
    Aranan Ara(std::string_view ad) const { return Ara({}, ad); }
    Aranan Ara(std::string_view grup, std::string_view ad) const;
    std::uint32_t Bul(const Aranan& aranan) const;

  private:
    struct Yer {
        std::uint32_t Özet = 0;
        std::uint32_t Kayıt = YOK;  // where it begins in m_kayıtlar; YOK: free
    };
    struct Kayıt {  // and then the names
        std::uint32_t Sayı;
        std::uint32_t GrupBoyu;
        std::uint32_t AdBoyu;
    };
    Kayıt KaydıAl(std::uint32_t yer) const;
    std::size_t Bak(const Aranan& aranan) const;
    bool Aynı(std::uint32_t kayıt, const Aranan& aranan) const;
    void Büyü();

    std::vector<Yer> m_yerler;  // a power of two, at most half of them taken
    std::size_t m_dolu = 0;
    std::string m_kayıtlar;
};

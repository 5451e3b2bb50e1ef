#pragma once

#include <optional>
#include <vector>

#include "YariMamulBaglari.h"

// A product exploded: what it uses, and what the products use that some of its materials stand for, down to base
// materials.

// A used row of one of the products.
struct AçılımSatırı {
    static constexpr std::uint32_t YOK = AdDizini::YOK;

    QString Malzeme;
    QString MiktarMetni;                  // as stored
    std::optional<double> Miktar;         // its number; nothing: unreadable
    QString Birim;                        // whatever stands behind the first blank
    std::uint32_t Ürün = YOK;             // the product that the material stands for; YOK: a base material
    double Oran = 1;                      // how much of that product one unit of the material is
    bool FarklıBirim = false;             // by unit cost, but not in the product's unit
    BağDurumu Durum = BağDurumu::Uyuyor;  // why a tied material is not exploded
};

struct AçılanÜrün {
    ÜrünAdı Ad;
    std::vector<AçılımSatırı> Satırlar;
};

// What is needed in all, of one material and unit.
struct AçılımToplamı {
    QString Malzeme;
    QString Birim;
    double Miktar = 0;
    std::int64_t Okunamayan = 0;  // rows of unreadable quantity, which do not count
    bool FarklıBirim = false;     // comes, at least in part, through a row in another unit than its product's
    BağDurumu Durum = BağDurumu::Uyuyor;
};

class ÜrünAçılımı {
  public:
    // Reads the product and, each once, those that it is made of.
    İşSonucu Oku(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün);

    // The first is the product itself.
    const std::vector<AçılanÜrün>& Ürünler() const { return m_ürünler; }

    // For so many pieces, by material; in one pass over the products, those first that others are made of last.
    std::vector<AçılımToplamı> Toplamlar(double adet) const;

  private:
    İşSonucu ÜrünüOku(OdbcBağlantısı& bağlantı, std::size_t ürün, const YarıMamulBağları& bağlar,
                      const std::vector<bool>& döngüde);
    void OranlarıKoy(const YarıMamulBağları& bağlar);

    std::vector<AçılanÜrün> m_ürünler;
    AdDizini m_dizin;
};

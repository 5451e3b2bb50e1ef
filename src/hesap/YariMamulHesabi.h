#pragma once

#include <optional>
#include <string_view>

#include "MaliyetHesabi.h"
#include "MalzemeToplami.h"

// The price of a material that stands for a product (a sub-assembly). It is kept, not shown, so it is reckoned with
// four decimals, whatever number of decimals is shown.

enum class TutarTürü { Malzeme, Toplam, Birim };  // the product's material cost, total cost, total cost per quantity

// Why a tied material's price follows its product, or does not.
enum class BağDurumu {
    Uyuyor,
    ÜrünYok,
    MalzemeYok,  // not in the catalogue
    Döngüde,     // the product needs, through others, the material that stands for it
    MalzemesizÜrün,
    OkunamayanMiktar,
    FarklıBirimler,  // of a unit cost
    MiktarSıfır,     // or below; of a unit cost
    SıfırYaDaAltı,
    ÇokBüyük,
    Yazılamadı  // the price was not written; it will be after the next command
};

struct YarıMamulFiyatı {
    BağDurumu Durum = BağDurumu::Uyuyor;
    Para Fiyat;  // above 0 where it follows
};

// Reckons a product's price for the materials that stand for it, from its rows in the main form's reading order.
class YarıMamulHesabı {
  public:
    static constexpr int BASAMAK = 4;

    // As MalzemeSayımı::Ekle takes them.
    void Ekle(std::optional<double> miktar, std::optional<Para> fiyat, std::string_view birim);

    // `oranlar`: the percentages as they are with BASAMAK decimals.
    YarıMamulFiyatı Fiyat(const MaliyetOranları& oranlar, TutarTürü tür) const;

  private:
    MalzemeSayımı m_sayım;
    bool m_boş = true;
    bool m_okunamayan = false;
    bool m_taştı = false;
};

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "KatalogOkuma.h"
#include "UrunToplamlari.h"
#include "YariMamulBaglari.h"

// What new prices do, through materials that stand for products, to the prices of those materials: reckoned in memory
// as YarıMamulleriYay will write it. Empty, and without cost, where the file has no ties.
class PlanYayılımı {
  public:
    static constexpr std::uint32_t YOK = AdDizini::YOK;

    İşSonucu Kur(OdbcBağlantısı& bağlantı, const MalzemeKataloğu& malzemeler, const ÜrünKataloğu& ürünler);
    bool Boş() const { return m_bağlar.empty(); }

    enum class SatırTürü {
        Durur,
        Gider,  // taken out by the plan
        Gelir   // put in by it
    };
    // A used row. Plan: what of the plan reaches it, Hedef: the price that a row which stays then gets.
    struct Satır {
        std::uint32_t Ürün = YOK;
        std::uint32_t Malzeme = YOK;
        std::optional<double> Miktar{};
        std::optional<Para> Fiyat{};
        std::uint32_t Plan = YOK;
        Para Hedef{};
        SatırTürü Tür = SatırTürü::Durur;
    };
    // Whether anything has to be kept of such a row.
    bool İlgili(std::uint32_t ürün, std::uint32_t malzeme) const;
    void Ekle(const Satır& satır, std::string_view malzemeAdı, std::string_view miktar);

    // After the last row.
    void Bitir();

    // Hands over the product of each used row whose price may follow; what it is set to is the product's number in
    // what Yenile gives.
    void ÜrünleriNumarala(const std::function<std::uint32_t(std::uint32_t ürün)>& numara);

    // What ticks have changed since the last call, one entry for each product.
    struct Etki {
        std::uint32_t Ürün;
        std::int64_t Fark = 0;  // of its material cost, ten-thousandths
        int İşaret = 0;         // how many rows more get another price
    };
    std::vector<Etki> Yenile(const std::function<bool(std::uint32_t plan)>& işaretli);

  private:
    struct Yayılan {
        std::uint32_t Ürün;
        std::optional<double> Miktar;
        std::optional<Para> Fiyat;
        std::uint32_t Plan = YOK;
        SatırTürü Tür = SatırTürü::Durur;
        std::int64_t Fark = 0;
        bool Değişti = false;  // the row gets another price
    };
    static bool Var(SatırTürü tür, bool işaretli) {
        return tür == SatırTürü::Durur || (tür == SatırTürü::Gelir) == işaretli;
    }
    // The new price of each tie whose price the ticked materials change.
    std::vector<std::optional<Para>> Fiyatlar(const std::function<bool(std::uint32_t plan)>& işaretli) const;

    struct ÜrünSatırı {
        Satır İçerik;
        std::string Ad;
        std::string Birim;
    };
    struct Bağ {
        std::uint32_t Ürün = YOK;
        std::optional<Para> Eski{};  // the material's price in the catalogue; nothing: it is not there
        TutarTürü Tür = TutarTürü::Malzeme;
        MaliyetOranları Oranlar{};
        std::uint32_t Satırlar = YOK;  // its product's in m_satırlar
    };

    std::vector<Bağ> m_bağlar;
    std::vector<std::uint32_t> m_sıra;                // ties, those first that others depend on
    std::vector<std::uint32_t> m_malzemeninBağı;      // by the material's place in the catalogue
    std::vector<std::uint32_t> m_ürününSatırları;     // by the product's place: places in m_satırlar
    std::vector<std::vector<ÜrünSatırı>> m_satırlar;  // of products with a tie
    std::vector<std::vector<Yayılan>> m_yayılanlar;   // of tied materials
};

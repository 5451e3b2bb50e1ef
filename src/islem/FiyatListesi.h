#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "FiyatKurali.h"
#include "FiyatMetni.h"
#include "FiyatPlani.h"
#include "TedarikciDeyimleri.h"

// A supplier's price list, row by row, and the materials that its names mean.

enum class ListeDurumu : quint8 {
    Eşleşti,
    Yeni,       // no material of this name; it can be added
    Çakışıyor,  // several rows give one material different prices: only one can be ticked
    // From here on a row cannot be ticked.
    Yinelenen,  // another row gives the same material the same price
    Belirsiz,   // several materials that only blanks or letter case tell apart
    BağKopuk,   // tied to a material that the catalogue does not have any more
    Kuşkulu,    // the price can be read in two ways
    FiyatOkunamaz,
    FiyatSıfır,
    AdOkunamaz,
    AdYok,
    AdUzun,     // more than a name can have
    FiyatBüyük  // beyond the range of money
};
constexpr bool İşaretlenir(ListeDurumu durum) {
    return durum <= ListeDurumu::Çakışıyor;
}

// How the list's prices become the catalogue's: price × (100 − İskonto) ÷ 100 ÷ the tie's divisor, rounded once.
struct ListeKuralı {
    Para İskonto;  // per cent; below 0 a surcharge
    Yuvarlama Adım;
};

struct ListeSatırı {
    qint64 No = 0;  // as the file counts
    bool Gizli = false;
    ÇizelgeHücresi AdHücresi;
    ÇizelgeHücresi FiyatHücresi;

    // What the list makes of it.
    QString Ad;  // ListeAdı; of a new material as it will be added
    OkunanFiyat Fiyat;
    ListeDurumu Durum = ListeDurumu::AdYok;
    std::uint32_t Malzeme = AdDizini::YOK;  // in the catalogue
    Para Bölen = Para::OnBindeBirden(Para::Ölçek);
    bool Bağlı = false;
    bool İşaretli = false;
    std::optional<bool> Karar;  // the user's own, for as long as the row means KararAdı
    QString KararAdı;
    Para Eski;
    Para Yeni;  // 0 where there is none

    // Whether its tick adds a material.
    bool YeniMi() const { return Malzeme == AdDizini::YOK && Durum <= ListeDurumu::Yinelenen; }
};

class FiyatListesi {
  public:
    struct Sayılar {
        std::int64_t Eşleşen = 0;
        std::int64_t Yeni = 0;
        std::int64_t Sorunlu = 0;  // cannot be ticked, or several prices
        std::int64_t İşaretli = 0;
    };

    // Rows with a name or a price, without headings. Their ticks are forgotten.
    void Al(std::vector<ListeSatırı> satırlar);

    // Reads the prices anew. What the user ticked or unticked stays so while the row means the same material, also
    // where it cannot be ticked for a while.
    void Eşle(MalzemeKataloğu katalog, const std::vector<Deyimler::Tedarikçi::Bağ>& bağlar, Ondalıkİmi im,
              const ListeKuralı& kural);

    // A tick in one of several rows that conflict takes it from the others.
    void İşaretle(std::size_t satır, bool işaretli);

    const std::vector<ListeSatırı>& Satırlar() const { return m_satırlar; }
    // The material as the catalogue spells it, or the name of the new one; "" where the row means neither.
    QString MalzemeAdı(std::size_t satır) const;
    const MalzemeKataloğu& Katalog() const { return m_katalog; }
    Sayılar Say() const;

    // What the ticked rows offer.
    std::vector<FiyatÖnerisi> Öneriler() const;

  private:
    class AdEşleyici;

    void FiyatıOku(ListeSatırı& satır, Ondalıkİmi im) const;
    void ÖbekleriKur();
    void ÇakışmalarıBul();
    void KararVer(std::size_t satır, bool işaretli);

    std::vector<ListeSatırı> m_satırlar;
    std::vector<std::uint32_t> m_öbekler;  // of each row that gives a price; YOK: none
    std::vector<std::vector<std::uint32_t>> m_öbekSatırları;
    MalzemeKataloğu m_katalog;
    ListeKuralı m_kural;
};

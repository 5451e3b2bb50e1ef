#pragma once

#include <QString>
#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "DovizDeyimleri.h"
#include "FiyatDeyimleri.h"
#include "FiyatKurali.h"
#include "KatalogOkuma.h"
#include "PlanYayilimi.h"
#include "UrunToplamlari.h"

using Deyimler::KullanılanSatır;
using Deyimler::Fiyat::Varlık;

// Why a material is left out of a plan or not ticked in it.
enum class PlanNedeni {
    Yok,
    Olağandışı,
    SonradanDeğişmiş,  // its price is not the one that the operation to be taken back gave it
    ElleDeğişmiş,      // its price is not the one that its currency's last rate gave it
    Çakışıyor,         // the list gives it several prices
    // From here on it cannot be carried out at all.
    Kullanılıyor,    // added by the operation to be taken back; a product uses it now
    FiyatıDeğişmiş,  // added by that operation; its price has been changed since
    KatalogdaVar,    // to be added, but the catalogue has it
    Değişmiyor,
    TersineDöndü,
    SıfırYaDaAltı,
    ÇokBüyük,
    AdıYazılamaz,  // no statement can name it
    YarıMamul      // its price is what a product costs
};
constexpr bool Uygulanır(PlanNedeni neden) {
    return neden < PlanNedeni::Kullanılıyor;
}
PlanNedeni NedenBul(FiyatDurumu durum);

// A date as the data file gives it ("2026-11-23 00:00:00") as a literal of a statement.
QString TarihYazımı(const QString& saklanan);

// A used row that gets a price of its own.
struct TekSatır {
    KullanılanSatır Satır;
    Para Hedef;
    bool Bulundu = false;  // by the plan, in the data file
};

// A new price for a material of the catalogue, or a material that is added to it or deleted from it.
struct FiyatÖnerisi {
    QString Malzeme;  // as the catalogue spells it
    Para Eski;        // the catalogue's price; 0 of an added one
    Para Yeni;        // 0 of a deleted one
    PlanNedeni Neden = PlanNedeni::Yok;
    bool İşaretli = true;
    bool HerSatır = true;          // the new price goes to every used row; otherwise only to those with one of
    std::vector<Para> Fiyatlar{};  // these prices
    std::vector<TekSatır> Tekler{};
    Varlık Malzemenin = Varlık::Aynı;
    bool BağıBekler = false;  // added though a tie bears its name: its price follows at once
};

// A rate that goes with the prices. Of its ties those are written whose material gets the price, or has it already.
struct KurDeğişimi {
    QString Kod;
    Para Eski;
    Para Yeni;
    QString EskiGün;  // yyyy-MM-dd
    QString YeniGün;
    std::vector<Deyimler::Döviz::Bağ> Bağlar;  // as they are to be; operation 0: the one that is carried out
};

// Where new prices come from: all that a plan is made of.
struct FiyatTeklifi {
    std::vector<FiyatÖnerisi> Öneriler;
    std::optional<KurDeğişimi> Kur{};
    std::optional<YarıMamulBağı> Bağ{};  // a tie that is made with its material's price
};

struct FiyatlıSatırlar {
    Para Fiyat;
    std::int64_t Sayı = 0;
    bool Değişir = true;
};

struct PlanMalzemesi : FiyatÖnerisi {
    std::int64_t Satır = 0;                  // used rows
    std::int64_t DeğişenSatır = 0;           // those that the plan reaches
    std::vector<FiyatlıSatırlar> Dağılım{};  // how many of the used rows have which price
    // Reached ones whose price is another than the catalogue's; of an added material the rows that used it before.
    std::vector<KullanılanSatır> Ayrılar{};
};

// A product that the plan's materials reach.
struct PlanÜrünü {
    QString Grup;
    QString Ad;
    Para Önce;  // totals as the main form shows them
    Para Sonra;
    bool Eksik = false;
    bool KatalogDışı = false;
};

struct PlanÖzeti {
    std::int64_t Malzeme = 0;  // ticked, added and deleted ones too
    std::int64_t Eklenen = 0;
    std::int64_t Silinen = 0;
    std::int64_t Satır = 0;
    std::int64_t Ürün = 0;
    std::int64_t YayılanSatır = 0;  // beside those rows: of materials whose price follows a product
    std::int64_t ÜrünsüzSatır = 0;  // of those rows, whose product is not in the product table
    std::int64_t AyrıSatır = 0;     // of those rows, whose price is another than the catalogue's
};

// What new prices do to every product, before anything is written. Made in one pass over each table; afterwards it
// holds nothing open and asks nothing more.
class FiyatPlanı {
  public:
    // `basamak`: the decimals that the main form shows.
    İşSonucu Kur(OdbcBağlantısı& bağlantı, FiyatTeklifi teklif, int basamak, const İlerleme& ilerleme = {});

    const std::vector<PlanMalzemesi>& Malzemeler() const { return m_malzemeler; }
    const std::vector<PlanÜrünü>& Ürünler() const { return m_ürünler; }
    PlanÖzeti Özet() const;
    const std::optional<KurDeğişimi>& DövizKuru() const { return m_kur; }
    // The tie, if its material gets the price or has it already.
    const YarıMamulBağı* Bağ() const;

    // What cannot be carried out stays unticked.
    void İşaretle(std::uint32_t malzeme, bool işaretli);
    // Lets the products' totals follow where ticked materials change the prices of others; after ticks were changed.
    void YayılımıYenile();

  private:
    struct Satır {
        std::uint32_t Ürün;  // AdDizini::YOK: in no product of the product table
        std::uint32_t Malzeme;
        std::int64_t Fark;  // ten-thousandths, when the material is ticked
    };
    class Okuyucu;
    __extension__ using Geniş = __int128;
    struct ÜrünHesabı {
        MaliyetOranları Oranlar;
        Geniş Sonra = 0;  // material cost in ten-thousandths
        bool Eksik = false;
    };

    void BağlılarıBırak(const YarıMamulBağları& bağlar);
    void SatırlarıDiz(std::deque<Satır>& satırlar);
    void ÜrünleriKur(ÜrünKataloğu& katalog);
    std::uint32_t ÜrünüKur(KatalogÜrünü& ürün);
    void SonrayıHesapla(std::uint32_t ürün);

    int m_basamak = 2;
    std::optional<KurDeğişimi> m_kur;
    std::optional<YarıMamulBağı> m_bağ;
    PlanYayılımı m_yayılım;
    std::int64_t m_yayılanSatır = 0;
    std::vector<PlanMalzemesi> m_malzemeler;
    std::vector<PlanÜrünü> m_ürünler;
    std::vector<ÜrünHesabı> m_hesaplar;        // beside m_ürünler
    std::vector<std::uint32_t> m_işaretliler;  // ticked rows of each product, beside m_ürünler
    std::vector<Satır> m_satırlar;             // by material
    std::vector<std::size_t> m_ilkSatır;       // of each material, and their end
};

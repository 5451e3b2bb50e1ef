#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "FiyatKayitlari.h"
#include "GetirmeIslemi.h"
#include "KatalogTaramasi.h"

// What a backup has and the data lack or have differently, to be picked from; and the way back from what was brought
// in.

// Why something cannot be ticked, or what is to be known about it.
enum class GetirmeNedeni {
    Yok,
    FiyatlarıDeğişmiş,  // of a taking back: the rows' prices have changed since, so that they come with today's
    DövizeBağlı,        // the material's price follows a currency
    Fiyatta,            // GetirmeKalemi::FiyatNedeni says it; it may be carried out all the same
    // From here on it cannot be carried out.
    İkiKez,
    AdYazılamaz,  // no statement can name it
    SatırOkunamaz,
    YarıMamul,         // the price is what a product costs
    SonradanDeğişmiş,  // of a taking back: the product is not what the operation left
    FiyatEngeli        // GetirmeKalemi::FiyatNedeni says it
};
constexpr bool Uygulanır(GetirmeNedeni neden) {
    return neden < GetirmeNedeni::İkiKez;
}

// A product or a material. Amounts are products' totals as the main form shows them, and materials' prices; nothing
// where it is not there.
struct GetirmeKalemi {
    bool Ürün = true;
    QString Grup{};
    QString Ad{};
    std::optional<Para> Yedekteki{};
    std::optional<Para> Şimdiki{};
    std::optional<Para> Sonraki{};  // once the ticked ones are brought in
    GetirmeNedeni Neden = GetirmeNedeni::Yok;
    PlanNedeni FiyatNedeni = PlanNedeni::Yok;  // also why a ticked price is left as it is
    bool Eksik = false;                        // a product's row does not count in one of the totals
    bool İşaretli = false;
    bool Birlikte = false;  // comes along, as a ticked product uses it and the catalogue does not have it
};

// Whether it is ticked, or comes along, and nothing keeps it back.
constexpr bool Gelir(const GetirmeKalemi& kalem) {
    return (kalem.İşaretli || kalem.Birlikte) && Uygulanır(kalem.FiyatNedeni);
}

struct GetirmeÖzeti {
    std::int64_t Ürün = 0;     // ticked
    std::int64_t Malzeme = 0;  // ticked, and those that come along
    std::int64_t Diğer = 0;    // products beside those in the list whose total changes
};

// It looks at a copy of the data (`deneme`), where what is ticked is tried out: so its figures are what the real
// operation gives. Copy and backup have to stay open as long as it lives.
class GetirmePlanı {
  public:
    // `basamak`: the decimals that the main form shows. Nothing is ticked at first.
    İşSonucu YedektenKur(OdbcBağlantısı& deneme, OdbcBağlantısı& yedek, int basamak, const İlerleme& ilerleme = {});
    // What taking the operation back (GeriAlma) or putting it forward (Yineleme) makes of the data; what stands as the
    // operation left it is ticked.
    İşSonucu KayıttanKur(OdbcBağlantısı& deneme, const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, int basamak,
                         const İlerleme& ilerleme = {});

    const std::vector<GetirmeKalemi>& Kalemler() const { return m_kalemler; }  // products, then materials
    bool Yedekten() const { return m_yedek != nullptr; }
    bool Denendi() const { return m_denendi; }                  // the amounts afterwards are known
    const QStringList& Eksikler() const { return m_eksikler; }  // materials of the operation that are gone
    GetirmeÖzeti Özet() const;

    // What cannot be carried out stays unticked, what comes along ticked.
    void İşaretle(std::size_t kalem, bool işaretli);

    // To be called after ticks were changed, before anything is shown or carried out.
    GetirmeSonucu Dene(const İlerleme& ilerleme = {});

    // In the data themselves; stops if anything is not as it was shown.
    GetirmeSonucu Uygula(OdbcBağlantısı& bağlantı, const İşlemBilgisi& bilgi, const QString& zaman,
                         const İlerleme& ilerleme = {}) const;

    // What the product's rows are now and would be; reads them if need be.
    İşSonucu ÜrünüOku(std::size_t kalem, ÜrünHali& önce, ÜrünHali& sonra);

  private:
    struct Kayıt;
    struct Sonrakiler;
    void FarklarıBul(const KatalogTaraması& yedekteki);
    void MalzemeleriBul(const KatalogTaraması& yedekteki);
    İşSonucu BağlılarıBul();
    İşSonucu KaydıOku(std::int64_t işlem, bool geri, std::vector<Kayıt>& kayıtlar);
    void ÜrünEkle(GetirmeKalemi kalem);
    İşSonucu FiyatlarıEkle();
    İşSonucu DeğişimiOku(std::size_t kalem);
    İşSonucu BirlikteGelenler(const İlerleme& ilerleme);
    Getirmeİşi İşiYap() const;
    UygulamaSonucu FiyatÖner(OdbcBağlantısı& bağlantı, FiyatTeklifi& teklif) const;
    İşSonucu SonrakileriOku(OdbcBağlantısı& bağlantı, Sonrakiler& sonrakiler, const İlerleme& ilerleme) const;

    OdbcBağlantısı* m_deneme = nullptr;
    OdbcBağlantısı* m_yedek = nullptr;
    int m_basamak = 2;
    Deyimler::Fiyat::İşlem m_işlem;  // that is taken back or put forward
    İşlemTürü m_tür = İşlemTürü::Getir;

    KatalogTaraması m_şimdi;
    MalzemeKataloğu m_yedekMalzemeleri;
    std::vector<GetirmeKalemi> m_kalemler;
    std::vector<std::optional<ÜrünDeğişimi>> m_değişimler;  // beside m_kalemler; nothing: not read yet, or a material
    std::vector<FiyatÖnerisi> m_öneriler;                   // beside m_kalemler; of materials
    AdDizini m_ürünDizini;
    AdDizini m_malzemeDizini;
    QStringList m_eksikler;
    std::vector<KalanFiyat> m_kalanlar;  // as tried out
    std::int64_t m_diğer = 0;
    std::uint64_t m_diğerÖzeti = 0;
    bool m_denendi = false;
};

#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

#include "FiyatIslemi.h"

// Another material in one's place, in every product that uses it. As with prices: a plan that can be looked at, carried
// out as a whole, taken back by a plan of its own.

// Why a product is left out, or not ticked.
enum class DeğişimNedeni {
    Yok,
    FiyatıAyrı,  // the rows to be put forward again have another price than the catalogue now
    // From here on the product cannot be changed at all.
    SatırlarıDeğişmiş,  // its rows are no longer those that the operation left
    ÜrünListedeYok,
    BirimFarklı,
    MiktarOkunamaz,
    SatırOkunamaz,  // a row without price or date
    SonuçSıfır,
    MetinUzun,
    TutarBüyük,
    AdYazılamaz,    // no statement can name it
    ÇemberKapatır,  // the product would be made, through others, of itself
    YarıMamulünden  // nothing is to be changed in it; a sub-assembly that it uses gets another price
};
constexpr bool Uygulanır(DeğişimNedeni neden) {
    return neden < DeğişimNedeni::SatırlarıDeğişmiş;
}

struct DeğişenÜrün {
    QString Grup;
    QString Ad;
    std::vector<KullanılanSatır> Önce;   // the product's rows of both materials
    std::vector<KullanılanSatır> Sonra;  // what stands in their place; none where it is left out
    Para ÖncekiToplam;                   // as the main form shows them
    Para SonrakiToplam;
    DeğişimNedeni Neden = DeğişimNedeni::Yok;
    bool İşaretli = false;
    bool FiyatAyrı = false;  // a row that comes back has another price than the catalogue now

    // What the totals are reckoned from: material costs in ten-thousandths.
    struct Hesap {
        std::uint32_t Yer = AdDizini::YOK;  // in the product table's reading order
        MaliyetOranları Oranlar{};
        std::int64_t Önce = 0;
        std::int64_t Sonra = 0;    // when it is ticked
        std::int64_t Yayılan = 0;  // what comes through sub-assemblies
    };
    Hesap Hesabı{};

    // The rows that leave the report of their day.
    std::int64_t GünündenÇıkan() const;
};

struct DeğişimKuralı {
    QString Eski;
    QString Yeni;
    Para Çarpan = Para::OnBindeBirden(Para::Ölçek);  // above 0: so much of the new one for a unit of the old one
};

struct DeğişimÖzeti {
    std::int64_t Ürün = 0;  // ticked
    std::int64_t Silinen = 0;
    std::int64_t Yazılan = 0;
    std::int64_t GünündenÇıkan = 0;
    std::int64_t Dışarıda = 0;  // cannot be changed
};

class DeğişimPlanı {
  public:
    // Every product that uses the old material. Without the new one in the catalogue there is no product in it, and
    // YeniYok says so. `gün`: of use, `basamak`: the decimals that the main form shows.
    İşSonucu Kur(OdbcBağlantısı& bağlantı, const DeğişimKuralı& kural, QDate gün, int basamak,
                 const İlerleme& ilerleme = {});
    // What taking the operation back (GeriAlma) or putting it forward (Yineleme) makes of its products.
    İşSonucu DönüşüKur(OdbcBağlantısı& bağlantı, std::int64_t işlem, bool geri, int basamak,
                       const İlerleme& ilerleme = {});

    const std::vector<DeğişenÜrün>& Ürünler() const { return m_ürünler; }
    const QStringList& Malzemeler() const { return m_malzemeler; }  // whose rows go and come
    const std::optional<KatalogMalzemesi>& Yeni() const { return m_yeni; }
    bool YeniYok() const { return m_yeniYok; }
    DeğişimÖzeti Özet() const;

    // What cannot be carried out stays unticked.
    void İşaretle(std::size_t ürün, bool işaretli);
    // Lets the totals follow the ticks, through sub-assemblies too; after ticks were changed.
    void YayılımıYenile();
    // The rows to be written are used on this day; those that come back keep theirs.
    void GünüDeğiştir(QDate gün);

  private:
    class Okuyucu;
    struct Kayıt;
    void Değiştir(DeğişenÜrün& ürün, const DeğişimKuralı& kural, const QString& tarih,
                  const YarıMamulBağları& bağlar) const;
    İşSonucu KaydıOku(OdbcBağlantısı& bağlantı, std::int64_t işlem, bool geri, Kayıt& kayıt);
    void Dön(DeğişenÜrün& ürün, const Kayıt& kayıt, std::size_t yer, bool geri, const MalzemeKataloğu& katalog,
             const YarıMamulBağları& bağlar);

    void YayılımıKur(Okuyucu& okuyucu, const MalzemeKataloğu& katalog);

    int m_basamak = 2;
    PlanYayılımı m_yayılım;
    QStringList m_malzemeler;
    std::optional<KatalogMalzemesi> m_yeni;  // of a replacement; nothing of a taking back
    bool m_yeniYok = false;
    std::vector<DeğişenÜrün> m_ürünler;
};

// All ticked products or none, with the operation's record. `ilerleme` is told how many are done.
UygulamaSonucu DeğişimiUygula(OdbcBağlantısı& bağlantı, const DeğişimPlanı& plan, const İşlemBilgisi& bilgi,
                              const QString& zaman, const İlerleme& ilerleme = {});

// Whether the rows are the same ones, in whatever order.
bool AynıSatırlar(const std::vector<KullanılanSatır>& a, const std::vector<KullanılanSatır>& b,
                  const QStringList& malzemeler);

// A used row as MalzemeninSatırları and TümKullanılanlar give it, from column `ilk` on; without a price or a date it is
// none.
std::optional<KullanılanSatır> KullanılanSatırıAl(OdbcSatırı& satır, int ilk = 1);

// To be asked where there is an operation that changed products' rows (ÜrünleriDeğiştirir): the numbers of those that
// deleted or wrote rows of the material, and of those that took them back or put them forward.
İşSonucu MalzemeninDeğiştirmeleri(OdbcBağlantısı& bağlantı, const QString& malzeme,
                                  std::vector<std::int64_t>& işlemler);

#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "KatalogOkuma.h"
#include "YariMamulDeyimleri.h"
#include "YariMamulHesabi.h"

// A material that stands for a product: its price is what the product costs.
struct YarıMamulBağı {
    QString Malzeme;
    ÜrünAdı Ürün;
    TutarTürü Tür = TutarTürü::Malzeme;
    BağDurumu Durum = BağDurumu::Uyuyor;
};
Deyimler::YarıMamul::Bağ Saklanan(const YarıMamulBağı& bağ);
QString DurumSözcüğü(BağDurumu durum);  // as it is stored

bool AynıÜrün(const ÜrünAdı& a, const ÜrünAdı& b);  // as the data file compares names
bool Yazılabilir(const ÜrünAdı& ürün);              // a statement can name it

// Names of materials that a product uses, in the main form's order; one that it uses twice stands twice. A name that no
// statement can name has none.
İşSonucu ÜrününMalzemeleri(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, QStringList& malzemeler);

// The product's percentages with as many decimals as kept prices are reckoned with. Nothing: there is no such product.
İşSonucu ÜrününOranları(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, std::optional<MaliyetOranları>& oranlar);

// What the product passes on as things are stored now.
İşSonucu ÜrününFiyatınıHesapla(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, TutarTürü tür, YarıMamulFiyatı& fiyat);

// A chain of names that leads from `baş` back to it.
QString ZincirMetni(const QString& baş, const QStringList& zincir);

// The ties of a data file with what their products use: which tie depends on which. All names are compared as the data
// file compares them.
class YarıMamulBağları {
  public:
    static constexpr std::uint32_t YOK = AdDizini::YOK;

    İşSonucu Oku(OdbcBağlantısı& bağlantı);

    bool Boş() const { return m_bağlar.empty(); }
    const std::vector<YarıMamulBağı>& Bağlar() const { return m_bağlar; }
    std::uint32_t Bul(const QString& malzeme) const;
    const YarıMamulBağı* Bağı(const QString& malzeme) const;  // null: the material stands for none
    bool ÜrününBağıVar(const ÜrünAdı& ürün) const;

    // Ties whose product this is, or belongs to this group where its name is empty.
    std::vector<std::uint32_t> ÜrününBağları(const ÜrünAdı& ürün) const;
    // Ties whose product uses the material.
    std::vector<std::uint32_t> Kullananlar(const QString& malzeme) const;

    // All ties that are in no circle, each behind those that its price depends on; and those in one.
    struct Sıra {
        std::vector<std::uint32_t> Bağlar;
        std::vector<std::uint32_t> Döngüdekiler;
    };
    Sıra SırayaKoy() const;

    // The names along which `malzemeler`, by the products that they stand for, lead back to the product, or to the
    // material: "Tabla", "Masa Tablası", "Ayak". Empty: they do not.
    QStringList Zincir(const QStringList& malzemeler, const ÜrünAdı& hedef) const;
    QStringList Zincir(const QStringList& malzemeler, const QString& hedefMalzeme) const;

    // What became of the data; Kur after the last of them.
    void DurumuKoy(std::uint32_t bağ, BağDurumu durum) { m_bağlar[bağ].Durum = durum; }
    void ÜrünüKoy(std::uint32_t bağ, const ÜrünAdı& ürün) { m_bağlar[bağ].Ürün = ürün; }
    void MalzemeleriKoy(std::uint32_t bağ, QStringList malzemeler) { m_malzemeler[bağ] = std::move(malzemeler); }
    void Çıkar(const std::vector<std::uint32_t>& bağlar);  // rising
    void Kur();

  private:
    QStringList ZinciriBul(const QStringList& malzemeler,
                           const std::function<bool(const QString&, std::uint32_t)>& bulundu) const;

    std::vector<YarıMamulBağı> m_bağlar;
    std::vector<QStringList> m_malzemeler;             // that each tie's product uses
    std::vector<std::vector<std::uint32_t>> m_altlar;  // ties among these
    AdDizini m_dizin;                                  // ties by material
    AdDizini m_ürünler;                                // products with a tie
    AdDizini m_kullanılan;                             // places in m_kullananlar by material
    std::vector<std::vector<std::uint32_t>> m_kullananlar;
};

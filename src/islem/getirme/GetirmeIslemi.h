#pragma once

#include <QString>
#include <array>
#include <functional>
#include <vector>

#include "FiyatIslemi.h"

// Products as a whole in the place of what the data have of them, with prices of the catalogue, in one transaction.

// A product as a data file holds it.
struct ÜrünHali {
    bool Var = false;  // in the product table; used rows may bear its name without it
    std::array<QString, 4> Yüzdeler{};
    std::vector<KullanılanSatır> Satırlar{};
};

// `okunamaz`: a used row has no price or no date.
İşSonucu ÜrünHaliniOku(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, ÜrünHali& hal, bool& okunamaz);

// The same percentages and the same rows in whatever order; without `fiyatıyla` the rows' prices may differ.
bool AynıHal(const ÜrünHali& a, const ÜrünHali& b, bool fiyatıyla);

struct ÜrünDeğişimi {
    ÜrünAdı Ürün;
    ÜrünHali Önce;   // what stands now; anything else stops the operation
    ÜrünHali Sonra;  // Var false: the product is deleted
    // Beside Sonra.Satırlar, or empty: rows that keep the price that they bring. All others take the catalogue's.
    std::vector<bool> KendiFiyatıyla{};
};

struct Getirmeİşi {
    std::vector<ÜrünDeğişimi> Ürünler;
    // Asked within the transaction; empty: no price changes.
    std::function<UygulamaSonucu(OdbcBağlantısı& bağlantı, FiyatTeklifi& teklif)> FiyatÖner;
    bool ÖnceÜrünler = false;  // a taking back: the prices change after the products' rows
    int Basamak = 2;           // the decimals that the main form shows
};

struct KalanFiyat {
    QString Malzeme;
    PlanNedeni Neden = PlanNedeni::Yok;
    bool operator==(const KalanFiyat&) const = default;
};

struct [[nodiscard]] GetirmeSonucu {
    UygulamaSonucu Uygulama;
    QStringList Çember{};  // materials that would be made, through others, of themselves; nothing was written
    std::vector<KalanFiyat> Kalanlar{};  // offered prices that the data do not let through
    QStringList Çözülenler{};            // materials whose product was deleted
    bool Tamam() const { return Uygulama.Son == UygulamaSonu::Tamam && Çember.isEmpty(); }
};

// All of it or nothing, with the operation's record. `bak` sees the outcome before it is written; what it does not like
// stops it. Without a time (`zaman`) nothing is written: `bak` has seen what would be. `ilerleme` is told how many
// products are done.
GetirmeSonucu Getir(OdbcBağlantısı& bağlantı, const Getirmeİşi& iş, const İşlemBilgisi& bilgi, const QString& zaman,
                    const std::function<UygulamaSonucu(const GetirmeSonucu&)>& bak, const İlerleme& ilerleme = {});

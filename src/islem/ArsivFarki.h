#pragma once

#include "ArsivKayitlari.h"
#include "FarkAyrimi.h"

// Two days beside each other: an archive and a later one, or an archive and what is stored now.

// One side's sheet: of an archive by its number, of today by its names.
struct FöyYeri {
    std::optional<Başlık> Arşiv;  // nothing: today
    std::int64_t No = 0;          // of an archive's sheet
    QString Grup;
    QString Ürün;
};

// Whether the names are one, as the data file compares them.
bool AynıAdlı(const QString& a, const QString& b);
bool AynıÜrün(const FöyYeri& a, const FöyYeri& b);

struct ÜrünFarkı {
    std::optional<FöyYeri> Eski;  // nothing: the product stands on one side alone
    std::optional<FöyYeri> Yeni;
    Para EskiToplam;  // with four decimals
    Para YeniToplam;
    FarkAyrımı Ayrım;  // where both are there
    unsigned EskiDikkat = 0;
    unsigned YeniDikkat = 0;
    bool Bozuk = false;  // an archived sheet is not what its digest says

    const FöyYeri& Adı() const { return Yeni ? *Yeni : *Eski; }
};

struct ArşivFarkı {
    std::vector<ÜrünFarkı> Ürünler;  // in the tree's order of the new side; then what is gone
    std::int64_t EksikFöy = 0;       // sheets that an archive should have and has not
};

// Products that both sides' scopes take in, found by name as the data file compares names. `ilerleme` is told how many
// rows have been read.
İşSonucu GünleriKarşılaştır(OdbcBağlantısı& bağlantı, const Başlık& eski, const std::optional<Başlık>& yeni,
                            ArşivFarkı& fark, const İlerleme& ilerleme = {});

// Two sheets, whatever their names. Nothing where one is not there any more.
İşSonucu FöyleriKarşılaştır(OdbcBağlantısı& bağlantı, const FöyYeri& eski, const FöyYeri& yeni,
                            std::optional<ÜrünFarkı>& fark);

// The names under which the other side's sheet may be sought, in the tree's order: all sheets of an archive, or all
// products of today.
İşSonucu FöyYerleriniOku(OdbcBağlantısı& bağlantı, const std::optional<Başlık>& arşiv, std::vector<FöyYeri>& yerler);

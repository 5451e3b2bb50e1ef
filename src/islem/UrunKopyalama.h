#pragma once

#include <QDate>
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "KatalogOkuma.h"

// What the file holds of a product, as it stands there: the percentages of the row that the main form reads, and the
// used rows in its order.
struct SaklananÜrün {
    struct Satır {
        QString Miktar;
        QString Malzeme;
        QString Fiyat;
        bool operator==(const Satır&) const = default;
    };
    std::array<QString, 4> Yüzdeler;  // labour, profit, other, maturity
    std::vector<Satır> Satırlar;
    bool operator==(const SaklananÜrün&) const = default;
};

// Nothing: there is no such product (any more).
İşSonucu SaklananÜrünüOku(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, std::optional<SaklananÜrün>& saklanan);

enum class KopyaSonu {
    Tamam,
    AdVar,      // there is such a product already
    KalanVar,   // used rows of a product that is gone bear the name: the copy would take them in
    Döngü,      // the copy would be made, through others, of itself
    Değişmiş,   // the product is not what is to be copied any more
    Yazılamadı  // a statement failed
};
struct [[nodiscard]] ÜrünKopyaSonucu {
    KopyaSonu Son = KopyaSonu::Tamam;
    OdbcSonucu Odbc;       // of what failed
    QStringList Zincir{};  // the names along the circle
};

// Adds the product `yeni` with what `saklanan` holds; its rows bear `gün` as their day of use. All of it in one
// transaction, or nothing.
ÜrünKopyaSonucu ÜrünüKopyala(OdbcBağlantısı& bağlantı, const ÜrünAdı& eski, const SaklananÜrün& saklanan,
                             const ÜrünAdı& yeni, QDate gün);

#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

#include "Para.h"

// Frozen cost sheets: archives, their sheets, the sheets' rows. The tables are made by the first archive; a data file
// without them is whole. No statement changes a sheet or a row.
namespace Deyimler::Arşiv {

inline constexpr const char* TABLO = "ArsivTablosu";

QStringList TablolarıOluştur();

// What an archive takes in: everything, a group, or one product of it.
struct Kapsam {
    QString Grup{};
    QString Ürün{};

    bool Tümü() const { return Grup.isEmpty() && Ürün.isEmpty(); }
    bool operator==(const Kapsam&) const = default;
};
QString Ürünler(const Kapsam& kapsam);      // group, name, the four percentages; by group, name
QString Kullanımlar(const Kapsam& kapsam);  // group, product, material, quantity, price; in that order
QString ÜrünSayısı(const Kapsam& kapsam);
QString KullanımSayısı(const Kapsam& kapsam);

struct Başlık {
    std::int64_t No = 0;  // rising from 1; tells archives of one day apart
    QString Gün{};        // yyyy-MM-dd
    QString Not{};
    Kapsam Neyin{};
    int Basamak = 2;  // the decimals of the sheets' texts
    std::int64_t FöySayısı = 0;
};
QString Ekle(const Başlık& başlık);
QString FöySayısınıYaz(std::int64_t arşiv, std::int64_t sayı);  // where it is 0 still
QString Arşivler();                                             // all columns in that order; the latest first
QString SonNumara();                                            // the numbers, the greatest first
QStringList Sil(std::int64_t arşiv);                            // the archive itself last

// Texts as they stood on the cost sheet, and the figures with four decimals.
struct Föy {
    std::int64_t Arşiv = 0;
    std::int64_t No = 0;  // in the tree's order, from 1
    QString Grup{};
    QString Ürün{};
    QString MalzemeMetni{};
    std::array<QString, 4> YüzdeMetinleri{};  // labour, profit, other costs, maturity difference
    QString ToplamMetni{};
    QString MiktarMetni{};
    QString BirimMetni{};
    std::array<Para, 4> Yüzdeler{};
    Para Malzeme{};
    Para Toplam{};
    std::int64_t SatırSayısı = 0;
    unsigned Dikkat = 0;
    QString Özet{};  // SHA-256, hexadecimal
};
QString FöyEkle(const Föy& föy);
QString Föyler(std::int64_t arşiv);                    // all columns in that order; by number
QString TekFöy(std::int64_t arşiv, std::int64_t föy);  // the same of one
QString FöyListesi(std::int64_t arşiv);  // number, group, product, total's text, total, attention; by number
QString ÜrününFöyleri(const QString& grup, const QString& ürün);  // archive, number, total, attention; by archive
QString Adlar();                                                  // group and product of all sheets, each once

struct Satır {
    QString Malzeme{};
    QString MiktarMetni{};
    QString FiyatMetni{};
    QString TutarMetni{};
    QString Miktar{};  // as the product had it
    Para Fiyat{};
    bool Sayıldı = true;
};
QString SatırEkle(std::int64_t arşiv, std::int64_t föy, std::int64_t no, const Satır& satır);
QString Satırlar(std::int64_t arşiv);                          // sheet and all columns; by sheet, number
QString FöyünSatırları(std::int64_t arşiv, std::int64_t föy);  // the same of one

}  // namespace Deyimler::Arşiv

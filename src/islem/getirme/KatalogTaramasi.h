#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <vector>

#include "KatalogOkuma.h"
#include "MaliyetTablosu.h"

// A product as a data file has it: enough to see whether another file has the same.
struct TarananÜrün {
    QString Grup;
    QString Ad;
    Para Toplam;  // as the main form shows it
    std::array<QString, 4> Yüzdeler{};
    std::uint64_t Özet = 0;  // of its rows in whatever order: material, quantity, date of use
    std::int64_t Satır = 0;
    bool İkiKez = false;     // another product has the same group and name
    bool Yazılamaz = false;  // no statement can name it or something that it uses
    bool Okunamaz = false;   // a row has no price or no date
    bool Eksik = false;      // the total leaves rows out

    bool Aynı(const TarananÜrün& b) const { return Yüzdeler == b.Yüzdeler && Satır == b.Satır && Özet == b.Özet; }
};

// Whether the total leaves rows out: their quantity cannot be read, or an amount is beyond money.
bool ToplamıEksik(const MaliyetTablosuSatırı& satır);

// What a data file holds, read in one pass over each table. Names are one as the data file compares them.
struct KatalogTaraması {
    std::vector<TarananÜrün> Ürünler;  // in the tree's order
    MalzemeKataloğu Malzemeler;

    // `basamak`: the decimals that the main form shows.
    İşSonucu Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme = {});
    const TarananÜrün* Bul(const QString& grup, const QString& ad) const;  // null: it has none

  private:
    İşSonucu YüzdeleriOku(OdbcBağlantısı& bağlantı);
    İşSonucu SatırlarıOku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme);

    AdDizini m_dizin;
};

#pragma once

#include <QString>
#include <array>
#include <functional>
#include <vector>

#include "ArsivDeyimleri.h"
#include "KatalogOkuma.h"
#include "MaliyetHesabi.h"

// A product's cost sheet as it is frozen: the texts that the main form would print, with the quantities shown where
// they can be, and the figures behind them with four decimals.

// Beside those of DikkatNedeni. Both are part of the file format.
inline constexpr unsigned MetinKısaltıldı = 128;  // a text is longer than a column; it ends in "…"

// Whether something of it could not be reckoned with.
bool FöyEksik(unsigned dikkat);

struct ArşivFöyü : Deyimler::Arşiv::Föy {
    std::vector<Deyimler::Arşiv::Satır> Satırlar;

    MaliyetOranları Oranlar() const { return {Yüzdeler[0], Yüzdeler[1], Yüzdeler[2], Yüzdeler[3]}; }
};

// SHA-256 over everything that the sheet and its archive's heading hold, each with its length. It finds damage and
// careless changes; who can write the file can write it as well.
QString FöyÖzeti(const Deyimler::Arşiv::Başlık& arşiv, const ArşivFöyü& föy);

// Takes the sheets one by one; anything but Tamam ends the reading with that result.
using FöyAlıcı = std::function<İşSonucu(ArşivFöyü& föy)>;

// Today's sheets of the products, from 1 in the tree's order, in one pass over each table; those without materials too.
// Archive and digest are not set. `basamak`: the decimals of the texts. `al` may write other tables.
İşSonucu BugünküFöyleriOku(OdbcBağlantısı& bağlantı, const Deyimler::Arşiv::Kapsam& kapsam, int basamak,
                           const FöyAlıcı& al, const İlerleme& ilerleme = {});

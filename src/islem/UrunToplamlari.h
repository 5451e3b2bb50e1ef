#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "KatalogOkuma.h"
#include "MaliyetHesabi.h"

// The products with what their total is reckoned from, each once as the data file compares names: of a product that is
// listed twice the row that the main form reads counts, the file's first.
struct KatalogÜrünü {
    QString Grup;
    QString Ad;
    MaliyetOranları Oranlar;
    std::array<std::optional<double>, 4> Yüzdeler;  // the same as they are shown, in that order
    bool İkiKez = false;                            // another row has the same group and name
    std::int64_t Malzeme = 0;                       // ten-thousandths, of the rows that count
    bool Eksik = false;        // a row does not count: its quantity is unreadable or its amount beyond money
    bool KatalogDışı = false;  // uses a material that the catalogue does not have
};

struct ÜrünKataloğu {
    std::vector<KatalogÜrünü> Ürünler;
    AdDizini Dizin;

    // `basamak`: the decimals that the main form shows, as its percentages count as shown.
    İşSonucu Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme = {});
};

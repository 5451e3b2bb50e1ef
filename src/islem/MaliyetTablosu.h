#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "KatalogOkuma.h"

// Why a product's figures want a second look.
enum DikkatNedeni : unsigned {
    KatalogDışıMalzeme = 1,  // uses a material that the catalogue does not have
    SıfırFiyat = 2,
    OkunamayanMiktar = 4,
    MalzemesiYok = 8,
    İkiKezYazılmış = 16,  // the product, or one of its materials
    ToplamSıfır = 32,     // or below
    TutarTaşıyor = 64,    // a row or the sum leaves money's range
    İzlemeyenBağ = 128    // uses a material whose price does not follow the product that it stands for
};

// A product with the figures that the main form shows of it.
struct MaliyetTablosuSatırı {
    QString Grup;
    QString Ad;
    std::uint32_t GrupSırası = 0;  // groups, and names over all groups, in the data file's order: equal ones are equal
    std::uint32_t AdSırası = 0;
    std::int64_t MalzemeSayısı = 0;
    Para MalzemeMaliyeti;                           // as shown
    std::array<std::optional<double>, 4> Tutarlar;  // labour, profit, other costs, maturity difference
    Para Toplam;                                    // as shown
    std::optional<double> BirimMaliyet;             // nothing: several units, or no quantity
    unsigned Dikkat = 0;                            // of DikkatNedeni
    bool YarıMamul = false;                         // a material stands for it
};

// Every product of the product table once, in the tree's order. `basamak`: the decimals that the main form shows.
İşSonucu MaliyetTablosunuOku(OdbcBağlantısı& bağlantı, int basamak, std::vector<MaliyetTablosuSatırı>& satırlar,
                             const İlerleme& ilerleme = {});

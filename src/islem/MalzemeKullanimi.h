#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "KatalogOkuma.h"

// Where materials are used: every used row by its material, beside what its product's materials cost. Read at once, so
// that any material can be looked at.
class MalzemeKullanımı {
  public:
    struct Ürün {
        QString Grup;
        QString Ad;
        Para MalzemeMaliyeti;  // as the main form shows it
        bool Listede = true;   // false: rows without a product of that name
    };
    struct Malzeme {
        QString Ad;
        bool Katalogda = true;
    };
    struct Satır {
        std::uint32_t Ürün = 0;
        std::uint32_t Malzeme = 0;
        std::optional<Para> Fiyat;
        std::string Miktar;   // as stored
        bool İkiKez = false;  // another row of the product has the same material
    };

    // Whole or empty. `basamak`: the decimals that the main form shows.
    İşSonucu Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme = {});

    // The catalogue's materials, and those that used rows name and the catalogue lacks; in the data file's order.
    const std::vector<Malzeme>& Malzemeler() const { return m_malzemeler; }
    const std::vector<Ürün>& Ürünler() const { return m_ürünler; }
    // Those of a material, in the order of groups and products.
    std::span<const Satır> Satırlar(std::size_t malzeme) const;

  private:
    class Okuyucu;
    void MalzemelereGöreDiz(const std::vector<std::uint32_t>& yerler);

    std::vector<Malzeme> m_malzemeler;
    std::vector<Ürün> m_ürünler;
    std::vector<Satır> m_satırlar;        // by material
    std::vector<std::size_t> m_ilkSatır;  // of each material, and their end
};

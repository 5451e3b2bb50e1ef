#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "KatalogOkuma.h"

// Finding products and materials by a part of their names. The names are read once.

struct ArananAd {
    QString Ad;
    QString Grup;  // of a product
    bool Malzeme = false;
};

class AdArama {
  public:
    struct Bulunanlar {
        std::vector<const ArananAd*> İlkler;
        std::size_t Sayı = 0;  // of all of them
    };

    // A product or material that the file has twice is one here.
    İşSonucu Oku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme = {});

    // What holds `aranan` in its name or, of a product, in its group's. First the names that begin with it, then those
    // that hold it, then the groups; within that by name, a product before a material. At most `enÇok` are named. The
    // empty text finds nothing.
    Bulunanlar Ara(const QString& aranan, std::size_t enÇok) const;

  private:
    struct Kayıt {
        ArananAd Ad;
        std::uint32_t Grup = 0;  // its place in m_gruplar; 0 of a material
    };

    std::vector<Kayıt> m_adlar;      // in the order in which they are found
    std::vector<QString> m_gruplar;  // the first is that of the materials: none
};

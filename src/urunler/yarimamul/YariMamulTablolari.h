#pragma once

#include <QList>
#include <optional>
#include <vector>

#include "TabloModeli.h"
#include "YariMamulBaglari.h"

// The lists of the ties' form.

enum YarıMamulSütunları { BMalzeme, BGrup, BÜrün, BTutar, BFiyat, BDurum };

class BağlarınKaynağı : public TabloKaynağı {
  public:
    struct Satır {
        YarıMamulBağı Bağ;
        std::optional<Para> Fiyat;  // the material's in the catalogue
    };
    std::vector<Satır> Satırlar;

    static QList<TabloSütunu> Sütunlar();

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    QString Açıklama(std::size_t satır) const override;
};

// Products by group and name.
class ÜrünlerinKaynağı : public TabloKaynağı {
  public:
    std::vector<ÜrünAdı> Satırlar;

    static QList<TabloSütunu> Sütunlar();

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        return sütun == 0 ? Satırlar[satır].Grup : Satırlar[satır].Ad;
    }
};

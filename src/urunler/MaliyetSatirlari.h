#pragma once

#include "MaliyetTablosu.h"
#include "Ondalik.h"
#include "TabloModeli.h"

// The cost table's two lists: products, and the sums of those that the filter leaves, by group.

enum MaliyetSütunları { CGrup, CAd, CDikkat, CSayı, CMalzeme, Cİşçilik, CKâr, CDiğer, CVade, CToplam, CBirim };

QList<TabloSütunu> MaliyetSütunlarınıVer();
QList<TabloSütunu> GrupToplamıSütunlarınıVer();

// Every reason, one behind the other; "" of none.
QString DikkatMetni(unsigned dikkat);

// A figure as it is shown, with OndalıkBasamak decimals.
std::optional<Ondalık> GösterilenSayı(const std::optional<double>& sayı);

class MaliyetSatırları : public TabloKaynağı {
  public:
    std::vector<MaliyetTablosuSatırı> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    QString Açıklama(std::size_t satır) const override { return DikkatMetni(Satırlar[satır].Dikkat); }
};

// The sums of the figures as they are shown; unit costs are never added.
class GrupToplamları : public TabloKaynağı {
  public:
    struct Satır {
        QString Grup;  // "": all of them
        std::int64_t Ürün = 0;
        std::array<std::optional<Para>, 6> Toplamlar;  // material, the four amounts, total; nothing: beyond money
    };
    std::vector<Satır> Satırlar;

    // Of the rows at these places, which stand in the tree's order of their groups.
    void Hesapla(const MaliyetSatırları& ürünler, const std::vector<std::size_t>& yerler);

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
};

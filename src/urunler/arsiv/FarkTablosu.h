#pragma once

#include "ArsivFarki.h"
#include "TabloModeli.h"

// The differences of products between two days, and the parts of one. Every row's shown parts add up to its shown
// difference.

enum FarkSütunları {
    KGrup,
    KÜrün,
    KEski,
    KYeni,
    KFark,
    KYüzde,
    KÇıkan,
    KMiktar,
    KFiyat,
    KEklenen,
    KYüzdeler,
    KYuvarlama,
    KDurum
};
QList<TabloSütunu> FarkSütunlarınıVer();

// A product's figures as they are shown; nothing where they say nothing.
struct GösterilenFark {
    std::optional<Para> Eski;
    std::optional<Para> Yeni;
    Para Fark;
    std::array<std::optional<Para>, 6> Parçalar;  // removed, quantity, price, added, percentages, rounding
};
GösterilenFark FarkıGöster(const ÜrünFarkı& fark);

// Why a product wants a second look, and whether it stands on one side alone; "" of neither.
QString FarkDurumu(const ÜrünFarkı& fark);

class FarkSatırları : public TabloKaynağı {
  public:
    std::vector<ÜrünFarkı> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    QString Açıklama(std::size_t satır) const override { return FarkDurumu(Satırlar[satır]); }

  private:
    std::optional<Para> Tutar(std::size_t satır, int sütun) const;
};

QList<TabloSütunu> ParçaSütunlarınıVer();

// One product's difference by material and percentage, in the order in which it was turned, rounding last.
class ParçaSatırları : public TabloKaynağı {
  public:
    void Göster(const ÜrünFarkı& fark);
    void Boşalt() { m_satırlar.clear(); }

    std::size_t SatırSayısı() const override { return m_satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;

  private:
    struct Satır {
        MetinNo Parça;
        QString Malzeme;
        Para Tutar;  // as shown
    };
    std::vector<Satır> m_satırlar;
};

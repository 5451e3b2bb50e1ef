#pragma once

#include "MalzemeKullanimi.h"
#include "Ondalik.h"
#include "TabloModeli.h"

// The products that use one material, a row for each used row.

enum KullanımSütunları { KGrup, KÜrün, KMiktar, KFiyat, KTutar, KPay, KDikkat };

QList<TabloSütunu> KullanımSütunlarınıVer();

class KullanımSatırları : public TabloKaynağı {
  public:
    struct Satır {
        const MalzemeKullanımı::Ürün* Ürün = nullptr;
        QString Miktar;  // as the main form shows them
        QString Fiyat;
        QString Tutar;
        QString SaklananMiktar;
        std::optional<double> MiktarSayısı;
        std::optional<Ondalık> FiyatSayısı;
        std::optional<Ondalık> TutarSayısı;  // nothing: the row does not count
        std::optional<double> Pay;           // per cent of the product's material cost
        bool İkiKez = false;
        bool MiktarOkunur = true;
    };
    std::vector<Satır> Satırlar;

    // Of the material at this place; the rows point to `kullanım`.
    void Al(const MalzemeKullanımı& kullanım, std::size_t malzeme, int basamak);

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    QString Açıklama(std::size_t satır) const override;

    static constexpr int PAY_BASAMAĞI = 2;
};

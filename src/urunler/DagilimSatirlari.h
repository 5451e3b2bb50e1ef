#pragma once

#include "CubukGrafigi.h"
#include "MaliyetDagilimi.h"
#include "TabloModeli.h"
#include "UrunKopyalama.h"

// What a product's total consists of and which materials carry it, as tables and plots of the same figures.

struct DağılımSatırı {
    QString Ad;
    QString Miktar;  // of a material
    DağılımParçası Parça;
    std::optional<double> Birikimli;
    QString SaklananMiktar{};
};

enum class DağılımSütunu { Ad, Miktar, Tutar, Pay, Birikimli };

class DağılımKaynağı : public TabloKaynağı {
  public:
    explicit DağılımKaynağı(QList<DağılımSütunu> sütunlar) : m_sütunlar(std::move(sütunlar)) {}

    std::vector<DağılımSatırı> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override { return Hücre(Satırlar[satır], m_sütunlar[sütun]); }
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;

    static QString Hücre(const DağılımSatırı& satır, DağılımSütunu sütun);

  private:
    QList<DağılımSütunu> m_sütunlar;
};

struct ÜrünDağılımı {
    ÜrünAdı Ürün;
    DağılımKaynağı Kalemler{{DağılımSütunu::Ad, DağılımSütunu::Tutar, DağılımSütunu::Pay}};
    DağılımKaynağı Malzemeler{
        {DağılımSütunu::Ad, DağılımSütunu::Miktar, DağılımSütunu::Tutar, DağılımSütunu::Pay, DağılımSütunu::Birikimli}};
    ÇubukDizisi KalemGrafiği;
    ÇubukDizisi MalzemeGrafiği;
    QStringList Sayılmayanlar;  // rows that are no part of the cost

    void Hesapla(const SaklananÜrün& saklanan, int basamak);

  private:
    void KalemleriKoy(const MaliyetDağılımı& dağılım);
    void MalzemeleriKoy(const MaliyetDağılımı& dağılım);
};

QList<TabloSütunu> KalemSütunları();
QList<TabloSütunu> PaySütunları();

// A share as it is shown.
std::optional<Ondalık> GösterilenPay(const std::optional<double>& pay);

#pragma once

#include "ArsivKayitlari.h"
#include "TabloModeli.h"

// The lists of archives, of an archive's sheets, and of a sheet's rows.

enum ArşivSütunları { ANo, AGün, AFöy, AKapsam, ANot };
QList<TabloSütunu> ArşivSütunlarınıVer();

class ArşivSatırları : public TabloKaynağı {
  public:
    std::vector<Başlık> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
};

enum FöySütunları { FGrup, FÜrün, FToplam, FDikkat };
QList<TabloSütunu> FöySütunlarınıVer();

class FöySatırları : public TabloKaynağı {
  public:
    std::vector<FöyBaşlığı> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    QString Açıklama(std::size_t satır) const override { return Hücre(satır, FDikkat); }
};

QList<TabloSütunu> FöyMalzemeSütunlarınıVer();

class FöyMalzemeleri : public TabloKaynağı {
  public:
    std::vector<Deyimler::Arşiv::Satır> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    QString Saklanan(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
};

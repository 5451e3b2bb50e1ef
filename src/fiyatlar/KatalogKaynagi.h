#pragma once

#include <vector>

#include "FiyatYazimi.h"
#include "KatalogOkuma.h"
#include "TabloModeli.h"

// The material catalogue as a table: name and price.
class KatalogKaynağı : public TabloKaynağı {
  public:
    enum Sütunlar { Ad, Fiyat };

    // `malzemeler` outlives it.
    explicit KatalogKaynağı(const std::vector<KatalogMalzemesi>& malzemeler) : m_malzemeler(malzemeler) {}

    std::size_t SatırSayısı() const override { return m_malzemeler.size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        return sütun == Ad ? m_malzemeler[satır].Ad : FiyatMetni(m_malzemeler[satır].Fiyat);
    }
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override {
        return sütun == Ad ? TabloKaynağı::Karşılaştır(a, b, sütun)
                           : Sırala(m_malzemeler[a].Fiyat, m_malzemeler[b].Fiyat);
    }

  private:
    const std::vector<KatalogMalzemesi>& m_malzemeler;
};

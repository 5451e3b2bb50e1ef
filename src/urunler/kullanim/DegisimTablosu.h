#pragma once

#include "MalzemeDegisimi.h"
#include "TabloModeli.h"

// The preview's table over a plan: every product before and after.

enum DeğişimSütunları { DGrup, DÜrün, DÖnce, DSonra, DÖncekiToplam, DSonrakiToplam, DFark, DYüzde, DNeden };

QList<TabloSütunu> DeğişimSütunlarınıVer();

// Why a product is left out or not ticked; "" where nothing speaks against it.
QString DeğişimNedeniMetni(DeğişimNedeni neden);

class DeğişimSatırları : public TabloKaynağı {
  public:
    explicit DeğişimSatırları(DeğişimPlanı& plan) : m_plan(plan) {}

    std::size_t SatırSayısı() const override { return m_plan.Ürünler().size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    std::optional<bool> İşaret(std::size_t satır) const override;
    void İşaretle(std::size_t satır, bool işaretli) override { m_plan.İşaretle(satır, işaretli); }
    QString Açıklama(std::size_t satır) const override;

    const DeğişenÜrün& Ürün(std::size_t satır) const { return m_plan.Ürünler()[satır]; }

  private:
    DeğişimPlanı& m_plan;
};

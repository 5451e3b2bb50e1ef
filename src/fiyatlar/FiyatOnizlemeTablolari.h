#pragma once

#include "FiyatPlani.h"
#include "TabloModeli.h"

// The preview's two tables over a plan: its materials, which can be ticked, and the products that they reach.

enum MalzemeSütunları { MAd, MEski, MYeni, MFark, MYüzde, MSatır, MAyrı, MNeden };
enum ÜrünSütunları { ÜGrup, ÜAd, ÜÖnce, ÜSonra, ÜFark, ÜYüzde, ÜUyarı };

QList<TabloSütunu> PlanınMalzemeSütunları();
QList<TabloSütunu> PlanınÜrünSütunları();

class PlanınMalzemeleri : public TabloKaynağı {
  public:
    explicit PlanınMalzemeleri(FiyatPlanı& plan) : m_plan(plan) {}

    std::size_t SatırSayısı() const override { return m_plan.Malzemeler().size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    std::optional<bool> İşaret(std::size_t satır) const override;
    void İşaretle(std::size_t satır, bool işaretli) override;
    QString Açıklama(std::size_t satır) const override;

    const PlanMalzemesi& Malzeme(std::size_t satır) const { return m_plan.Malzemeler()[satır]; }

  private:
    FiyatPlanı& m_plan;
};

class PlanınÜrünleri : public TabloKaynağı {
  public:
    explicit PlanınÜrünleri(const FiyatPlanı& plan) : m_plan(plan) {}

    std::size_t SatırSayısı() const override { return m_plan.Ürünler().size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    QString Açıklama(std::size_t satır) const override;

    const PlanÜrünü& Ürün(std::size_t satır) const { return m_plan.Ürünler()[satır]; }

  private:
    const FiyatPlanı& m_plan;
};

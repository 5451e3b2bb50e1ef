#pragma once

#include <array>
#include <vector>

#include "GetirmePlani.h"
#include "TabloModeli.h"

// The tables of what a backup has and the data lack or have differently.

enum GetirmeSütunları { GNe, GGrup, GAd, GDurum, GYedekte, GŞimdi, GSonra, GNot };

// Without a backup, of a taking back, the column of its amounts is missing.
QList<TabloSütunu> GetirmeSütunlarınıVer(bool yedekten);

class GetirmeSatırları : public TabloKaynağı {
  public:
    GetirmeSatırları(GetirmePlanı& plan, bool yedekten) : m_plan(plan), m_yedekten(yedekten) {}

    std::size_t SatırSayısı() const override { return m_plan.Kalemler().size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    std::optional<bool> İşaret(std::size_t satır) const override;
    void İşaretle(std::size_t satır, bool işaretli) override { m_plan.İşaretle(satır, işaretli); }
    QString Açıklama(std::size_t satır) const override;

  private:
    int Sütun(int sütun) const { return !m_yedekten && sütun >= GYedekte ? sütun + 1 : sütun; }

    GetirmePlanı& m_plan;
    bool m_yedekten;
};

// A product's percentages and rows as they come, beside those that stand now.
QList<TabloSütunu> AyrıntıSütunlarınıVer(bool yedekten);

class GetirmeAyrıntısı : public TabloKaynağı {
  public:
    // `basamak`: the decimals of percentages.
    void Kur(const ÜrünHali& şimdi, const ÜrünHali& sonra, int basamak);
    void Boşalt() { m_satırlar.clear(); }

    std::size_t SatırSayısı() const override { return m_satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        return m_satırlar[satır][static_cast<std::size_t>(sütun)];
    }

  private:
    std::vector<std::array<QString, 6>> m_satırlar;
};

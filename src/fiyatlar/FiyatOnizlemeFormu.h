#pragma once

#include <QDialog>
#include <memory>

#include "FiyatCiktilari.h"
#include "FiyatIsi.h"
#include "FiyatOnizlemeTablolari.h"
#include "TabloModeli.h"

class KomutDüğmesi;
class QLabel;
class Tablo;
struct Yazdırılacak;

// What new prices do to materials and products, before anything is written; "Uygula" carries them out. Products follow
// the ticks at once.
class FiyatÖnizlemeFormu : public QDialog {
  public:
    FiyatÖnizlemeFormu(const Fiyatİşi& iş, QWidget* sahip);
    ~FiyatÖnizlemeFormu() override;

    // Reads everything and makes the plan. False: the user gave up, or has been told why there is none.
    bool PlanıKur();

  private:
    void KontrolleriKur();
    void Yerleştir();
    void DüğmeleriKur();
    void ÖzetiYaz();
    void İşaretDeğişti();
    İşSonucu BugünDeğişenleriSay();
    void Uygula();
    void ExceleKaydet();
    GörünenPlan Görünen() const;
    Yazdırılacak Rapor() const;

    Fiyatİşi m_iş;
    FiyatPlanı m_plan;
    QStringList m_notlar;
    std::vector<bool> m_bugünDeğişti;  // beside the plan's materials
    std::unique_ptr<PlanınMalzemeleri> m_malzemeler;
    std::unique_ptr<PlanınÜrünleri> m_ürünler;
    std::unique_ptr<TabloModeli> m_malzemeModeli;
    std::unique_ptr<TabloModeli> m_ürünModeli;
    Tablo* m_malzemeTablosu;
    Tablo* m_ürünTablosu;
    QLabel* m_özet;
    KomutDüğmesi* m_uygula;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
};

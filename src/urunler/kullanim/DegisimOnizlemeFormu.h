#pragma once

#include <QDialog>

#include "DegisimIsi.h"
#include "DegisimTablosu.h"

class KomutDüğmesi;
class QLabel;
class Tablo;
struct Yazdırılacak;

// What a replacement does to every product, before anything is written; "Uygula" carries it out.
class DeğişimÖnizlemeFormu : public QDialog {
  public:
    DeğişimÖnizlemeFormu(const Değişimİşi& iş, QWidget* sahip);
    ~DeğişimÖnizlemeFormu() override;

    // Reads everything and makes the plan. False: the user gave up, or has been told why there is none.
    bool PlanıKur();

  private:
    void KontrolleriKur();
    void Yerleştir();
    void ÖzetiYaz();
    void Uygula();
    void Çizelgeye();
    Yazdırılacak Rapor() const;

    Değişimİşi m_iş;
    DeğişimPlanı m_plan;
    DeğişimSatırları m_kaynak;
    TabloModeli m_model;
    Tablo* m_tablo;
    QLabel* m_özet;
    KomutDüğmesi* m_uygula;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
};

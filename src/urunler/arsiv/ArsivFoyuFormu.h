#pragma once

#include <QDialog>

#include "ArsivTablolari.h"

class KomutDüğmesi;
class Tablo;
class QLabel;
struct Yazdırılacak;

// A frozen sheet, as it was archived; it can be printed, and nothing else.
class ArşivFöyüFormu : public QDialog {
  public:
    ArşivFöyüFormu(Başlık arşiv, OkunanFöy föy, QWidget* sahip);
    ~ArşivFöyüFormu() override;

  private:
    QWidget* Özet();
    void Yerleştir();
    Yazdırılacak Rapor() const;
    void Çizelgeye();

    const Başlık m_arşiv;
    const OkunanFöy m_föy;
    FöyMalzemeleri m_kaynak;
    TabloModeli m_model;
    Tablo* m_tablo;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
};

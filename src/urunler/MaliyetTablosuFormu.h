#pragma once

#include <QDialog>

#include "MaliyetSatirlari.h"

class GirişKutusu;
class KomutDüğmesi;
class Tablo;
class QCheckBox;
class QLabel;
struct Yazdırılacak;

// What every product costs now: sorted, filtered, with the sums of the groups. Filter, sorting and place are kept for
// the next opening.
class MaliyetTablosuFormu : public QDialog {
  public:
    explicit MaliyetTablosuFormu(QWidget* sahip);
    ~MaliyetTablosuFormu() override;

    // Reads everything. False: the user gave up, or has been told why it could not be read.
    bool Yükle();
    bool Boş() const { return m_kaynak.Satırlar.empty(); }

    // The product to go to, once the form was accepted.
    const MaliyetTablosuSatırı* Gidilecek() const { return m_gidilecek; }

  private:
    void KontrolleriKur();
    void Yerleştir();
    void Süz();
    void SeçimDeğişti();
    void Git();
    void Çizelgeye();
    void YeriSakla();
    void YereDön();
    Yazdırılacak Rapor() const;

    MaliyetSatırları m_kaynak;
    GrupToplamları m_toplamKaynağı;
    TabloModeli m_model;
    TabloModeli m_toplamModeli;
    const MaliyetTablosuSatırı* m_gidilecek = nullptr;
    GirişKutusu* m_süz;
    QCheckBox* m_dikkat;
    QLabel* m_sayı;
    Tablo* m_tablo;
    Tablo* m_toplamlar;
    KomutDüğmesi* m_git;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
};

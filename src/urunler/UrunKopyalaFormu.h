#pragma once

#include <QDialog>

#include "UrunKopyalama.h"

class AdKutusu;
class GrupKutusu;
class KomutDüğmesi;
class QLabel;

// Copies a product as it is stored under another name or into another group.
class ÜrünKopyalaFormu : public QDialog {
  public:
    ÜrünKopyalaFormu(ÜrünAdı eski, QWidget* sahip);

    // Reads the groups and the product. False: the user has been told why it could not be read.
    bool Yükle();

    // The copy, once the form was accepted.
    const ÜrünAdı& Yeni() const { return m_yeni; }

  private:
    void Yerleştir();
    bool ÜrünüOku();
    void Kopyala();

    const ÜrünAdı m_eski;
    ÜrünAdı m_yeni;
    SaklananÜrün m_saklanan;
    QLabel* m_açıklama;
    GrupKutusu* m_grup;
    AdKutusu* m_ad;
    KomutDüğmesi* m_tamam;
};

#pragma once

#include <QDialog>

#include "DagilimSatirlari.h"

class KomutDüğmesi;
class QLabel;
class QSplitter;
class Tablo;
struct Yazdırılacak;

// What a product's total consists of, and which of its materials carry it.
class MaliyetDağılımıFormu : public QDialog {
  public:
    MaliyetDağılımıFormu(const ÜrünAdı& ürün, QWidget* sahip);
    ~MaliyetDağılımıFormu() override;

    // Reads the product as it is stored. False: the user has been told why it could not be read.
    bool Yükle();

  private:
    void KontrolleriKur();
    void Yerleştir();
    void NotuYaz();
    Yazdırılacak Rapor() const;
    QString ÇıktıBaşlığı() const;

    ÜrünDağılımı m_dağılım;
    TabloModeli m_kalemModeli;
    TabloModeli m_malzemeModeli;
    QLabel* m_not;
    QSplitter* m_sol;
    QSplitter* m_sağ;
    ÇubukGrafiği* m_kalemGrafiği;
    ÇubukGrafiği* m_malzemeGrafiği;
    Tablo* m_kalemler;
    Tablo* m_malzemeler;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
};

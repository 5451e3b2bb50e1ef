#pragma once

#include <QDialog>

#include "TabloModeli.h"
#include "UrunAcilimi.h"

class KomutDüğmesi;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;
class SayıKutusu;
class Tablo;
struct Yazdırılacak;

// The sums of an exploded product as a table.
class AçılımKaynağı : public TabloKaynağı {
  public:
    std::vector<AçılımToplamı> Satırlar;

    static QList<TabloSütunu> Sütunlar();

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
};

// A product exploded to base materials, and what is needed for so many pieces of it. The tree's nodes are filled as
// they are opened: products that several others share stand under each of them.
class YarıMamulAğacıFormu : public QDialog {
  public:
    YarıMamulAğacıFormu(ÜrünAdı ürün, QWidget* sahip);
    ~YarıMamulAğacıFormu() override;

    // False: it could not be read, the user has been told.
    bool Yükle();

  private:
    void KontrolleriKur();
    void Yerleştir();
    void Doldur(QTreeWidgetItem* düğüm, std::uint32_t ürün, double kat);
    void Aç(QTreeWidgetItem* düğüm);
    void AdetDeğişti();
    Yazdırılacak Rapor() const;
    void Çizelgeye();

    ÜrünAdı m_ürün;
    ÜrünAçılımı m_açılım;
    AçılımKaynağı m_kaynak;
    TabloModeli m_model;
    double m_adet = 1;
    QTreeWidget* m_ağaç;
    SayıKutusu* m_adetKutusu;
    Tablo* m_tablo;
    QLabel* m_not;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
};

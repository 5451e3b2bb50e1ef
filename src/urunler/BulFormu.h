#pragma once

#include <QDialog>

#include "AdArama.h"
#include "TabloModeli.h"

class GirişKutusu;
class KomutDüğmesi;
class QLabel;
class Tablo;

// Finds a product or a material by a part of its name, as one types.
class BulFormu : public QDialog {
  public:
    explicit BulFormu(QWidget* sahip);
    ~BulFormu() override;

    // Reads the names. False: the user gave up, or has been told why they could not be read.
    bool Yükle();

    // What to go to, once the form was accepted.
    const ArananAd* Gidilecek() const { return m_gidilecek; }

  protected:
    // The keys that lead from the box into the list.
    bool eventFilter(QObject* hedef, QEvent* olay) override;

  private:
    class Kaynak : public TabloKaynağı {
      public:
        AdArama::Bulunanlar Bulunanlar;

        std::size_t SatırSayısı() const override { return Bulunanlar.İlkler.size(); }
        QString Hücre(std::size_t satır, int sütun) const override;
    };

    void Yerleştir();
    void Ara();
    void SeçimDeğişti();
    void Git();
    void Çizelgeye();

    AdArama m_arama;
    Kaynak m_kaynak;
    TabloModeli m_model;
    const ArananAd* m_gidilecek = nullptr;
    GirişKutusu* m_kutu;
    QLabel* m_sayı;
    Tablo* m_tablo;
    KomutDüğmesi* m_git;
};

#pragma once

#include <QString>
#include <QWidget>
#include <functional>

class QCheckBox;
class QLineEdit;
class SayıKutusu;

// Total quantity, unit cost and what a waste rate makes of them, shown while the option is ticked. Only display.
class MiktarAlanı : public QWidget {
  public:
    // What the area needs of the form.
    struct Bağlar {
        std::function<QString()> MalzemeMaliyeti;  // texts as displayed
        std::function<QString()> ToplamMaliyet;
        std::function<void()> AğacaDön;  // gives the tree the focus
    };
    MiktarAlanı(Bağlar bağlar, QWidget* sahip = nullptr);

    // The loaded product's quantity; with different units there is none to show.
    void MiktarıAyarla(double toplamMiktar, bool birimlerFarklı);

    void SeçeneğeİzinVer(bool izin);
    bool Seçili() const;
    void SeçimiKaldır();    // unticks the option and empties the boxes
    void SeçeneğiUygula();  // sets frame and boxes from the tick
    void ToplamDeğişti();   // the total cost has changed
    void Boşalt();          // all boxes, the waste rate's too

    struct Metinler {  // of the boxes, as displayed
        QString Miktar;
        QString BirimMaliyet;
        QString FireOranı;
        QString FireliMiktar;
        QString FireliBirimMaliyet;
    };
    Metinler KutuMetinleri() const;

  private:
    void Yerleştir();
    void MiktarVeMaliyetiGöster();
    void FireyiHesapla();

    Bağlar m_bağlar;
    double m_toplamMiktar = 0;
    bool m_birimlerFarklı = false;

    QCheckBox* m_seçenek;
    QWidget* m_çerçeve;
    QLineEdit* m_miktar;
    QLineEdit* m_birimMaliyet;
    SayıKutusu* m_fireOranı;
    QLineEdit* m_fireliMiktar;
    QLineEdit* m_fireliBirimMaliyet;
};

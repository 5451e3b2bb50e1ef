#pragma once

#include <QFrame>
#include <array>
#include <functional>

#include "MaliyetHesabi.h"

class QLineEdit;
class SayıKutusu;

// The frame of the cost boxes: material cost, the four percentages, total cost.
class MaliyetAlanı : public QFrame {
  public:
    struct Olaylar {
        std::function<void()> YüzdeDüzenlendi;  // by the user
        std::function<void()> ToplamDeğişti;
    };
    MaliyetAlanı(Olaylar olaylar, QWidget* sahip = nullptr);

    // The box shows it with the decimal places in force, and the calculation reads what it shows.
    void MalzemeMaliyetiniGöster(Para maliyet);

    // Reads the product's stored percentages into the boxes. False: they stay as they were.
    bool YüzdeleriYükle(const QString& grup, const QString& ürün);

    // To be asked before the percentages are stored; false: one cannot be, and the user has been told.
    bool YüzdelerSaklanır();

    void ToplamMaliyetHesapla();
    void Boşalt();

    MaliyetGirdisi Girdi() const;  // the boxes' texts
    QString ToplamMaliyet() const;

  private:
    void Yerleştir();
    QLayout* YüzdeleriYerleştir();
    void MalzemeMaliyetiDeğişti(const QString& metin);

    Olaylar m_olaylar;
    QLineEdit* m_malzeme;
    std::array<SayıKutusu*, 4> m_yüzdeler;  // labour, profit, other, maturity
    QLineEdit* m_toplam;
};

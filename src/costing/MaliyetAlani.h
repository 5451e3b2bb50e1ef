#pragma once

#include <QFrame>
#include <array>
#include <functional>
#include <optional>

#include "MaliyetHesabi.h"

class QLineEdit;
class SayıKutusu;

// The frame of the cost boxes: material cost, the four percentages, total cost. While the user edits a percentage it
// computes the total itself.
class MaliyetAlanı : public QFrame {
  public:
    // `değişince` runs once when the total has changed, and after each edit of the user (true).
    explicit MaliyetAlanı(std::function<void(bool düzenlendi)> değişince, QWidget* sahip = nullptr);

    // The box shows it with the decimal places in force, and the calculation reads what it shows.
    void MalzemeMaliyetiniGöster(Para maliyet);

    // Reads the product's stored percentages into the boxes. False: they stay as they were.
    bool YüzdeleriYükle(const QString& grup, const QString& ürün);

    // Stores the boxes' percentages as the product's. False: they are not stored, and the user has been told.
    bool YüzdeleriKaydet(const QString& grup, const QString& ürün);

    // The boxes whose text is not the one that was loaded or stored last; and such texts put back.
    using Yazılanlar = std::array<std::optional<QString>, 4>;
    Yazılanlar Yazılan() const;
    void YazılanıKoy(const Yazılanlar& yazılan);

    void ToplamMaliyetHesapla();
    void Boşalt();

    MaliyetGirdisi Girdi() const;  // the boxes' texts
    QString ToplamMaliyet() const;

  private:
    void Yerleştir();
    QLayout* YüzdeleriYerleştir();
    void MalzemeMaliyetiDeğişti(const QString& metin);
    void ToplamıGöster(const QString& toplam, bool düzenlendi);
    QString Toplam() const;
    void GösterileniTut();

    std::function<void(bool)> m_değişince;
    QLineEdit* m_malzeme;
    std::array<SayıKutusu*, 4> m_yüzdeler;  // labour, profit, other, maturity
    std::array<QString, 4> m_saklanan;      // what they showed when they were loaded or stored
    QLineEdit* m_toplam;
};

#pragma once

#include <QDialog>

class TarihKutusu;

// Asks for the day of the movements. Another day goes into HareketTarihi and HareketTarihiSQL; the same day, İptal, Esc
// and the close box leave HareketTarihiSQL empty: nothing to load.
class TarihDeğiştirFormu : public QDialog {
  public:
    explicit TarihDeğiştirFormu(QWidget* sahip = nullptr);

    // What cannot be read as a date is told and stays in its box.
    void accept() override;
    void reject() override;

  private:
    QWidget* TarihÇerçevesi();

    TarihKutusu* m_tarih;
};

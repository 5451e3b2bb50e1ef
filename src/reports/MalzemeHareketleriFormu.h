#pragma once

#include "RaporFormu.h"

// Every material use of one day, over all products. It starts with today; HareketTarihi is the day shown, and a
// HareketTarihiSQL that is not empty makes the list load again once a dialog of the form has closed.
class MalzemeHareketleriFormu : public RaporFormu {
  public:
    explicit MalzemeHareketleriFormu(QWidget* sahip = nullptr);

  protected:
    void showEvent(QShowEvent* olay) override;
    QString RaporBaşlığı() const override;
    void PencereKapandı() override { ListeyiYükle(); }

  private:
    void ListeyiYükle();

    bool m_gösterildi = false;
};

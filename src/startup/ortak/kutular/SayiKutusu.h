#pragma once

#include "GirisKutusu.h"

// A box for a number. Of the characters the keyboard brings it takes digits and ",", and "-" where negative numbers
// are allowed. Whatever else comes in (pasted text) loses characters before the cursor until it is a number. On leaving
// the number is shown with OndalıkBasamak decimals.
class SayıKutusu : public GirişKutusu {
  public:
    enum class Tür {
        Yüzde,        // an empty box becomes 0 on leaving; a text that cannot be read is reported and stays
        EksiliYüzde,  // the same, and "-" is allowed
        Tutar         // a price or quantity: an empty or unreadable text stays as it is
    };

    explicit SayıKutusu(Tür tür, QWidget* sahip = nullptr);

    // Gives the focus to `hedef`. False when that made the user leave a number box whose text cannot be read: the
    // command that the focus was moved for must then not run.
    static bool OdağıTaşı(QWidget* hedef, Qt::FocusReason neden);

  protected:
    void keyPressEvent(QKeyEvent* olay) override;
    void DüzenlemeyiDenetle() override;
    void ÇıkıştaBiçimle() override;

  private:
    bool TuşGeçer(const QKeyEvent& tuş) const;
    bool KabulEdilir(int ekinBaşı, bool geriAlma) const;

    Tür m_tür;
    int m_ekinYeri = 0;  // where the next inserted text will begin
};

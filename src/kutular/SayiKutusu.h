#pragma once

#include "GirisKutusu.h"
#include "Para.h"

// The longest number that can be put into a number box: the largest amount of money with its sign, grouped, with six
// decimals (-922.337.203.685.477,580700). A shorter text may hold a larger number; that is refused on saving.
inline constexpr int EnUzunSayı = 27;

// A box for a number. Of the characters the keyboard brings it takes digits and ",", and "-" where negative numbers
// are allowed; a "," in front of all digits becomes "0,". What is pasted or dropped is taken as a whole or not at all.
// On leaving the number is shown with OndalıkBasamak decimals.
class SayıKutusu : public GirişKutusu {
  public:
    enum class Tür {
        Yüzde,        // an empty box becomes 0 on leaving; a text that cannot be read is reported and stays
        EksiliYüzde,  // the same, and "-" is allowed
        Tutar,        // a price, stored as money: an empty or unreadable text stays as it is
        Miktar,       // the same for a quantity, which is computed with as a double
        Serbest       // money with up to four decimals, which stay as they were typed
    };

    explicit SayıKutusu(Tür tür, QWidget* sahip = nullptr);

    // Whether a box of the kind Serbest takes "-".
    void EksiOlsun(bool olur) { m_eksiOlur = olur; }

    // To be asked before the text is stored. False: it is no number, or one that would be refused, or come back as
    // another; the user has been told, the text stays and the box has the focus.
    bool Saklanır();

    bool Bitir() override;
    bool Denetle(QString& metin, int& imleç) override;

    bool eventFilter(QObject* hedef, QEvent* olay) override;

  protected:
    void keyPressEvent(QKeyEvent* olay) override;
    void inputMethodEvent(QInputMethodEvent* olay) override;
    void focusInEvent(QFocusEvent* olay) override;
    void focusOutEvent(QFocusEvent* olay) override;

  private:
    bool EksiOlur() const { return m_tür == Tür::EksiliYüzde || (m_tür == Tür::Serbest && m_eksiOlur); }
    bool Parasal() const { return m_tür == Tür::Tutar || m_tür == Tür::Serbest; }
    bool Yüzdeli() const { return m_tür == Tür::Yüzde || m_tür == Tür::EksiliYüzde; }
    void YeriSakla();
    bool TuşGeçer(const QKeyEvent& tuş) const;
    QString Ek(const QString& metin, int imleç) const;
    bool KabulEdilir(const QString& metin, const QString& ek) const;
    Para EnBüyük() const;
    QString SığmamaNedeni() const;

    Tür m_tür;
    QString m_önceki;      // the text before the edit that is going on
    int m_ekinYeri = 0;    // where an inserted text begins
    bool m_alındı = true;  // the last edit was not refused
    bool m_yöntemYazıyor = false;
    bool m_eksiOlur = false;
};

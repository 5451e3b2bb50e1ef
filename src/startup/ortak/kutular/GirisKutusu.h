#pragma once

#include <QLineEdit>
#include <functional>
#include <utility>

#include "OdakIzleyici.h"

// The longest name that a stored text can be read back as, in characters.
inline constexpr int EnUzunAd = 254;

// The printable characters that a key brings; none for a command such as Ctrl+C.
QString YazılanMetin(const QKeyEvent& tuş);

// A line of text as all forms have it: Enter moves on as Tab does, and entering selects the whole text, also by a
// mouse click (unless the mouse was dragged over it).
class GirişKutusu : public QLineEdit {
  public:
    explicit GirişKutusu(QWidget* sahip = nullptr);

    // Runs after each edit of the user, once the box has corrected it; never for a text that the program sets.
    void Düzenlenince(std::function<void()> yapılacak) { m_düzenlenince = std::move(yapılacak); }
    // Runs when the user has left the box, once the box has formatted its text.
    void Bırakılınca(std::function<void()> yapılacak) { m_bırakılınca = std::move(yapılacak); }

    // What entering does; a combo box calls it for the line edit in it.
    void Girildi(Qt::FocusReason neden);

  protected:
    void mouseReleaseEvent(QMouseEvent* olay) override;

    // Corrects the text after an edit of the user.
    virtual void DüzenlemeyiDenetle() {}
    // Formats the text on leaving.
    virtual void ÇıkıştaBiçimle() {}

  private:
    std::function<void()> m_düzenlenince;
    std::function<void()> m_bırakılınca;
    bool m_denetleniyor = false;
    bool m_tıklamaylaGirildi = false;
    Odakİzleyici m_odak;
};

// The name of a product or material: put in title case on leaving.
class AdKutusu : public GirişKutusu {
  public:
    explicit AdKutusu(QWidget* sahip = nullptr);

  protected:
    void ÇıkıştaBiçimle() override;
};

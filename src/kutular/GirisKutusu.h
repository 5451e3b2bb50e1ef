#pragma once

#include <QLineEdit>
#include <functional>
#include <utility>

#include "DuzenlemeDenetcisi.h"
#include "OdakIzleyici.h"

// From now on Enter moves on from `kutu` as Tab does and has no other effect there.
void Enterİleİlerlesin(QWidget* kutu);

// The printable characters that a key brings; none for a command such as Ctrl+C.
QString YazılanMetin(const QKeyEvent& tuş);

// A line of text as all forms have it: Enter moves on as Tab does, entering selects the whole text, also by a mouse
// click (unless the mouse was dragged over it), line breaks and tabs that are pasted become blanks, and what would make
// it longer than a name is refused.
class GirişKutusu : public QLineEdit {
  public:
    explicit GirişKutusu(QWidget* sahip = nullptr);

    // Runs after each edit of the user, once the box has corrected it; never for a text that the program sets.
    void Düzenlenince(std::function<void()> yapılacak) { m_düzenlenince = std::move(yapılacak); }

    // The longest text that an edit may leave; EnUzunAd unless told.
    void EnUzunOlsun(int boy) { m_denetçi->EnUzunOlsun(boy); }

    // The program empties the box; undo brings nothing back.
    void clear() { setText(QString()); }

    // What entering does; a combo box calls it for the line edit in it.
    void Girildi(Qt::FocusReason neden);

    // The box's answer to leaving it: formats its text. False: the text cannot be read and stays, the user has been
    // told, and whatever the box was left for must not happen.
    virtual bool Bitir() { return true; }

    // What the box makes of an edit of the user (`imleç` is the cursor); false: the edit is refused.
    virtual bool Denetle(QString& metin, int& imleç);

  protected:
    void mouseReleaseEvent(QMouseEvent* olay) override;

    void DüzenlendiğiniBildir();
    // The answer to the last leaving; true while the user is in the box.
    bool Bitti() const { return m_bitti; }

  private:
    std::function<void()> m_düzenlenince;
    bool m_bitti = true;
    bool m_tıklamaylaGirildi = false;
    DüzenlemeDenetçisi* m_denetçi;
    Odakİzleyici m_odak;
};

// For a command that is reached without moving the focus (a menu entry, a function key): the answer of the box which
// the user is in. True where there is none.
bool OdaktakiKutuBitti();

// The name of a product or material: put in title case on leaving.
class AdKutusu : public GirişKutusu {
  public:
    using GirişKutusu::GirişKutusu;

    bool Bitir() override;
};

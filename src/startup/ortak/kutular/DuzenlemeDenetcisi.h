#pragma once

#include <QValidator>

class QLineEdit;

// Looks at each edit of a line of text before anybody sees it, however it came about: typed, pasted by key, menu or
// mouse, dropped, or put in by an input method. What it refuses leaves no trace: text, cursor, selection and undo are
// as they were. A text that the program sets, or that undo or redo brings, is not looked at: that one is no edit, or
// has been looked at.
class DüzenlemeDenetçisi : public QValidator {
  public:
    // Becomes the line's validator and its child.
    explicit DüzenlemeDenetçisi(QLineEdit* satır);

    State validate(QString& metin, int& imleç) const final;

  protected:
    // The text after the edit, with the cursor in it: may be changed. False refuses the edit.
    virtual bool Denetle(QString& metin, int& imleç) const = 0;

  private:
    void YinelemeyiOnar();

    QLineEdit* m_satır;
    mutable bool m_reddedildi = false;
    bool m_onarılıyor = false;
};

// From now on an edit leaves no line breaks and tabs in `satır`: they become blanks.
void TekSatırlıOlsun(QLineEdit* satır);

// What TekSatırlıOlsun does with one edit.
void TekSatıraİndir(QString& metin, int& imleç);

#pragma once

#include <QValidator>

class QLineEdit;

// The longest name that a stored text can be read back as, in characters.
inline constexpr int EnUzunAd = 254;

// Looks at each edit of a line of text before anybody sees it, however it came about: typed, pasted by key, menu or
// mouse, dropped, or put in by an input method. What it refuses leaves no trace: text, cursor, selection and undo are
// as they were. An edit that would make the text too long is refused as a whole: nothing is cut. A text that the
// program sets, or that undo or redo brings, is not looked at: that one is no edit, or has been looked at.
class DüzenlemeDenetçisi : public QValidator {
  public:
    // Becomes the line's validator and its child.
    explicit DüzenlemeDenetçisi(QLineEdit* satır);

    // The longest text that an edit may leave, in characters; EnUzunAd unless told.
    void EnUzunOlsun(int boy) { m_enUzun = boy; }

    State validate(QString& metin, int& imleç) const final;

  protected:
    // The text after the edit, with the cursor in it: may be changed. False refuses the edit.
    virtual bool Denetle(QString& metin, int& imleç) const = 0;

  private:
    bool Sığar(qsizetype önceki, qsizetype sonraki) const;
    void YinelemeyiOnar();

    QLineEdit* m_satır;
    int m_enUzun = EnUzunAd;
    qsizetype m_kalan = 0;  // characters that an inserted text leaves standing
    mutable bool m_reddedildi = false;
    bool m_onarılıyor = false;
};

// From now on an edit leaves no line breaks and tabs in `satır`, they become blanks, and no text longer than a name.
void AdYazılsın(QLineEdit* satır);

// What AdYazılsın does with one edit.
void TekSatıraİndir(QString& metin, int& imleç);

#pragma once

#include <QComboBox>
#include <QStringList>

#include "OdakIzleyici.h"

class GirişKutusu;

// A list that the user may also type into. It completes nothing, and whatever becomes of the list, the typed text
// stays. Enter, selection, length and pasted line breaks as in the other entry boxes.
class AçılırGirişKutusu : public QComboBox {
  public:
    explicit AçılırGirişKutusu(QWidget* sahip = nullptr);

    // The longest text that the user may put in; EnUzunAd unless told.
    void EnUzunOlsun(int boy);

    // The list anew; nothing is chosen, the text is empty.
    void Doldur(const QStringList& öğeler);
    void ÖğeEkle(int sıra, const QString& öğe);
    void ÖğeÇıkar(int sıra);

    // Position of the first item that begins with the text, by the Turkish rules; -1 when there is none.
    int ÖnEkleBul(const QString& ön) const;

    // What a text becomes when the user types or pastes it.
    virtual QString Düzelt(const QString& metin) const { return metin; }

  protected:
    // Formats the text on leaving.
    virtual void Bitir() {}

  private:
    GirişKutusu* m_satır;
    Odakİzleyici m_odak;
};

// Product groups: upper case as typed, trimmed on leaving; a text chosen from the list stays as it is.
class GrupKutusu : public AçılırGirişKutusu {
  public:
    using AçılırGirişKutusu::AçılırGirişKutusu;

    QString Düzelt(const QString& metin) const override;

  protected:
    void Bitir() override;
};

// Quantity types: hold no digits and no apostrophes, however they come in.
class MiktarTürüKutusu : public AçılırGirişKutusu {
  public:
    using AçılırGirişKutusu::AçılırGirişKutusu;

    QString Düzelt(const QString& metin) const override;

  protected:
    void keyPressEvent(QKeyEvent* olay) override;
};

#pragma once

#include <QComboBox>
#include <QStringList>
#include <functional>

#include "OdakIzleyici.h"

class GirişKutusu;

// A list that the user may also type into. It completes nothing, and whatever becomes of the list, the typed text
// stays. Enter, selection and length as in the other entry boxes.
class AçılırGirişKutusu : public QComboBox {
  public:
    explicit AçılırGirişKutusu(QWidget* sahip = nullptr);

    // The list anew; nothing is chosen, the text is empty.
    void Doldur(const QStringList& öğeler);
    void ÖğeEkle(int sıra, const QString& öğe);
    void ÖğeÇıkar(int sıra);

    // Position of the first item that begins with the text, by the Turkish rules; -1 when there is none.
    int ÖnEkleBul(const QString& ön) const;

  protected:
    // What the user's text becomes after each edit; the cursor keeps its place in it.
    virtual QString Düzelt(const QString& metin) const { return metin; }

  private:
    GirişKutusu* m_satır;
    Odakİzleyici m_odak;
};

// Product groups: upper case as typed; a text chosen from the list stays as it is.
class GrupKutusu : public AçılırGirişKutusu {
  public:
    using AçılırGirişKutusu::AçılırGirişKutusu;

  protected:
    QString Düzelt(const QString& metin) const override;
};

// Quantity types: hold no digits, however they come in.
class MiktarTürüKutusu : public AçılırGirişKutusu {
  public:
    using AçılırGirişKutusu::AçılırGirişKutusu;

  protected:
    void keyPressEvent(QKeyEvent* olay) override;
    QString Düzelt(const QString& metin) const override;
};

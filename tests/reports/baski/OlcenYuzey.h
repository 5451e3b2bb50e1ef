#pragma once

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>

#include "AygitYuzeyi.h"

// A text of a printout: where its top left corner should stand, in millimetres from the page's corner.
struct BeklenenMetin {
    int Sayfa;
    double X, Y, Genişlik;
    QString Metin;
};

struct ÖlçenAygıt {
    QBuffer Dosya;
    QPdfWriter Yazar;
    ÖlçenAygıt(const QPageLayout& alan);
};

// Notes where the texts of a printout go on a page with this printable area.
class ÖlçenYüzey : private ÖlçenAygıt, public AygıtYüzeyi {
  public:
    explicit ÖlçenYüzey(const QPageLayout& alan);
    QList<BeklenenMetin> Metinler;

  protected:
    double MetniKoy(const QString& metin, Yer yer) override;

  private:
    QPointF m_köşe;  // of the printable area
};

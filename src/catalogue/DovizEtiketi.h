#pragma once

#include <QLabel>

#include "Para.h"

// Tells below a material's price to which currency it is tied, at which rate, and whether the price is still the one
// that the rate gave. Empty without a tie; its place stays, so that nothing moves. What does not fit ends in "…" and is
// told in full by the tooltip.
class DövizEtiketi : public QLabel {
  public:
    DövizEtiketi();

    // `fiyat`: the catalogue's. What cannot be read is left out without a word.
    void Göster(const QString& malzeme, Para fiyat);

  protected:
    // Also legible while the boxes above are off.
    void paintEvent(QPaintEvent* olay) override;
};

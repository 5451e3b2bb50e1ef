#pragma once

#include <QColor>
#include <cstdint>

class QLabel;
class QWidget;

// A colour value 0x00BBGGRR as the shared variables hold it.
QColor BgrRenk(std::uint32_t bgr);

// Makes `etiket` the caption of `kutu` (box, list or tree): its mnemonic leads there, screen readers read it, and it
// takes EtkinEtiketRengi while the user is in `kutu`. To be called once the caption has its text.
void EtiketEşle(QLabel* etiket, QWidget* kutu);

#pragma once

class QLabel;
class QWidget;

// Makes `etiket` the caption of `kutu` (box, list or tree): its mnemonic leads there, screen readers read it, and it
// takes EtkinEtiketRengi while the user is in `kutu`. To be called once the caption has its text.
void EtiketEşle(QLabel* etiket, QWidget* kutu);

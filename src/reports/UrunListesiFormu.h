#pragma once

#include "RaporFormu.h"

// Every product with its group, each group named on its first product.
class ÜrünListesiFormu : public RaporFormu {
  public:
    explicit ÜrünListesiFormu(QWidget* sahip = nullptr);

    // Reads the list, once, before the form is shown; drives the loading form's progress where there is one.
    void Yükle();
};

#pragma once

#include "RaporFormu.h"

// The material catalogue with its prices, in alphabetical order.
class MalzemeListesiFormu : public RaporFormu {
  public:
    explicit MalzemeListesiFormu(QWidget* sahip = nullptr);

    // Reads the list, once, before the form is shown; drives the loading form's progress where there is one.
    void Yükle();
};

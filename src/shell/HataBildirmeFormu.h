#pragma once

#include "KabukFormu.h"

// The error-report form: the ways to tell the maker of a fault.
class HataBildirmeFormu : public KabukFormu {
  public:
    explicit HataBildirmeFormu(QWidget* sahip = nullptr);
};

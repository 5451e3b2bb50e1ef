#pragma once

#include "KabukFormu.h"

// The about form: title, version, legal notice, and the way to the maker.
class HakkındaFormu : public KabukFormu {
  public:
    explicit HakkındaFormu(QWidget* sahip = nullptr);
};

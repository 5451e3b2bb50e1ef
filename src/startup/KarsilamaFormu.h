#pragma once

#include <QWidget>

// The welcome form: shows the program's name and version while it starts.
class KarşılamaFormu : public QWidget {
  public:
    KarşılamaFormu();

  protected:
    void paintEvent(QPaintEvent* olay) override;
};

#pragma once

#include <QWidget>

// The etched rule under the menu bar: a shadow line, and a white one a pixel row below.
class OyukÇizgi : public QWidget {
  public:
    explicit OyukÇizgi(QWidget* sahip = nullptr);

  protected:
    void paintEvent(QPaintEvent* olay) override;
};

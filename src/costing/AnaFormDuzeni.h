#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QWidget>

// Parts of the main form's layout.

// The etched rule under the menu bar: a shadow line, and a white one a pixel row below.
class OyukÇizgi : public QWidget {
  public:
    explicit OyukÇizgi(QWidget* sahip = nullptr);

  protected:
    void paintEvent(QPaintEvent* olay) override;
};

// The top left corner at which a window can be reached: its own if enough of its title bar lies on a screen, otherwise
// the nearest one on the screen that holds most of it (the first screen when none does).
QPoint EkranaGetir(const QRect& pencere, const QList<QRect>& ekranlar);

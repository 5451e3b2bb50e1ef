#pragma once

#include <QFrame>
#include <functional>

// The line over a list that could not be loaded whole: it says so, and its button loads again. Hidden at first.
class YüklenemediBildirimi : public QFrame {
  public:
    // metin, düğme: numbers of the texts. The button is named after the line.
    YüklenemediBildirimi(const QString& ad, int metin, int düğme, std::function<void()> yenidenYükle);
};

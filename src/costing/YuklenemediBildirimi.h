#pragma once

#include <QFrame>
#include <functional>

enum class MetinNo : int;

// The line over a list that could not be loaded whole: it says so, and its button loads again. Hidden at first.
class YüklenemediBildirimi : public QFrame {
  public:
    // The button is named after the line.
    YüklenemediBildirimi(const QString& ad, MetinNo metin, MetinNo düğme, std::function<void()> yenidenYükle);
};

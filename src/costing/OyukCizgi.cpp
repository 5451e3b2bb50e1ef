#include "OyukCizgi.h"

#include <QPainter>

OyukÇizgi::OyukÇizgi(QWidget* sahip) : QWidget(sahip) {
    setFixedHeight(2);
}

void OyukÇizgi::paintEvent(QPaintEvent*) {
    QPainter çizici(this);
    çizici.fillRect(0, 0, width(), 1, palette().color(QPalette::Mid));
    çizici.fillRect(0, 1, width(), 1, Qt::white);
}

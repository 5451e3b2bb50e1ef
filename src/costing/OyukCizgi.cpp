#include "OyukCizgi.h"

#include <QPainter>

#include "Renk.h"

namespace {

constexpr std::uint32_t DüğmeGölgesi = 0x80000000 + 16;  // the desktop's colour number 16
constexpr std::uint32_t Beyaz = 0x00FFFFFF;

}  // namespace

OyukÇizgi::OyukÇizgi(QWidget* sahip) : QWidget(sahip) {
    setFixedHeight(2);
}

void OyukÇizgi::paintEvent(QPaintEvent*) {
    QPainter çizici(this);
    çizici.fillRect(0, 0, width(), 1, RenkÇöz(DüğmeGölgesi, palette()));
    çizici.fillRect(0, 1, width(), 1, RenkÇöz(Beyaz, palette()));
}

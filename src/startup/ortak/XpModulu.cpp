#include "XpModulu.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

// The toolkit's own style draws a frame as lines of no width. At fractional scale factors such a line may fall just
// outside its control and vanish; an area of one logical pixel does not.
class KeskinÇerçeveBiçemi : public QProxyStyle {
  public:
    void drawPrimitive(PrimitiveElement öğe, const QStyleOption* seçenek, QPainter* boyacı,
                       const QWidget* denetim) const override {
        if (öğe != PE_Frame) {
            QProxyStyle::drawPrimitive(öğe, seçenek, boyacı, denetim);
            return;
        }
        const QRect alan = seçenek->rect;
        const QColor renk = seçenek->palette.color(QPalette::Window).lightness() < 128
                                ? seçenek->palette.color(QPalette::Window).lighter(180)
                                : seçenek->palette.color(QPalette::Window).darker(140);
        boyacı->fillRect(alan.x(), alan.y(), alan.width(), 1, renk);
        boyacı->fillRect(alan.x(), alan.bottom(), alan.width(), 1, renk);
        boyacı->fillRect(alan.x(), alan.y(), 1, alan.height(), renk);
        boyacı->fillRect(alan.right(), alan.y(), 1, alan.height(), renk);
    }
};

}  // namespace

bool GörselStilleriEtkinleştir() {
    // The desktop's own style stays where there is one.
    const QStyle* biçem = QApplication::style();
    if (biçem && biçem->name() == QStringLiteral("fusion")) QApplication::setStyle(new KeskinÇerçeveBiçemi);
    return biçem != nullptr;
}

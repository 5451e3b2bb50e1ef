#include "EnterTusu.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

class EnterSüzgeci : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* kutu, QEvent* olay) override {
        if (olay->type() != QEvent::KeyPress) return false;
        const auto* tuş = static_cast<QKeyEvent*>(olay);
        if (tuş->key() != Qt::Key_Return && tuş->key() != Qt::Key_Enter) return false;
        if (!tuş->isAutoRepeat()) {  // a key held down must not run through the form
            QKeyEvent sekme(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QCoreApplication::sendEvent(kutu, &sekme);
        }
        return true;
    }
};

}  // namespace

void Enterİleİlerlesin(QWidget* kutu) {
    kutu->installEventFilter(new EnterSüzgeci(kutu));
}

#include "KomutDugmesi.h"

#include <QKeyEvent>
#include <QShortcutEvent>

KomutDüğmesi::KomutDüğmesi(const QString& metin, QWidget* sahip) : QPushButton(metin, sahip) {
    setAutoDefault(false);
}

bool KomutDüğmesi::event(QEvent* olay) {
    if (olay->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(olay)->isAmbiguous())
        return QPushButton::event(olay);
    setFocus(Qt::ShortcutFocusReason);
    click();
    return true;
}

void KomutDüğmesi::keyPressEvent(QKeyEvent* olay) {
    if (olay->key() != Qt::Key_Return && olay->key() != Qt::Key_Enter) {
        QPushButton::keyPressEvent(olay);
    } else if (!olay->isAutoRepeat()) {
        click();
    }
}

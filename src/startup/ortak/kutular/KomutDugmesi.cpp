#include "KomutDugmesi.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcutEvent>

#include "SayiKutusu.h"

KomutDüğmesi::KomutDüğmesi(const QString& metin, QWidget* sahip) : QPushButton(metin, sahip) {
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);  // on a click the focus is taken below, where a failure can be seen
}

bool KomutDüğmesi::event(QEvent* olay) {
    if (olay->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(olay)->isAmbiguous())
        return QPushButton::event(olay);
    if (SayıKutusu::OdağıTaşı(this, Qt::ShortcutFocusReason)) click();
    return true;
}

void KomutDüğmesi::keyPressEvent(QKeyEvent* olay) {
    if (olay->key() != Qt::Key_Return && olay->key() != Qt::Key_Enter) {
        QPushButton::keyPressEvent(olay);
    } else if (!olay->isAutoRepeat()) {
        click();
    }
}

void KomutDüğmesi::mousePressEvent(QMouseEvent* olay) {
    if (olay->button() != Qt::LeftButton || SayıKutusu::OdağıTaşı(this, Qt::MouseFocusReason))
        QPushButton::mousePressEvent(olay);
}

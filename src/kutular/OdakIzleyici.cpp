#include "OdakIzleyici.h"

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>
#include <utility>

namespace {

bool GeçiciMi(Qt::FocusReason neden) {
    return neden == Qt::ActiveWindowFocusReason || neden == Qt::PopupFocusReason || neden == Qt::MenuBarFocusReason;
}

}  // namespace

Odakİzleyici::Odakİzleyici(QWidget* kutu, std::function<void(Qt::FocusReason)> girince,
                           std::function<void(Çıkış)> çıkınca)
    : m_kutu(kutu), m_girince(std::move(girince)), m_çıkınca(std::move(çıkınca)) {
    kutu->installEventFilter(this);
    // While the window is in the background, the program may hand the focus on without a focus event for `kutu`.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* odaklanan) {
        if (odaklanan && odaklanan->window() == m_kutu->window() && DışarıdaMı(odaklanan)) Çık(Çıkış::Ayrıldı);
    });
}

bool Odakİzleyici::eventFilter(QObject*, QEvent* olay) {
    if (olay->type() == QEvent::FocusIn) {
        Gir(static_cast<QFocusEvent*>(olay)->reason());
    } else if (olay->type() == QEvent::FocusOut) {
        // A closing window is deactivated first, so its controls are not left but hidden.
        if (!GeçiciMi(static_cast<QFocusEvent*>(olay)->reason()) && DışarıdaMı(QApplication::focusWidget()))
            Çık(Çıkış::Ayrıldı);
    } else if (olay->type() == QEvent::Hide) {
        Çık(Çıkış::FormKapanıyor);
    }
    return false;
}

void Odakİzleyici::Gir(Qt::FocusReason neden) {
    if (!std::exchange(m_içeride, true)) m_girince(neden);
}

void Odakİzleyici::Çık(Çıkış çıkış) {
    if (std::exchange(m_içeride, false)) m_çıkınca(çıkış);
}

// An editor inside a tree belongs to the tree.
bool Odakİzleyici::DışarıdaMı(const QWidget* odaklanan) const {
    return odaklanan != m_kutu && !m_kutu->isAncestorOf(odaklanan);
}

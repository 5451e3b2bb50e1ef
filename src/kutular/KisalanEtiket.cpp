#include "KisalanEtiket.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

KısalanEtiket::KısalanEtiket(const QString& ad) {
    setObjectName(ad);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QString KısalanEtiket::Sığan() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool KısalanEtiket::event(QEvent* olay) {
    if (olay->type() != QEvent::ToolTip) return QLabel::event(olay);
    const bool kısa = Sığan() == text();
    QToolTip::showText(static_cast<QHelpEvent*>(olay)->globalPos(),
                       kısa ? QString() : QStringLiteral("<p>") + text().toHtmlEscaped(), this);
    return true;
}

void KısalanEtiket::paintEvent(QPaintEvent*) {
    QPainter boyacı(this);
    boyacı.setPen(palette().color(foregroundRole()));
    boyacı.drawText(contentsRect(), Qt::AlignVCenter | Qt::TextSingleLine, Sığan());
}

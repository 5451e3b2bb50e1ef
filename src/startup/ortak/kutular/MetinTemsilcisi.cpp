#include "MetinTemsilcisi.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace {

constexpr int SatırPayı = 6;  // pixels between the lines of text

}  // namespace

MetinTemsilcisi::MetinTemsilcisi(QObject* sahip, QList<int> sayıSütunları)
    : QStyledItemDelegate(sahip), m_sayıSütunları(std::move(sayıSütunları)) {}

void MetinTemsilcisi::initStyleOption(QStyleOptionViewItem* seçenek, const QModelIndex& yer) const {
    QStyledItemDelegate::initStyleOption(seçenek, yer);
    if (m_sayıSütunları.contains(yer.column())) {
        seçenek->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
}

QSize MetinTemsilcisi::sizeHint(const QStyleOptionViewItem& seçenek, const QModelIndex& yer) const {
    return QStyledItemDelegate::sizeHint(seçenek, yer) + QSize(0, SatırPayı);
}

bool MetinTemsilcisi::helpEvent(QHelpEvent* olay, QAbstractItemView* görünüm, const QStyleOptionViewItem& seçenek,
                                const QModelIndex& yer) {
    if (olay->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(olay, görünüm, seçenek, yer);
    const QRect görünen = görünüm->visualRect(yer) & görünüm->viewport()->rect();
    if (sizeHint(seçenek, yer).width() > görünen.width()) {
        // A name may look like markup; converted, it is shown as it is.
        QToolTip::showText(olay->globalPos(), Qt::convertFromPlainText(yer.data().toString()), görünüm->viewport());
    } else {
        QToolTip::hideText();
    }
    return true;
}

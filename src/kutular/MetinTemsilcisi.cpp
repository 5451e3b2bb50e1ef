#include "MetinTemsilcisi.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

#include "SayiSigdirma.h"

namespace {

constexpr int SatırPayı = 6;  // pixels between the lines of text
constexpr int BolPay = 24;    // pixels, more than any style leaves around a cell's text

// Of a cell without icon and tick.
int MetinGenişliği(const QStyleOptionViewItem& hücre, const QStyle& biçem) {
    const int pay = biçem.pixelMetric(QStyle::PM_FocusFrameHMargin, &hücre, hücre.widget) + 1;
    return hücre.rect.width() - 2 * pay;
}

}  // namespace

MetinTemsilcisi::MetinTemsilcisi(QObject* sahip, Sütunlar sütunlar)
    : QStyledItemDelegate(sahip), m_sütunlar(std::move(sütunlar)) {}

void MetinTemsilcisi::initStyleOption(QStyleOptionViewItem* seçenek, const QModelIndex& yer) const {
    QStyledItemDelegate::initStyleOption(seçenek, yer);
    if (m_sütunlar.Sağda.contains(yer.column())) seçenek->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
}

void MetinTemsilcisi::paint(QPainter* çizici, const QStyleOptionViewItem& seçenek, const QModelIndex& yer) const {
    QStyleOptionViewItem hücre = seçenek;
    initStyleOption(&hücre, yer);
    const QStyle& biçem = *(hücre.widget ? hücre.widget->style() : QApplication::style());
    // Most figures fit with room to spare; only for the others the cell is laid out to know its exact width.
    const bool sığmayabilir = hücre.fontMetrics.horizontalAdvance(hücre.text) + BolPay > hücre.rect.width();
    if (sığmayabilir && m_sütunlar.Sayılar.contains(yer.column())) {
        hücre.font = SığanYazıTipi(hücre.font, hücre.text, MetinGenişliği(hücre, biçem));
        hücre.fontMetrics = QFontMetrics(hücre.font);
    }
    biçem.drawControl(QStyle::CE_ItemViewItem, &hücre, çizici, hücre.widget);
}

QSize MetinTemsilcisi::sizeHint(const QStyleOptionViewItem& seçenek, const QModelIndex& yer) const {
    return QStyledItemDelegate::sizeHint(seçenek, yer) + QSize(0, SatırPayı);
}

bool MetinTemsilcisi::helpEvent(QHelpEvent* olay, QAbstractItemView* görünüm, const QStyleOptionViewItem& seçenek,
                                const QModelIndex& yer) {
    if (olay->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(olay, görünüm, seçenek, yer);
    const QRect görünen = görünüm->visualRect(yer) & görünüm->viewport()->rect();
    QStringList metinler;
    if (sizeHint(seçenek, yer).width() > görünen.width()) metinler.append(yer.data().toString());
    metinler.append(yer.data(AyrıntıRolü).toString());
    metinler.removeAll(QString());
    if (metinler.isEmpty()) {
        QToolTip::hideText();
    } else {
        // A name may look like markup; converted, it is shown as it is.
        const QString metin = Qt::convertFromPlainText(metinler.join(QLatin1Char('\n')));
        QToolTip::showText(olay->globalPos(), metin, görünüm->viewport());
    }
    return true;
}

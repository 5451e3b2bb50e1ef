#include "SayiSigdirma.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double EnKüçükOran = 0.7;  // of the program's font
constexpr int İçPay = 2;             // pixels that a line edit leaves at each side of its text
constexpr int İmleçPayı = 1;
const QString Kesik = QStringLiteral("…");

double Genişlik(const QFont& yazıTipi, const QString& metin) {
    return std::ceil(QFontMetricsF(yazıTipi).horizontalAdvance(metin));
}

double Boy(const QFont& yazıTipi) {
    return yazıTipi.pointSizeF() > 0 ? yazıTipi.pointSizeF() : yazıTipi.pixelSize();
}

QFont Boyunda(QFont yazıTipi, double boy) {
    if (yazıTipi.pointSizeF() > 0) {
        yazıTipi.setPointSizeF(boy);
    } else {
        yazıTipi.setPixelSize(static_cast<int>(boy));
    }
    return yazıTipi;
}

// Belongs to its box.
class Sığdırıcı : public QObject {
  public:
    explicit Sığdırıcı(QLineEdit* kutu) : QObject(kutu), m_kutu(*kutu), m_asıl(kutu->font()), m_konan(kutu->font()) {
        kutu->installEventFilter(this);
        kutu->setCursorPosition(0);
        // While the user edits, the cursor is his, whoever has the focus.
        connect(kutu, &QLineEdit::textEdited, this, [this] { m_düzenlendi = true; });
        connect(kutu, &QLineEdit::textChanged, this, [this] {
            Sığdır();
            const bool düzenlendi = std::exchange(m_düzenlendi, false);
            if (!düzenlendi && m_kutu.window()->focusWidget() != &m_kutu) m_kutu.setCursorPosition(0);
        });
    }

    bool eventFilter(QObject* kutu, QEvent* olay) override {
        if (!qobject_cast<QLineEdit*>(kutu)) return false;  // a box that is being destroyed loses its focus once more
        switch (olay->type()) {
            case QEvent::FontChange:
                YazıTipiDeğişti();
                break;
            case QEvent::Resize:
            case QEvent::Show:
            case QEvent::StyleChange:
                Sığdır();
                break;
            case QEvent::FocusOut:
                if (!GeçiciMi(static_cast<QFocusEvent*>(olay)->reason())) m_kutu.setCursorPosition(0);
                break;
            case QEvent::Paint:
                static_cast<QObject&>(m_kutu).event(olay);
                if (Kesildi()) KesikleriÇiz();
                return true;
            case QEvent::ToolTip:
                if (Genişlik(m_asıl, m_kutu.text()) <= Yer().width()) break;
                QToolTip::showText(static_cast<QHelpEvent*>(olay)->globalPos(), m_kutu.text(), &m_kutu);
                return true;
            default:
                break;
        }
        return false;
    }

  private:
    static bool GeçiciMi(Qt::FocusReason neden) {
        return neden == Qt::ActiveWindowFocusReason || neden == Qt::PopupFocusReason || neden == Qt::MenuBarFocusReason;
    }

    // Where the text stands.
    QRect Yer() const {
        QStyleOptionFrame çerçeve;
        çerçeve.initFrom(&m_kutu);
        çerçeve.lineWidth = m_kutu.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &çerçeve, &m_kutu);
        const QRect iç = m_kutu.style()->subElementRect(QStyle::SE_LineEditContents, &çerçeve, &m_kutu);
        return iç.marginsRemoved(m_kutu.textMargins()).adjusted(İçPay, 0, -İçPay - İmleçPayı, 0);
    }

    bool Kesildi() const { return Genişlik(m_kutu.font(), m_kutu.text()) > Yer().width(); }

    void YazıTipiDeğişti() {
        if (m_kutu.font() == m_konan) return;
        m_asıl = m_konan = m_kutu.font();
        m_kutu.setMinimumHeight(0);
        Sığdır();
    }

    void Sığdır() {
        const QFont sığan = SığanYazıTipi(m_asıl, m_kutu.text(), Yer().width());
        if (sığan == m_konan) return;
        // The box stays as high as it is with its own font.
        if (m_konan == m_asıl) m_kutu.setMinimumHeight(m_kutu.sizeHint().height());
        m_konan = sığan;
        m_kutu.setFont(sığan);
        if (sığan == m_asıl) m_kutu.setMinimumHeight(0);
    }

    void KesikleriÇiz() {
        const QRect yer = Yer();
        const QString metin = m_kutu.text();
        const double imGenişliği = Genişlik(m_kutu.font(), Kesik);
        const bool solda = m_kutu.cursorPositionAt({yer.left() + 1, yer.center().y()}) > 0;
        const bool sağda = !solda || m_kutu.cursorPositionAt({yer.right(), yer.center().y()}) < metin.size();
        QPainter çizici(&m_kutu);
        çizici.setFont(m_kutu.font());
        çizici.setPen(m_kutu.palette().color(QPalette::Text));
        const auto çiz = [&](const QRectF& im, Qt::Alignment taraf) {
            çizici.fillRect(im, m_kutu.palette().color(QPalette::Base));
            çizici.drawText(im, static_cast<int>(taraf | Qt::AlignVCenter), Kesik);
        };
        if (solda) çiz(QRectF(yer.left() - İçPay, yer.top(), imGenişliği + İçPay, yer.height()), Qt::AlignRight);
        if (!sağda) return;
        // Only whole digits stand before the mark where the beginning is shown.
        double baş = yer.right() + 1 - imGenişliği;
        if (!solda) {
            qsizetype kalan = metin.size();
            while (kalan > 0 && yer.left() + Genişlik(m_kutu.font(), metin.left(kalan)) > baş) --kalan;
            baş = std::min(baş, yer.left() + Genişlik(m_kutu.font(), metin.left(kalan)));
        }
        çiz(QRectF(QPointF(baş, yer.top()), QPointF(yer.right() + 1 + İmleçPayı + İçPay, yer.bottom() + 1)),
            Qt::AlignLeft);
    }

    QLineEdit& m_kutu;
    QFont m_asıl;   // as the form set it
    QFont m_konan;  // as it is now
    bool m_düzenlendi = false;
};

}  // namespace

QFont SığanYazıTipi(const QFont& yazıTipi, const QString& metin, int genişlik) {
    double gereken = Genişlik(yazıTipi, metin);
    if (gereken <= genişlik) return yazıTipi;
    const double sınır = std::min(Boy(yazıTipi), EnKüçükOran * Boy(QApplication::font()));
    QFont sığan = yazıTipi;
    for (; gereken > genişlik && Boy(sığan) > sınır; gereken = Genişlik(sığan, metin)) {
        const double oran = std::clamp(genişlik / gereken, 0.1, 0.98);
        sığan = Boyunda(sığan, std::max(sınır, Boy(sığan) * oran));
        if (sığan.pointSizeF() <= 0 && sığan.pixelSize() <= sınır) break;
    }
    return sığan;
}

void SayıyıSığdır(QLineEdit* kutu) {
    new Sığdırıcı(kutu);
}

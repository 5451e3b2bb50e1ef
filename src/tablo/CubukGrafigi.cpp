#include "CubukGrafigi.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double KENAR = 6;
constexpr double ARA = 8;             // between names, bars and figures
constexpr double EN_GENİŞ_AD = 0.36;  // of the plot
constexpr double EN_DAR_AD = 90;
constexpr double EN_DAR_ÇUBUKLAR = 40;  // what the bars keep of a narrow plot
constexpr double SATIR = 1.45;          // of the font's line
constexpr double EN_ALÇAK_SATIR = 1.08;
constexpr double ÇUBUK = 0.7;  // of its line
constexpr qsizetype ADDA_SAYILAN = 5;

class Çizer {
  public:
    Çizer(QPainter& boyacı, const QRectF& alan, const ÇubukDizisi& dizi, const QPalette& palet)
        : m_boyacı(boyacı), m_ölçü(boyacı.font()), m_alan(alan), m_dizi(dizi), m_palet(palet) {
        double adlar = 0;
        for (const Çubuk& çubuk : dizi.Çubuklar) {
            adlar = std::max(adlar, m_ölçü.horizontalAdvance(çubuk.Ad));
            m_yazılar = std::max(m_yazılar, m_ölçü.horizontalAdvance(çubuk.Yazı));
            m_enAz = std::min(m_enAz, çubuk.Değer);
            m_enÇok = std::max(m_enÇok, çubuk.Değer);
        }
        const double kalan = alan.width() - m_yazılar - 2 * ARA - EN_DAR_ÇUBUKLAR;
        m_adlar = std::max(0.0, std::min({adlar, alan.width() * EN_GENİŞ_AD, kalan}) + 1);
        m_çubuklar = QRectF(QPointF(alan.left() + m_adlar + ARA, alan.top()),
                            QPointF(alan.right() - m_yazılar - ARA, alan.bottom()));
    }

    void Çiz() {
        m_boyacı.setRenderHint(QPainter::Antialiasing);
        m_boyacı.setPen(m_palet.color(QPalette::Text));
        BaşlığıYaz();
        const double boy = m_alan.bottom() - m_çubuklar.top();
        const double satır = std::min(boy / static_cast<double>(std::max<qsizetype>(m_dizi.Çubuklar.size(), 1)),
                                      m_ölçü.height() * SATIR);
        double y = m_çubuklar.top();
        for (const Çubuk& çubuk : m_dizi.Çubuklar) {
            Satır(çubuk, QRectF(m_alan.left(), y, m_alan.width(), satır));
            y += satır;
        }
        if (m_dizi.Çubuklar.isEmpty()) return;
        m_boyacı.setPen(QPen(m_palet.color(QPalette::Text), 1));
        m_boyacı.drawLine(QPointF(X(0), m_çubuklar.top()), QPointF(X(0), y));
    }

  private:
    double X(double değer) const {
        const double genişlik = std::max(m_enÇok - m_enAz, 1e-300);
        return m_çubuklar.left() + m_çubuklar.width() * ((değer - m_enAz) / genişlik);
    }

    void BaşlığıYaz() {
        const QFont düz = m_boyacı.font();
        QFont kalın = düz;
        kalın.setBold(true);
        m_boyacı.setFont(kalın);
        const QFontMetricsF ölçü(kalın);
        m_boyacı.drawText(QPointF(m_alan.left(), m_alan.top() + ölçü.ascent()),
                          ölçü.elidedText(m_dizi.Başlık, Qt::ElideRight, m_alan.width()));
        m_boyacı.setFont(düz);
        m_çubuklar.setTop(m_alan.top() + m_ölçü.height() * SATIR);
    }

    void Satır(const Çubuk& çubuk, const QRectF& satır) {
        m_boyacı.setPen(m_palet.color(QPalette::Text));
        const double taban = satır.center().y() + (m_ölçü.ascent() - m_ölçü.descent()) / 2;
        const QString ad = m_ölçü.elidedText(çubuk.Ad, Qt::ElideRight, m_adlar);
        m_boyacı.drawText(QPointF(satır.left(), taban), ad);
        m_boyacı.drawText(QPointF(satır.right() - m_ölçü.horizontalAdvance(çubuk.Yazı), taban), çubuk.Yazı);
        if (çubuk.Değer == 0) return;
        const double pay = satır.height() * (1 - ÇUBUK) / 2;
        QRectF kutu = QRectF(QPointF(X(0), satır.top() + pay), QPointF(X(çubuk.Değer), satır.bottom() - pay));
        kutu = kutu.normalized();
        if (kutu.width() < 1) kutu.setWidth(1);
        Doldur(kutu, çubuk.Doku);
    }

    // The hatching is drawn line by line: the toolkit's own patterns have pixels of the device, which a printer's
    // resolution makes invisible.
    void Doldur(const QRectF& kutu, int doku) {
        constexpr QRgb renkler[] = {0x0072B2, 0xE69F00, 0x009E73, 0xCC79A7, 0x56B4E9, 0x999999};
        constexpr double ara = 6;
        m_boyacı.save();
        m_boyacı.setClipRect(kutu, Qt::IntersectClip);
        m_boyacı.fillRect(kutu, QColor(renkler[static_cast<std::size_t>(doku) % std::size(renkler)]));
        m_boyacı.setPen(QPen(m_palet.color(QPalette::Base), 1.5));
        const double boy = kutu.height();
        const bool sağa = doku == 1 || doku == 4;
        const bool sola = doku == 2 || doku == 4;
        for (double x = kutu.left() - boy; x < kutu.right() + boy; x += ara) {
            if (sağa) m_boyacı.drawLine(QPointF(x, kutu.bottom()), QPointF(x + boy, kutu.top()));
            if (sola) m_boyacı.drawLine(QPointF(x, kutu.top()), QPointF(x + boy, kutu.bottom()));
            if (doku == 3) m_boyacı.drawLine(QPointF(x, kutu.top()), QPointF(x, kutu.bottom()));
        }
        for (double y = kutu.top() + ara / 2; doku == 5 && y < kutu.bottom(); y += ara / 2)
            m_boyacı.drawLine(QPointF(kutu.left(), y), QPointF(kutu.right(), y));
        m_boyacı.restore();
        m_boyacı.setPen(QPen(m_palet.color(QPalette::Text), 0.8));
        m_boyacı.setBrush(Qt::NoBrush);
        m_boyacı.drawRect(kutu);
    }

    QPainter& m_boyacı;
    const QFontMetricsF m_ölçü;
    const QRectF m_alan;
    const ÇubukDizisi& m_dizi;
    const QPalette& m_palet;
    double m_enAz = 0;  // zero is always in sight
    double m_enÇok = 0;
    double m_adlar = 0;
    double m_yazılar = 0;
    QRectF m_çubuklar;
};

QString Anlat(const ÇubukDizisi& dizi, qsizetype enÇok) {
    QStringList parçalar{dizi.Başlık};
    for (const Çubuk& çubuk : dizi.Çubuklar.mid(0, enÇok)) parçalar.append(çubuk.Ad + QLatin1Char(' ') + çubuk.Yazı);
    return parçalar.join(QStringLiteral("; "));
}

}  // namespace

void ÇubuklarıÇiz(QPainter& boyacı, const QRectF& alan, const ÇubukDizisi& dizi, const QPalette& palet) {
    Çizer(boyacı, alan, dizi, palet).Çiz();
}

double ÇubuklarınBoyu(const ÇubukDizisi& dizi, double satır) {
    return satır * SATIR * static_cast<double>(dizi.Çubuklar.size() + 1);
}

QPalette KâğıtPaleti() {
    QPalette palet;
    palet.setColor(QPalette::Base, Qt::white);
    palet.setColor(QPalette::Text, Qt::black);
    return palet;
}

ÇubukGrafiği::ÇubukGrafiği(const QString& ad, QWidget* sahip) : QWidget(sahip) {
    setObjectName(ad);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ÇubukGrafiği::Göster(ÇubukDizisi dizi) {
    m_dizi = std::move(dizi);
    setAccessibleName(Anlat(m_dizi, ADDA_SAYILAN));
    setAccessibleDescription(Anlat(m_dizi, m_dizi.Çubuklar.size()));
    updateGeometry();
    update();
}

QSize ÇubukGrafiği::sizeHint() const {
    return {480, static_cast<int>(ÇubuklarınBoyu(m_dizi, fontMetrics().height()) + 2 * KENAR) + 1};
}

// Every bar keeps a line of its own.
QSize ÇubukGrafiği::minimumSizeHint() const {
    const double satır = fontMetrics().height();
    const double boy = satır * (SATIR + EN_ALÇAK_SATIR * static_cast<double>(m_dizi.Çubuklar.size()));
    int yazılar = 0;
    for (const Çubuk& çubuk : m_dizi.Çubuklar) yazılar = std::max(yazılar, fontMetrics().horizontalAdvance(çubuk.Yazı));
    return {static_cast<int>(yazılar + EN_DAR_AD + EN_DAR_ÇUBUKLAR + 2 * (ARA + KENAR)),
            static_cast<int>(std::ceil(boy + 2 * KENAR))};
}

void ÇubukGrafiği::paintEvent(QPaintEvent*) {
    QPainter boyacı(this);
    ÇubuklarıÇiz(boyacı, QRectF(rect()).adjusted(KENAR, KENAR, -KENAR, -KENAR), m_dizi, palette());
}

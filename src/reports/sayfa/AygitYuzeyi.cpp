#include "AygitYuzeyi.h"

#include <QPagedPaintDevice>
#include <QPageLayout>
#include <QRawFont>
#include <utility>

#include "MetinSigdir.h"

namespace {

constexpr double İnçMilimetre = 25.4;
constexpr double PuntoMilimetre = İnçMilimetre / 72;
constexpr double ÇizgiKalınlığı = 0.2;  // millimetres
constexpr int ŞekilYazısı = 13;         // 1/96 inch
constexpr double AltÇizgiYeri = 0.45;   // of the descent, below the base line: clear of the letters

// Narrow, with all Turkish letters.
QString YazıAilesi() {
    return QStringLiteral("Liberation Sans Narrow");
}

// The line height that the font's maker meant, free of any device's pixels; millimetres.
double TasarımSatırYüksekliği(const QFont& font, int punto) {
    constexpr double büyük = 2048;
    QRawFont ham = QRawFont::fromFont(font);
    ham.setPixelSize(büyük);
    return (ham.ascent() + ham.descent() + ham.leading()) / büyük * punto * PuntoMilimetre;
}

}  // namespace

AygıtYüzeyi::AygıtYüzeyi(QPagedPaintDevice& aygıt) : m_aygıt(aygıt) {}

bool AygıtYüzeyi::Başla() {
    if (!m_boyacı.begin(&m_aygıt)) return false;
    m_ölçek = m_aygıt.logicalDpiX() / İnçMilimetre;
    return true;
}

void AygıtYüzeyi::Bitir() {
    m_boyacı.end();
}

double AygıtYüzeyi::Genişlik() const {
    return m_aygıt.pageLayout().paintRect(QPageLayout::Millimeter).width();
}

double AygıtYüzeyi::Yükseklik() const {
    return m_aygıt.pageLayout().paintRect(QPageLayout::Millimeter).height();
}

double AygıtYüzeyi::MetinGenişliği(const QString& metin) const {
    return GeçerliYüz().Genişlik(metin) / m_ölçek;
}

double AygıtYüzeyi::SatırYüksekliği() const {
    return GeçerliYüz().SatırYüksekliği;
}

void AygıtYüzeyi::Çiz(double x1, double y1, double x2, double y2, QColor renk) {
    m_boyacı.setPen(QPen(renk, ÇizgiKalınlığı * m_ölçek, Qt::SolidLine, Qt::FlatCap));
    m_boyacı.drawLine(QPointF(x1, y1) * m_ölçek, QPointF(x2, y2) * m_ölçek);
}

void AygıtYüzeyi::Şekil(QSizeF boy, const std::function<void(QPainter&, const QRectF&)>& çizen) {
    constexpr double birim = İnçMilimetre / 96;
    QFont font(YazıAilesi());
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(ŞekilYazısı);
    m_boyacı.save();
    m_boyacı.translate(X() * m_ölçek, Y() * m_ölçek);
    m_boyacı.scale(m_ölçek * birim, m_ölçek * birim);
    m_boyacı.setFont(font);
    çizen(m_boyacı, QRectF(QPointF(0, 0), boy / birim));
    m_boyacı.restore();
}

double AygıtYüzeyi::MetniKoy(const QString& metin, Yer yer) {
    Yüz& yüz = GeçerliYüz();
    const Sığdırılan sığan = MetniSığdır(metin, {yer.Genişlik * m_ölçek, yer.Korunan},
                                         [&yüz](const QString& parça) { return yüz.Genişlik(parça); });
    const QPointF taban(X() * m_ölçek, Y() * m_ölçek + yüz.Ölçü.ascent());
    m_boyacı.setFont(yüz.Font);
    m_boyacı.setPen(Qt::black);
    if (sığan.Oran < 1) {
        m_boyacı.save();
        m_boyacı.translate(taban);
        m_boyacı.scale(sığan.Oran, 1);
        m_boyacı.drawText(QPointF(0, 0), sığan.Metin);
        m_boyacı.restore();
    } else {
        m_boyacı.drawText(taban, sığan.Metin);
    }
    const double genişlik = sığan.Genişlik / m_ölçek;
    if (GeçerliYazı().AltıÇizili) {
        const double y = (taban.y() + yüz.Ölçü.descent() * AltÇizgiYeri) / m_ölçek;
        Çiz(X(), y, X() + genişlik, y, Qt::black);
    }
    return genişlik;
}

void AygıtYüzeyi::SayfaAç() {
    m_aygıt.newPage();
}

AygıtYüzeyi::Yüz& AygıtYüzeyi::GeçerliYüz() const {
    const Yazı& yazı = GeçerliYazı();
    for (Yüz& yüz : m_yüzler) {
        if (yüz.Punto == yazı.Punto && yüz.Kalın == yazı.Kalın) return yüz;
    }
    m_yüzler.append(YüzOluştur(yazı));
    return m_yüzler.last();
}

AygıtYüzeyi::Yüz AygıtYüzeyi::YüzOluştur(const Yazı& yazı) const {
    QFont font(YazıAilesi());
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSize(yazı.Punto);
    font.setBold(yazı.Kalın);
    return {yazı.Punto, yazı.Kalın, font, QFontMetricsF(font, &m_aygıt), TasarımSatırYüksekliği(font, yazı.Punto), {}};
}

// A text is laid out before it is drawn: it is measured more than once.
double AygıtYüzeyi::Yüz::Genişlik(const QString& metin) {
    constexpr qsizetype ençok = 256;
    const auto bulunan = Genişlikler.constFind(metin);
    if (bulunan != Genişlikler.cend()) return *bulunan;
    if (Genişlikler.size() >= ençok) Genişlikler.clear();
    return *Genişlikler.insert(metin, Ölçü.horizontalAdvance(metin));
}

#include "KarsilamaFormu.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "SurumKaydi.h"

namespace {

const QColor KOYU(0, 0, 96);
const QColor AÇIK(0, 0, 192);

QLabel* YazıEkle(QVBoxLayout& düzen, const QString& metin, int punto, bool kalın) {
    auto* yazı = new QLabel(metin);
    yazı->setTextFormat(Qt::PlainText);
    QFont biçim = yazı->font();
    biçim.setPointSize(punto);
    biçim.setBold(kalın);
    yazı->setFont(biçim);
    QPalette renkler = yazı->palette();
    renkler.setColor(QPalette::WindowText, Qt::white);
    yazı->setPalette(renkler);
    düzen.addWidget(yazı);
    return yazı;
}

}  // namespace

KarşılamaFormu::KarşılamaFormu() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("KarşılamaFormu"));
    setWindowTitle(Sürüm().ÜrünAdı);
    setFixedSize(420, 220);
    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(36, 28, 36, 24);
    YazıEkle(*düzen, Sürüm().ŞirketAdı, 12, false);
    YazıEkle(*düzen, Sürüm().ÜrünAdı, 36, true);
    düzen->addStretch();
    YazıEkle(*düzen, Sürüm().SürümMetni(), 11, false)->setObjectName(QStringLiteral("Etiket"));
    if (const QScreen* ekran = QGuiApplication::primaryScreen())
        move(ekran->availableGeometry().center() - rect().center());
}

void KarşılamaFormu::paintEvent(QPaintEvent*) {
    QPainter boya(this);
    QLinearGradient geçiş(0, 0, width(), height());
    geçiş.setColorAt(0, KOYU);
    geçiş.setColorAt(1, AÇIK);
    boya.fillRect(rect(), geçiş);
    boya.setPen(QColor(255, 255, 255, 90));
    boya.drawLine(36, height() - 62, width() - 36, height() - 62);
}

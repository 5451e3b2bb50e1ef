#include "Tur.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

constexpr int SÜRE = 10'000;  // milliseconds

bool TekRenk(const QImage& resim) {
    const QRgb ilk = resim.pixel(0, 0);
    for (int y = 0; y < resim.height(); ++y) {
        for (int x = 0; x < resim.width(); ++x) {
            if (resim.pixel(x, y) != ilk) return false;
        }
    }
    return true;
}

}  // namespace

void Tur::Durul() {
    // Twice: what the first round posts (layouts, repaints) runs in the second.
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::sendPostedEvents();
        QTest::qWait(60);
    }
}

void Tur::Bekle(const QString& neyi, const std::function<bool()>& koşul) {
    if (!QTest::qWaitFor(koşul, SÜRE)) throw TurHatası(u"waited in vain for: "_s + neyi);
}

void Tur::Çek(const QString& ad, QWidget& pencere) {
    Kaydet(ad, pencere.frameGeometry(), pencere);
}

void Tur::Çek(const QString& ad, QWidget& pencere, QWidget& üstteki) {
    Kaydet(ad, pencere.frameGeometry().united(üstteki.frameGeometry()), üstteki);
}

void Tur::Kaydet(const QString& ad, const QRect& alan, QWidget& pencere) {
    Bekle(u"window on screen: "_s + ad, [&] { return QTest::qWaitForWindowExposed(&pencere); });
    Durul();
    const QImage resim = pencere.screen()->grabWindow(0, alan.x(), alan.y(), alan.width(), alan.height()).toImage();
    if (resim.isNull() || TekRenk(resim)) throw TurHatası(u"the picture is blank: "_s + ad);
    const QString dosya = m_klasör + u'/' + ad + u".png"_s;
    if (!resim.save(dosya)) throw TurHatası(u"cannot be written: "_s + dosya);
}

void Tur::ÖneGetir(QWidget& pencere) {
    // Without a window manager nobody else gives a window the focus.
    pencere.raise();
    pencere.activateWindow();
    Bekle(u"active: "_s + pencere.objectName(), [&] { return pencere.isActiveWindow(); });
}

void Tur::Tıkla(QWidget& parça) {
    ÖneGetir(*parça.window());
    QTest::mouseClick(&parça, Qt::LeftButton);
    Durul();
}

void Tur::Tıkla(QAbstractItemView& görünüm, const QModelIndex& satır) {
    ÖneGetir(*görünüm.window());
    görünüm.scrollTo(satır);
    QTest::mouseClick(görünüm.viewport(), Qt::LeftButton, {}, görünüm.visualRect(satır).center());
    Durul();
}

void Tur::Yaz(QWidget& parça, const QString& metin) {
    for (const QChar harf : metin) QTest::sendKeyEvent(QTest::Click, &parça, Qt::Key(harf.unicode()), harf, {});
    Durul();
}

void Tur::Kipli(const std::function<void()>& açan, const std::function<void(QWidget&)>& iş) {
    QWidget* önceki = QApplication::activeModalWidget();
    std::exception_ptr hata;
    const QWidget* açılan = nullptr;
    QTimer gözcü;
    QObject::connect(&gözcü, &QTimer::timeout, &gözcü, [&] {
        QWidget* pencere = QApplication::activeModalWidget();
        if (açılan || !pencere || pencere == önceki || !pencere->isVisible()) return;
        açılan = pencere;
        try {
            ÖneGetir(*pencere);
            iş(*pencere);
        } catch (...) {
            hata = std::current_exception();
            if (QWidget* kalan = QApplication::activeModalWidget(); kalan && kalan != önceki) kalan->close();
        }
    });
    gözcü.start(10);
    açan();
    Bekle(u"a modal window"_s, [&] { return açılan; });
    if (hata) std::rethrow_exception(hata);
    // The one before it may have ended with it.
    Bekle(u"the modal window's end"_s, [&] { return QApplication::activeModalWidget() != açılan; });
    Durul();
}

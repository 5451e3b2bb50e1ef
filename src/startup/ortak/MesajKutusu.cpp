#include "MesajKutusu.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <cmath>
#include <utility>

#include "DegiskenModulu.h"
#include "MetinTablosu.h"

namespace MesajKutusu {
namespace {

std::function<Yanıt(const İstek&)> Gösterici;
bool Ortalanacak = false;

QMessageBox::Icon Resim(Simge simge) {
    switch (simge) {
        case Simge::Kritik:
            return QMessageBox::Critical;
        case Simge::Soru:
            return QMessageBox::Question;
        case Simge::Ünlem:
            return QMessageBox::Warning;
        case Simge::Bilgi:
            break;
    }
    return QMessageBox::Information;
}

// The window's middle becomes the box's middle; without a window the screen's.
void ÜzerineOrtala(QWidget& kutu, const QWidget* pencere) {
    const QRect alan = pencere ? pencere->frameGeometry() : QGuiApplication::primaryScreen()->geometry();
    const QSize boy = kutu.frameGeometry().size();
    // Halves go to the even pixel.
    kutu.move(static_cast<int>(std::nearbyint(alan.x() + alan.width() / 2.0 - boy.width() / 2.0)),
              static_cast<int>(std::nearbyint(alan.y() + alan.height() / 2.0 - boy.height() / 2.0)));
}

Yanıt PenceredeGöster(const İstek& istek) {
    QWidget* sahip = QApplication::activeModalWidget();
    if (!sahip) sahip = QApplication::activeWindow();
    QMessageBox kutu(sahip);
    kutu.setObjectName(QStringLiteral("MesajKutusu"));
    kutu.setIcon(Resim(istek.simge));
    kutu.setTextFormat(Qt::PlainText);
    kutu.setText(istek.metin);
    kutu.setWindowTitle(istek.başlık.isEmpty() ? UygulamaBaşlığı : istek.başlık);
    if (istek.düğmeler == Düğmeler::Tamam) {
        kutu.setDefaultButton(kutu.addButton(Metin(MetinNo::Tamam), QMessageBox::AcceptRole));
    } else {
        QPushButton* evet = kutu.addButton(Metin(MetinNo::Evet), QMessageBox::YesRole);
        QPushButton* hayır = kutu.addButton(Metin(MetinNo::Hayır), QMessageBox::NoRole);
        kutu.setDefaultButton(istek.varsayılan == Yanıt::Hayır ? hayır : evet);
        kutu.setEscapeButton(hayır);
    }
    if (istek.ortala) {
        // The box knows its size once it is shown.
        QTimer::singleShot(0, &kutu, [&kutu, sahip] { ÜzerineOrtala(kutu, sahip); });
    }
    kutu.exec();
    if (istek.düğmeler == Düğmeler::Tamam) return Yanıt::Tamam;
    const bool evet = kutu.clickedButton() && kutu.buttonRole(kutu.clickedButton()) == QMessageBox::YesRole;
    return evet ? Yanıt::Evet : Yanıt::Hayır;
}

}  // namespace

Yanıt Göster(Simge simge, Düğmeler düğmeler, const QString& metin, const QString& başlık, Yanıt varsayılan) {
    const bool ortala = std::exchange(Ortalanacak, false);
    const İstek istek{simge, düğmeler, metin, başlık, düğmeler == Düğmeler::Tamam ? Yanıt::Tamam : varsayılan, ortala};
    return Gösterici ? Gösterici(istek) : PenceredeGöster(istek);
}

void GöstericiyiAyarla(std::function<Yanıt(const İstek&)> gösterici) {
    Gösterici = std::move(gösterici);
}

}  // namespace MesajKutusu

void MesajKutusuOrtala() {
    MesajKutusu::Ortalanacak = true;
}

bool Sor(const QString& soru) {
    MesajKutusuOrtala();
    return MesajKutusu::Göster(MesajKutusu::Simge::Soru, MesajKutusu::Düğmeler::EvetHayır, soru) ==
           MesajKutusu::Yanıt::Evet;
}

void BeklenmeyenHataGöster(const QString& neOldu) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                        Metin(MetinNo::BeklenmeyenHata) + QLatin1Char('\n') + neOldu);
}

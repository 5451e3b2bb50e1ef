#include "ApilerModulu.h"

#include <QGuiApplication>
#include <QPrinterInfo>
#include <QScreen>

#include <sys/utsname.h>
#include <unistd.h>

QString KullanıcıKimliği() {
    return QString::number(::geteuid());
}

bool SistemSürümünüAl(SistemSürümü& sürüm) {
    struct utsname ad {};
    if (::uname(&ad) != 0) return false;
    unsigned ana = 0;
    unsigned ikincil = 0;
    const QStringList parçalar = QString::fromLatin1(ad.release).split(QLatin1Char('.'));
    if (!parçalar.isEmpty()) ana = parçalar.at(0).toUInt();
    if (parçalar.size() > 1) ikincil = parçalar.at(1).toUInt();
    sürüm = {ana, ikincil, 0, QString()};
    return true;
}

int YazıcıSayısı() {
    return static_cast<int>(QPrinterInfo::availablePrinterNames().size());
}

int EkranGenişliği() {
    const QScreen* ekran = QGuiApplication::primaryScreen();
    return ekran ? ekran->size().width() : 0;
}

#include "TabloMetni.h"

QString TabloMetni(const QString& metin) {
    const bool formülGibi = !metin.isEmpty() && QStringLiteral("=+-@\t").contains(metin.front());
    return formülGibi ? QLatin1Char('\'') + metin : metin;
}

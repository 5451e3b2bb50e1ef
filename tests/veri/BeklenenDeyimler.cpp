#include "BeklenenDeyimler.h"

#include <gtest/gtest.h>

#include <QFile>

QList<BeklenenDeyim> BeklenenDeyimler() {
    QFile dosya(QStringLiteral(VARNEK_DEYIMLER));
    EXPECT_TRUE(dosya.open(QIODevice::ReadOnly)) << VARNEK_DEYIMLER;
    QList<BeklenenDeyim> deyimler;
    while (!dosya.atEnd()) {
        const QString satır = QString::fromUtf8(dosya.readLine()).chopped(1);  // without the line's end
        if (!satır.startsWith(QLatin1String("  "))) {
            deyimler.append({satır, {}});
        } else if (!deyimler.isEmpty()) {
            deyimler.last().Plan += satır.mid(2);
        }
    }
    EXPECT_FALSE(deyimler.isEmpty());
    return deyimler;
}

#include "OrtakFonksiyonlarModulu.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString SondaTersBöluYap(const QString& yol) {
    return yol.endsWith(QDir::separator()) ? yol : yol + QDir::separator();
}

bool DosyaVar(const QString& yol) {
    return QFileInfo::exists(yol);
}

QString KısaYolAl(const QString& yol) {
    QString kısa = yol;
    kısa.replace(QLatin1Char('%'), QLatin1String("%25"));
    kısa.replace(QLatin1Char(' '), QLatin1String("%20"));
    return kısa;
}

QString ProgramDosyalarıKlasörü() {
    return SondaTersBöluYap(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

std::optional<QDate> AyMetniniTariheÇevir(const QString& metin) {
    const qsizetype ilk = metin.indexOf(QLatin1Char('/'));
    if (ilk < 0) return std::nullopt;
    const qsizetype ikinci = metin.indexOf(QLatin1Char('/'), ilk + 1);
    if (ikinci < 0) return std::nullopt;
    bool ayTamam = false;
    bool günTamam = false;
    bool yılTamam = false;
    const int ay = metin.left(ilk).toInt(&ayTamam);
    const int gün = metin.mid(ilk + 1, ikinci - ilk - 1).toInt(&günTamam);
    int yıl = metin.mid(ikinci + 1).toInt(&yılTamam);
    if (!ayTamam || !günTamam || !yılTamam) return std::nullopt;
    if (yıl < 100) yıl += 1900;
    const QDate tarih(yıl, ay, gün);
    return tarih.isValid() ? std::optional(tarih) : std::nullopt;
}

QString AyMetni(QDate tarih) {
    return QString::number(tarih.month()) + QLatin1Char('/') + QString::number(tarih.day()) + QLatin1Char('/') +
           QString::number(tarih.year());
}

QString TarihDeğişmezi(QDate tarih) {
    return QLatin1Char('#') + AyMetni(tarih) + QLatin1Char('#');
}

#include "KayitYuzeyi.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace {

QString Sayı(double değer) {
    return QString::number(değer, 'f', 2);
}

}  // namespace

void KayıtYüzeyi::Çiz(double x1, double y1, double x2, double y2, QColor renk) {
    m_döküm += QStringList{"çizgi", Sayı(x1), Sayı(y1), Sayı(x2), Sayı(y2), renk.name()}.join(' ');
}

double KayıtYüzeyi::MetniKoy(const QString& metin, Yer yer) {
    const double genişlik = qMin(MetinGenişliği(metin), yer.Genişlik);
    Metinler.append({SayfaNo(), X(), Y(), genişlik, MetinGenişliği(metin), metin, yer});
    QString satır = QString("x=%1 y=%2 %3").arg(Sayı(X()), Sayı(Y())).arg(GeçerliYazı().Punto);
    if (GeçerliYazı().Kalın) satır += " kalın";
    if (GeçerliYazı().AltıÇizili) satır += " altı çizili";
    satır += " |" + metin + "|";
    if (yer.Genişlik != SINIRSIZ) satır += " yer=" + Sayı(yer.Genişlik);
    if (yer.Korunan > 0) satır += " korunan=" + QString::number(yer.Korunan);
    m_döküm.append(satır);
    return genişlik;
}

QList<KayıtYüzeyi::BasılıMetin> KayıtYüzeyi::Bul(const QString& metin) const {
    QList<BasılıMetin> bulunan;
    for (const BasılıMetin& m : Metinler)
        if (m.Metin == metin) bulunan.append(m);
    return bulunan;
}

QString KayıtYüzeyi::SayfaMetinleri(int sayfa) const {
    QStringList metinler;
    for (const BasılıMetin& m : Metinler)
        if (m.Sayfa == sayfa) metinler.append(m.Metin);
    return metinler.join('|');
}

void AltınlaKarşılaştır(const QString& ad, const QString& metin) {
    const QString dosyaAdı = ad + ".txt";
    QFile altın(QStringLiteral(VARNEK_ALTIN "/") + dosyaAdı);
    if (altın.open(QIODevice::ReadOnly) && QString::fromUtf8(altın.readAll()) == metin) return;

    QDir().mkpath(QStringLiteral(VARNEK_BIN "/altin"));
    QFile çıkan(QStringLiteral(VARNEK_BIN "/altin/") + dosyaAdı);
    ASSERT_TRUE(çıkan.open(QIODevice::WriteOnly));
    çıkan.write(metin.toUtf8());
    ADD_FAILURE() << dosyaAdı.toStdString() << " is not there or differs; see " << çıkan.fileName().toStdString();
}

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
    m_döküm.append(QStringList{QStringLiteral("çizgi"), Sayı(x1), Sayı(y1), Sayı(x2), Sayı(y2), renk.name()}.join(
        QLatin1Char(' ')));
}

double KayıtYüzeyi::MetniKoy(const QString& metin, Yer yer) {
    const double genişlik = qMin(MetinGenişliği(metin), yer.Genişlik);
    Metinler.append({SayfaNo(), X(), Y(), genişlik, MetinGenişliği(metin), GeçerliYazı(), metin, yer});
    QString satır = QStringLiteral("x=") + Sayı(X()) + QStringLiteral(" y=") + Sayı(Y()) + QStringLiteral(" ") +
                    QString::number(GeçerliYazı().Punto);
    if (GeçerliYazı().Kalın) satır += QStringLiteral(" kalın");
    if (GeçerliYazı().AltıÇizili) satır += QStringLiteral(" altı çizili");
    satır += QStringLiteral(" |") + metin + QStringLiteral("|");
    if (yer.Genişlik != SINIRSIZ) satır += QStringLiteral(" yer=") + Sayı(yer.Genişlik);
    if (yer.Korunan > 0) satır += QStringLiteral(" korunan=") + QString::number(yer.Korunan);
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
    const QString dosyaAdı = ad + QStringLiteral(".txt");
    QFile altın(QStringLiteral(VARNEK_ALTIN "/") + dosyaAdı);
    const bool var = altın.open(QIODevice::ReadOnly);
    EXPECT_TRUE(var) << "no golden text " << altın.fileName().toStdString();
    const QString beklenen = var ? QString::fromUtf8(altın.readAll()) : QString();
    if (beklenen == metin) return;

    QDir().mkpath(QStringLiteral(VARNEK_BIN "/altin"));
    QFile çıkan(QStringLiteral(VARNEK_BIN "/altin/") + dosyaAdı);
    ASSERT_TRUE(çıkan.open(QIODevice::WriteOnly));
    çıkan.write(metin.toUtf8());
    ADD_FAILURE() << dosyaAdı.toStdString() << " differs from the golden text; see " << çıkan.fileName().toStdString();
}

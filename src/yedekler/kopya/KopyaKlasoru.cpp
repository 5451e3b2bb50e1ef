#include "KopyaKlasoru.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

#include "ApilerModulu.h"

namespace {

constexpr int EN_UZUN_AD = 40;
const QString NOT_ADI = QStringLiteral("yer.txt");

// Letters and digits stay, so that the name can be read and any file system takes it.
QString OkunurAd(const QString& dosya) {
    QString ad = QFileInfo(QFileInfo(dosya).path()).fileName().left(EN_UZUN_AD);
    for (QChar& harf : ad)
        if (!harf.isLetterOrNumber() && harf != QLatin1Char('-') && harf != QLatin1Char(' ')) harf = QLatin1Char('_');
    return ad.trimmed().isEmpty() ? QStringLiteral("Varnek") : ad.trimmed();
}

}  // namespace

QString KopyaKlasörü(const QString& kök, const QString& dosya, const QString& damga) {
    constexpr int hane = 8;
    const QByteArray özet =
        QCryptographicHash::hash((dosya + QLatin1Char('\n') + damga).toUtf8(), QCryptographicHash::Sha256);
    return kök + OkunurAd(dosya) + QLatin1Char(' ') + QString::fromLatin1(özet.toHex().left(hane)) + QDir::separator();
}

bool KopyaKlasörünüYap(const QString& klasör, const QString& dosya) {
    if (!KlasörYap(klasör)) return false;
    if (QFileInfo(klasör + NOT_ADI).size() > 0) return true;
    QSaveFile not_(klasör + NOT_ADI);
    const QByteArray yol = dosya.toUtf8() + '\n';
    return not_.open(QIODevice::WriteOnly) && not_.write(yol) == yol.size() && not_.flush() && not_.commit();
}

std::vector<Kopya> KopyalarıOku(const QString& klasör) {
    std::vector<Kopya> kopyalar;
    const QFileInfoList dosyalar = QDir(klasör).entryInfoList({QStringLiteral("*.ydk")}, QDir::Files);
    for (const QFileInfo& dosya : dosyalar)
        if (const std::optional<KopyaAdı> ad = KopyaAdınıOku(dosya.fileName()))
            kopyalar.push_back({dosya.filePath(), *ad, dosya.size()});
    std::sort(kopyalar.begin(), kopyalar.end(), [](const Kopya& a, const Kopya& b) { return a.Ad.Sıra > b.Ad.Sıra; });
    return kopyalar;
}

std::vector<KopyaYeri> KopyaYerleri(const QString& kök) {
    std::vector<KopyaYeri> yerler;
    const QFileInfoList klasörler = QDir(kök).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& klasör : klasörler) {
        const QString yol = klasör.filePath() + QDir::separator();
        if (KopyalarıOku(yol).empty()) continue;
        QFile not_(yol + NOT_ADI);
        const bool okundu = not_.open(QIODevice::ReadOnly);
        yerler.push_back({yol, okundu ? QString::fromUtf8(not_.readLine()).trimmed() : QString()});
    }
    return yerler;
}

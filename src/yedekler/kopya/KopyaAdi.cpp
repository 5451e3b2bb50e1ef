#include "KopyaAdi.h"

#include <QRegularExpression>

namespace {

QString Ek(KopyaTürü tür) {
    switch (tür) {
        case KopyaTürü::Elle:
            return QStringLiteral(" elle");
        case KopyaTürü::Önce:
            return QStringLiteral(" once");
        case KopyaTürü::Ham:
            return QStringLiteral(" ham");
        case KopyaTürü::Günlük:
            break;
    }
    return {};
}

}  // namespace

QString KopyaAdınıYaz(const KopyaAdı& ad) {
    return QStringLiteral("Varnek %1 %2%3.ydk")
        .arg(ad.Değişme.toString(QStringLiteral("yyyy-MM-dd HHmm")))
        .arg(ad.Sıra, 6, 10, QLatin1Char('0'))
        .arg(Ek(ad.Tür));
}

std::optional<KopyaAdı> KopyaAdınıOku(const QString& dosyaAdı) {
    static const QRegularExpression biçim(
        QStringLiteral("^Varnek (\\d{4}-\\d\\d-\\d\\d \\d{4}) (\\d{6,9})( elle| once| ham)?\\.ydk$"));
    const QRegularExpressionMatch eşleşme = biçim.match(dosyaAdı);
    if (!eşleşme.hasMatch()) return std::nullopt;
    KopyaAdı ad;
    const QStringList parçalar = eşleşme.captured(1).split(QLatin1Char(' '));
    const QDate gün = QDate::fromString(parçalar.at(0), Qt::ISODate);
    const QTime saat = QTime::fromString(parçalar.at(1), QStringLiteral("HHmm"));
    if (!gün.isValid() || !saat.isValid()) return std::nullopt;
    ad.Değişme = QDateTime(gün, saat);
    ad.Sıra = eşleşme.captured(2).toInt();
    for (const KopyaTürü tür : {KopyaTürü::Elle, KopyaTürü::Önce, KopyaTürü::Ham})
        if (eşleşme.captured(3) == Ek(tür)) ad.Tür = tür;
    return ad;
}

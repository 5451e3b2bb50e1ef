#include "KayitYeri.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "MesajKutusu.h"
#include "MetinTablosu.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

constexpr qsizetype EnUzunDosyaAdı = 100;

// The document's name without the signs that file systems do not take.
QString DosyaAdı(QString ad, const QString& uzantı) {
    for (QChar& harf : ad) {
        if (harf < QLatin1Char(' ') || QStringLiteral("/\\:*?\"<>|").contains(harf)) harf = QLatin1Char('-');
    }
    return ad.left(EnUzunDosyaAdı).trimmed() + QLatin1Char('.') + uzantı;
}

bool ÜzerineYazılsınMı(const QString& yol) {
    MesajKutusuOrtala();
    return MesajKutusu::Göster(Simge::Soru, Düğmeler::EvetHayır,
                               Metin(MetinNo::ÜzerineYazmaSorusu) + QLatin1Char('\n') + yol, {},
                               Yanıt::Hayır) == Yanıt::Evet;
}

}  // namespace

QString KaydedilecekYer(QWidget& form, const QString& ad, const KayıtTürü& tür) {
    static QString klasör = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog kutu(&form, Metin(tür.Başlık), klasör, Metin(tür.Süzgeç));
    kutu.setObjectName(tür.KutuAdı);
    kutu.setAcceptMode(QFileDialog::AcceptSave);
    kutu.setDefaultSuffix(tür.Uzantı);
    kutu.setOption(QFileDialog::DontConfirmOverwrite);
    kutu.selectFile(DosyaAdı(ad, tür.Uzantı));
    while (kutu.exec() == QDialog::Accepted) {
        const QString yol = kutu.selectedFiles().value(0);
        if (QFileInfo::exists(yol) && !ÜzerineYazılsınMı(yol)) continue;
        klasör = QFileInfo(yol).absolutePath();
        return yol;
    }
    return {};
}

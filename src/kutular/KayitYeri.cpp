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

QString SeçilenUzantı(const QFileDialog& kutu, const KayıtTürü& tür, const QString& süzgeç) {
    const qsizetype sıra = kutu.nameFilters().indexOf(süzgeç);
    return sıra > 0 ? tür.Diğerleri.value(sıra - 1, tür.Uzantı) : tür.Uzantı;
}

// A dot in the name alone ("Liste 12.11") makes no kind of file.
QString UzantıylaBitir(const QString& yol, const KayıtTürü& tür, const QString& uzantı) {
    if (tür.Diğerleri.isEmpty()) return yol;
    for (const QString& bilinen : tür.Diğerleri + QStringList(tür.Uzantı))
        if (yol.endsWith(QLatin1Char('.') + bilinen, Qt::CaseInsensitive)) return yol;
    return yol + QLatin1Char('.') + uzantı;
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
    QObject::connect(&kutu, &QFileDialog::filterSelected, &kutu,
                     [&kutu, &tür](const QString& süzgeç) { kutu.setDefaultSuffix(SeçilenUzantı(kutu, tür, süzgeç)); });
    while (kutu.exec() == QDialog::Accepted) {
        const QString yol = UzantıylaBitir(kutu.selectedFiles().value(0), tür, kutu.defaultSuffix());
        if (QFileInfo::exists(yol) && !ÜzerineYazılsınMı(yol)) continue;
        klasör = QFileInfo(yol).absolutePath();
        return yol;
    }
    return {};
}

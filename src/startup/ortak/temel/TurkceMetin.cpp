#include "TurkceMetin.h"

#include "TurkceSira.h"

namespace {

bool SatırKeser(QChar harf) {
    return (harf >= u'\t' && harf <= u'\r') || harf == QChar(0x85) || harf == QChar::LineSeparator ||
           harf == QChar::ParagraphSeparator;
}

}  // namespace

QString TekSatır(const QString& metin) {
    QString sonuç;
    sonuç.reserve(metin.size());
    bool öncekiKeser = false;
    for (const QChar harf : metin) {
        const bool keser = SatırKeser(harf);
        if (!keser) sonuç += harf;
        if (keser && !öncekiKeser) sonuç += u' ';
        öncekiKeser = keser;
    }
    return sonuç;
}

QString TürkçeBaşHarfBüyüt(const QString& metin) {
    QString sonuç = metin.trimmed();
    bool sözBaşı = true;
    for (QChar& harf : sonuç) {
        harf = QChar(sözBaşı ? Türkçe::Büyük(harf.unicode()) : Türkçe::Küçük(harf.unicode()));
        sözBaşı = harf == u' ' || harf == u'\t';
    }
    return sonuç;
}

QString TürkçeBüyükHarf(const QString& metin) {
    QString sonuç = metin;
    for (QChar& harf : sonuç) harf = QChar(Türkçe::Büyük(harf.unicode()));
    return sonuç;
}

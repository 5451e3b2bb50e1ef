#include "TurkceMetin.h"

#include "TurkceSira.h"

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

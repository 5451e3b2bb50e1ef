#include "TurkceMetin.h"

#include <QStringDecoder>
#include <algorithm>

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

QString GörünmezleriAt(QString metin) {
    return metin.removeIf([](QChar harf) {
        const char16_t kod = harf.unicode();
        return kod == 0xFEFF || kod == 0x200B || kod == 0x200E || kod == 0x200F || (kod >= 0x202A && kod <= 0x202E) ||
               (kod >= 0x2060 && kod <= 0x2069);
    });
}

QString Utf8Metni(std::string_view baytlar) {
    const QByteArrayView görünüm(baytlar.data(), static_cast<qsizetype>(baytlar.size()));
    if (!baytlar.starts_with("\xEF\xBB\xBF")) return QString::fromUtf8(görünüm);
    return QStringDecoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom)(görünüm);
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

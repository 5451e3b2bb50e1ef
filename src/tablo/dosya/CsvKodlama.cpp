#include "CsvKodlama.h"

#include <QStringDecoder>

#include "Utf8.h"
#include "Windows1254.h"

KodluMetin KodlamayıÇöz(QByteArray dosya) {
    if (dosya.startsWith("\xEF\xBB\xBF")) {
        dosya.remove(0, 3);
    } else if (dosya.startsWith("\xFF\xFE") || dosya.startsWith("\xFE\xFF")) {
        QStringDecoder çözücü(QStringConverter::Utf16);
        const QString metin = çözücü(dosya);
        return {metin.toUtf8(), MetinKodlaması::Utf8};
    }
    const bool utf8 = Utf8Geçerli(std::string_view(dosya.constData(), static_cast<std::size_t>(dosya.size())));
    return {std::move(dosya), utf8 ? MetinKodlaması::Utf8 : MetinKodlaması::Windows1254};
}

QString MetneÇevir(std::string_view baytlar, MetinKodlaması kodlama) {
    const auto boy = static_cast<qsizetype>(baytlar.size());
    if (kodlama == MetinKodlaması::Utf8) return QString::fromUtf8(baytlar.data(), boy);
    QString metin(boy, Qt::Uninitialized);
    for (qsizetype i = 0; i < boy; ++i) metin[i] = Windows1254Harfi(static_cast<unsigned char>(baytlar[i]));
    return metin;
}

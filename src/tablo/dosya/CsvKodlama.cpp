#include "CsvKodlama.h"

#include <QStringDecoder>

#include "Utf8.h"

namespace {

// Windows-1254 from 0x80 to 0x9F; 0: no letter. From 0xA0 on it is Latin-1 but for the six Turkish letters.
constexpr char16_t Yüksek[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                 0x2039, 0x0152, 0,      0,      0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0,      0x0178};

char16_t Windows1254Harfi(unsigned char bayt) {
    if (bayt >= 0x80 && bayt < 0xA0) return Yüksek[bayt - 0x80] ? Yüksek[bayt - 0x80] : u'\uFFFD';
    switch (bayt) {
        case 0xD0:
            return u'Ğ';
        case 0xDD:
            return u'İ';
        case 0xDE:
            return u'Ş';
        case 0xF0:
            return u'ğ';
        case 0xFD:
            return u'ı';
        case 0xFE:
            return u'ş';
        default:
            return bayt;
    }
}

}  // namespace

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

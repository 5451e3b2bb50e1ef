#include "ParaIsareti.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "TurkceSira.h"

namespace {

bool Eşit(QStringView a, QStringView b) {
    return Türkçe::Karşılaştır(a, b) == 0;
}

bool BaşkaParaSözüMü(QStringView söz) {
    constexpr std::array sözler{u"USD", u"EUR", u"EURO", u"AVRO", u"DOLAR", u"DOLLAR", u"GBP", u"STERLİN", u"STERLIN",
                                u"CHF", u"JPY", u"CNY",  u"RMB",  u"RUB",   u"RUBLE",  u"AED", u"SAR",     u"AZN",
                                u"BGN", u"RON", u"GEL",  u"CAD",  u"AUD",   u"SEK",    u"NOK", u"DKK",     u"PLN"};
    return std::any_of(sözler.begin(), sözler.end(), [söz](const char16_t* s) { return Eşit(söz, QStringView(s)); });
}

}  // namespace

bool TürkParasıMı(QStringView söz) {
    return söz == u"₺" || Eşit(söz, u"TL") || Eşit(söz, u"TRY");
}

Paraİşareti ParaİşaretiAra(QStringView metin) {
    Paraİşareti bulunan;
    for (qsizetype yer = 0; yer < metin.size();) {
        qsizetype son = yer + 1;
        if (metin[yer].isLetter())
            while (son < metin.size() && metin[son].isLetter()) ++son;
        const QStringView söz = metin.mid(yer, son - yer);
        if (metin[yer].category() == QChar::Symbol_Currency ? söz != u"₺" : BaşkaParaSözüMü(söz))
            return {ParaCinsi::Başka, söz.toString()};
        if (bulunan.Cins == ParaCinsi::Yok && TürkParasıMı(söz)) bulunan = {ParaCinsi::Türk, söz.toString()};
        yer = son;
    }
    return bulunan;
}

#include "FiyatYazimi.h"

#include <QDate>
#include <algorithm>

#include "DegiskenModulu.h"
#include "SayiMetni.h"

namespace {

// The decimals that a price has.
int BasamakSayısı(Para fiyat) {
    std::int64_t sayım = fiyat.OnBindeBir();
    int basamak = 4;
    while (basamak > 0 && sayım % 10 == 0) {
        sayım /= 10;
        --basamak;
    }
    return basamak;
}

}  // namespace

QString FiyatMetni(Para fiyat) {
    return SayıBiçimle(fiyat, std::max(BasamakSayısı(fiyat), OndalıkBasamak));
}

QString SayıYazımı(Para sayı) {
    return SayıBiçimle(sayı, BasamakSayısı(sayı));
}

QString GünMetni(const QString& gün) {
    return QDate::fromString(gün, Qt::ISODate).toString(QStringLiteral("dd.MM.yyyy"));
}

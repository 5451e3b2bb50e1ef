#include "SayiMetni.h"

#include <limits>

namespace {

// Lists show tens of thousands of figures: the text is put together at once.
QString Biçimle(Ondalık sayı, int basamak) {
    sayı = Yuvarla(std::move(sayı), basamak, Yarım::SıfırdanUzağa);
    const std::size_t tam = sayı.Tam().size();
    const std::size_t boy = sayı.Rakamlar.size() + (sayı.Eksi ? 1 : 0) + (tam - 1) / 3 + (basamak > 0 ? 1 : 0);
    QString metin(static_cast<qsizetype>(boy), Qt::Uninitialized);
    QChar* yer = metin.data();
    if (sayı.Eksi) *yer++ = u'-';
    for (std::size_t sıra = 0; sıra < sayı.Rakamlar.size(); ++sıra) {
        if (sıra == tam)
            *yer++ = u',';
        else if (sıra > 0 && sıra < tam && (tam - sıra) % 3 == 0)
            *yer++ = u'.';
        *yer++ = QLatin1Char(sayı.Rakamlar[sıra]);
    }
    return metin;
}

}  // namespace

std::optional<Ondalık> OndalıkOku(QStringView metin, NoktaKuralı kural) {
    return SayıÇöz(std::u16string_view(metin.utf16(), metin.size()), kural,
                   [](char16_t h) { return QChar::isSpace(h); });
}

bool SayıMı(QStringView metin, NoktaKuralı kural) {
    return OndalıkOku(metin, kural).has_value();
}

std::optional<Para> ParaOku(QStringView metin, NoktaKuralı kural) {
    const auto sayı = OndalıkOku(metin, kural);
    return sayı ? Para::Ondalıktan(*sayı) : std::nullopt;
}

std::optional<double> DoubleOku(QStringView metin, NoktaKuralı kural) {
    const auto sayı = OndalıkOku(metin, kural);
    return sayı ? EnYakınDouble(*sayı) : std::nullopt;
}

bool DoubleSaklar(QStringView metin, NoktaKuralı kural) {
    const auto sayı = OndalıkOku(metin, kural);
    if (!sayı) return false;
    const std::string& rakamlar = sayı->Rakamlar;
    const std::size_t ilk = rakamlar.find_first_not_of('0');
    return ilk == std::string::npos || rakamlar.find_last_not_of('0') - ilk < std::numeric_limits<double>::digits10;
}

QString SayıBiçimle(Para değer, int basamak) {
    return Biçimle(Ölçekten(değer.OnBindeBir()), basamak);
}

QString SayıBiçimle(const Ondalık& değer, int basamak) {
    return Biçimle(değer, basamak);
}

std::optional<QString> SayıBiçimle(double değer, int basamak) {
    auto sayı = OnBeşHaneyle(değer);
    if (!sayı) return std::nullopt;
    return Biçimle(*std::move(sayı), basamak);
}

std::optional<QString> SayıMetniBiçimle(QStringView metin, int basamak, NoktaKuralı kural) {
    auto sayı = OndalıkOku(metin, kural);
    if (!sayı) return std::nullopt;
    return Biçimle(*std::move(sayı), basamak);
}

QString NoktayıVirgüleÇevir(const QString& metin) {
    QString sonuç = metin;
    const qsizetype nokta = sonuç.indexOf(QChar(u'.'));
    if (nokta >= 0) sonuç[nokta] = QChar(u',');
    return sonuç;
}

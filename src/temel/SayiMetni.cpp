#include "SayiMetni.h"

#include <limits>

namespace {

bool RakamMı(QChar harf) {
    return harf >= u'0' && harf <= u'9';
}

// The dots before the comma: every group behind a dot has three digits, the first one to three and no 0 in front
// ("0.500" is somebody's decimal point).
bool NoktalarYerinde(QStringView tam) {
    if (tam.startsWith(u'0') && tam.contains(u'.')) return false;
    qsizetype sağdan = 0;
    bool noktaVar = false;
    for (qsizetype yer = tam.size() - 1; yer >= 0; --yer, ++sağdan) {
        const bool noktaYeri = sağdan % 4 == 3;
        if (tam[yer] == u'.') {
            if (!noktaYeri || yer == 0) return false;
            noktaVar = true;
        } else if (noktaYeri && noktaVar) {
            return false;
        }
    }
    return true;
}

// The digits of `metin`; false when it holds anything else.
bool RakamlarıAl(QStringView metin, bool noktaOlur, std::string& rakamlar) {
    for (const QChar harf : metin) {
        if (RakamMı(harf))
            rakamlar += static_cast<char>(harf.unicode());
        else if (harf != u'.' || !noktaOlur)
            return false;
    }
    return true;
}

// Lists show tens of thousands of figures: the text is put together at once.
QString Biçimle(const Ondalık& sayı, int basamak) {
    const Ondalık yuvarlanmış = Yuvarla(sayı, basamak, Yarım::SıfırdanUzağa);
    const std::string& tam = yuvarlanmış.Tam;
    std::string metin(yuvarlanmış.Eksi ? "-" : "");
    for (std::size_t yer = 0; yer < tam.size(); ++yer) {
        if (yer > 0 && (tam.size() - yer) % 3 == 0) metin += '.';
        metin += tam[yer];
    }
    if (basamak > 0) metin.append(1, ',').append(yuvarlanmış.Kesir);
    return QString::fromLatin1(metin);
}

}  // namespace

std::optional<Ondalık> OndalıkOku(QStringView metin, NoktaKuralı kural) {
    metin = metin.trimmed();
    Ondalık sayı;
    if (metin.startsWith(u'-') || metin.startsWith(u'+')) {
        sayı.Eksi = metin.front() == u'-';
        metin = metin.mid(1).trimmed();
    }
    const qsizetype virgül = metin.indexOf(u',');
    const QStringView tam = virgül < 0 ? metin : metin.first(virgül);
    const QStringView kesir = virgül < 0 ? QStringView() : metin.sliced(virgül + 1);
    if (kural == NoktaKuralı::Yerinde && !NoktalarYerinde(tam)) return std::nullopt;
    if (!RakamlarıAl(tam, true, sayı.Tam) || !RakamlarıAl(kesir, false, sayı.Kesir)) return std::nullopt;
    if (sayı.Tam.empty() && sayı.Kesir.empty()) return std::nullopt;

    sayı.Tam.erase(0, sayı.Tam.find_first_not_of('0'));
    if (sayı.Tam.empty()) sayı.Tam += '0';
    const int basamak = static_cast<int>(sayı.Kesir.size());
    return Yuvarla(std::move(sayı), basamak, Yarım::Çifte);  // takes the sign from a zero
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
    const std::string rakamlar = sayı->Tam + sayı->Kesir;
    const std::size_t ilk = rakamlar.find_first_not_of('0');
    return ilk == std::string::npos || rakamlar.find_last_not_of('0') - ilk < std::numeric_limits<double>::digits10;
}

QString SayıBiçimle(Para değer, int basamak) {
    return Biçimle(Ölçekten(değer.OnBindeBir(), 4), basamak);
}

QString SayıBiçimle(const Ondalık& değer, int basamak) {
    return Biçimle(değer, basamak);
}

std::optional<QString> SayıBiçimle(double değer, int basamak) {
    const auto sayı = OnBeşHaneyle(değer);
    if (!sayı) return std::nullopt;
    return Biçimle(*sayı, basamak);
}

std::optional<QString> SayıMetniBiçimle(QStringView metin, int basamak, NoktaKuralı kural) {
    const auto sayı = OndalıkOku(metin, kural);
    if (!sayı) return std::nullopt;
    return Biçimle(*sayı, basamak);
}

QString NoktayıVirgüleÇevir(const QString& metin) {
    QString sonuç = metin;
    const qsizetype nokta = sonuç.indexOf(QChar(u'.'));
    if (nokta >= 0) sonuç[nokta] = QChar(u',');
    return sonuç;
}

#include "FiyatMetni.h"

#include <utility>

#include "ParaIsareti.h"
#include "SayiMetni.h"
#include "TurkceMetin.h"

namespace {

// The text without one Turkish currency at either end, and without blanks at both.
QStringView ParasızMetin(QStringView metin) {
    metin = metin.trimmed();
    for (const qsizetype boy : {1, 2, 3}) {
        if (boy >= metin.size()) break;
        if (TürkParasıMı(metin.first(boy))) return metin.sliced(boy).trimmed();
        if (TürkParasıMı(metin.last(boy))) return metin.chopped(boy).trimmed();
    }
    return metin;
}

std::optional<Ondalık> NoktalıOku(QStringView metin) {
    QString çevrik = metin.toString();
    for (QChar& harf : çevrik) {
        if (harf == u'.')
            harf = u',';
        else if (harf == u',')
            harf = u'.';
    }
    return OndalıkOku(çevrik, NoktaKuralı::Yerinde);
}

// Whether both are one number; needless zeros at the end do not matter, as both come from the same digits.
bool Eşit(const Ondalık& a, const Ondalık& b) {
    return a.Tam() == b.Tam() && a.Kesir() == b.Kesir();
}

OkunanFiyat Olumlu(FiyatTürü tür, Ondalık değer) {
    if (değer.Eksi) return {FiyatTürü::Okunamaz, OkunamazNedeni::Eksi, {}};
    return {tür, OkunamazNedeni::Yok, std::move(değer)};
}

}  // namespace

OkunanFiyat FiyatOku(const ÇizelgeHücresi& hücre, Ondalıkİmi im) {
    switch (hücre.Tür) {
        case ÇizelgeHücreTürü::Boş:
            return {};
        case ÇizelgeHücreTürü::Metin:
            return FiyatMetniOku(hücre.Metin, im);
        case ÇizelgeHücreTürü::Sayı:
            if (auto sayı = HücreSayısı(hücre)) return Olumlu(FiyatTürü::Sayı, *std::move(sayı));
            return {FiyatTürü::Okunamaz, OkunamazNedeni::Bozuk, {}};
        case ÇizelgeHücreTürü::Okunamaz:
            break;
    }
    return {FiyatTürü::Okunamaz, hücre.Neden, {}};
}

OkunanFiyat FiyatMetniOku(QStringView metin, Ondalıkİmi im) {
    if (metin.trimmed().isEmpty()) return {};
    const QStringView sayı = ParasızMetin(metin);
    auto virgüllü = im == Ondalıkİmi::Nokta ? std::nullopt : OndalıkOku(sayı, NoktaKuralı::Yerinde);
    auto noktalı = im == Ondalıkİmi::Virgül ? std::nullopt : NoktalıOku(sayı);
    if (virgüllü && noktalı && !Eşit(*virgüllü, *noktalı)) return Olumlu(FiyatTürü::Kuşkulu, *std::move(virgüllü));
    if (virgüllü) return Olumlu(FiyatTürü::Sayı, *std::move(virgüllü));
    if (noktalı) return Olumlu(FiyatTürü::Sayı, *std::move(noktalı));
    const bool başkaPara = ParaİşaretiAra(metin).Cins == ParaCinsi::Başka;
    const bool yüzde = metin.contains(u'%');
    return {FiyatTürü::Okunamaz,
            başkaPara ? OkunamazNedeni::BaşkaPara
            : yüzde   ? OkunamazNedeni::Yüzde
                      : OkunamazNedeni::Anlaşılmadı,
            {}};
}

QString ListeAdı(const QString& metin) {
    QString ad = GörünmezleriAt(metin).normalized(QString::NormalizationForm_C).simplified();
    ad.replace(u'\'', u'’');
    return ad;
}

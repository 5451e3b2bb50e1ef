#include <algorithm>
#include <utility>

#include "Cizelge.h"
#include "SayiCozumu.h"

namespace {

constexpr int EnUzunÜs = 400;
constexpr std::size_t AnlamlıHane = 15;

// Moves the decimal mark `kayma` digits to the right.
void Kaydır(Ondalık& sayı, int kayma) {
    if (kayma >= 0) {
        const auto adım = static_cast<std::size_t>(kayma);
        if (sayı.Basamak < adım) sayı.Rakamlar.append(adım - sayı.Basamak, '0');
        sayı.Basamak -= std::min(sayı.Basamak, adım);
    } else {
        sayı.Basamak += static_cast<std::size_t>(-kayma);
        if (sayı.Rakamlar.size() <= sayı.Basamak) sayı.Rakamlar.insert(0, sayı.Basamak + 1 - sayı.Rakamlar.size(), '0');
    }
    const std::size_t gereksiz = std::min(sayı.Rakamlar.find_first_not_of('0'), sayı.Rakamlar.size());
    sayı.Rakamlar.erase(0, std::min(gereksiz, sayı.Rakamlar.size() - sayı.Basamak - 1));
}

Ondalık AnlamlıHaneyle(Ondalık sayı) {
    const std::size_t ilk = sayı.Rakamlar.find_first_not_of('0');
    if (ilk == std::string::npos || sayı.Rakamlar.size() - ilk <= AnlamlıHane) return sayı;
    const std::size_t fazla = sayı.Rakamlar.size() - ilk - AnlamlıHane;
    if (fazla > sayı.Basamak) return sayı;  // a whole number of more digits is no noise
    const int kalan = static_cast<int>(sayı.Basamak - fazla);
    sayı = Yuvarla(std::move(sayı), kalan, Yarım::SıfırdanUzağa);
    for (; sayı.Basamak > 0 && sayı.Rakamlar.back() == '0'; --sayı.Basamak) sayı.Rakamlar.pop_back();
    return sayı;
}

}  // namespace

ÇizelgeHücresi ÇizelgeHücresi::Yazı(QString metin) {
    ÇizelgeHücresi hücre;
    if (!metin.isEmpty()) hücre.Tür = ÇizelgeHücreTürü::Metin;
    hücre.Metin = std::move(metin);
    return hücre;
}

ÇizelgeHücresi ÇizelgeHücresi::Rakam(QString değer, QString metin) {
    ÇizelgeHücresi hücre;
    hücre.Tür = ÇizelgeHücreTürü::Sayı;
    hücre.Metin = std::move(metin);
    hücre.Değer = std::move(değer);
    if (!HücreSayısı(hücre)) return Okunmaz(OkunamazNedeni::Bozuk, std::move(hücre.Metin));
    return hücre;
}

ÇizelgeHücresi ÇizelgeHücresi::Okunmaz(OkunamazNedeni neden, QString metin) {
    ÇizelgeHücresi hücre;
    hücre.Tür = ÇizelgeHücreTürü::Okunamaz;
    hücre.Neden = neden;
    hücre.Metin = std::move(metin);
    return hücre;
}

std::optional<Ondalık> HücreSayısı(const ÇizelgeHücresi& hücre) {
    if (hücre.Tür != ÇizelgeHücreTürü::Sayı) return std::nullopt;
    const QStringView metin(hücre.Değer);
    qsizetype e = metin.indexOf(u'E', 0, Qt::CaseInsensitive);
    int üs = 0;
    if (e >= 0) {
        bool tamam = false;
        üs = metin.mid(e + 1).toInt(&tamam);
        if (!tamam || üs > EnUzunÜs || üs < -EnUzunÜs) return std::nullopt;
    } else {
        e = metin.size();
    }
    const auto boşlukYok = [](char16_t) { return false; };
    auto sayı = SayıÇöz(std::u16string_view(metin.utf16(), e), NoktaKuralı::Virgül, boşlukYok);
    if (!sayı) return std::nullopt;
    if (üs != 0) Kaydır(*sayı, üs);
    return AnlamlıHaneyle(*std::move(sayı));
}

const ÇizelgeHücresi& ÇizelgeSatırı::Sütun(int sıra) const {
    static const ÇizelgeHücresi boş;
    return sıra >= 0 && static_cast<std::size_t>(sıra) < Hücreler.size() ? Hücreler[sıra] : boş;
}

bool ÇizelgeSatırı::BoşMu() const {
    return std::all_of(Hücreler.begin(), Hücreler.end(),
                       [](const ÇizelgeHücresi& h) { return h.Tür == ÇizelgeHücreTürü::Boş; });
}

#include "FiyatKurali.h"

#include <limits>

#include "Ondalik.h"

namespace {

__extension__ using Geniş = __int128;

Geniş OrtakBölen(Geniş a, Geniş b) {
    if (a < 0) a = -a;
    while (b != 0) {
        const Geniş kalan = a % b;
        a = b;
        b = kalan;
    }
    return a;
}

std::optional<Geniş> Çarp(Geniş a, Geniş b) {
    Geniş sonuç = 0;
    if (__builtin_mul_overflow(a, b, &sonuç)) return std::nullopt;
    return sonuç;
}

int Yön(Para eski, Para yeni) {
    return yeni > eski ? 1 : yeni < eski ? -1 : 0;
}

}  // namespace

KesinTutar::KesinTutar(Para tutar) : m_pay(tutar.OnBindeBir()), m_payda(1) {}

std::optional<KesinTutar> KesinTutar::Ondalıktan(const Ondalık& sayı) {
    constexpr std::size_t azamiRakam = 34;  // within 128 bits with the four digits of the ten-thousandths
    if (sayı.Tam().size() + sayı.Kesir().size() > azamiRakam) return std::nullopt;
    Geniş pay = 0;
    Geniş payda = 1;
    for (const char rakam : sayı.Tam()) pay = pay * 10 + (rakam - '0');
    for (const char rakam : sayı.Kesir()) {
        pay = pay * 10 + (rakam - '0');
        payda *= 10;
    }
    return Oranla(sayı.Eksi ? -pay : pay, payda, Para::Ölçek, 1);
}

std::optional<KesinTutar> KesinTutar::Oranla(Sayı pay, Sayı payda, Sayı çarpan, Sayı bölen) {
    const Geniş ilk = OrtakBölen(pay, bölen);
    const Geniş ikinci = OrtakBölen(çarpan, payda);
    const auto yeniPay = Çarp(pay / ilk, çarpan / ikinci);
    const auto yeniPayda = Çarp(payda / ikinci, bölen / ilk);
    if (!yeniPay || !yeniPayda) return std::nullopt;
    return KesinTutar(*yeniPay, *yeniPayda);
}

std::optional<KesinTutar> KesinTutar::YüzdeEkle(Para yüzde) const {
    constexpr Geniş yüz = 100 * Para::Ölçek;
    return Oranla(m_pay, m_payda, yüz + yüzde.OnBindeBir(), yüz);
}

std::optional<KesinTutar> KesinTutar::Ekle(Para tutar) const {
    const auto eklenen = Çarp(m_payda, tutar.OnBindeBir());
    Geniş pay = 0;
    if (!eklenen || __builtin_add_overflow(m_pay, *eklenen, &pay)) return std::nullopt;
    return KesinTutar(pay, m_payda);
}

std::optional<KesinTutar> KesinTutar::Kat(Para çarpan) const {
    return Oranla(m_pay, m_payda, çarpan.OnBindeBir(), Para::Ölçek);
}

std::optional<KesinTutar> KesinTutar::Böl(Para bölen) const {
    return Oranla(m_pay, m_payda, Para::Ölçek, bölen.OnBindeBir());
}

std::optional<Para> Yuvarla(const KesinTutar& tutar, const Yuvarlama& yuvarlama) {
    const Geniş adım = yuvarlama.Adım > 0 ? yuvarlama.Adım : 1;
    const auto payda = Çarp(tutar.m_payda, adım);
    if (!payda) return std::nullopt;
    Geniş bölüm = tutar.m_pay / *payda;  // towards zero
    const Geniş kalan = tutar.m_pay % *payda;
    const Geniş işaret = tutar.m_pay < 0 ? -1 : 1;
    const Geniş büyüklük = kalan < 0 ? -kalan : kalan;
    const Geniş öbürYarı = *payda - büyüklük;
    if (yuvarlama.Adım > 0 && yuvarlama.Yön != YuvarlamaYönü::EnYakın) {
        const bool yukarı = yuvarlama.Yön == YuvarlamaYönü::Yukarı;
        if (kalan != 0 && yukarı == (işaret > 0)) bölüm += işaret;
    } else if (büyüklük > öbürYarı || (büyüklük == öbürYarı && (yuvarlama.Adım > 0 || bölüm % 2 != 0))) {
        bölüm += işaret;
    }
    const auto sonuç = Çarp(bölüm, adım);
    if (!sonuç || *sonuç < std::numeric_limits<std::int64_t>::min() ||
        *sonuç > std::numeric_limits<std::int64_t>::max())
        return std::nullopt;
    return Para::OnBindeBirden(static_cast<std::int64_t>(*sonuç));
}

YeniFiyat FiyatıBelirle(Para eski, const std::optional<KesinTutar>& kesin, const Yuvarlama& yuvarlama) {
    const std::optional<Para> fiyat = kesin ? Yuvarla(*kesin, yuvarlama) : std::nullopt;
    if (!fiyat) return {eski, FiyatDurumu::ÇokBüyük};
    if (*fiyat <= Para()) return {eski, FiyatDurumu::SıfırYaDaAltı};
    // Whether it is meant as a rise or as a cut is known before the rounding only.
    const Para aşağı = Yuvarla(*kesin, {1, YuvarlamaYönü::Aşağı}).value_or(*fiyat);
    const Para yukarı = Yuvarla(*kesin, {1, YuvarlamaYönü::Yukarı}).value_or(*fiyat);
    const int istenen = yukarı > eski ? 1 : aşağı < eski ? -1 : 0;
    if (istenen == 0) return {eski, FiyatDurumu::Değişmiyor};
    if (Yön(eski, *fiyat) != istenen) return {eski, FiyatDurumu::TersineDöndü};
    const Geniş eskisi = eski.OnBindeBir();
    const Geniş yenisi = fiyat->OnBindeBir();
    const bool olağandışı = eskisi > 0 && (yenisi > 10 * eskisi || 10 * yenisi < eskisi);
    return {*fiyat, olağandışı ? FiyatDurumu::Olağandışı : FiyatDurumu::Değişir};
}

#include "TurkceSira.h"

#include <QChar>
#include <algorithm>
#include <array>
#include <cstdint>

#include "Utf8.h"

namespace Türkçe {

namespace {

// Every code point has one weight, and texts are ordered by their weights from left to right: so the order is total,
// and a beginning of a text is a beginning by the same rules. The weights lie in bands: blanks, punctuation and signs
// by code point; digits; the Latin letters in Turkish order; other letters by code point; broken encoding.
constexpr std::uint32_t RakamBandı = 0x20'0000;
constexpr std::uint32_t HarfBandı = 0x30'0000;
constexpr std::uint32_t DiğerHarfBandı = 0x40'0000;
constexpr std::uint32_t BozukBandı = 0x60'0000;

// Stored indexes depend on this text: never change the order of what is in it.
constexpr std::u16string_view Alfabe = u"aâàáãäåæbcçdeêèéëfgğhıiîìíïjklmnñoôòóõøöpqrsşßtuûùúüvwxyýÿz";

constexpr char32_t TabloSonu = 0x530;  // Latin, Greek and Cyrillic lie below

constexpr bool Arasında(char32_t kod, char32_t ilk, char32_t son) {
    return kod >= ilk && kod <= son;
}

// The small letter of a Latin capital. In parts of this block the capitals are the even codes, in others the odd.
constexpr char32_t KüçükLatin(char32_t kod) {
    if (kod == U'I') return U'ı';
    if (kod == U'İ') return U'i';
    if (kod == U'ſ') return U's';
    if (kod == U'Ÿ') return U'ÿ';
    if (Arasında(kod, U'A', U'Z') || (Arasında(kod, 0xC0, 0xDE) && kod != U'×')) return kod + 0x20;
    if (Arasında(kod, 0x139, 0x148) || Arasında(kod, 0x179, 0x17E)) return kod + kod % 2;
    if (Arasında(kod, 0x100, 0x12F) || Arasında(kod, 0x132, 0x137) || Arasında(kod, 0x14A, 0x177)) return kod | 1;
    return kod;
}

constexpr char32_t KüçükYunan(char32_t kod) {
    if (kod == U'µ') return U'μ';
    if (kod == U'ς') return U'σ';
    if (kod == U'Ά') return U'ά';
    if (kod == U'Ό') return U'ό';
    if (Arasında(kod, U'Έ', U'Ί')) return kod + 0x25;
    if (Arasında(kod, U'Ύ', U'Ώ')) return kod + 0x3F;
    if (Arasında(kod, U'Α', U'Ϋ')) return kod + 0x20;
    return kod;
}

constexpr char32_t KüçükKiril(char32_t kod) {
    if (Arasında(kod, U'А', U'Я')) return kod + 0x20;
    if (Arasında(kod, U'Ѐ', U'Џ')) return kod + 0x50;
    if (kod == 0x4C0) return 0x4CF;
    if (Arasında(kod, 0x4C1, 0x4CE)) return kod + kod % 2;
    if (Arasında(kod, 0x460, 0x481) || Arasında(kod, 0x48A, 0x52F)) return kod | 1;
    return kod;
}

constexpr char32_t KüçükKod(char32_t kod) {
    return kod < 0x180 && kod != U'µ' ? KüçükLatin(kod) : kod < 0x400 ? KüçükYunan(kod) : KüçükKiril(kod);
}

// Blanks, punctuation and signs outside ASCII, by whole blocks: finer shades do not matter, that they never change
// does.
constexpr bool İşaretMi(char32_t kod) {
    return (Arasında(kod, 0x80, 0xBF) && kod != U'ª' && kod != U'µ' && kod != U'º') || kod == U'×' || kod == U'÷' ||
           Arasında(kod, 0x2B0, 0x36F) || Arasında(kod, 0x2000, 0x2BFF) || Arasında(kod, 0x3000, 0x303F) ||
           Arasında(kod, 0xFE00, 0xFE6F) || Arasında(kod, 0xFF00, 0xFF0F) || Arasında(kod, 0x1F000, 0x1FAFF);
}

constexpr std::uint32_t AğırlığıHesapla(char32_t kod) {
    if (Arasında(kod, U'0', U'9')) return RakamBandı + kod;
    const char32_t küçük = kod < TabloSonu ? KüçükKod(kod) : kod;
    for (std::uint32_t sıra = 0; sıra < Alfabe.size(); ++sıra)
        if (Alfabe[sıra] == küçük) return HarfBandı + sıra;
    return küçük < 0x80 || İşaretMi(küçük) ? küçük : DiğerHarfBandı + küçük;
}

constexpr auto Ağırlıklar = [] {
    std::array<std::uint32_t, TabloSonu> tablo{};
    for (char32_t kod = 0; kod < TabloSonu; ++kod) tablo[kod] = AğırlığıHesapla(kod);
    return tablo;
}();

constexpr std::uint32_t Ağırlık(char32_t kod) {
    if (kod < TabloSonu) return Ağırlıklar[kod];
    return İşaretMi(kod) ? kod : DiğerHarfBandı + kod;
}

struct Utf16Okuyucu {
    const char16_t* Yer;
    const char16_t* Son;

    bool Bitti() const { return Yer == Son; }

    std::uint32_t Sonraki() {
        const char16_t birim = *Yer++;
        if (!QChar::isSurrogate(birim)) return Ağırlık(birim);
        if (QChar::isLowSurrogate(birim) || Bitti() || !QChar::isLowSurrogate(*Yer)) return BozukBandı + birim;
        return Ağırlık(QChar::surrogateToUcs4(birim, *Yer++));
    }
};

struct Utf8Okuyucu {
    const char* Yer;
    const char* Son;

    bool Bitti() const { return Yer == Son; }

    std::uint32_t Sonraki() {
        const unsigned char bayt = *Yer;
        if (bayt < 0x80) {
            ++Yer;
            return Ağırlıklar[bayt];
        }
        const auto [kod, boy] = Utf8Çöz({Yer, Son});
        Yer += boy != 0 ? boy : 1;
        return boy != 0 ? Ağırlık(kod) : BozukBandı + bayt;
    }
};

template <typename Okuyucu>
int Sırala(Okuyucu a, Okuyucu b) noexcept {
    while (!a.Bitti() && !b.Bitti()) {
        const std::uint32_t birinci = a.Sonraki();
        const std::uint32_t ikinci = b.Sonraki();
        if (birinci != ikinci) return birinci < ikinci ? -1 : 1;
    }
    return int(b.Bitti()) - int(a.Bitti());
}

Utf16Okuyucu Okuyucusu(QStringView metin) {
    return {metin.utf16(), metin.utf16() + metin.size()};
}

}  // namespace

int Karşılaştır(QStringView a, QStringView b) noexcept {
    return Sırala(Okuyucusu(a), Okuyucusu(b));
}

int Karşılaştır(std::string_view a, std::string_view b) noexcept {
    // Neighbours in a sorted column have long beginnings in common: those are skipped byte by byte, back to the last
    // code point's first byte.
    std::size_t ortak = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    const auto devamBaytı = [](std::string_view metin, std::size_t yer) {
        return yer < metin.size() && Utf8DevamBaytı(metin[yer]);
    };
    while (ortak > 0 && (devamBaytı(a, ortak) || devamBaytı(b, ortak))) --ortak;
    return Sırala(Utf8Okuyucu{a.data() + ortak, a.data() + a.size()},
                  Utf8Okuyucu{b.data() + ortak, b.data() + b.size()});
}

bool İleBaşlar(QStringView metin, QStringView ön) noexcept {
    Utf16Okuyucu okunan = Okuyucusu(metin);
    Utf16Okuyucu aranan = Okuyucusu(ön);
    while (!aranan.Bitti())
        if (okunan.Bitti() || okunan.Sonraki() != aranan.Sonraki()) return false;
    return true;
}

bool İçerir(QStringView metin, QStringView aranan) noexcept {
    for (; metin.size() >= aranan.size(); metin = metin.mid(1)) {
        if (İleBaşlar(metin, aranan)) return true;
        if (metin.isEmpty()) break;
    }
    return aranan.isEmpty();
}

std::uint64_t Özet(std::string_view metin, std::uint64_t önceki) noexcept {
    // FNV-1a over the weights, with one more mixing at the end, so that the low bits alone may be used.
    std::uint64_t özet = önceki ^ 0xcbf2'9ce4'8422'2325;
    Utf8Okuyucu okuyucu{metin.data(), metin.data() + metin.size()};
    while (!okuyucu.Bitti()) özet = (özet ^ okuyucu.Sonraki()) * 0x0000'0100'0000'01b3;
    özet ^= özet >> 32;
    özet *= 0x9e37'79b9'7f4a'7c15;
    return özet ^ özet >> 29;
}

char16_t Büyük(char16_t harf) noexcept {
    if (harf == u'i') return u'İ';
    if (harf == u'ı') return u'I';
    return char16_t(QChar::toUpper(char32_t(harf)));
}

char16_t Küçük(char16_t harf) noexcept {
    if (harf == u'I') return u'ı';
    if (harf == u'İ') return u'i';
    return char16_t(QChar::toLower(char32_t(harf)));
}

}  // namespace Türkçe

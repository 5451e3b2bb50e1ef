#include "Ondalik.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace {

constexpr int ÖlçekBasamağı = 4;
constexpr std::uint64_t ÖlçekBiri = 10000;

bool HepsiSıfır(std::string_view rakamlar) {
    return rakamlar.find_first_not_of('0') == std::string_view::npos;
}

// Adds one to the last digit.
void BirArtır(std::string& rakamlar) {
    for (auto rakam = rakamlar.rbegin(); rakam != rakamlar.rend(); ++rakam) {
        if (*rakam != '9') {
            ++*rakam;
            return;
        }
        *rakam = '0';
    }
    rakamlar.insert(0, 1, '1');
}

// Whether the digits before `yer` grow by one when those from it on fall away.
bool YukarıMı(std::string_view rakamlar, std::size_t yer, Yarım yarım) {
    if (rakamlar[yer] != '5') return rakamlar[yer] > '5';
    if (yarım == Yarım::SıfırdanUzağa || !HepsiSıfır(rakamlar.substr(yer + 1))) return true;
    return (rakamlar[yer - 1] - '0') % 2 != 0;
}

// Without needless zeros in front, and without a sign of zero.
Ondalık Yalınlaştır(Ondalık sayı) {
    const std::size_t fazla = sayı.Tam().find_first_not_of('0');
    sayı.Rakamlar.erase(0, std::min(fazla, sayı.Tam().size() - 1));
    if (sayı.Eksi) sayı.Eksi = !HepsiSıfır(sayı.Rakamlar);
    return sayı;
}

// All digits, with `basamak` decimals and zeros in front up to `boy` digits.
std::string Hizala(const Ondalık& sayı, std::size_t boy, std::size_t basamak) {
    std::string rakamlar = sayı.Rakamlar + std::string(basamak - sayı.Basamak, '0');
    return rakamlar.insert(0, boy - rakamlar.size(), '0');
}

std::uint64_t Büyüklük(std::int64_t sayı) {
    return sayı < 0 ? 0 - static_cast<std::uint64_t>(sayı) : static_cast<std::uint64_t>(sayı);
}

}  // namespace

Ondalık Yuvarla(Ondalık sayı, int basamak, Yarım yarım) {
    const std::size_t son = sayı.Rakamlar.size() - sayı.Basamak + static_cast<std::size_t>(basamak);
    const bool yukarı = son < sayı.Rakamlar.size() && YukarıMı(sayı.Rakamlar, son, yarım);
    sayı.Rakamlar.resize(son, '0');
    sayı.Basamak = static_cast<std::size_t>(basamak);
    if (yukarı) BirArtır(sayı.Rakamlar);
    if (sayı.Eksi) sayı.Eksi = !HepsiSıfır(sayı.Rakamlar);
    return sayı;
}

Ondalık Çarp(const Ondalık& a, const Ondalık& b) {
    std::string rakamlar(a.Rakamlar.size() + b.Rakamlar.size(), 0);  // digits as numbers, the last one first
    for (std::size_t i = 0; i < a.Rakamlar.size(); ++i) {
        int elde = 0;
        for (std::size_t j = 0; j < b.Rakamlar.size() || elde > 0; ++j) {
            const int çarpan = j < b.Rakamlar.size() ? b.Rakamlar[b.Rakamlar.size() - 1 - j] - '0' : 0;
            const int hane = rakamlar[i + j] + (a.Rakamlar[a.Rakamlar.size() - 1 - i] - '0') * çarpan + elde;
            rakamlar[i + j] = static_cast<char>(hane % 10);
            elde = hane / 10;
        }
    }
    for (char& rakam : rakamlar) rakam = static_cast<char>(rakam + '0');
    std::reverse(rakamlar.begin(), rakamlar.end());
    return Yalınlaştır({a.Eksi != b.Eksi, std::move(rakamlar), a.Basamak + b.Basamak});
}

Ondalık Topla(const Ondalık& a, const Ondalık& b) {
    const std::size_t basamak = std::max(a.Basamak, b.Basamak);
    const std::size_t boy = std::max(a.Tam().size(), b.Tam().size()) + basamak;
    std::string büyük = Hizala(a, boy, basamak);
    std::string küçük = Hizala(b, boy, basamak);
    const bool takas = büyük < küçük;
    if (takas) std::swap(büyük, küçük);
    const bool çıkar = a.Eksi != b.Eksi;
    int elde = 0;
    for (std::size_t yer = boy; yer-- > 0;) {
        const int hane = büyük[yer] - '0' + (çıkar ? -(küçük[yer] - '0') : küçük[yer] - '0') + elde;
        elde = hane < 0 ? -1 : hane / 10;
        büyük[yer] = static_cast<char>('0' + (hane + 10) % 10);
    }
    if (elde > 0) büyük.insert(0, 1, '1');
    return Yalınlaştır({takas ? b.Eksi : a.Eksi, std::move(büyük), basamak});
}

std::optional<Ondalık> OnBeşHaneyle(double değer) {
    if (!std::isfinite(değer)) return std::nullopt;
    char yazı[32];  // d.dddddddddddddde-ddd
    const auto son = std::to_chars(yazı, yazı + sizeof yazı, std::fabs(değer), std::chars_format::scientific, 14).ptr;
    const char* üs = yazı + 16;
    int kayma = 0;
    std::from_chars(üs[1] == '+' ? üs + 2 : üs + 1, son, kayma);

    std::string rakamlar(yazı, yazı + 16);
    rakamlar.erase(1, 1);
    std::size_t tamHane = 1;
    if (kayma < 0) {
        rakamlar.insert(0, -kayma, '0');
    } else {
        tamHane += kayma;
        if (rakamlar.size() < tamHane) rakamlar.resize(tamHane, '0');
    }
    const std::size_t kesirHane = rakamlar.size() - tamHane;
    return Ondalık{değer < 0, std::move(rakamlar), kesirHane};
}

Ondalık Ölçekten(std::int64_t onBindeBir) {
    std::string rakamlar = std::to_string(Büyüklük(onBindeBir));
    if (rakamlar.size() <= ÖlçekBasamağı) rakamlar.insert(0, ÖlçekBasamağı + 1 - rakamlar.size(), '0');
    return {onBindeBir < 0, std::move(rakamlar), ÖlçekBasamağı};
}

std::optional<std::int64_t> Ölçeğe(const Ondalık& sayı) {
    constexpr std::uint64_t sınır = std::uint64_t{1} << 63;
    const std::string& rakamlar = sayı.Rakamlar;
    const std::size_t istenen = sayı.Tam().size() + ÖlçekBasamağı;
    const std::size_t son = std::min(istenen, rakamlar.size());
    std::uint64_t büyüklük = 0;
    if (std::from_chars(rakamlar.data(), rakamlar.data() + son, büyüklük).ec != std::errc{}) return std::nullopt;
    for (std::size_t hane = son; hane < istenen; ++hane) {
        if (büyüklük > sınır / 10) return std::nullopt;
        büyüklük *= 10;
    }
    if (büyüklük > sınır) return std::nullopt;
    if (son < rakamlar.size() && YukarıMı(rakamlar, son, Yarım::Çifte)) ++büyüklük;
    if (büyüklük > sınır - (sayı.Eksi ? 0 : 1)) return std::nullopt;
    // The subtraction wraps to the right value for the lowest number too, which has no positive counterpart.
    return static_cast<std::int64_t>(sayı.Eksi ? 0 - büyüklük : büyüklük);
}

char* ÖlçektenYaz(std::int64_t onBindeBir, char virgül, char* yer) noexcept {
    if (onBindeBir < 0) *yer++ = '-';
    yer = std::to_chars(yer, yer + ÖlçekMetniBoyu - 1, Büyüklük(onBindeBir) / ÖlçekBiri).ptr;
    auto kesir = static_cast<unsigned>(Büyüklük(onBindeBir) % ÖlçekBiri);
    if (kesir == 0) return yer;
    *yer = virgül;
    for (char* rakam = yer + ÖlçekBasamağı; rakam != yer; --rakam, kesir /= 10)
        *rakam = static_cast<char>('0' + kesir % 10);
    yer += ÖlçekBasamağı + 1;
    while (yer[-1] == '0') --yer;
    return yer;
}

std::optional<double> EnYakınDouble(const Ondalık& sayı) {
    // Up to 15 digits: a quotient of two whole numbers that doubles hold exactly is the nearest double itself.
    constexpr double onKuvvetleri[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};
    if (sayı.Rakamlar.size() <= std::size(onKuvvetleri)) {
        std::int64_t rakamlar = 0;
        std::from_chars(sayı.Rakamlar.data(), sayı.Rakamlar.data() + sayı.Rakamlar.size(), rakamlar);
        return static_cast<double>(sayı.Eksi ? -rakamlar : rakamlar) / onKuvvetleri[sayı.Basamak];
    }
    std::string yazı;
    yazı.reserve(sayı.Rakamlar.size() + 2);
    if (sayı.Eksi) yazı += '-';
    yazı.append(sayı.Tam()).append(1, '.').append(sayı.Kesir());
    double değer = 0;
    const auto sonuç = std::from_chars(yazı.data(), yazı.data() + yazı.size(), değer);
    if (sonuç.ec == std::errc{}) return değer;
    if (sayı.Tam() == "0") return 0.0;  // too small to be told from zero
    return std::nullopt;
}

#include "Sayi.h"

#include "Hata.h"

#include <charconv>
#include <limits>

namespace Motor {

namespace {

bool Rakam(char harf) {
    return harf >= '0' && harf <= '9';
}

void BoşluklarıAt(std::string_view& metin) {
    while (!metin.empty() && metin.front() == ' ') metin.remove_prefix(1);
    while (!metin.empty() && metin.back() == ' ') metin.remove_suffix(1);
}

bool İşaretiAl(std::string_view& metin) {
    if (metin.empty() || (metin.front() != '-' && metin.front() != '+')) return false;
    const bool eksi = metin.front() == '-';
    metin.remove_prefix(1);
    return eksi;
}

bool HepsiRakam(std::string_view metin) {
    for (const char harf : metin)
        if (!Rakam(harf)) return false;
    return true;
}

// Digits with thousands dots in their places: one to three digits, the first not 0, then groups of three.
bool GrupluTamıÇöz(std::string_view metin, std::string& tam) {
    if (metin.find('.') == std::string_view::npos) {
        tam = metin;
        return HepsiRakam(metin);
    }
    const std::size_t ilkGrup = metin.find('.');
    if (ilkGrup < 1 || ilkGrup > 3 || metin.front() == '0' || metin.size() % 4 != ilkGrup % 4) return false;
    for (std::size_t i = 0; i < metin.size(); ++i) {
        const bool noktaYeri = i >= ilkGrup && (i - ilkGrup) % 4 == 0;
        if (noktaYeri != (metin[i] == '.') || (!noktaYeri && !Rakam(metin[i]))) return false;
        if (!noktaYeri) tam += metin[i];
    }
    return true;
}

[[noreturn]] void ÇokBüyük() {
    throw Hata(Durum::SayıBüyük, "Sayı çok büyük; bu sütunda saklanamaz.");
}

// Rounds the digits after the fourth decimal half to even.
bool YukarıYuvarlanır(std::string_view fazlası, bool tekSayı) {
    if (fazlası.empty() || fazlası.front() < '5') return false;
    if (fazlası.front() > '5' || fazlası.find_first_not_of('0', 1) != std::string_view::npos) return true;
    return tekSayı;
}

}  // namespace

std::optional<OnlukSayı> SayıMetniÇöz(std::string_view metin) {
    OnlukSayı sayı;
    BoşluklarıAt(metin);
    sayı.Eksi = İşaretiAl(metin);
    BoşluklarıAt(metin);
    const std::size_t virgül = metin.find(',');
    if (!GrupluTamıÇöz(metin.substr(0, virgül), sayı.Tam)) return std::nullopt;
    if (virgül != std::string_view::npos) sayı.Kesir = metin.substr(virgül + 1);
    if (!HepsiRakam(sayı.Kesir) || (sayı.Tam.empty() && sayı.Kesir.empty())) return std::nullopt;
    return sayı;
}

std::optional<OnlukSayı> SayıYazımıÇöz(std::string_view metin) {
    OnlukSayı sayı;
    sayı.Eksi = İşaretiAl(metin);
    const std::size_t nokta = metin.find('.');
    sayı.Tam = metin.substr(0, nokta);
    if (nokta != std::string_view::npos) sayı.Kesir = metin.substr(nokta + 1);
    if (!HepsiRakam(sayı.Tam) || !HepsiRakam(sayı.Kesir) || (sayı.Tam.empty() && sayı.Kesir.empty()))
        return std::nullopt;
    return sayı;
}

std::int64_t ParayaÇevir(const OnlukSayı& sayı) {
    constexpr std::size_t ondalıkBasamak = 4;
    std::string rakamlar = sayı.Tam + sayı.Kesir.substr(0, ondalıkBasamak);
    if (sayı.Kesir.size() < ondalıkBasamak) rakamlar.append(ondalıkBasamak - sayı.Kesir.size(), '0');

    std::uint64_t büyüklük = 0;
    const auto sonuç = std::from_chars(rakamlar.data(), rakamlar.data() + rakamlar.size(), büyüklük);
    if (sonuç.ec != std::errc()) ÇokBüyük();
    constexpr auto sınır = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (büyüklük > sınır + 1) ÇokBüyük();
    if (sayı.Kesir.size() > ondalıkBasamak &&
        YukarıYuvarlanır(std::string_view(sayı.Kesir).substr(ondalıkBasamak), büyüklük % 2 == 1))
        ++büyüklük;
    if (büyüklük > sınır + (sayı.Eksi ? 1 : 0)) ÇokBüyük();
    // The subtraction wraps to the right value for the lowest number too, whose magnitude has no positive counterpart.
    return static_cast<std::int64_t>(sayı.Eksi ? 0 - büyüklük : büyüklük);
}

double OndalığaÇevir(const OnlukSayı& sayı) {
    const std::string metin = (sayı.Tam.empty() ? "0" : sayı.Tam) + "." + (sayı.Kesir.empty() ? "0" : sayı.Kesir);
    double değer = 0;
    const auto sonuç = std::from_chars(metin.data(), metin.data() + metin.size(), değer, std::chars_format::fixed);
    const bool sıfıraİner = metin.find_first_of("123456789") != std::string::npos && sonuç.ec != std::errc() &&
                            sayı.Tam.find_first_not_of('0') == std::string::npos;
    if (sıfıraİner) return 0;
    if (sonuç.ec != std::errc()) ÇokBüyük();
    return sayı.Eksi && değer != 0 ? -değer : değer;
}

}  // namespace Motor

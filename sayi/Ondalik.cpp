#include "Ondalik.h"

#include <charconv>
#include <cmath>

namespace {

bool HepsiSıfır(const std::string& rakamlar) {
    return rakamlar.find_first_not_of('0') == std::string::npos;
}

// Adds one to the last digit; true when a one is carried out in front.
bool BirArtır(std::string& rakamlar) {
    for (auto rakam = rakamlar.rbegin(); rakam != rakamlar.rend(); ++rakam) {
        if (*rakam != '9') {
            ++*rakam;
            return false;
        }
        *rakam = '0';
    }
    return true;
}

bool YukarıMı(const Ondalık& sayı, std::size_t basamak, Yarım yarım) {
    const char ilkAtılan = sayı.Kesir[basamak];
    if (ilkAtılan != '5') return ilkAtılan > '5';
    if (yarım == Yarım::SıfırdanUzağa || !HepsiSıfır(sayı.Kesir.substr(basamak + 1))) return true;
    const char sonKalan = basamak > 0 ? sayı.Kesir[basamak - 1] : sayı.Tam.back();
    return (sonKalan - '0') % 2 != 0;
}

}  // namespace

Ondalık Yuvarla(Ondalık sayı, int basamak, Yarım yarım) {
    const auto hane = static_cast<std::size_t>(basamak);
    const bool yukarı = sayı.Kesir.size() > hane && YukarıMı(sayı, hane, yarım);
    sayı.Kesir.resize(hane, '0');
    if (yukarı && BirArtır(sayı.Kesir) && BirArtır(sayı.Tam)) sayı.Tam.insert(0, 1, '1');
    if (HepsiSıfır(sayı.Tam) && HepsiSıfır(sayı.Kesir)) sayı.Eksi = false;
    return sayı;
}

std::optional<Ondalık> OnBeşHaneyle(double değer) {
    if (!std::isfinite(değer)) return std::nullopt;
    char yazı[32];  // -d.dddddddddddddde-ddd
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
    return Ondalık{değer < 0, rakamlar.substr(0, tamHane), rakamlar.substr(tamHane)};
}

Ondalık Ölçekten(std::int64_t sayım, int basamak) {
    const auto hane = static_cast<std::size_t>(basamak);
    const auto büyüklük = sayım < 0 ? -static_cast<std::uint64_t>(sayım) : static_cast<std::uint64_t>(sayım);
    std::string rakamlar = std::to_string(büyüklük);
    if (rakamlar.size() <= hane) rakamlar.insert(0, hane + 1 - rakamlar.size(), '0');
    const std::size_t tamHane = rakamlar.size() - hane;
    return {sayım < 0, rakamlar.substr(0, tamHane), rakamlar.substr(tamHane)};
}

std::optional<std::int64_t> Ölçeğe(Ondalık sayı, int basamak) {
    const auto hane = static_cast<std::size_t>(basamak);
    if (sayı.Kesir.size() > hane) return std::nullopt;
    sayı.Kesir.resize(hane, '0');
    const std::string rakamlar = std::string(sayı.Eksi ? "-" : "").append(sayı.Tam).append(sayı.Kesir);
    std::int64_t sayım = 0;
    const auto sonuç = std::from_chars(rakamlar.data(), rakamlar.data() + rakamlar.size(), sayım);
    if (sonuç.ec != std::errc{}) return std::nullopt;
    return sayım;
}

std::optional<double> EnYakınDouble(const Ondalık& sayı) {
    const std::string yazı =
        std::string(sayı.Eksi ? "-" : "").append(sayı.Tam).append(".").append(sayı.Kesir).append("0");
    double değer = 0;
    const auto sonuç = std::from_chars(yazı.data(), yazı.data() + yazı.size(), değer);
    if (sonuç.ec == std::errc{}) return değer;
    if (sayı.Tam == "0") return 0.0;  // too small to be told from zero
    return std::nullopt;
}

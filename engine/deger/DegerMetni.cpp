#include "DegerMetni.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "Ondalik.h"

namespace Motor {

namespace {

std::string_view Sonuç(DeğerTamponu tampon, const char* son) {
    return {tampon.data(), static_cast<std::size_t>(son - tampon.data())};
}

// Writes `basamak` digits with leading zeros and returns the place after them.
char* RakamYaz(char* yer, std::int64_t değer, int basamak) {
    for (int i = basamak - 1; i >= 0; --i, değer /= 10) yer[i] = static_cast<char>('0' + değer % 10);
    return yer + basamak;
}

}  // namespace

std::string_view ParaYaz(std::int64_t onBinde, DeğerTamponu tampon) noexcept {
    return Sonuç(tampon, ÖlçektenYaz(onBinde, '.', tampon.data()));
}

std::string_view OndalıkYaz(double değer, DeğerTamponu tampon) noexcept {
    char* const son = tampon.data() + tampon.size();
    if (değer == 0) değer = 0;  // no negative zero
    const double büyüklük = std::abs(değer);
    if (büyüklük == 0 || (büyüklük >= 1e-15 && büyüklük < 1e21))
        return Sonuç(tampon, std::to_chars(tampon.data(), son, değer, std::chars_format::fixed).ptr);
    return Sonuç(tampon, std::to_chars(tampon.data(), son, değer).ptr);
}

std::string_view TamSayıYaz(std::int64_t değer, DeğerTamponu tampon) noexcept {
    return Sonuç(tampon, std::to_chars(tampon.data(), tampon.data() + tampon.size(), değer).ptr);
}

std::string_view TarihYaz(std::int64_t tarih, DeğerTamponu tampon) noexcept {
    constexpr std::string_view saat = " 00:00:00";
    char* yer = RakamYaz(tampon.data(), tarih / 10000, 4);
    *yer++ = '-';
    yer = RakamYaz(yer, tarih / 100 % 100, 2);
    *yer++ = '-';
    yer = RakamYaz(yer, tarih % 100, 2);
    return Sonuç(tampon, std::copy(saat.begin(), saat.end(), yer));
}

std::int64_t TarihOluştur(int yıl, int ay, int gün) noexcept {
    constexpr int ayUzunluğu[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (yıl < 100 || yıl > 9999 || ay < 1 || ay > 12 || gün < 1) return 0;
    const bool artık = (yıl % 4 == 0 && yıl % 100 != 0) || yıl % 400 == 0;
    if (gün > ayUzunluğu[ay - 1] + (ay == 2 && artık ? 1 : 0)) return 0;
    return std::int64_t{yıl} * 10000 + ay * 100 + gün;
}

bool TarihGeçerli(std::int64_t tarih) noexcept {
    return tarih > 0 && tarih <= 99991231 &&
           TarihOluştur(static_cast<int>(tarih / 10000), static_cast<int>(tarih / 100 % 100),
                        static_cast<int>(tarih % 100)) == tarih;
}

}  // namespace Motor

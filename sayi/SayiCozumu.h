#pragma once

#include <algorithm>
#include <optional>
#include <string_view>

#include "Ondalik.h"

// What a "." in a number text is.
enum class NoktaKuralı {
    // A thousands dot, where one can stand: between groups of three digits, the first group not beginning with 0, as in
    // 1.250.000; "12.5" and "0.500" are no numbers.
    Yerinde,
    Serbest,  // nothing, wherever it stands before the comma: a box while the user edits it (1.25,00 after a Backspace)
    Virgül    // the decimal mark, and a comma is none: SQL's own spelling
};

namespace SayıÇözümü {

constexpr bool RakamMı(char32_t harf) {
    return harf >= U'0' && harf <= U'9';
}

template <typename Harf, typename BoşlukSınaması>
std::basic_string_view<Harf> Kırp(std::basic_string_view<Harf> metin, BoşlukSınaması boşlukMu) {
    while (!metin.empty() && boşlukMu(metin.front())) metin.remove_prefix(1);
    while (!metin.empty() && boşlukMu(metin.back())) metin.remove_suffix(1);
    return metin;
}

// One to three characters and no 0 before the first dot, three between one dot and the next and behind the last.
template <typename Harf>
bool NoktalarYerinde(std::basic_string_view<Harf> tam) {
    const std::size_t ilk = tam.find(Harf('.'));
    if (ilk == tam.npos) return true;
    if (ilk == 0 || tam.front() == Harf('0') || tam.size() % 4 != ilk) return false;
    for (std::size_t yer = ilk; yer < tam.size(); ++yer)
        if ((tam[yer] == Harf('.')) != (yer % 4 == ilk)) return false;
    return true;
}

}  // namespace SayıÇözümü

// The one grammar of number texts: blanks around, an optional sign ("-" or "+", blanks may follow), digits with dots as
// the rule says, at most one comma ("12," and ",5" count). At least one digit: "", "," and "-" are no numbers.
// What a blank is the caller says. No number: nullopt.
template <typename Harf, typename BoşlukSınaması>
std::optional<Ondalık> SayıÇöz(std::basic_string_view<Harf> metin, NoktaKuralı kural, BoşlukSınaması boşlukMu) {
    using namespace SayıÇözümü;
    metin = Kırp(metin, boşlukMu);
    Ondalık sayı;
    if (!metin.empty() && (metin.front() == Harf('-') || metin.front() == Harf('+'))) {
        sayı.Eksi = metin.front() == Harf('-');
        metin = Kırp(metin.substr(1), boşlukMu);
    }
    const std::size_t virgül = metin.find(Harf(kural == NoktaKuralı::Virgül ? '.' : ','));
    const auto tam = metin.substr(0, virgül);
    const auto kesir = metin.substr(virgül == metin.npos ? metin.size() : virgül + 1);
    if (kural == NoktaKuralı::Yerinde && !NoktalarYerinde(tam)) return std::nullopt;

    // Figures come in by the hundred thousand: the digits are written straight into their room.
    sayı.Rakamlar.resize(tam.size() + kesir.size() + 1);
    char* const ilk = sayı.Rakamlar.data();
    char* son = ilk;
    bool rakamVar = !kesir.empty();
    for (const Harf harf : tam) {
        if (harf == Harf('.')) continue;
        if (!RakamMı(harf)) return std::nullopt;
        rakamVar = true;
        if (harf != Harf('0') || son != ilk) *son++ = static_cast<char>(harf);
    }
    if (!rakamVar || !std::all_of(kesir.begin(), kesir.end(), RakamMı)) return std::nullopt;
    if (son == ilk) *son++ = '0';
    son = std::copy(kesir.begin(), kesir.end(), son);
    sayı.Rakamlar.resize(static_cast<std::size_t>(son - ilk));
    sayı.Basamak = kesir.size();
    if (sayı.Eksi) sayı.Eksi = sayı.Rakamlar.find_first_not_of('0') != std::string::npos;
    return sayı;
}

#include "Sayi.h"

#include "Hata.h"
#include "SayiCozumu.h"

namespace Motor {

namespace {

template <typename Sayı>
Sayı Sığan(const std::optional<Sayı>& sayı) {
    if (!sayı) throw Hata(Durum::SayıBüyük, "Sayı çok büyük; bu sütunda saklanamaz.");
    return *sayı;
}

}  // namespace

std::optional<Ondalık> SayıMetniÇöz(std::string_view metin) {
    return SayıÇöz(metin, NoktaKuralı::Yerinde, [](char harf) { return harf == ' '; });
}

std::optional<Ondalık> SayıYazımıÇöz(std::string_view metin) {
    return SayıÇöz(metin, NoktaKuralı::Virgül, [](char) { return false; });
}

std::int64_t ParayaÇevir(const Ondalık& sayı) {
    return Sığan(Ölçeğe(sayı));
}

double OndalığaÇevir(const Ondalık& sayı) {
    return Sığan(EnYakınDouble(sayı));
}

}  // namespace Motor

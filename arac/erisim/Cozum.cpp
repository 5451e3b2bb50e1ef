#include "Cozum.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstring>

#include "SayiCozumu.h"
#include "Windows1254.h"

namespace Erişim {

namespace {

constexpr char32_t YER_TUTUCU = 0xFFFD;

char16_t İkiBayt(std::string_view baytlar, std::size_t yer) {
    return static_cast<char16_t>(static_cast<unsigned char>(baytlar[yer]) | static_cast<unsigned char>(baytlar[yer + 1])
                                                                                << 8);
}

// Packed texts change between one and two bytes a character at each zero byte, and begin with one.
std::u16string Aç(std::string_view baytlar) {
    std::u16string metin;
    bool tekBayt = true;
    for (std::size_t yer = 0; yer < baytlar.size();) {
        if (baytlar[yer] == 0) {
            tekBayt = !tekBayt;
            ++yer;
        } else if (tekBayt) {
            metin += static_cast<unsigned char>(baytlar[yer++]);
        } else if (yer + 1 < baytlar.size()) {
            metin += İkiBayt(baytlar, yer);
            yer += 2;
        } else {
            metin += static_cast<char16_t>(YER_TUTUCU);
            ++yer;
        }
    }
    return metin;
}

std::u16string Birimler(std::string_view baytlar, bool jet3) {
    std::u16string metin;
    if (jet3) {
        for (const char bayt : baytlar) metin += Windows1254Harfi(static_cast<unsigned char>(bayt));
        return metin;
    }
    if (baytlar.starts_with("\xFF\xFE")) return Aç(baytlar.substr(2));
    metin.resize(baytlar.size() / 2);
    std::memcpy(metin.data(), baytlar.data(), metin.size() * 2);  // little-endian, as this machine is
    if (baytlar.size() % 2 != 0) metin += static_cast<char16_t>(YER_TUTUCU);
    return metin;
}

void Utf8Ekle(std::string& metin, char32_t kod) {
    const auto devam = [&](int kaydırma) { metin += static_cast<char>(0x80 | (kod >> kaydırma & 0x3F)); };
    if (kod < 0x80) {
        metin += static_cast<char>(kod);
    } else if (kod < 0x800) {
        metin += static_cast<char>(0xC0 | kod >> 6);
        devam(0);
    } else if (kod < 0x10000) {
        metin += static_cast<char>(0xE0 | kod >> 12);
        devam(6);
        devam(0);
    } else {
        metin += static_cast<char>(0xF0 | kod >> 18);
        devam(12);
        devam(6);
        devam(0);
    }
}

template <typename T>
std::optional<T> Oku(std::string_view baytlar) {
    T sayı{};
    if (baytlar.size() < sizeof sayı) return std::nullopt;
    std::memcpy(&sayı, baytlar.data(), sizeof sayı);
    return sayı;
}

template <typename T>
std::optional<Ondalık> TamSayı(std::string_view baytlar) {
    const std::optional<T> sayı = Oku<T>(baytlar);
    if (!sayı) return std::nullopt;
    return SayıÇöz(std::string_view(std::to_string(+*sayı)), NoktaKuralı::Virgül, [](char) { return false; });
}

// A decimal: a sign, then 128 bits as four words, the highest first.
std::optional<Ondalık> OndalıkSayı(std::string_view baytlar, std::uint8_t ölçek) {
    constexpr std::size_t boy = 17;
    constexpr std::uint8_t enÇokÖlçek = 28;
    if (baytlar.size() < boy || ölçek > enÇokÖlçek) return std::nullopt;
    std::array<std::uint32_t, 4> sözcükler{};
    std::memcpy(sözcükler.data(), baytlar.data() + 1, sizeof sözcükler);
    std::string rakamlar;
    const auto sıfır = [](std::uint32_t sözcük) { return sözcük == 0; };
    while (!std::all_of(sözcükler.begin(), sözcükler.end(), sıfır)) {
        std::uint64_t kalan = 0;
        for (std::uint32_t& sözcük : sözcükler) {
            kalan = kalan << 32 | sözcük;
            sözcük = static_cast<std::uint32_t>(kalan / 10);
            kalan %= 10;
        }
        rakamlar.insert(rakamlar.begin(), static_cast<char>('0' + kalan));
    }
    if (rakamlar.size() <= ölçek) rakamlar.insert(0, ölçek + 1U - rakamlar.size(), '0');
    rakamlar.insert(rakamlar.size() - ölçek, ".");
    if (baytlar.front() != 0) rakamlar.insert(0, "-");
    return SayıÇöz(std::string_view(rakamlar), NoktaKuralı::Virgül, [](char) { return false; });
}

template <typename T>
Ondalık EnKısa(T değer) {
    std::array<char, 512> tampon;
    const auto son = std::to_chars(tampon.data(), tampon.data() + tampon.size(), değer, std::chars_format::fixed).ptr;
    const std::string_view metin(tampon.data(), static_cast<std::size_t>(son - tampon.data()));
    return SayıÇöz(metin, NoktaKuralı::Virgül, [](char) { return false; }).value_or(Ondalık{false, "0", 0});
}

template <typename T>
std::optional<Ondalık> Kesirli(const std::optional<T>& değer) {
    if (!değer) return std::nullopt;
    return EnKısaOndalık(*değer);
}

}  // namespace

ÇözülenMetin MetniÇöz(std::string_view baytlar, bool jet3) {
    const std::u16string birimler = Birimler(baytlar, jet3);
    ÇözülenMetin sonuç;
    sonuç.Metin.reserve(birimler.size() + birimler.size() / 2);
    for (std::size_t i = 0; i < birimler.size(); ++i) {
        char32_t kod = birimler[i];
        if (kod >= 0xD800 && kod < 0xE000) {
            const bool çift = kod < 0xDC00 && i + 1 < birimler.size() && (birimler[i + 1] & 0xFC00) == 0xDC00;
            kod = çift ? 0x10000 + ((kod & 0x3FF) << 10) + (birimler[++i] & 0x3FFU) : YER_TUTUCU;
        }
        if (kod == 0 || kod == YER_TUTUCU) sonuç.Değiştirildi = true;
        Utf8Ekle(sonuç.Metin, kod == 0 ? U' ' : kod);
    }
    return sonuç;
}

std::optional<Ondalık> SayıyıÇöz(HücreTürü tür, std::uint8_t ölçek, std::string_view baytlar, bool jet3) {
    switch (tür) {
        case HücreTürü::Bayt:
            return TamSayı<std::uint8_t>(baytlar);
        case HücreTürü::Kısa:
            return TamSayı<std::int16_t>(baytlar);
        case HücreTürü::Uzun:
            return TamSayı<std::int32_t>(baytlar);
        case HücreTürü::Para:
            if (const auto para = Oku<std::int64_t>(baytlar)) return Ölçekten(*para);
            return std::nullopt;
        case HücreTürü::Tek:
            return Kesirli(TekÇöz(baytlar));
        case HücreTürü::Çift:
            return Kesirli(DoubleÇöz(baytlar));
        case HücreTürü::Ondalık:
            return OndalıkSayı(baytlar, ölçek);
        case HücreTürü::Metin:
        case HücreTürü::UzunMetin: {
            const std::string metin = MetniÇöz(baytlar, jet3).Metin;
            return SayıÇöz(std::string_view(metin), NoktaKuralı::Yerinde, [](char harf) { return harf == ' '; });
        }
        case HücreTürü::Tarih:
            break;
    }
    return std::nullopt;
}

std::optional<double> DoubleÇöz(std::string_view baytlar) {
    const std::optional<double> değer = Oku<double>(baytlar);
    return değer && std::isfinite(*değer) ? değer : std::nullopt;
}

std::optional<float> TekÇöz(std::string_view baytlar) {
    const std::optional<float> değer = Oku<float>(baytlar);
    return değer && std::isfinite(*değer) ? değer : std::nullopt;
}

std::optional<ÇözülenTarih> TarihiÇöz(std::string_view baytlar) {
    namespace ch = std::chrono;
    constexpr double ilk = -657434;  // 01.01.0100
    constexpr double son = 2958466;  // the day after 31.12.9999
    const std::optional<double> değer = DoubleÇöz(baytlar);
    if (!değer || *değer <= ilk - 1 || *değer >= son) return std::nullopt;
    // Before the day 0 too, the whole part is the day and the rest its time.
    const double gün = std::trunc(*değer);
    constexpr ch::sys_days başlangıç = ch::year{1899} / 12 / 30;
    const ch::year_month_day tarih(başlangıç + ch::days(static_cast<int>(gün)));
    return ÇözülenTarih{static_cast<int>(tarih.year()) * std::int64_t{10000} +
                            static_cast<std::int64_t>(static_cast<unsigned>(tarih.month())) * 100 +
                            static_cast<std::int64_t>(static_cast<unsigned>(tarih.day())),
                        *değer != gün};
}

Ondalık EnKısaOndalık(double değer) {
    return EnKısa(değer);
}

Ondalık EnKısaOndalık(float değer) {
    return EnKısa(değer);
}

}  // namespace Erişim

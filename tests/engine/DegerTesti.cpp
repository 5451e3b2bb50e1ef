#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "DegerMetni.h"
#include "Hata.h"
#include "Sayi.h"
#include "Utf8.h"

using namespace Motor;

namespace {

std::string ParaMetni(std::int64_t onBinde) {
    char yer[DeğerMetniBoyu];
    return std::string(ParaYaz(onBinde, yer));
}

std::string OndalıkMetni(double değer) {
    char yer[DeğerMetniBoyu];
    return std::string(OndalıkYaz(değer, yer));
}

// The stored money and double of a number text, as text.
std::pair<std::string, std::string> Saklanan(std::string_view metin) {
    const OnlukSayı sayı = SayıMetniÇöz(metin).value();
    std::string para = "too large";
    try {
        para = ParaMetni(ParayaÇevir(sayı));
    } catch (const Hata& hata) {
        EXPECT_EQ(hata.Durum(), "22003");
    }
    return {para, OndalıkMetni(OndalığaÇevir(sayı))};
}

}  // namespace

TEST(DeğerTesti, SayıMetinleri) {
    const struct {
        const char* Metin;
        const char* Para;
        const char* Ondalık;
    } durumlar[] = {
        {"12,5", "12.5", "12.5"},
        {"1.250,50", "1250.5", "1250.5"},
        {"1.250", "1250", "1250"},
        {"12.345.678,9", "12345678.9", "12345678.9"},
        {" -3,25 ", "-3.25", "-3.25"},
        {"- 3", "-3", "-3"},
        {"+007,10", "7.1", "7.1"},
        {"12,", "12", "12"},
        {",5", "0.5", "0.5"},
        {"-0,00", "0", "0"},
        {"-0,00004", "0", "-0.00004"},
        // more than four decimals: halves to even
        {"0,00005", "0", "0.00005"},
        {"0,00015", "0.0002", "0.00015"},
        {"0,000050001", "0.0001", "0.000050001"},
        {"-2,00025", "-2.0002", "-2.00025"},
        {"0,00009999", "0.0001", "0.00009999"},
        // the ends of the money's range
        {"922337203685477,5807", "922337203685477.5807", "922337203685477.6"},
        {"922337203685477,5808", "too large", "922337203685477.6"},
        {"922337203685477,58075", "too large", "922337203685477.6"},
        {"-922337203685477,5808", "-922337203685477.5808", "-922337203685477.6"},
        {"-922337203685477,5809", "too large", "-922337203685477.6"},
        {"99999999999999999999999", "too large", "1e+23"},
    };
    for (const auto& durum : durumlar) {
        const auto [para, ondalık] = Saklanan(durum.Metin);
        EXPECT_EQ(para, durum.Para) << durum.Metin;
        EXPECT_EQ(ondalık, durum.Ondalık) << durum.Metin;
    }
    const char* sayıDeğil[] = {"12.5",   "1250.5", "1.25",   "1234.567", "1.2345",  ".250",      "1..250",
                               "1.250.", "0.500",  "00.125", "-0.125",   "1,250.5", "1,000.000", "",
                               " ",      ",",      "-",      "--5",      "5-",      "1,2,3",     "1 250",
                               "1e5",    "0x10",   "nan",    "\xD9\xA1"};
    for (const char* metin : sayıDeğil) EXPECT_FALSE(SayıMetniÇöz(metin)) << metin;
    EXPECT_THROW(OndalığaÇevir(*SayıMetniÇöz(std::string(400, '9'))), Hata);
    EXPECT_EQ(OndalığaÇevir(*SayıMetniÇöz("0," + std::string(400, '0') + "1")), 0);
}

// What is written as text is read back as the same value, whatever the digits.
TEST(DeğerTesti, MetinVeGeri) {
    std::mt19937_64 rastgele(20040307);
    for (int i = 0; i < 20000; ++i) {
        const auto onBinde = static_cast<std::int64_t>(rastgele()) >> (rastgele() % 64);
        ASSERT_EQ(ParayaÇevir(*SayıYazımıÇöz(ParaMetni(onBinde))), onBinde);

        const double değer = static_cast<double>(onBinde) / std::pow(10, rastgele() % 12);
        const std::string metin = OndalıkMetni(değer);
        ASSERT_EQ(metin.find('e'), std::string::npos) << metin;
        ASSERT_EQ(OndalığaÇevir(*SayıYazımıÇöz(metin)), değer) << metin;
    }
    EXPECT_EQ(OndalıkMetni(-0.0), "0");
    EXPECT_EQ(OndalıkMetni(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(OndalıkMetni(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
    EXPECT_EQ(OndalıkMetni(-std::numeric_limits<double>::denorm_min()), "-5e-324");
}

TEST(DeğerTesti, Tarihler) {
    EXPECT_EQ(TarihOluştur(2000, 2, 29), 20000229);
    for (const auto& [yıl, ay, gün] : {std::tuple(2003, 2, 29), {1900, 2, 29}, {2004, 13, 1}, {2004, 4, 31}})
        EXPECT_EQ(TarihOluştur(yıl, ay, gün), 0) << yıl << ay << gün;
    char yer[DeğerMetniBoyu];
    EXPECT_EQ(TarihYaz(TarihOluştur(100, 12, 31), yer), "0100-12-31 00:00:00");
}

TEST(DeğerTesti, Utf8) {
    for (const char* geçerli : {"", "Çığ", "€", "\U0001F600", "\xEF\xBF\xBF", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(Utf8Geçerli(geçerli)) << geçerli;
    for (const char* bozuk : {"\x80", "\xC3", "\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80",
                              "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "a\xFF", "\xE2\x82"})
        EXPECT_FALSE(Utf8Geçerli(bozuk));
    EXPECT_EQ(Utf16Uzunluğu("aş€\U0001F600"), 5u);
    EXPECT_EQ(BütünKarakterlerleKes("aşş", 4), "aş");
    EXPECT_EQ(BütünKarakterlerleKes("aşş", 5), "aşş");
    EXPECT_EQ(BütünKarakterlerleKes("€", 2), "");
}

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "DegerMetni.h"
#include "Sayi.h"

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

}  // namespace

// The grammar has its tests with the program; these are the engine's own terms.
TEST(DeğerTesti, SayıMetinleri) {
    EXPECT_EQ(ParayaÇevir(*SayıMetniÇöz(" - 1.250,50015 ")), -12505002);
    for (const char* metin : {"12.5", "12,5\t", "\xC2\xA0\x35", "\xD9\xA1"}) EXPECT_FALSE(SayıMetniÇöz(metin)) << metin;
    EXPECT_EQ(OndalığaÇevir(*SayıYazımıÇöz("-0012.50")), -12.5);
    for (const char* metin : {"12,5", "1.250.000", " 5", "- 5", "."}) EXPECT_FALSE(SayıYazımıÇöz(metin)) << metin;
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

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "Para.h"
#include "SayiMetni.h"
#include "Tablo.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto EnKüçük = std::numeric_limits<std::int64_t>::min();
constexpr auto EnBüyük = std::numeric_limits<std::int64_t>::max();

Para P(std::int64_t onBindeBir) {
    return Para::OnBindeBirden(onBindeBir);
}

// "yok" stands for no value.
std::string Yaz(const std::optional<QString>& metin) {
    return metin ? metin->toStdString() : "yok";
}

std::string Yaz(const std::optional<Para>& para) {
    return para ? std::to_string(para->OnBindeBir()) : "yok";
}

TEST(SayıMetni, SayıSınaması) {
    const auto dene = [](const char* tablo, bool yerinde, bool serbest) {
        for (const QStringList& satır : Tablo(tablo)) {
            EXPECT_EQ(SayıMı(satır[0], NoktaKuralı::Yerinde), yerinde) << satır[0].toStdString();
            EXPECT_EQ(SayıMı(satır[0], NoktaKuralı::Serbest), serbest) << satır[0].toStdString();
        }
    };
    dene("12, | ,5 | -,5 |  12,5\t | - 5 | +5 | 001 | 1.250 | 1.250,5 | 12.345.678 | -1.250.000,75", true, true);
    dene("12.5 | 1.25,00 | .250 | 250. | 1..000 | 1250.000 | 1.250000 | 1.2.345 | 1.2345678 | 0.500 | 00.125 | -0.125",
         false, true);
    dene(" | , | - | - , | . | --5 | 5- | 1 250 | 1,2,3 | 12a | 1e5 | 0x1 | inf | ٣ | 1,250.5", false, false);
}

TEST(SayıMetni, ParaOkunurYarımlarÇifteGider) {
    for (const QStringList& satır : Tablo(
             "0,00005 > 0 | 0,00015 > 2 | 0,00025 > 2 | -0,00015 > -2 | 0,00025000001 > 3 | 0,99995 > 10000 | - > yok "
             "| "
             "99,99995 > 1000000 | -0,00004 > 0 | 1.250,50 > 12505000 | 1.25,00 > 1250000 | 12, > 120000 | ,5 > 5000 | "
             "922.337.203.685.477,58074999 > 9223372036854775807 | 922.337.203.685.477,58075 > yok | "
             "-922.337.203.685.477,58085 > -9223372036854775808 | -922.337.203.685.477,58086 > yok | "
             "99999999999999999999999999 > yok | 1844674407370955162 > yok | 1844674407370955,16155 > yok | "
             "0000000000000000000000000000,1 > 1000"))
        EXPECT_EQ(Yaz(ParaOku(satır[0])), satır[1].toStdString()) << satır[0].toStdString();
}

TEST(SayıMetni, BiçimlemeYarımlarıSıfırdanUzağaYuvarlar) {
    for (const QStringList& satır : Tablo(
             "0 > 2 > 0,00 | -0 > 2 > 0,00 | -0,004 > 2 > 0,00 | -0,005 > 2 > -0,01 | 0,005 > 2 > 0,01 | - > 2 > yok | "
             "2,675 > 2 > 2,68 | 2,5 > 0 > 3 | -2,5 > 0 > -3 | -0,4 > 0 > 0 | ,5 > 2 > 0,50 | 12, > 2 > 12,00 | "
             "- 5 > 2 > -5,00 | -999,995 > 2 > -1.000,00 | 1000 > 0 > 1.000 | 999 > 1 > 999,0 | 007 > 1 > 7,0 | "
             "9999999999,99 > 2 > 9.999.999.999,99 | 9999999999,995 > 2 > 10.000.000.000,00 | 1.25,00 > 2 > 125,00 | "
             "1,2345675 > 6 > 1,234568 | 0,00499999999999999999999999 > 2 > 0,00 | "
             "123456789012345678901234567890,125 > 2 > 123.456.789.012.345.678.901.234.567.890,13"))
        EXPECT_EQ(Yaz(SayıMetniBiçimle(satır[0], satır[1].toInt())), satır[2].toStdString()) << satır[0].toStdString();
    EXPECT_EQ(Yaz(SayıMetniBiçimle(u"12.5", 2, NoktaKuralı::Yerinde)), "yok");
}

// Two decimals for the user, money's four with halves to the even: both on 15 significant digits.
TEST(SayıMetni, DoubleOnBeşHaneyleDeğerlendirilir) {
    for (const QStringList& satır : Tablo(
             "2.675 > 2,68 > 26750 | -2.675 > -2,68 > -26750 | 1.005 > 1,01 > 10050 | -0.0 > 0,00 > 0 | "
             "-0.00015 > 0,00 > -2 | 0.00025 > 0,00 > 2 | 0.000149999999999999 > 0,00 > 1 | 8.33325 > 8,33 > 83332 | "
             "8.33335 > 8,33 > 83334 | 0.30000000000000004 > 0,30 > 3000 | 1e-300 > 0,00 > 0 | "
             "999999.995 > 1.000.000,00 > 9999999950 | 1e21 > 1.000.000.000.000.000.000.000,00 > yok | "
             "-922337203685477 > -922.337.203.685.477,00 > -9223372036854770000 | "
             "922337203685478 > 922.337.203.685.478,00 > yok | inf > yok > yok | -inf > yok > yok | nan > yok > yok")) {
        EXPECT_EQ(Yaz(SayıBiçimle(satır[0].toDouble(), 2)), satır[1].toStdString()) << satır[0].toStdString();
        EXPECT_EQ(Yaz(Para::Doubledan(satır[0].toDouble())), satır[2].toStdString()) << satır[0].toStdString();
    }
    EXPECT_EQ(Yaz(SayıBiçimle(5e-7, 6)), "0,000001");
    EXPECT_EQ(P(EnBüyük).Double(), 922337203685477.5807);
    EXPECT_EQ(P(-1).Double(), -0.0001);
}

TEST(SayıMetni, DoubleOkunur) {
    EXPECT_EQ(DoubleOku(u"1.250,1"), 1250.1);
    EXPECT_EQ(DoubleOku(u"0,"_s + QString(400, QChar(u'0')) + u"1"_s), 0.0);
    EXPECT_EQ(DoubleOku(QString(400, QChar(u'9'))), std::nullopt);
    EXPECT_FALSE(std::signbit(*DoubleOku(u"-0,0000000000000000")));
}

TEST(Para, ÇarpımYarımlarıÇifteGiderTaşmaGörülür) {
    for (const auto& [a, b, beklenen] : {std::tuple<std::int64_t, std::int64_t, std::int64_t>(1, 5000, 0),
                                         {3, 5000, 2},
                                         {-3, 5000, -2},
                                         {5, -5000, -2},
                                         {5, -5001, -3},
                                         {-5, -4999, 2},
                                         {12'505'000, 25'000, 31'262'500},
                                         {9'223'372'036'854'775'807, -5000, -4'611'686'018'427'387'904},
                                         {1'234'567'890'123'457, 33'333, 4'115'185'148'148'519}})
        EXPECT_EQ(Çarp(P(a), P(b)), P(beklenen)) << a << " * " << b;
    EXPECT_EQ(Yaz(Topla(P(EnBüyük - 1), P(1))), std::to_string(EnBüyük));
    EXPECT_EQ(Yaz(Topla(P(EnBüyük), P(1))), "yok");
    EXPECT_EQ(Yaz(Topla(P(EnKüçük), P(-1))), "yok");
    EXPECT_EQ(Yaz(Çarp(P(10000), P(EnKüçük))), std::to_string(EnKüçük));
    EXPECT_EQ(Yaz(Çarp(P(-10000), P(EnKüçük))), "yok");
    EXPECT_EQ(Yaz(Çarp(P(10001), P(EnBüyük))), "yok");
    EXPECT_EQ(Yaz(Çarp(P(EnKüçük), P(EnKüçük))), "yok");
}

TEST(Para, MetneGidipGelinceAynıKalır) {
    EXPECT_EQ(SayıBiçimle(P(EnKüçük), 4), u"-922.337.203.685.477,5808"_s);
    EXPECT_EQ(SayıBiçimle(P(-49), 2), u"0,00"_s);
    EXPECT_EQ(NoktayıVirgüleÇevir(u"1.250.5"_s), u"1,250.5"_s);
    std::mt19937_64 rastgele(11);
    for (int tur = 0; tur < 20'000; ++tur) {
        const Para para = P(static_cast<std::int64_t>(rastgele()) >> (rastgele() % 64));
        const QString dört = SayıBiçimle(para, 4);
        ASSERT_EQ(ParaOku(dört, NoktaKuralı::Yerinde), para) << dört.toStdString();
        ASSERT_EQ(para.Double(), DoubleOku(SayıBiçimle(para, 6))) << dört.toStdString();
        if (std::abs(para.OnBindeBir() / 10) < 99'999'999'999'999) {
            ASSERT_EQ(Para::Doubledan(para.Double()), para) << dört.toStdString();
        }
    }
}

}  // namespace

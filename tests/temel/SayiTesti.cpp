#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "Para.h"
#include "SayiMetni.h"

namespace {

constexpr auto EnKüçük = std::numeric_limits<std::int64_t>::min();
constexpr auto EnBüyük = std::numeric_limits<std::int64_t>::max();
constexpr double Sonsuz = std::numeric_limits<double>::infinity();

Para P(std::int64_t onBindeBir) {
    return Para::OnBindeBirden(onBindeBir);
}

QString M(const char* metin) {
    return QString::fromUtf8(metin);
}

// "yok" stands for no value.
std::string Yaz(const std::optional<QString>& metin) {
    return metin ? metin->toStdString() : "yok";
}

std::string Yaz(const std::optional<Para>& para) {
    return para ? std::to_string(para->OnBindeBir()) : "yok";
}

TEST(SayıMetni, SayıSınaması) {
    struct {
        const char* Metin;
        bool Yerinde;
        bool Serbest;
    } const durumlar[] = {
        {"", false, false},
        {",", false, false},
        {"-", false, false},
        {"- ,", false, false},
        {".", false, false},
        {"12,", true, true},
        {",5", true, true},
        {"-,5", true, true},
        {" 12,5\t", true, true},
        {"- 5", true, true},
        {"+5", true, true},
        {"--5", false, false},
        {"5-", false, false},
        {"1 250", false, false},
        {"1,2,3", false, false},
        {"12a", false, false},
        {"1e5", false, false},
        {"0x1", false, false},
        {"٣", false, false},
        {"1.250", true, true},
        {"1.250,5", true, true},
        {"12.5", false, true},
        {"1.25,00", false, true},
        {".250", false, true},
        {"250.", false, true},
        {"1..000", false, true},
        {"1250.000", false, true},
        {"12.345.678", true, true},
        {"1.250000", false, true},
        {"1,250.5", false, false},
        {"-1.250.000,75", true, true},
        {"1.2.345", false, true},
        {"001", true, true},
        {"inf", false, false},
        {"1234.567", false, true},
    };
    for (const auto& durum : durumlar) {
        EXPECT_EQ(SayıMı(M(durum.Metin), NoktaKuralı::Yerinde), durum.Yerinde) << durum.Metin;
        EXPECT_EQ(SayıMı(M(durum.Metin), NoktaKuralı::Serbest), durum.Serbest) << durum.Metin;
    }
}

TEST(SayıMetni, ParaOkunurYarımlarÇifteGider) {
    const std::pair<const char*, std::string> durumlar[] = {
        {"0,00005", "0"},
        {"0,00015", "2"},
        {"0,00025", "2"},
        {"-0,00015", "-2"},
        {"0,00025000001", "3"},
        {"1.250,50", "12505000"},
        {"1.25,00", "1250000"},
        {"12,", "120000"},
        {",5", "5000"},
        {"-", "yok"},
        {"12.5,", "1250000"},
        {"-0,00004", "0"},
        {"99,99995", "1000000"},
        {"0,99995", "10000"},
        {"922.337.203.685.477,5807", "9223372036854775807"},
        {"922.337.203.685.477,58074999", "9223372036854775807"},
        {"922.337.203.685.477,5808", "yok"},
        {"922.337.203.685.477,58075", "yok"},
        {"-922.337.203.685.477,5808", "-9223372036854775808"},
        {"-922.337.203.685.477,58085", "-9223372036854775808"},
        {"-922.337.203.685.477,58086", "yok"},
        {"99999999999999999999999999", "yok"},
        {"0000000000000000000000000000,1", "1000"},
    };
    for (const auto& [metin, beklenen] : durumlar) EXPECT_EQ(Yaz(ParaOku(M(metin))), beklenen) << metin;
    EXPECT_EQ(Yaz(ParaOku(M("12.5"), NoktaKuralı::Yerinde)), "yok");
}

TEST(Para, DoubledanOnBeşHaneyle) {
    const std::pair<double, std::string> durumlar[] = {
        {0.00015, "2"},
        {0.00025, "2"},
        {-0.00015, "-2"},
        {2.67505, "26750"},
        {1.00015, "10002"},
        {0.1 + 0.2, "3000"},
        {1e-300, "0"},
        {-0.0, "0"},
        {8.33325, "83332"},
        {8.33335, "83334"},
        {0.000149999999999999, "1"},
        {0.00014999999999999999, "2"},
        {1e15, "yok"},
        {922337203685477.0, "9223372036854770000"},
        {-922337203685477.0, "-9223372036854770000"},
        {922337203685478.0, "yok"},
        {Sonsuz, "yok"},
        {-Sonsuz, "yok"},
        {std::nan(""), "yok"},
    };
    for (const auto& [değer, beklenen] : durumlar) EXPECT_EQ(Yaz(Para::Doubledan(değer)), beklenen) << değer;
}

TEST(Para, DoubleaEnYakınDeğer) {
    EXPECT_EQ(P(123456789).Double(), 12345.6789);
    EXPECT_EQ(P(-1).Double(), -0.0001);
    EXPECT_EQ(P(EnBüyük).Double(), 922337203685477.5807);
    EXPECT_EQ(P(EnKüçük).Double(), -922337203685477.5808);
}

TEST(Para, ToplamaTaşmayıGörür) {
    EXPECT_EQ(Yaz(Topla(P(EnBüyük - 1), P(1))), std::to_string(EnBüyük));
    EXPECT_EQ(Yaz(Topla(P(EnBüyük), P(1))), "yok");
    EXPECT_EQ(Yaz(Topla(P(EnKüçük), P(-1))), "yok");
    EXPECT_EQ(Yaz(Topla(P(EnKüçük), P(EnBüyük))), "-1");
}

TEST(Para, ÇarpmaTamdırYarımlarÇifteGider) {
    struct {
        std::int64_t A, B;
        std::string Beklenen;
    } const durumlar[] = {
        {10000, EnBüyük, "9223372036854775807"},
        {10000, EnKüçük, "-9223372036854775808"},
        {-10000, EnKüçük, "yok"},
        {10001, EnBüyük, "yok"},
        {EnKüçük, EnKüçük, "yok"},
        {1, 5000, "0"},  // half, down to the even
        {3, 5000, "2"},  // half, up to the even
        {-3, 5000, "-2"},
        {-1, 5000, "0"},
        {5, -5000, "-2"},
        {7, -5000, "-4"},
        {1, 5001, "1"},
        {1, 4999, "0"},
        {-1, 5001, "-1"},
        {100000, 333300, "3333000"},
    };
    for (const auto& [a, b, beklenen] : durumlar) {
        EXPECT_EQ(Yaz(Çarp(P(a), P(b))), beklenen) << a << " * " << b;
        EXPECT_EQ(Yaz(Çarp(P(b), P(a))), beklenen) << a << " * " << b;
    }
}

// The product by schoolbook multiplication of the digits, read back as a text: no 128-bit arithmetic, no shared
// rounding.
std::string OkuldakiGibiÇarp(std::int64_t a, std::int64_t b) {
    const std::string x = std::to_string(std::abs(a));
    const std::string y = std::to_string(std::abs(b));
    std::string çarpım(x.size() + y.size() + 8, '0');
    for (std::size_t i = 0; i < x.size(); ++i)
        for (std::size_t j = 0, elde = 0; j < y.size() || elde > 0; ++j) {
            char& hane = çarpım[çarpım.size() - 1 - i - j];
            const std::size_t toplam =
                elde + (hane - '0') + (j < y.size() ? (x[x.size() - 1 - i] - '0') * (y[y.size() - 1 - j] - '0') : 0);
            hane = static_cast<char>('0' + toplam % 10);
            elde = toplam / 10;
        }
    çarpım.insert(çarpım.size() - 8, 1, ',');
    return ((a < 0) != (b < 0) ? "-" : "") + çarpım;
}

TEST(Para, ÇarpmaRastgeleSayılarlaElHesabınaUyar) {
    std::mt19937_64 rastgele(7);
    for (int tur = 0; tur < 50'000; ++tur) {
        const auto a = static_cast<std::int64_t>(rastgele()) >> (rastgele() % 60);
        auto b = static_cast<std::int64_t>(rastgele()) >> (rastgele() % 60);
        if (tur % 3 == 0) b = b / 5000 * 5000;  // many exact halves
        const std::string elle = OkuldakiGibiÇarp(a == EnKüçük ? a + 1 : a, b == EnKüçük ? b + 1 : b);
        ASSERT_EQ(Yaz(Çarp(P(a == EnKüçük ? a + 1 : a), P(b == EnKüçük ? b + 1 : b))),
                  Yaz(ParaOku(QString::fromStdString(elle))))
            << a << " * " << b;
    }
}

TEST(SayıMetni, BiçimlemeYarımlarıSıfırdanUzağaYuvarlar) {
    struct {
        const char* Metin;
        int Basamak;
        std::string Beklenen;
    } const durumlar[] = {
        {"0", 2, "0,00"},
        {"-0", 2, "0,00"},
        {"-0,004", 2, "0,00"},
        {"-0,005", 2, "-0,01"},
        {"0,005", 2, "0,01"},
        {"2,675", 2, "2,68"},
        {"2,5", 0, "3"},
        {"-2,5", 0, "-3"},
        {"-0,4", 0, "0"},
        {",5", 2, "0,50"},
        {"12,", 2, "12,00"},
        {"- 5", 2, "-5,00"},
        {"999,995", 2, "1.000,00"},
        {"-999,995", 2, "-1.000,00"},
        {"1000", 0, "1.000"},
        {"999", 1, "999,0"},
        {"9999999999,99", 2, "9.999.999.999,99"},
        {"9999999999,995", 2, "10.000.000.000,00"},
        {"1,2345675", 6, "1,234568"},
        {"0,0000005", 6, "0,000001"},
        {"1.25,00", 2, "125,00"},
        {"007", 1, "7,0"},
        {"123456789012345678901234567890,125", 2, "123.456.789.012.345.678.901.234.567.890,13"},
        {"0,00499999999999999999999999", 2, "0,00"},
        {"-", 2, "yok"},
        {"", 2, "yok"},
        {"a", 2, "yok"},
    };
    for (const auto& durum : durumlar)
        EXPECT_EQ(Yaz(SayıMetniBiçimle(M(durum.Metin), durum.Basamak)), durum.Beklenen) << durum.Metin;
    EXPECT_EQ(Yaz(SayıMetniBiçimle(M("12.5"), 2, NoktaKuralı::Yerinde)), "yok");
}

TEST(SayıMetni, DoubleOnBeşHaneyleBiçimlenir) {
    struct {
        double Değer;
        int Basamak;
        std::string Beklenen;
    } const durumlar[] = {
        {2.675, 2, "2,68"},
        {-2.675, 2, "-2,68"},
        {1.005, 2, "1,01"},
        {0.125, 2, "0,13"},
        {-0.0, 2, "0,00"},
        {-0.001, 2, "0,00"},
        {1e-20, 6, "0,000000"},
        {0.1 + 0.2, 6, "0,300000"},
        {1.0 / 3, 6, "0,333333"},
        {10.0 / 3 * 3, 2, "10,00"},
        {123456789.125, 2, "123.456.789,13"},
        {999999.995, 2, "1.000.000,00"},
        {1e21, 1, "1.000.000.000.000.000.000.000,0"},
        {5e-7, 6, "0,000001"},
        {Sonsuz, 2, "yok"},
        {std::nan(""), 2, "yok"},
    };
    for (const auto& durum : durumlar)
        EXPECT_EQ(Yaz(SayıBiçimle(durum.Değer, durum.Basamak)), durum.Beklenen) << durum.Değer;
}

TEST(SayıMetni, ParaBiçimlenir) {
    EXPECT_EQ(SayıBiçimle(P(EnKüçük), 4).toStdString(), "-922.337.203.685.477,5808");
    EXPECT_EQ(SayıBiçimle(P(EnBüyük), 2).toStdString(), "922.337.203.685.477,58");
    EXPECT_EQ(SayıBiçimle(P(133330), 2).toStdString(), "13,33");
    EXPECT_EQ(SayıBiçimle(P(-49), 2).toStdString(), "0,00");
    EXPECT_EQ(SayıBiçimle(P(-50), 2).toStdString(), "-0,01");
    EXPECT_EQ(SayıBiçimle(P(12), 6).toStdString(), "0,001200");
    EXPECT_EQ(DüzMetin(P(12500000)).toStdString(), "1250");
    EXPECT_EQ(DüzMetin(P(-125000)).toStdString(), "-12,5");
    EXPECT_EQ(DüzMetin(P(-1)).toStdString(), "-0,0001");
    EXPECT_EQ(DüzMetin(P(0)).toStdString(), "0");
}

TEST(SayıMetni, ParaGidipGelincedeAynıKalır) {
    std::mt19937_64 rastgele(11);
    for (int tur = 0; tur < 20'000; ++tur) {
        const Para para = P(static_cast<std::int64_t>(rastgele()) >> (rastgele() % 64));
        const QString dört = SayıBiçimle(para, 4);
        ASSERT_EQ(ParaOku(dört, NoktaKuralı::Yerinde), para) << dört.toStdString();
        ASSERT_EQ(ParaOku(SayıBiçimle(para, 6), NoktaKuralı::Yerinde), para);
        ASSERT_EQ(ParaOku(DüzMetin(para), NoktaKuralı::Yerinde), para);
        ASSERT_EQ(para.Double(), *DoubleOku(dört));
        if (std::abs(para.OnBindeBir() / 10) < 99'999'999'999'999) {
            ASSERT_EQ(Para::Doubledan(para.Double()), para) << dört.toStdString();
        }
    }
}

TEST(SayıMetni, DoubleOkunur) {
    EXPECT_EQ(DoubleOku(M("1.250,5")), 1250.5);
    EXPECT_EQ(DoubleOku(M("0,1")), 0.1);
    EXPECT_EQ(DoubleOku(M("0," + QByteArray(400, '0') + "1")), 0.0);
    EXPECT_EQ(DoubleOku(M(QByteArray(400, '9'))), std::nullopt);
    EXPECT_EQ(DoubleOku(M("12.5"), NoktaKuralı::Yerinde), std::nullopt);
    EXPECT_FALSE(std::signbit(*DoubleOku(M("-0,0"))));
}

TEST(SayıMetni, YalnızİlkNoktaVirgülOlur) {
    EXPECT_EQ(NoktayıVirgüleÇevir(M("1.250.5")), M("1,250.5"));
    EXPECT_EQ(NoktayıVirgüleÇevir(M("1250")), M("1250"));
}

}  // namespace

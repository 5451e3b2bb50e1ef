#include <gtest/gtest.h>

#include "MaliyetDagilimi.h"
#include "SayiMetni.h"

namespace {

std::string Yaz(const DağılımParçası& parça) {
    const QString tutar = parça.Tutar ? SayıBiçimle(*parça.Tutar, static_cast<int>(parça.Tutar->Basamak)) : "-";
    return (tutar + " " + (parça.Pay ? *SayıBiçimle(*parça.Pay, 1) : "-")).toStdString();
}

std::string Yaz(const std::optional<DağılımParçası>& parça) {
    return parça ? Yaz(*parça) : "";
}

// The parts, what rounding makes of them, the total; the materials, their rounding and cost.
std::string Dök(const MaliyetDağılımı& d) {
    std::string metin;
    for (const DağılımParçası& parça : d.Parçalar) metin += Yaz(parça) + "; ";
    metin += "(" + Yaz(d.Yuvarlama) + ") " + Yaz(DağılımParçası{d.Toplam, {}}) + " |";
    for (const DağılımMalzemesi& m : d.Malzemeler) {
        metin += " " + m.Ad.toStdString() + " " + Yaz(m.Parça) + " ";
        metin += m.BirikimliPay ? SayıBiçimle(*m.BirikimliPay, 1)->toStdString() : "-";
        metin += m.Sayıldı ? ";" : " x;";
    }
    return metin + " (" + Yaz(d.MalzemeYuvarlaması) + ")";
}

TEST(Dağılım, ParçalarVeYuvarlamaGösterilenBütünüVerir) {
    struct Durum {
        DağılımGirdisi Girdi;
        const char* Sonuç;
    };
    const Durum durumlar[] = {
        // The percentages count as they are shown; a material that stands twice is two rows; what cannot be read is
        // none.
        {{{"10.004", "0", "-25.5", "3"},
          {{"a", "1 Adet", "20"}, {"a", "2 Adet", "20"}, {"b", "1,5 kg", "100"}, {"c", "çok", "7"}}},
         "210,00 114,3; 21,00 11,4; 0,00 0,0; -53,55 -29,1; 6,30 3,4; () 183,75 - | b 150,00 71,4 71,4; a 40,00 19,0 "
         "90,5; a 20,00 9,5 100,0; c - - - x; ()"},
        // Each row is shown rounded, their sum is not theirs.
        {{{"50", "50", "0", "0"}, {{"a", "1 m", "0,005"}, {"b", "1 m", "0,005"}, {"c", "1 m", "0,005"}}},
         "0,02 50,0; 0,01 25,0; 0,01 25,0; 0,00 0,0; 0,00 0,0; () 0,04 - | a 0,01 50,0 50,0; b 0,01 50,0 100,0; c 0,01 "
         "50,0 150,0; (-0,01 -50,0)"},
        {{{"50", "50", "50", "50"}, {{"a", "1 m", "0,01"}}},
         "0,01 33,3; 0,01 33,3; 0,01 33,3; 0,01 33,3; 0,01 33,3; (-0,02 -66,7) 0,03 - | a 0,01 100,0 100,0; ()"},
        // Nothing is a share of a whole that is not above zero.
        {{{"0", "0", "-200", "0"}, {{"a", "1 m", "5"}, {"b", "-1 m", "2"}}},
         "3,00 -; 0,00 -; 0,00 -; -6,00 -; 0,00 -; () -3,00 - | a 5,00 166,7 166,7; b -2,00 -66,7 100,0; ()"},
        {{{"10", "", "", ""}, {}}, "0,00 -; 0,00 -; 0,00 -; 0,00 -; 0,00 -; () 0,00 - | ()"},
    };
    for (const Durum& durum : durumlar) EXPECT_EQ(Dök(MaliyetiDağıt(durum.Girdi, 2)), durum.Sonuç);

    const MaliyetDağılımı büyük = MaliyetiDağıt(
        {{"0", "0", "0", "0"},
         {{"a", "1 m", "900000000000000"}, {"b", "1 m", "900000000000000"}, {"c", "1 m", "20000000000000,1"}}},
        6);
    EXPECT_EQ(Dök(büyük),
              "920.000.000.000.000,100000 100,0; 0,000000 0,0; 0,000000 0,0; 0,000000 0,0; 0,000000 0,0; () "
              "920.000.000.000.000,100000 - | a 900.000.000.000.000,000000 97,8 97,8; c 20.000.000.000.000,100000 2,2 "
              "100,0; b - - - x; ()")
        << "the second leaves money's range";
    EXPECT_FALSE(büyük.Taşıyor());
    EXPECT_TRUE(MaliyetiDağıt({{"1", "0", "0", "0"}, {{"a", "1 m", "920000000000000"}}}, 2).Taşıyor());
    EXPECT_EQ(Yaz(büyük.Kalanlar(1)), "20.000.000.000.000,100000 2,2");
}

}  // namespace

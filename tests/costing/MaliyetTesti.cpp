#include <gtest/gtest.h>

#include "EkranKonumu.h"
#include "MaliyetHesabi.h"
#include "MalzemeToplami.h"
#include "SayiMetni.h"

namespace {

std::string Yazı(Para para) {
    return SayıBiçimle(para, 4).toStdString();
}

TEST(Maliyet, TutarlarVeToplamParaAdımlarıylaBulunur) {
    struct Durum {
        MaliyetGirdisi Girdi;
        const char* Tutarlar;  // labour, profit, other, maturity
        const char* Toplam;
    };
    const Durum durumlar[] = {
        {{"1.000,00", "10", "20", "5", "3"}, "100,0000 200,0000 50,0000 30,0000", "1.380,0000"},
        {{"10,00", "33,33", "", ",", "0,00"}, "3,3330 0,0000 0,0000 0,0000", "13,3330"},
        {{"24,99", "0,50", "", "", ""}, "0,1250 0,0000 0,0000 0,0000", "25,1150"},  // 0,12495 to four decimals
        {{"1.000,00", "", "", "-5,00", ""}, "0,0000 0,0000 -50,0000 0,0000", "950,0000"},
        {{"1.000,00", "", "", "-", ""}, "0,0000 0,0000 0,0000 0,0000", "1.000,0000"},  // a lone sign counts 0
        // Halves go to the even ten-thousandth: 0,00005 and 0,00015.
        {{"0,01", "0,50", "1,50", "-0,50", "-1,50"}, "0,0000 0,0002 0,0000 -0,0002", "0,0100"},
        // Without a material cost each amount keeps its rate and the total stays 0.
        {{"", "10", "20", "-5", "3"}, "10,0000 20,0000 -5,0000 3,0000", "0,0000"},
        // A product too large for money keeps its rate; the others and the total go on.
        {{"900.000.000.000.000,00", "2.000,00", "1,00", "", ""},
         "2.000,0000 9.000.000.000.000,0000 0,0000 0,0000",
         "909.000.000.002.000,0000"},
        // A total too large for money stays 0.
        {{"922.000.000.000.000,00", "0,50", "0,50", "", ""},
         "4.610.000.000.000,0000 4.610.000.000.000,0000 0,0000 0,0000",
         "0,0000"},
    };
    for (const Durum& durum : durumlar) {
        SCOPED_TRACE(durum.Girdi.MalzemeMaliyeti.toStdString() + " " + durum.Girdi.İşçilik.toStdString());
        const MaliyetTutarları t = MaliyetHesapla(durum.Girdi);
        EXPECT_EQ(Yazı(t.İşçilik) + " " + Yazı(t.Kâr) + " " + Yazı(t.Diğer) + " " + Yazı(t.Vade), durum.Tutarlar);
        EXPECT_EQ(Yazı(t.Toplam), durum.Toplam);
    }
}

struct Girilen {
    const char* Miktar;
    const char* Fiyat;
};

MalzemeToplamı Topla(std::initializer_list<Girilen> satırlar, int basamak = 2) {
    MalzemeToplamı toplam;
    for (const Girilen& s : satırlar) toplam.Ekle(s.Miktar, s.Fiyat, basamak);
    return toplam;
}

TEST(MalzemeToplamı, SatırınSayılarınıBiçimler) {
    struct Durum {
        Girilen Satır;
        int Basamak;
        const char* Görünen;
    };
    const Durum durumlar[] = {
        {{"2,5 Kilogram", "1250,5"}, 2, "2,50 Kilogram|1.250,50|3.126,25"},
        {{"1.250 Küçük Kutu", "0,335"}, 3, "1.250,000 Küçük Kutu|0,335|418,750"},
        {{"5", "2"}, 1, "5,0|2,0|10,0"},
        {{"2,675 m", "1"}, 2, "2,68 m|1,00|2,68"},       // halves away from zero on the decimal value
        {{"12.5 Adet", "2"}, 2, "12.5 Adet|2,00|0,00"},  // no number: never 125
        {{"çok Adet", "2"}, 2, "çok Adet|2,00|0,00"},
    };
    for (const Durum& durum : durumlar) {
        MalzemeToplamı toplam;
        const MalzemeSatırı s = toplam.Ekle(durum.Satır.Miktar, durum.Satır.Fiyat, durum.Basamak);
        EXPECT_EQ((s.Miktar + "|" + s.Fiyat + "|" + s.Tutar).toStdString(), durum.Görünen);
        EXPECT_EQ(s.Sayıldı, s.Tutar != "0,00") << durum.Satır.Miktar;
    }
}

TEST(MalzemeToplamı, YuvarlanmamışTutarlarıToplar) {
    // Each amount becomes money first: 0,00015 and 0,00025 to the even ten-thousandth.
    EXPECT_EQ(Yazı(Topla({{"1,5 m", "0,0001"}, {"2,5 m", "0,0001"}}).Tutar()), "0,0004");
    // What cannot be added is left out and told.
    MalzemeToplamı büyük = Topla({{"1 Adet", "900000000000000"}});
    EXPECT_FALSE(büyük.Ekle("1 Adet", "900000000000000", 2).Sayıldı);
    EXPECT_EQ(Yazı(büyük.Tutar()), "900.000.000.000.000,0000");
}

TEST(MalzemeToplamı, MiktarıAyrıBirimeKadarToplar) {
    // The unit is what stands after the last blank.
    EXPECT_FALSE(Topla({{"1 Küçük Kutu", "1"}, {"2 Büyük Kutu", "1"}}).BirimlerFarklı());
    const auto ayrı = Topla({{"2 Metre", "1"}, {"3 Adet", "1"}, {"4 Metre", "1"}});
    EXPECT_TRUE(ayrı.BirimlerFarklı());
    EXPECT_EQ(ayrı.ToplamMiktar(), 2);
}

TEST(EkranKonumu, UlaşılamayanPencereEkranaGelir) {
    const QList<QRect> ekranlar = {QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};
    const QSize boy(1000, 700);
    const std::pair<QPoint, QPoint> durumlar[] = {
        {{100, 50}, {100, 50}},      {{1200, 50}, {1200, 50}},    // across both
        {{-900, 50}, {-900, 50}},                                 // enough of the title bar to take hold of
        {{-990, 50}, {0, 50}},       {{5000, 4000}, {280, 100}},  // its screen is gone
        {{1500, -20}, {1500, 0}},                                 // title bar above the screen
        {{1400, 1070}, {1400, 380}},
    };
    for (const auto& [eski, yeni] : durumlar) EXPECT_EQ(EkranaGetir(QRect(eski, boy), ekranlar), yeni) << eski.x();
    EXPECT_EQ(EkranaGetir(QRect(QPoint(900, 900), boy), {QRect(0, 0, 800, 600)}), QPoint(0, 0));
}

}  // namespace

#include "KayitYuzeyi.h"
#include "MaliyetFisi.h"

namespace {

// After the rows: the material cost, the four percentages, the total; quantity and unit cost; the waste rate, and
// both with waste.
MaliyetFişi Masa() {
    const QList<QStringList> satırlar{{"2,50 Metre", "Çam Kereste", "1.250,50", "3.126,25"},
                                      {"8,00 Adet", "İğne Başlı Vida", "0,25", "2,00"},
                                      {"0,33 Kilogram", "Tutkal, beyaz", "3,02", "0,99"}};
    return {"Çalışma Masası", satırlar, "3.129,24", "20", "12,5",  "0,50",  "3,00",
            "4.255,77",       "10,83",  "392,96",   "5",  "10,29", "304,11"};
}

// The texts from this one on.
QString Kalan(const MaliyetFişi& fiş, const QString& ilk) {
    KayıtYüzeyi yüzey;
    MaliyetFişiniYaz(yüzey, fiş);
    const QString hepsi = yüzey.SayfaMetinleri(1);
    return hepsi.mid(hepsi.indexOf(ilk));
}

}  // namespace

TEST(MaliyetFişi, TekSayfa) {
    KayıtYüzeyi yüzey;
    MaliyetFişiniYaz(yüzey, Masa());
    AltınlaKarşılaştır("maliyet-fisi", yüzey.Döküm());
}

// Zero, empty and unreadable percentages have no line; the text stands as it was typed.
TEST(MaliyetFişi, YüzdeSatırları) {
    for (const auto& [yüzde, satırlar] : {std::pair("12,5", "Kar (%12,5):|3,12|Vade Farkı (%12,5):|3,12|"),
                                          {"1.000", "Kar (%1.000):|249,90|Vade Farkı (%1.000):|249,90|"},
                                          {"0,001", "Kar (%0,001):|0,00|Vade Farkı (%0,001):|0,00|"},
                                          {"0", ""},
                                          {"", ""},
                                          {"-", ""}}) {
        MaliyetFişi fiş;
        fiş.MalzemeMaliyeti = "24,99";
        fiş.ToplamMaliyet = "25,00";
        fiş.KârYüzdesi = fiş.VadeYüzdesi = yüzde;
        EXPECT_EQ(Kalan(fiş, "Malzeme Mal"), "Malzeme Maliyeti:|24,99|" + QString(satırlar) + "Toplam:|25,00");
    }
}

// What is computed or formatted for the sheet has the asked decimals.
TEST(MaliyetFişi, GörünenMetinlerYenidenBiçimlenmez) {
    MaliyetFişi fiş = Masa();
    fiş.Satırlar = {{"2,5 Metre", "X", "1250,5", "3126"}};
    fiş.MalzemeMaliyeti = "3126";
    fiş.ToplamMaliyet = "4000,1";
    fiş.OndalıkBasamak = 4;
    EXPECT_EQ(Kalan(fiş, "2,5 Metre"),
              "2,5 Metre|X|1250,5|3126|Malzeme Maliyeti:|3126|İşçilik (%20):|625,2000|Kar (%12,5):|390,7500|"
              "Diğer Varnek (%0,50):|15,6300|Vade Farkı (%3,00):|93,7800|Toplam:|4000,1|"
              "Toplam Malzeme Miktarı:|10,8300|Birim Varnek:|392,9600|Fire Oranı (%):|5,0000|"
              "Fireli Malzeme Miktarı:|10,2900|Fireli Birim Varnek:|304,1100");
}

TEST(MaliyetFişi, MiktarVeFireSatırları) {
    MaliyetFişi fiş = Masa();
    for (const char* oran : {"", "0", "-3", "x"}) {
        fiş.FireOranı = oran;
        EXPECT_EQ(Kalan(fiş, "Toplam:"), "Toplam:|4.255,77|Toplam Malzeme Miktarı:|10,83|Birim Varnek:|392,96");
    }
    fiş = Masa();
    fiş.ToplamMiktar.clear();
    EXPECT_EQ(Kalan(fiş, "Toplam:"),
              "Toplam:|4.255,77|Fire Oranı (%):|5,00|Fireli Malzeme Miktarı:|10,29|Fireli Birim Varnek:|304,11");
}

// Rows take 4,4 mm from 31 mm on; the summary starts where at least 50 mm are left, and stays in one piece.
TEST(MaliyetFişi, ÖzetSayfaSonunda) {
    const struct {
        double Yükseklik;
        bool Fireli;
        int ÖzetSayfası;
    } durumlar[] = {
        {126, false, 1},  // 31 + 44 + 50 = 125
        {125, false, 2},
        {134, true, 1},  // eleven lines need 5 + 26,4 + 5 + 22 = 58,4 mm: 133,4
        {133, true, 2},
    };
    for (const auto& [yükseklik, fireli, sayfa] : durumlar) {
        MaliyetFişi fiş = Masa();
        fiş.Satırlar.fill(fiş.Satırlar.at(0), 10);
        if (!fireli) {
            fiş.ToplamMiktar.clear();
            fiş.FireOranı.clear();
        }
        KayıtYüzeyi yüzey(210, yükseklik);
        MaliyetFişiniYaz(yüzey, fiş);
        const auto özet = yüzey.Bul("Malzeme Maliyeti:").at(0);
        EXPECT_EQ(özet.Sayfa, sayfa) << yükseklik << fireli;
        EXPECT_EQ(yüzey.Metinler.constLast().Sayfa, özet.Sayfa);
        if (sayfa == 1) continue;
        EXPECT_TRUE(yüzey.SayfaMetinleri(2).startsWith(fiş.Ürün + "|Sayfa - 2|"));
        EXPECT_DOUBLE_EQ(özet.Y, 20);
    }
}

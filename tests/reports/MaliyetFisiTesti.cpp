#include <gtest/gtest.h>

#include "KayitYuzeyi.h"
#include "MaliyetFisi.h"

namespace {

MaliyetFişi Masa() {
    MaliyetFişi fiş;
    fiş.Ürün = U("Çalışma Masası");
    fiş.Satırlar = {{U("2,50 Metre"), U("Çam Kereste"), U("1.250,50"), U("3.126,25")},
                    {U("8,00 Adet"), U("İğne Başlı Vida"), U("0,25"), U("2,00")},
                    {U("0,33 Kilogram"), U("Tutkal, beyaz"), U("3,02"), U("0,99")}};
    fiş.MalzemeMaliyeti = U("3.129,24");
    fiş.İşçilikYüzdesi = U("20");
    fiş.KârYüzdesi = U("12,5");
    fiş.DiğerYüzdesi = U("0,50");
    fiş.VadeYüzdesi = U("3,00");
    fiş.ToplamMaliyet = U("4.255,77");
    fiş.ToplamMiktar = U("10,83");
    fiş.BirimMaliyet = U("392,96");
    fiş.FireOranı = U("5");
    fiş.FireliMiktar = U("10,29");
    fiş.FireliBirimMaliyet = U("304,11");
    return fiş;
}

QStringList Özet(const MaliyetFişi& fiş) {
    KayıtYüzeyi yüzey;
    MaliyetFişiniYaz(yüzey, fiş);
    QStringList metinler;
    for (const auto& metin : yüzey.Metinler) metinler.append(metin.Metin);
    return metinler.mid(metinler.indexOf(U("Malzeme Maliyeti:")));
}

MaliyetFişi SatırSayılı(int satır) {
    MaliyetFişi fiş = Masa();
    fiş.Satırlar.resize(1);
    while (fiş.Satırlar.size() < satır) fiş.Satırlar.append(fiş.Satırlar.at(0));
    return fiş;
}

}  // namespace

TEST(MaliyetFişi, TekSayfa) {
    KayıtYüzeyi yüzey;
    MaliyetFişiniYaz(yüzey, Masa());
    AltınlaKarşılaştır(U("maliyet-fisi"), yüzey.Döküm());
}

// Zero, negative, empty and unreadable percentages have no line; the text stands as it was typed.
TEST(MaliyetFişi, YüzdeSatırları) {
    const struct {
        const char *Yüzde, *Tutar;  // null: no line
    } durumlar[] = {{"20", "5,00"}, {"12,5", "3,12"}, {"1.000", "249,90"}, {"0,001", "0,00"},
                    {"0", nullptr}, {"-5", nullptr},  {"", nullptr},       {"-", nullptr}};
    for (const auto& durum : durumlar) {
        MaliyetFişi fiş;
        fiş.MalzemeMaliyeti = U("24,99");
        fiş.ToplamMaliyet = U("25,00");
        fiş.KârYüzdesi = fiş.VadeYüzdesi = U(durum.Yüzde);
        QStringList beklenen{U("Malzeme Maliyeti:"), U("24,99")};
        for (const char* etiket : {"Kar (%", "Vade Farkı (%"}) {
            if (durum.Tutar) beklenen += {U(etiket) + U(durum.Yüzde) + U("):"), U(durum.Tutar)};
        }
        EXPECT_EQ(Özet(fiş), beklenen + QStringList({U("Toplam:"), U("25,00")})) << durum.Yüzde;
    }
}

TEST(MaliyetFişi, GörünenMetinlerYenidenBiçimlenmez) {
    MaliyetFişi fiş = Masa();
    fiş.Satırlar = {{U("2,5 Metre"), U("X"), U("1250,5"), U("3126")}};
    fiş.MalzemeMaliyeti = U("3126");
    fiş.ToplamMaliyet = U("4000,1");
    fiş.OndalıkBasamak = 4;
    KayıtYüzeyi yüzey;
    MaliyetFişiniYaz(yüzey, fiş);
    for (const char* metin : {"2,5 Metre", "1250,5", "4000,1", "İşçilik (%20):", "Diğer Varnek (%0,50):"})
        EXPECT_EQ(yüzey.Bul(U(metin)).size(), 1) << metin;
    EXPECT_EQ(yüzey.Bul(U("3126")).size(), 2);
    // What is computed or formatted for the sheet has the asked decimals.
    for (const char* metin : {"625,2000", "10,8300", "392,9600", "5,0000", "10,2900", "304,1100"})
        EXPECT_EQ(yüzey.Bul(U(metin)).size(), 1) << metin;
}

TEST(MaliyetFişi, MiktarVeFireSatırları) {
    const QStringList miktar{U("Toplam Malzeme Miktarı:"), U("10,83"), U("Birim Varnek:"), U("392,96")};
    const QStringList fire{U("Fire Oranı (%):"),      U("5,00"),  U("Fireli Malzeme Miktarı:"), U("10,29"),
                           U("Fireli Birim Varnek:"), U("304,11")};
    const auto miktarlar = [](const MaliyetFişi& fiş) { return Özet(fiş).mid(12); };
    MaliyetFişi fiş = Masa();
    EXPECT_EQ(miktarlar(fiş), miktar + fire);
    for (const char* oran : {"", "0", "-3", "x"}) {
        fiş.FireOranı = U(oran);
        EXPECT_EQ(miktarlar(fiş), miktar) << oran;
    }
    fiş = Masa();
    fiş.ToplamMiktar.clear();
    EXPECT_EQ(miktarlar(fiş), fire);
    // Empty or unreadable boxes leave their values empty, and the lines end all the same.
    fiş = Masa();
    fiş.BirimMaliyet.clear();
    fiş.FireliMiktar = U("?");
    KayıtYüzeyi yüzey;
    MaliyetFişiniYaz(yüzey, fiş);
    const double ilk = yüzey.Bul(U("Birim Varnek:")).at(0).Y;
    EXPECT_NEAR(yüzey.Bul(U("Fire Oranı (%):")).at(0).Y, ilk + 4.4, 1e-9);
    EXPECT_NEAR(yüzey.Bul(U("Fireli Birim Varnek:")).at(0).Y, ilk + 3 * 4.4, 1e-9);
    EXPECT_EQ(yüzey.Bul(QString()).size(), 2);
}

// Rows take 4,4 mm from 31 mm on; the summary starts where at least 50 mm are left, and stays in one piece.
TEST(MaliyetFişi, ÖzetSayfaSonunda) {
    const struct {
        int Satır;
        double Yükseklik;
        bool Fireli;
        int ÖzetSayfası;
    } durumlar[] = {
        {10, 125.0 + 1, false, 1},                      // 31 + 44 + 50 = 125
        {10, 125, false, 2},       {10, 126, true, 2},  // eleven lines need 5 + 26,4 + 5 + 22 = 58,4 mm
        {10, 134, true, 1},                             // 31 + 44 + 58,4 = 133,4
        {10, 133, true, 2},
    };
    for (const auto& durum : durumlar) {
        MaliyetFişi fiş = SatırSayılı(durum.Satır);
        if (!durum.Fireli) {
            fiş.ToplamMiktar.clear();
            fiş.FireOranı.clear();
        }
        KayıtYüzeyi yüzey(210, durum.Yükseklik);
        MaliyetFişiniYaz(yüzey, fiş);
        const auto özet = yüzey.Bul(U("Malzeme Maliyeti:")).at(0);
        EXPECT_EQ(özet.Sayfa, durum.ÖzetSayfası) << durum.Yükseklik << durum.Fireli;
        EXPECT_EQ(yüzey.Metinler.constLast().Sayfa, özet.Sayfa);
        if (durum.ÖzetSayfası == 2) {
            EXPECT_EQ(yüzey.SayfaMetinleri(2).mid(0, 2), QStringList({fiş.Ürün, U("Sayfa - 2")}));
            EXPECT_DOUBLE_EQ(özet.Y, 20);
        }
    }
}

#include <QCheckBox>
#include <QTreeView>

#include "AnaForm.h"
#include "BaskiTesti.h"
#include "MalzemeListesiFormu.h"
#include "UrunListesiFormu.h"

using ListeRaporları = BaskıTesti;

TEST_F(ListeRaporları, MalzemeListesi) {
    for (const auto& [ad, fiyat] : {std::pair("Şerit", "12,5"), {"Çam", "1.250,505"}, {"Ihlamur", "0"}, {"İp", "3"}})
        MalzemeEkle(ad, fiyat);
    Aç<MalzemeListesiFormu>();
    EXPECT_EQ(Satırlar("MalzemeListesi"), "Çam|1.250,51; Ihlamur|0,00; İp|3,00; Şerit|12,50");
    EXPECT_EQ(YazdırılabilirOlanlar(), Hepsi);
    // A key pressed too often on the way here prints nothing.
    Tuş(Qt::Key_Space);
    EXPECT_FALSE(Yazdırılan());
    EXPECT_EQ(SekmeSırası(),
              "MalzemeListesi YazdırButonu PdfKaydetButonu ÖnizlemeButonu TabloyaAktarButonu KapatButonu");
    QTest::keyClick(&Form(), Qt::Key_Y, Qt::AltModifier);
    const auto yazdırılan = Yazdırılan();
    ASSERT_TRUE(yazdırılan);
    EXPECT_EQ(yazdırılan->SayfaMetinleri(1),
              "Malzeme Listesi|Adı|Fiyatı|Çam|1.250,51|Ihlamur|0,00|İp|3,00|Şerit|12,50");
}

TEST_F(ListeRaporları, ÜrünListesi) {
    for (const auto& [grup, ürün] :
         {std::pair("B", "B1"), {"A", "A2"}, {"", "Grupsuz"}, {"A", "A1"}, {"", "Öksüz"}, {"b", "B2"}})
        ÜrünEkle(grup, ürün);
    Aç<ÜrünListesiFormu>();
    // Groups that differ in case alone sort as one and are told apart by their exact text.
    EXPECT_EQ(Satırlar("ÜrünListesi"), "|Grupsuz; |Öksüz; A|A1; |A2; B|B1; b|B2");
    Tıkla("YazdırButonu");
    EXPECT_EQ(Yazdırılan()->SayfaMetinleri(1), "Ürün Listesi|Grubu|Adı||Grupsuz||Öksüz|A|A1||A2|B|B1|b|B2");
}

TEST_F(ListeRaporları, BoşVeEksikListeYazdırılmaz) {
    Aç<MalzemeListesiFormu>();
    EXPECT_EQ(YazdırılabilirOlanlar(), "");
    Aç<ÜrünListesiFormu>();
    EXPECT_EQ(YazdırılabilirOlanlar() + SekmeSırası(), "KapatButonu");
    Tıkla("KapatButonu");
    EXPECT_FALSE(Form().isVisible());

    for (const QString& ad : {QString("A"), QString(255, 'X'), QString("Z")}) MalzemeEkle(ad, "1");
    Kutular().Yanıtla(Yanıt::Tamam);
    Aç<MalzemeListesiFormu>();
    EXPECT_EQ(Satırlar("MalzemeListesi").count(";"), 1);
    EXPECT_EQ(YazdırılabilirOlanlar(), "Çerçeve");
}

TEST_F(ListeRaporları, FişEkrandakiMetinlerdir) {
    ÜrünEkle("GRUP", "Masa");
    KullanımEkle("GRUP", "Masa", "Çam Kereste", "2,5 Metre", "10");
    KullanımEkle("GRUP", "Masa", "Kayın", "1 Metre", "5");
    Aç<AnaForm>(AnaFormBağları{[] {}, [](bool, QPoint) { return true; }});
    Bul<QTreeView>("ÜrünListesi").setCurrentIndex(Yer("ÜrünListesi", "GRUP", "Masa"));
    Bul<QCheckBox>("MalzemeMiktarıveBirimVarnekGösterSeçeneği").click();
    Yaz("İşçilikYüzdesiKutusu", "12,5");
    Yaz("KarYüzdesiKutusu", "20");
    Yaz("DiğerMaliyetYüzdesiKutusu", "-5");
    Yaz("FireOranıKutusu", "10");
    Tıkla("YazdırButonu");
    EXPECT_EQ(Yazdırılan()->SayfaMetinleri(1),
              "Masa|Miktarı|Adı|Fiyatı|Tutarı|2,50 Metre|Çam Kereste|10,00|25,00|1,00 Metre|Kayın|5,00|5,00|"
              "Malzeme Maliyeti:|30,00|İşçilik (%12,50):|3,75|Kar (%20,00):|6,00|Toplam:|38,25|"
              "Toplam Malzeme Miktarı:|3,50|Birim Varnek:|10,93|"
              "Fire Oranı (%):|10,00|Fireli Malzeme Miktarı:|3,15|Fireli Birim Varnek:|9,52");
}

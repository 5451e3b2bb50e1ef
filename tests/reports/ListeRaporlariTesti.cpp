#include <gtest/gtest.h>

#include <QGroupBox>
#include <QProgressBar>

#include "DegiskenModulu.h"
#include "MalzemeListesiFormu.h"
#include "OdbcModulu.h"
#include "RaporTesti.h"
#include "UrunListesiFormu.h"

using ListeRaporları = RaporTesti;

TEST_F(ListeRaporları, MalzemeListesi) {
    for (const auto& [ad, fiyat] : {std::pair("Şerit", "12,5"), {"Çam", "1.250,505"}, {"Ihlamur", "0"}, {"İp", "3"}})
        MalzemeEkle(ad, fiyat);
    Aç<MalzemeListesiFormu>();
    EXPECT_EQ(Satırlar("MalzemeListesi"),
              QStringList({U("Çam|1.250,51"), U("Ihlamur|0,00"), U("İp|3,00"), U("Şerit|12,50")}));
    EXPECT_EQ(Form().windowTitle(), U("Malzeme Listesi"));
    EXPECT_EQ(Bul<QGroupBox>("Çerçeve").title(), U("&Malzeme Listesi"));
    EXPECT_EQ(YüklenenKayıt, 4);
    EtkinlikBeklenen(true);
    EXPECT_EQ(Başlıklar("MalzemeListesi"), U("Adı|>Fiyatı"));
    // A key pressed too often on the way here prints nothing.
    QTest::keyClick(Form().focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(Yazdırılan());
    OdakSırasıBeklenen({"MalzemeListesi", "YazdırButonu", "PdfKaydetButonu", "ÖnizlemeButonu", "KapatButonu"});
    QTest::keyClick(&Form(), Qt::Key_Y, Qt::AltModifier);
    const auto yazdırılan = Yazdırılan();
    ASSERT_TRUE(yazdırılan);
    EXPECT_EQ(yazdırılan->SayfaMetinleri(1),
              QStringList({U("Malzeme Listesi"), U("Adı"), U("Fiyatı"), U("Çam"), U("1.250,51"), U("Ihlamur"),
                           U("0,00"), U("İp"), U("3,00"), U("Şerit"), U("12,50")}));
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_FALSE(Form().isVisible());

    OndalıkBasamak = 4;
    Aç<MalzemeListesiFormu>();
    EXPECT_EQ(Satırlar("MalzemeListesi").at(0), U("Çam|1.250,5050"));
}

TEST_F(ListeRaporları, ÜrünListesi) {
    for (const auto& [grup, ürün] :
         {std::pair("B", "B1"), {"A", "A2"}, {"", "Grupsuz"}, {"A", "A1"}, {"", "Öksüz"}, {"b", "B2"}})
        ÜrünEkle(grup, ürün);
    Aç<ÜrünListesiFormu>();
    // Groups that differ in case alone sort as one and are told apart by their exact text.
    EXPECT_EQ(Satırlar("ÜrünListesi"),
              QStringList({U("|Grupsuz"), U("|Öksüz"), U("A|A1"), U("|A2"), U("B|B1"), U("b|B2")}));
    EXPECT_EQ(Form().windowTitle(), U("Ürün Listesi"));
    EXPECT_EQ(Bul<QGroupBox>("Çerçeve").title(), U("Ürü&n Listesi"));
    EtkinlikBeklenen(true);
    EXPECT_EQ(Başlıklar("ÜrünListesi"), U("Grubu|Adı"));
    Tıkla("YazdırButonu");
    const auto yazdırılan = Yazdırılan();
    ASSERT_TRUE(yazdırılan);
    EXPECT_EQ(yazdırılan->Bul(U("A")).size(), 1);
    EXPECT_EQ(yazdırılan->Bul(U("A2")).size(), 1);
}

TEST_F(ListeRaporları, BoşListeler) {
    Aç<MalzemeListesiFormu>();
    EtkinlikBeklenen(false);
    Aç<ÜrünListesiFormu>();
    EtkinlikBeklenen(false);
    OdakSırasıBeklenen({"KapatButonu"});
    Tıkla("KapatButonu");
    EXPECT_FALSE(Form().isVisible());
}

TEST_F(ListeRaporları, EksikListeSöylenirVeYazdırılmaz) {
    const std::string uzun(255, 'X');
    for (const char* ad : {"A", uzun.c_str(), "Z"}) MalzemeEkle(ad, "1");
    Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
    Aç<MalzemeListesiFormu>();
    EXPECT_EQ(Kutular().Al().size(), 1u);
    EXPECT_EQ(Satırlar("MalzemeListesi").size(), 2);
    EXPECT_TRUE(Bul<QGroupBox>("Çerçeve").isEnabled());
    for (const char* düğme : {"YazdırButonu", "PdfKaydetButonu", "ÖnizlemeButonu"})
        EXPECT_FALSE(Bul<QWidget>(düğme).isEnabled()) << düğme;
}

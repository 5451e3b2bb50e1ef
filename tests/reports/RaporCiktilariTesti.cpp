#include <gtest/gtest.h>

#include "KayitYuzeyi.h"
#include "RaporCiktilari.h"

TEST(RaporÇıktıları, MalzemeHareketleri) {
    KayıtYüzeyi yüzey(210, 65);
    MalzemeHareketleriniYaz(
        yüzey, U("(05.03.2026) Tarihli Malzeme Hareketleri"),
        {{U("Çam Kereste"), U("2,50 Metre"), U("1.250,50"), U("3.126,25"), U("Çalışma Masası")},
         {U("Sunta Levha 18 mm Ceviz A"), U("1,00 Adet"), U("500,00"), U("500,00"), U("Çalışma Masası")},
         {U("İğne Başlı Vida"), U("8,00 Adet"), U("0,25"), U("2,00"), U("Çalışma Masası")},
         {U("Tutkal"), U("1,00 Kilogram"), U("9.999.999.999,99"), U("9.999.999.999,99"), U("Şifonyer")},
         {U("Şerit"), U("bozuk"), U("1,00"), U("0,00"), U("Üçgen Raf")},
         {U("Boya"), U("1,00 Litre"), U("80,00"), U("80,00"), U("Yemek Masası")}});
    AltınlaKarşılaştır(U("hareketler"), yüzey.Döküm());
}

TEST(RaporÇıktıları, MalzemeListesi) {
    QList<QStringList> satırlar;
    for (int i = 1; i <= 5; ++i) satırlar.append({U("Malzeme %1").arg(i), U("%1,50").arg(i * 100)});
    KayıtYüzeyi yüzey(205, 58);
    MalzemeListesiniYaz(yüzey, U("Malzeme Listesi"), satırlar);
    AltınlaKarşılaştır(U("malzeme-listesi"), yüzey.Döküm());
}

// Three rows fit the first page, six each other page: the second starts within a group, the third with one.
TEST(RaporÇıktıları, ÜrünListesi) {
    KayıtYüzeyi yüzey(210, 55);
    ÜrünListesiniYaz(yüzey, U("Ürün Listesi"),
                     {{U(""), U("Grupsuz")},
                      {U("Masa"), U("Çalışma Masası")},
                      {U(""), U("Sehpa")},
                      {U(""), U("Yemek Masası")},
                      {U("Sandalye"), U("Bar Taburesi")},
                      {U(""), U("Katlanır Sandalye")},
                      {U(""), U("Ofis Koltuğu")},
                      {U("Şifonyer"), U("Üç Çekmeceli")},
                      {U(""), U("İki Çekmeceli")},
                      {U("Vitrin"), U("Köşe Vitrini")}});
    AltınlaKarşılaştır(U("urun-listesi"), yüzey.Döküm());
}

#include "KayitYuzeyi.h"
#include "RaporCiktilari.h"

TEST(RaporÇıktıları, MalzemeHareketleri) {
    KayıtYüzeyi yüzey(210, 65);
    MalzemeHareketleriniYaz(yüzey, "(05.03.2026) Tarihli Malzeme Hareketleri",
                            {{"Çam Kereste", "2,50 Metre", "1.250,50", "3.126,25", "Çalışma Masası"},
                             {"Sunta Levha 18 mm Ceviz A", "1,00 Adet", "500,00", "500,00", "Çalışma Masası"},
                             {"İğne Başlı Vida", "8,00 Adet", "0,25", "2,00", "Çalışma Masası"},
                             {"Tutkal", "1,00 Kilogram", "9.999.999.999,99", "9.999.999.999,99", "Şifonyer"},
                             {"Şerit", "bozuk", "1,00", "0,00", "Üçgen Raf"},
                             {"Boya", "1,00 Litre", "80,00", "80,00", "Yemek Masası"}});
    AltınlaKarşılaştır("hareketler", yüzey.Döküm());
}

TEST(RaporÇıktıları, MalzemeListesi) {
    QList<QStringList> satırlar;
    for (int i = 1; i <= 5; ++i) satırlar += {QString("Malzeme %1").arg(i), QString("%1,50").arg(i * 100)};
    KayıtYüzeyi yüzey(205, 58);
    MalzemeListesiniYaz(yüzey, "Malzeme Listesi", satırlar);
    AltınlaKarşılaştır("malzeme-listesi", yüzey.Döküm());
}

// Three rows fit the first page, six each other page: the second starts within a group, the third with one.
TEST(RaporÇıktıları, ÜrünListesi) {
    KayıtYüzeyi yüzey(210, 55);
    ÜrünListesiniYaz(yüzey, "Ürün Listesi",
                     {{"", "Grupsuz"},
                      {"Masa", "Çalışma Masası"},
                      {"", "Sehpa"},
                      {"", "Yemek Masası"},
                      {"Sandalye", "Bar Taburesi"},
                      {"", "Katlanır Sandalye"},
                      {"", "Ofis Koltuğu"},
                      {"Şifonyer", "Üç Çekmeceli"},
                      {"", "İki Çekmeceli"},
                      {"Vitrin", "Köşe Vitrini"}});
    AltınlaKarşılaştır("urun-listesi", yüzey.Döküm());
}

#include "CizelgeOkuyucu.h"
#include "DegiskenModulu.h"
#include "KayitYuzeyi.h"
#include "SatisCiktilari.h"
#include "SatisFiyati.h"
#include "SayiMetni.h"

// What goes to customers: the ticked rows, and nothing of what they cost.

namespace {

class SatışListesiÇıktısı : public VarnekTesti {
  protected:
    SatışListesiÇıktısı() {
        std::vector<MaliyetTablosuSatırı> ürünler;
        for (int i = 1; i <= 6; ++i) {
            MaliyetTablosuSatırı ürün;
            ürün.Grup = "MASA";
            ürün.Ad = QString("Ürün %1").arg(i);
            ürün.Toplam = Para::OnBindeBirden(i * 1012345);
            ürün.MalzemeMaliyeti = Para::OnBindeBirden(777777);
            if (i == 2) ürün.Dikkat = SıfırFiyat;
            if (i == 3) ürün.Toplam = Para();
            ürünler.push_back(ürün);
        }
        m_satırlar.Al(ürünler);
        m_satırlar.Hesapla({}, Para::OnBindeBirden(185000));
        m_model.Yenile();
        m_model.Süz([](std::size_t yer) { return yer != 5; });
    }

    SatışSatırları m_satırlar;
    TabloModeli m_model{m_satırlar, SatışSütunlarınıVer()};
    SatışListesi m_liste{"Bahar Listesi", "Fiyatlar bu ay geçerlidir.", m_satırlar, m_model};
};

}  // namespace

TEST(SatışFiyatı, AdımaYuvarlarKdvyiKuruştaEkler) {
    const struct {
        const char* Toplam;
        Yuvarlama Adım;
        const char* Oran;
        const char* Fiyat;
        const char* Kdvli;
    } durumlar[] = {{"10,005", {}, "0", "10,01", "10,01"},
                    {"10,0049", {0, YuvarlamaYönü::Yukarı}, "20", "10,00", "12,00"},
                    {"0,25", {}, "18", "0,25", "0,30"},  // 0,045 is half a kuruş above
                    {"12,01", {50'000, YuvarlamaYönü::Yukarı}, "18,5", "15,00", "17,78"},
                    {"12,5", {50'000, YuvarlamaYönü::EnYakın}, "100", "15,00", "30,00"},
                    {"14,99", {50'000, YuvarlamaYönü::Aşağı}, "8", "10,00", "10,80"},
                    {"-0,005", {}, "18", "-0,01", "-0,01"}};
    for (const auto& d : durumlar) {
        SCOPED_TRACE(d.Toplam);
        const auto fiyat = SatışFiyatı(*ParaOku(QString(d.Toplam)), d.Adım);
        EXPECT_EQ(SayıBiçimle(*fiyat, 2), d.Fiyat);
        EXPECT_EQ(SayıBiçimle(*KdvliFiyat(*fiyat, *ParaOku(QString(d.Oran))), 2), d.Kdvli);
    }
    EXPECT_FALSE(KdvliFiyat(Para::OnBindeBirden(std::numeric_limits<std::int64_t>::max()), Para::OnBindeBirden(1)));
}

TEST_F(SatışListesiÇıktısı, YalnızİşaretliGörünenlerBaşlıkVeAltYazıylaBasılır) {
    KayıtYüzeyi yüzey(210, 55);
    SatışListesiniYaz(yüzey, m_liste);
    EXPECT_EQ(yüzey.SayfaMetinleri(1) + "||" + yüzey.SayfaMetinleri(2),
              "Bahar Listesi|Ürün|Fiyat|KDV (%)|KDV'li fiyat|MASA / Ürün 1|101,23|18,5|119,96|"
              "MASA / Ürün 4|404,94|18,5|479,85|MASA / Ürün 5|506,17|18,5|599,81||"
              "Bahar Listesi|Sayfa - 2|Ürün|Fiyat|KDV (%)|KDV'li fiyat|Fiyatlar bu ay geçerlidir.");
}

TEST_F(SatışListesiÇıktısı, ÇizelgedeMaliyetYoktur) {
    const QString yol = Klasör() + "liste.xlsx";
    ASSERT_TRUE(SatışListesiniÇizelgeyeYaz(yol, "Satış Fiyat Listesi", m_liste).Tamam());
    ÇizelgeOkuyucu okuyucu(yol);
    ASSERT_TRUE(okuyucu.Aç().Tamam());
    QString metin;
    ASSERT_TRUE(okuyucu
                    .Oku(0,
                         [&](ÇizelgeSatırı&& satır) {
                             metin += QString::number(satır.No);
                             for (const ÇizelgeHücresi& h : satır.Hücreler) {
                                 const std::optional<Ondalık> sayı = HücreSayısı(h);
                                 metin += '|' + (sayı ? SayıBiçimle(*sayı, 2) : h.Metin);
                             }
                             metin += '\n';
                             return true;
                         })
                    .Tamam());
    EXPECT_EQ(metin,
              "1|Bahar Listesi\n2|Grubu|Ürün|Fiyat|KDV (%)|KDV'li fiyat\n3|MASA|Ürün 1|101,23|18,50|119,96\n"
              "4|MASA|Ürün 4|404,94|18,50|479,85\n5|MASA|Ürün 5|506,17|18,50|599,81\n7|Fiyatlar bu ay geçerlidir.\n");
}

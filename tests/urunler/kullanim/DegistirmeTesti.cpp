#include "DegisimIsi.h"
#include "FiyatGecmisiFormu.h"
#include "FormTesti.h"
#include "KullanimMetinleri.h"
#include "NeredeKullaniliyorFormu.h"

namespace {

constexpr const char* TABLO = "DeğişimTablosu";

class Değiştirme : public FormTesti {
  protected:
    Değiştirme() {
        MalzemeEkle("Çam", "2");
        MalzemeEkle("Meşe", "3,1234");
        ÜrünEkle("MASA", "Sehpa");
        ÜrünEkle("MASA", "Masa");
        KullanımEkle("MASA", "Sehpa", "Çam", "1,5 Metre", "2", "#11/1/2026#");
        KullanımEkle("MASA", "Masa", "Silinmiş", "4 Adet", "9", "#11/2/2026#");
        KullanımEkle("MASA", "Masa", "Silinmiş", "1 Adet", "8", "#11/3/2026#");
        SaatiAyarla([] { return QDate(2026, 11, 23); });
    }
    QString Kullanılanlar() {
        return Oku(
            "SELECT UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, KullanimTarihi "
            "FROM UrunMalzemeTablosu ORDER BY UrunAdi, KullanilanMalzemeFiyati");
    }
    void DeğişmişBeklenir() {
        Kutular().Yanıtla(Yanıt::Tamam, [](const MesajKutusu::İstek& kutu) {
            EXPECT_TRUE(kutu.metin.startsWith("Veriler bu arada değişmiş (MASA / Masa)"));
        });
    }
    QModelIndex Satır(const char* tablo, int satır) { return Bul<QAbstractItemView>(tablo).model()->index(satır, 0); }
};

const QString ÖNCE =
    "Masa|Silinmiş|1 Adet|8|2026-11-03 00:00:00; Masa|Silinmiş|4 Adet|9|2026-11-02 00:00:00; "
    "Sehpa|Çam|1,5 Metre|2|2026-11-01 00:00:00";

// From the hole in the catalogue to its mending, and back again from the history.
TEST_F(Değiştirme, KatalogdanSilinmişMalzemeOnarılırVeGeçmiştenGeriAlınır) {
    auto& form = Aç<NeredeKullanılıyorFormu>(nullptr);
    Yaz("MalzemeListesi", "Silinmiş");
    Modal("DeğiştirButonu", "MalzemeDeğiştirFormu", [this] {
        Beklenen(Simge::Bilgi, MetinNo::MalzemeSeçiniz, Yanıt::Tamam);
        Tıkla("ÖnizleButonu");
        Yaz("YeniMalzemeListesi", "Silinmiş");  // only what the catalogue has can take its place
        Beklenen(Simge::Bilgi, MetinNo::MalzemeSeçiniz, Yanıt::Tamam);
        Tıkla("ÖnizleButonu");
        Yaz("YeniMalzemeListesi", "meşe");
        for (const char* çarpan : {"0", "-1"}) {
            Yaz("ÇarpanKutusu", çarpan);
            if (Yazı("ÇarpanKutusu") == "1") continue;  // the sign is not taken
            Beklenen(Simge::Bilgi, KullanımMetni::ÇarpanSıfır, Yanıt::Tamam);
            Tıkla("ÖnizleButonu");
        }
        Yaz("ÇarpanKutusu", "0,3");
        Modal("ÖnizleButonu", "DeğişimÖnizlemeFormu", [this] {
            EXPECT_EQ(Satırlar(TABLO),
                      "MASA|Masa|4 Adet Silinmiş; 1 Adet Silinmiş|1,5 Adet Meşe|44,00|4,69|-39,31|-89,34|");
            EXPECT_TRUE(Yazı("ÖzetEtiketi").contains("Kendi gününün malzeme hareketlerinden çıkacak satır: 2"));
            Tıkla(TABLO, Satır(TABLO, 0));
            QTest::keyClick(&Bul(TABLO), Qt::Key_Space);
            EXPECT_FALSE(Etkin("UygulaButonu"));
            QTest::keyClick(&Bul(TABLO), Qt::Key_Space);
            // Changed under the preview: nothing is written, and the preview shows how it is now.
            Çalıştır(
                "UPDATE UrunMalzemeTablosu SET KullanilanMalzemeMiktari= '5 Adet' WHERE KullanilanMalzemeMiktari= '4 "
                "Adet'");
            DeğişmişBeklenir();
            Tıkla("UygulaButonu");
            EXPECT_TRUE(Satırlar(TABLO).contains("|1,8 Adet Meşe|"));
            Çalıştır(
                "UPDATE UrunMalzemeTablosu SET KullanilanMalzemeMiktari= '4 Adet' WHERE KullanilanMalzemeMiktari= '5 "
                "Adet'");
            DeğişmişBeklenir();
            Tıkla("UygulaButonu");
            Tıkla("UygulaButonu");
        });
    });
    EXPECT_TRUE(form.Uygulandı());
    EXPECT_EQ(Kullanılanlar(),
              "Masa|Meşe|1,5 Adet|3.1234|2026-11-23 00:00:00; Sehpa|Çam|1,5 Metre|2|2026-11-01 00:00:00");
    EXPECT_EQ(Yazı("KullanımSayısıEtiketi"), "malzeme seçilmedi");

    auto& geçmiş = Aç<FiyatGeçmişiFormu>(DeğişimiÇevir, nullptr);
    EXPECT_TRUE(Satırlar("GeçmişTablosu").startsWith("Malzeme değişimi: Silinmiş yerine Meşe; çarpan 0,3|"));
    // Of a ticked material, its replacements stand among its price changes.
    Tıkla("MalzemeTablosu", Satır("MalzemeTablosu", 1));
    QTest::keyClick(&Bul("MalzemeTablosu"), Qt::Key_Space);
    EXPECT_TRUE(Satırlar("GeçmişTablosu").startsWith("Meşe|"));
    Tıkla("GeçmişTablosu", Satır("GeçmişTablosu", 0));
    Modal("GeriAlButonu", "DeğişimÖnizlemeFormu", [this] { Tıkla("UygulaButonu"); });
    EXPECT_TRUE(geçmiş.Uygulandı());
    EXPECT_EQ(Kullanılanlar(), ÖNCE);
    Tıkla("GeçmişTablosu", Satır("GeçmişTablosu", 1));
    EXPECT_FALSE(Etkin("GeriAlButonu"));
}

}  // namespace

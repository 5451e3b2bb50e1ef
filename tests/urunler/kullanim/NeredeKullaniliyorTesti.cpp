#include "NeredeKullaniliyorFormu.h"

#include <QComboBox>

#include "FormTesti.h"

namespace {

constexpr const char* TABLO = "KullanımTablosu";

class NeredeKullanılıyor : public FormTesti {
  protected:
    NeredeKullanılıyor() {
        MalzemeEkle("Çam", "2");
        MalzemeEkle("Çam Kenar", "4");
        MalzemeEkle("Vida", "0");
        ÜrünEkle("MASA", "Sehpa");
        ÜrünEkle("RAF", "Duvar Rafı");
        KullanımEkle("MASA", "Sehpa", "Çam", "1,5 Metre", "2");
        KullanımEkle("masa", "SEHPA", "çam", "çok Metre", "2");
        KullanımEkle("MASA", "Sehpa", "Silinmiş", "2 Adet", "4,5");
        KullanımEkle("RAF", "Duvar Rafı", "Vida", "3 Adet", "0");
        KullanımEkle("RAF", "Eski Raf", "Çam", "1.250 Metre", "1");
    }
    QComboBox& Kutu() { return Bul<QComboBox>("MalzemeListesi"); }
};

// Holes in the data show as such, and never as figures.
TEST_F(NeredeKullanılıyor, SeçilenMalzemeninÜrünleriniDikkatIsteyenleriyleGösterir) {
    auto& form = Aç<NeredeKullanılıyorFormu>(nullptr);
    EXPECT_FALSE(Etkin("YazdırButonu"));
    Yaz("MalzemeListesi", "ÇAM");
    EXPECT_EQ(Satırlar(TABLO),
              "MASA|Sehpa|1,50 Metre|2,00|3,00|25,00|iki kez yazılmış; "
              "MASA|Sehpa|çok Metre|2,00|0,00||okunamayan miktar; iki kez yazılmış; "
              "RAF|Eski Raf|1.250,00 Metre|1,00|1.250,00||ürün listesinde yok");
    Tıkla(TABLO, Bul<QAbstractItemView>(TABLO).model()->index(2, 0));
    EXPECT_FALSE(Etkin("GitButonu"));
    // What is half typed chooses nothing, and nothing of the former choice stays.
    Yaz("MalzemeListesi", "vid");
    EXPECT_EQ(Satırlar(TABLO) + Etkinler({"GitButonu", "YazdırButonu", "TabloyaAktarButonu"}), "");
    Yaz("MalzemeListesi", "Vida");
    EXPECT_EQ(Satırlar(TABLO), "RAF|Duvar Rafı|3,00 Adet|0,00|0,00||");
    // Not in the catalogue, and marked so wherever it is shown.
    Kutu().setCurrentIndex(Kutu().findText("Silinmiş", Qt::MatchStartsWith));
    EXPECT_EQ(Yazı("MalzemeListesi"), "Silinmiş (katalogda yok)");
    EXPECT_EQ(Satırlar(TABLO), "MASA|Sehpa|2,00 Adet|4,50|9,00|75,00|");
    ÇiftTıkla(TABLO, Bul<QAbstractItemView>(TABLO).model()->index(0, 1));
    ASSERT_TRUE(form.Gidilecek());
    EXPECT_EQ(form.Gidilecek()->Grup + form.Gidilecek()->Ad, "MASASehpa");
}

TEST_F(NeredeKullanılıyor, YazılanHarflerinGeçtiğiAdlarSunulur) {
    Aç<NeredeKullanılıyorFormu>(nullptr).Yükle("vida");
    EXPECT_EQ(Yazı("MalzemeListesi"), "Vida");
    Yaz("MalzemeListesi", "KENA");
    ASSERT_TRUE(Bekle([] { return QApplication::activePopupWidget() != nullptr; }));
    auto* açılan = qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    ASSERT_TRUE(açılan);
    EXPECT_EQ(açılan->model()->rowCount(), 1);
    QTest::keyClick(açılan, Qt::Key_Down);
    QTest::keyClick(açılan, Qt::Key_Return);
    EXPECT_EQ(Yazı("MalzemeListesi"), "Çam Kenar");
    EXPECT_EQ(Yazı("KullanımSayısıEtiketi"), "0 ürün, 0 satır");
}

}  // namespace

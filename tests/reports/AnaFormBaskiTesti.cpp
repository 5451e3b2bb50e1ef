#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>

#include "AnaForm.h"
#include "DegiskenModulu.h"
#include "ModalBekleyici.h"
#include "RaporTesti.h"

namespace {

// The main form with one product, "Masa" of the group "GRUP", selected.
class AnaFormBaskı : public RaporTesti {
  protected:
    AnaFormBaskı() {
        ÜrünEkle("GRUP", "Masa");
        Hareket("Çam Kereste", "2,5 Metre", "10");
        Hareket("Kayın", "1 Metre", "5");
        ÜrünEkle("GRUP", "Yeni");
        MalzemeEkle("Çam Kereste", "10");
        m_form = std::make_unique<AnaForm>(AnaFormBağları{[] {}, [](bool, QPoint) { return true; }});
        m_form->Yükle();
        QApplication::setActiveWindow(m_form.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_form.get()));
        Seç("Masa");
    }
    void Hareket(const char* malzeme, const char* miktar, const char* fiyat) {
        HareketEkle("#3/5/2026#", "Masa", malzeme, miktar, fiyat);
    }
    void Seç(const char* düğüm) {
        auto& ağaç = Parça<QTreeWidget>("ÜrünListesi");
        ağaç.setCurrentItem(ağaç.findItems(U(düğüm), Qt::MatchExactly | Qt::MatchRecursive).constFirst());
    }
    template <typename T = QWidget>
    T& Parça(const char* ad) {
        return *m_form->findChild<T*>(U(ad));
    }
    void Yaz(const char* kutu, const char* metin) {
        Parça<QLineEdit>(kutu).setFocus();
        Parça<QLineEdit>(kutu).selectAll();
        QTest::keyClicks(&Parça(kutu), U(metin));
    }
    void Bas(const char* düğme) { QTest::mouseClick(&Parça(düğme), Qt::LeftButton); }

    std::unique_ptr<AnaForm> m_form;
};

}  // namespace

TEST_F(AnaFormBaskı, FişEkrandakiMetinlerdir) {
    Parça<QCheckBox>("MalzemeMiktarıveBirimVarnekGösterSeçeneği").click();
    Yaz("İşçilikYüzdesiKutusu", "12,5");
    Yaz("KarYüzdesiKutusu", "20");
    Yaz("DiğerMaliyetYüzdesiKutusu", "-5");
    Yaz("FireOranıKutusu", "10");
    Bas("YazdırButonu");
    const auto fiş = Yazdırılan();
    ASSERT_TRUE(fiş);
    EXPECT_EQ(fiş->SayfaMetinleri(1).join(U("|")).toStdString(),
              "Masa|Miktarı|Adı|Fiyatı|Tutarı|2,50 Metre|Çam Kereste|10,00|25,00|1,00 Metre|Kayın|5,00|5,00|"
              "Malzeme Maliyeti:|30,00|İşçilik (%12,50):|3,75|Kar (%20,00):|6,00|Toplam:|38,25|"
              "Toplam Malzeme Miktarı:|3,50|Birim Varnek:|10,93|"
              "Fire Oranı (%):|10,00|Fireli Malzeme Miktarı:|3,15|Fireli Birim Varnek:|9,52");
    EXPECT_EQ(Parça("YazdırButonu").isEnabled(), true);
}

// Nothing to print for a group or for a product without materials.
TEST_F(AnaFormBaskı, DüğmelerÜrüneBağlı) {
    for (const auto& [düğüm, etkin] : {std::pair("Yeni", false), {"Masa", true}, {"GRUP", false}}) {
        Seç(düğüm);
        for (const char* düğme : {"YazdırButonu", "PdfKaydetButonu", "ÖnizlemeButonu"})
            EXPECT_EQ(Parça(düğme).isEnabled(), etkin) << düğüm << düğme;
    }
}

TEST_F(AnaFormBaskı, TuşlarRaporFormlarınıAçar) {
    for (const auto& [tuş, form] : {std::pair(Qt::Key_F4, "MalzemeHareketleriFormu"),
                                    {Qt::Key_F5, "MalzemeListesiFormu"},
                                    {Qt::Key_F6, "ÜrünListesiFormu"}}) {
        ModalAç([&, t = tuş] { QTest::keyClick(m_form.get(), t); }, U(form),
                [](QWidget& açılan) { QTest::keyClick(&açılan, Qt::Key_Escape); });
    }
}

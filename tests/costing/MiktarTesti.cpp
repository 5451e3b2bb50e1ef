#include <QCheckBox>

#include "AnaFormOrtami.h"

namespace {

class Miktarlar : public AnaFormOrtamı {
  protected:
    Miktarlar() {
        ÜrünEkle("MASA", "Ayrı");
        KullanımEkle("MASA", "Ayrı", "Çam", "2 Metre", "10");
        KullanımEkle("MASA", "Ayrı", "Vida", "2 Adet", "1");
        ÜrünEkle("MASA", "Boş");
        ÜrünEkle("MASA", "Tek", {"10", "0", "0", "0"});
        KullanımEkle("MASA", "Tek", "Çam", "8 Metre", "15");
        KullanımEkle("MASA", "Tek", "Meşe", "2 Metre", "35");
        Aç();
    }
    QCheckBox& Seçenek() { return Bul<QCheckBox>("MalzemeMiktarıveBirimVarnekGösterSeçeneği"); }
    void SeçeneğeBas() { QTest::keyClick(&Seçenek(), Qt::Key_Space); }
    // Total quantity and unit cost, waste rate, quantity and unit cost with waste.
    QString Kutucuklar() {
        return Yazılar({"ToplamMalzemeMiktarıKutusu", "ÜrünBirimMaliyetiKutusu", "FireOranıKutusu",
                        "FireliMalzemeMiktarıKutusu", "FireliBirimMaliyetKutusu"});
    }
};

TEST_F(Miktarlar, İşaretliykenGösterirVeYüzdeyiİzler) {
    Seç("MASA", "Tek");
    EXPECT_FALSE(Etkin("FireOranıKutusu"));
    SeçeneğeBas();
    EXPECT_EQ(Kutucuklar(), "10,00 20,90   ");
    EXPECT_TRUE(Etkin("FireOranıKutusu"));
    EXPECT_EQ(Odak(), Ağaç);
    Yaz("KarYüzdesiKutusu", "20");
    EXPECT_EQ(Yazı("ÜrünBirimMaliyetiKutusu"), "24,70");
    SeçeneğeBas();
    EXPECT_EQ(Kutucuklar(), "    ");
    EXPECT_FALSE(Etkin("FireOranıKutusu"));
    // Another product unticks; one of different units needs no message for that.
    SeçeneğeBas();
    Seç("MASA", "Ayrı");
    EXPECT_FALSE(Seçenek().isChecked());
    Seç("MASA", "Boş");
    SeçeneğeBas();
    EXPECT_EQ(Kutucuklar(), "    ");  // no quantity, nothing to show
    Yaz("FireOranıKutusu", "5");
    Seç("MASA", "Tek");
    EXPECT_EQ(Kutucuklar(), "    ") << "a waste rate belongs to its product";
}

TEST_F(Miktarlar, FireKalanMiktarıVeBirimMaliyetiBulur) {
    Seç("MASA", "Tek");
    SeçeneğeBas();
    for (const auto& [oran, kutucuklar] : {std::pair("5", "10,00 20,90 5 9,50 20,00"),  // of 190, not of the total
                                           {"100", "10,00 20,90 100 0,00 21,11"},  // no unit cost: the last one stays
                                           {"", "10,00 20,90   "}}) {
        Yaz("FireOranıKutusu", oran);
        EXPECT_EQ(Kutucuklar(), kutucuklar);
    }
    EXPECT_FALSE(Etkin("DeğişiklikleriKaydetButonu"));
    Yaz("FireOranıKutusu", "10");
    Yaz("VadeFarkıYüzdesiKutusu", "1");  // another unit cost: the waste figures were not its own
    EXPECT_EQ(Kutucuklar(), "10,00 21,09   ");
}

TEST_F(Miktarlar, AyrıBirimlerdeİşaretKalmaz) {
    Seç("MASA", "Ayrı");
    EXPECT_EQ(Toplam(), "22,00");
    Beklenen(Simge::Kritik, MetinNo::BirimlerFarklı, Yanıt::Tamam);
    SeçeneğeBas();
    EXPECT_FALSE(Seçenek().isChecked() || Etkin("FireOranıKutusu"));
    EXPECT_EQ(Kutucuklar(), "    ");
    // So it is where rows of another unit have come in meanwhile.
    Seç("MASA", "Tek");
    SeçeneğeBas();
    Kutular().Yanıtla(Yanıt::Evet);
    Tıkla("ListedenMalzemeSilButonu");
    EXPECT_EQ(Kutucuklar(), "2,00 38,50   ");
    KullanımEkle("MASA", "Tek", "Vida", "4 Adet", "1");
    Beklenen(Simge::Kritik, MetinNo::BirimlerFarklı, Yanıt::Tamam);
    static_cast<AnaForm&>(Form()).MalzemeTablosuYükle();
    EXPECT_FALSE(Seçenek().isChecked());
    EXPECT_EQ(Kutucuklar(), "    ");
}

}  // namespace

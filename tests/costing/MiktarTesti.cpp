#include <QCheckBox>

#include "FormOrtami.h"
#include "MetinTablosu.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class Miktarlar : public FormOrtamı {
  protected:
    Miktarlar() {
        Ürün("MASA", "Ayrı");
        Malzeme("MASA", "Ayrı", "Çam", "2 Metre", "10");
        Malzeme("MASA", "Ayrı", "Vida", "2 Adet", "1");
        Ürün("MASA", "Boş");
        Ürün("MASA", "Tek", "10");
        Malzeme("MASA", "Tek", "Çam", "8 Metre", "15");
        Malzeme("MASA", "Tek", "Meşe", "2 Metre", "35");
        Aç();
    }
    QCheckBox& Seçenek() { return Bul<QCheckBox>("MalzemeMiktarıveBirimVarnekGösterSeçeneği"); }
    void SeçeneğeBas() { QTest::keyClick(&Seçenek(), Qt::Key_Space); }
    // Total quantity and unit cost, waste rate, quantity and unit cost with waste.
    std::string Kutucuklar() {
        return Yazılar({"ToplamMalzemeMiktarıKutusu", "ÜrünBirimMaliyetiKutusu", "FireOranıKutusu",
                        "FireliMalzemeMiktarıKutusu", "FireliBirimMaliyetKutusu"});
    }
};

TEST_F(Miktarlar, İşaretliykenGösterirVeYüzdeyiİzler) {
    ÜrünSeç("MASA", "Tek");
    EXPECT_FALSE(Etkin("FireOranıKutusu"));
    SeçeneğeBas();
    EXPECT_EQ(Kutucuklar(), "10,00 20,90   ");
    EXPECT_TRUE(Etkin("FireOranıKutusu"));
    EXPECT_EQ(QApplication::focusWidget(), &Ağaç());
    Yaz("KarYüzdesiKutusu", "20");
    EXPECT_EQ(Yazı("ÜrünBirimMaliyetiKutusu"), "24,70");
    SeçeneğeBas();
    EXPECT_EQ(Kutucuklar(), "    ");
    EXPECT_FALSE(Etkin("FireOranıKutusu"));
    // Another product, and a click beside the nodes, untick; one of different units needs no message for that.
    SeçeneğeBas();
    ÜrünSeç("MASA", "Ayrı");
    EXPECT_FALSE(Seçenek().isChecked());
    ÜrünSeç("MASA", "Boş");
    SeçeneğeBas();
    EXPECT_EQ(Kutucuklar(), "    ");  // no quantity, nothing to show
    Yaz("FireOranıKutusu", "5");
    ÜrünSeç("MASA", "Tek");
    EXPECT_EQ(Kutucuklar(), "    ") << "a waste rate belongs to its product";
    ÜrünSeç("MASA", "Boş");
    SeçeneğeBas();
    EXPECT_TRUE(Seçenek().isChecked());
    QTest::mouseClick(Ağaç().viewport(), Qt::LeftButton, {}, Ağaç().viewport()->rect().bottomLeft() + QPoint(5, -5));
    EXPECT_FALSE(Seçenek().isChecked());
}

TEST_F(Miktarlar, FireKalanMiktarıVeBirimMaliyetiBulur) {
    ÜrünSeç("MASA", "Tek");
    SeçeneğeBas();
    Yaz("FireOranıKutusu", "5");
    EXPECT_EQ(Kutucuklar(), "10,00 20,90 5 9,50 20,00");  // 190 material cost, not the total
    EXPECT_FALSE(Etkin("DeğişiklikleriKaydetButonu"));
    // All wasted: the unit cost cannot be had and stays.
    Yaz("FireOranıKutusu", "100");
    EXPECT_EQ(Kutucuklar(), "10,00 20,90 100 0,00 21,11");
    QTest::keyClick(&Bul("FireOranıKutusu"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Bul("FireOranıKutusu"), Qt::Key_Delete);
    EXPECT_EQ(Kutucuklar(), "10,00 20,90   ");
    Yaz("FireOranıKutusu", "10");
    Yaz("VadeFarkıYüzdesiKutusu", "1");  // another unit cost: the waste figures were not its own
    EXPECT_EQ(Kutucuklar(), "10,00 21,09   ");
}

TEST_F(Miktarlar, AyrıBirimlerdeİşaretKalmaz) {
    ÜrünSeç("MASA", "Ayrı");
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "22,00");
    Kutular().Yanıtla(Yanıt::Tamam);
    SeçeneğeBas();
    Kutular().TekKutu(Simge::Kritik, Metin(MetinNo::BirimlerFarklı));
    EXPECT_FALSE(Seçenek().isChecked());
    EXPECT_FALSE(Etkin("FireOranıKutusu"));
    EXPECT_EQ(Kutucuklar(), "    ");
}

TEST_F(Miktarlar, YeniYüklemedeİşaretinKurallarıYineİşler) {
    ÜrünSeç("MASA", "Tek");
    SeçeneğeBas();
    Kutular().Yanıtla(Yanıt::Evet);
    QTest::mouseClick(&Bul("ListedenMalzemeSilButonu"), Qt::LeftButton);
    EXPECT_EQ(Kutucuklar(), "2,00 38,50   ");
    Kutular().Al();
    // Rows of another unit have come in meanwhile.
    Malzeme("MASA", "Tek", "Vida", "4 Adet", "1");
    Kutular().Yanıtla(Yanıt::Tamam);
    Form().MalzemeTablosuYükle();
    Kutular().TekKutu(Simge::Kritik, Metin(MetinNo::BirimlerFarklı));
    EXPECT_FALSE(Seçenek().isChecked());
    EXPECT_EQ(Kutucuklar(), "    ");
}

}  // namespace

#include <QTreeView>

#include "AnaFormOrtami.h"

namespace {

class Adlandırma : public AnaFormOrtamı {
  protected:
    Adlandırma() {
        ÜrünEkle("MASA", "Sehpa");
        ÜrünEkle("MASA", "Yemek Masası");
        ÜrünEkle("SANDALYE", "Tabure");
        KullanımEkle("SANDALYE", "Tabure", "Ihlamur", "1 Adet", "30");
        Aç();
    }

    void Adlandır(const QString& grup, const QString& ürün, const QString& yeni) {
        Seç(grup, ürün);
        YeniAdVer(yeni);
    }
    QString Ürünler() { return Oku("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"); }
};

TEST_F(Adlandırma, BoşVeTırnaklıAdEskiAdıBırakır) {
    const QString önce = Ürünler();
    Adlandır("MASA", "Sehpa", "   ");
    for (const char* yeni : {"a' OR '1'='1", "O'Nun Sehpası"}) {
        Kutular().Yanıtla(Yanıt::Tamam);
        Adlandır("MASA", "Sehpa", yeni);
        Kutular().Yanıtla(Yanıt::Tamam);
        Adlandır("SANDALYE", {}, yeni);
    }
    for (const auto& kutu : Kutular().Al()) EXPECT_EQ(kutu.başlık, Metin(MetinNo::OdbcHatası));
    EXPECT_EQ(Satırlar(Ağaç), "MASA; -Sehpa; -Yemek Masası; SANDALYE; -Tabure");
    EXPECT_EQ(Ürünler(), önce);
    // Lines become one, case alone can be corrected, and the same name is free in another group.
    Adlandır("MASA", "Sehpa", "Küçük\r\nSehpa");
    Adlandır("MASA", "Küçük Sehpa", "küçük sehpa");
    Adlandır("MASA", "Yemek Masası", "Tabure");
    EXPECT_EQ(Ürünler(), "MASA|küçük sehpa; MASA|Tabure; SANDALYE|Tabure");
}

TEST_F(Adlandırma, BirleşenGruplarTekDüğümOlurSeçimKalır) {
    auto& ağaç = Bul<QTreeView>(Ağaç);
    ağaç.expandAll();
    // In other letters it is the same group, as the data file compares.
    Adlandır("SANDALYE", {}, "masa");
    EXPECT_EQ(Satırlar(Ağaç), "MASA; -Sehpa; -Tabure; -Yemek Masası");
    EXPECT_EQ(ağaç.currentIndex(), Yer(Ağaç, "MASA"));
    EXPECT_TRUE(ağaç.isExpanded(Yer(Ağaç, "MASA")));
    Seç("MASA", "Tabure");
    EXPECT_EQ(Toplam(), "30,00");
    // Both nodes of a group that the file holds in two spellings get the new name; its own letters' case can change.
    ÜrünEkle("Masa", "Büro Masası");
    Aç();
    Adlandır("Masa", {}, "TEZGAH");
    Adlandır("TEZGAH", {}, "Tezgah");
    EXPECT_EQ(Satırlar(Ağaç), "Tezgah; -Büro Masası; -Sehpa; -Tabure; -Yemek Masası");
}

}  // namespace

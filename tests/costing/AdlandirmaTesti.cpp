#include <QTreeView>

#include "AnaFormOrtami.h"

namespace {

class Adlandırma : public AnaFormOrtamı {
  protected:
    Adlandırma() {
        ÜrünEkle("MASA", "Sehpa", {"5", "0", "0", "0"});
        KullanımEkle("MASA", "Sehpa", "Çam", "1 Adet", "10");
        ÜrünEkle("MASA", "Yemek Masası");
        KullanımEkle("MASA", "Yemek Masası", "Meşe", "1 Adet", "20");
        ÜrünEkle("SANDALYE", "Tabure");
        KullanımEkle("SANDALYE", "Tabure", "Ihlamur", "1 Adet", "30");
        Aç();
    }

    void Adlandır(const QString& grup, const QString& ürün, const QString& yeni) {
        Seç(grup, ürün);
        YeniAdVer(yeni);
    }
    QString Ürünler() { return Oku("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"); }
    QString Kullanılanlar() {
        return Oku(
            "SELECT KullanilanMalzemeAdi, UrunGrubu, UrunAdi FROM UrunMalzemeTablosu "
            "ORDER BY KullanilanMalzemeAdi ASC");
    }
    const char* ÖncekiÜrünler = "MASA|Sehpa; MASA|Yemek Masası; SANDALYE|Tabure";
};

TEST_F(Adlandırma, ÜrünVeMalzemeleriYeniAdıAlır) {
    Adlandır("MASA", "Sehpa", "Küçük\r\nSehpa");
    EXPECT_EQ(Satırlar(Ağaç), "MASA; -Küçük Sehpa; -Yemek Masası; SANDALYE; -Tabure");
    EXPECT_EQ(Ürünler(), "MASA|Küçük Sehpa; MASA|Yemek Masası; SANDALYE|Tabure");
    EXPECT_EQ(Kullanılanlar(), "Çam|MASA|Küçük Sehpa; Ihlamur|SANDALYE|Tabure; Meşe|MASA|Yemek Masası");
    // Case alone can be corrected, and the same name is free in another group.
    Adlandır("MASA", "Küçük Sehpa", "küçük sehpa");
    Adlandır("MASA", "Yemek Masası", "Tabure");
    EXPECT_EQ(Ürünler(), "MASA|küçük sehpa; MASA|Tabure; SANDALYE|Tabure");
}

TEST_F(Adlandırma, BoşVeTırnaklıAdEskiAdıBırakır) {
    Adlandır("MASA", "Sehpa", "   ");
    for (const char* yeni : {"a' OR '1'='1", "O'Nun Sehpası"}) {
        Kutular().Yanıtla(Yanıt::Tamam);
        Adlandır("MASA", "Sehpa", yeni);
        Kutular().Yanıtla(Yanıt::Tamam);
        Adlandır("SANDALYE", {}, yeni);
    }
    for (const auto& kutu : Kutular().Al()) EXPECT_EQ(kutu.başlık, Metin(MetinNo::OdbcHatası));
    EXPECT_EQ(Satırlar(Ağaç), "MASA; -Sehpa; -Yemek Masası; SANDALYE; -Tabure");
    EXPECT_EQ(Ürünler(), ÖncekiÜrünler);
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

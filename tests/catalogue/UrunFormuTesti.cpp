#include <QComboBox>
#include <QTreeWidget>

#include "KatalogTesti.h"
#include "UrunEkleSilFormu.h"

namespace {

class ÜrünFormu : public KatalogTesti {
  protected:
    void SetUp() override {
        VeriyeBağlan();
        Çalıştır({"INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('MASA', 'Yemek Masası')",
                  "INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('MASA', 'Çalışma Masası')",
                  "INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('DOLAP', 'Gardırop')"});
        KullanımEkle("3/7/2004", "Yemek Masası", "Vida");
        KullanımEkle("3/7/2004", "Çalışma Masası", "Vida");
    }

    QString Ürünler() { return Oku("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"); }
    QTreeWidget& Ağaç() { return Bul<QTreeWidget>("ÜrünListesi"); }
    // The tree's groups with their products, and the groups in the combo box.
    QString Görünen() {
        QString görünen;
        for (QTreeWidgetItemIterator düğüm(&Ağaç()); *düğüm; ++düğüm)
            görünen += ((*düğüm)->parent() ? "|" : " ") + (*düğüm)->text(0);
        görünen += " /";
        const auto& kutu = Bul<QComboBox>("ÜrünGrubuListesi");
        for (int i = 0; i < kutu.count(); ++i) görünen += " " + kutu.itemText(i);
        return görünen;
    }
    void Seç(int grup, int ürün = -1, Qt::KeyboardModifiers ile = {}) {
        Ağaç().expandAll();
        const QModelIndex düğüm = Ağaç().model()->index(grup, 0);
        SatıraTıkla("ÜrünListesi", ürün < 0 ? düğüm : Ağaç().model()->index(ürün, 0, düğüm), ile);
    }
    QString Kip() {
        return Durum({"Çerçeve", "ÜrünListesi", "ÜrünSilButonu"}, {"ÜrünEkleKaydetButonu", "KapatİptalButonu"});
    }
    const QString Gözatma = "ÜrünListesi ÜrünSilButonu /Ürün &Ekle /Kapat (Esc)";
    const QString Ekleme = "Çerçeve /Kaydet /İptal";
};

TEST_F(ÜrünFormu, EklemeDenetlerYerleştirirVeBaştanBaşlar) {
    // As long as not every group could be read, none is added.
    const std::string okunmaz(255, 'Z');
    Çalıştır({("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('" + okunmaz + "', 'x')").c_str()});
    for (int kutu = 0; kutu < 3; ++kutu) Kutular().Yanıtla(Yanıt::Tamam);
    Aç<ÜrünEkleSilFormu>();
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Kip(), Gözatma);
    Çalıştır({("DELETE FROM UrunTablosu WHERE UrunGrubu= '" + okunmaz + "'").c_str()});
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Kip(), Ekleme);
    Kutular().Al();

    Çalıştır({"UPDATE UrunTablosu SET UrunGrubu= 'Dolap' WHERE UrunGrubu= 'DOLAP'"});
    Aç<ÜrünEkleSilFormu>();
    const QString önce = Ürünler();
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_TRUE(Odakta("ÜrünGrubuListesi"));
    Denetle({"ÜrünGrubuListesi", "ÜrünAdıKutusu"}, "ÜrünEkleKaydetButonu",
            {{{" ", ""}, 560, "ÜrünGrubuListesi"},
             {{"3,5", "X"}, 565, "ÜrünGrubuListesi"},
             {{"2024A", ""}, 570, "ÜrünAdıKutusu"},
             {{"MASA", "yemek masası"}, 580, "ÜrünAdıKutusu"}});
    // A quote breaks the statement: nothing is stored, what was typed stays.
    Yaz("ÜrünAdıKutusu", "O'Neil");
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Yazı("ÜrünAdıKutusu") + Kip() + Ürünler() + AnaForm.Çağrılar, "O'neil" + (Ekleme + önce));
    QTest::keyClick(&Form(), Qt::Key_Escape);

    // A group that begins another's name counts as existing: it gets no node here. One that the file takes for the same
    // is written as it stands there.
    for (const auto& [grup, ad] : {std::pair("izmir ığ", " ıSPARTA kapı "), {"mas", "sehpa"}, {"DOLAP", "vitrin"}}) {
        EXPECT_EQ(Kip() + Yazı("ÜrünGrubuListesi") + Yazı("ÜrünAdıKutusu"), Gözatma);
        Tıkla("ÜrünEkleKaydetButonu");
        Tuş(Qt::Key_Down);
        EXPECT_EQ(Yazı("ÜrünGrubuListesi"), "Dolap") << "each add begins with nothing chosen";
        Yaz("ÜrünGrubuListesi", grup);
        Tuş(Qt::Key_Return);
        EXPECT_TRUE(Odakta("ÜrünAdıKutusu"));
        Yaz("ÜrünAdıKutusu", ad);
        Tuş(Qt::Key_Enter);
        EXPECT_TRUE(Odakta("ÜrünEkleKaydetButonu"));
        Tuş(Qt::Key_Return);
    }
    EXPECT_EQ(Ürünler(),
              "Dolap|Gardırop Dolap|Vitrin İZMİR IĞ|Isparta Kapı MAS|Sehpa MASA|Çalışma Masası MASA|Yemek Masası");
    EXPECT_EQ(Görünen(),
              " Dolap|Gardırop|Vitrin İZMİR IĞ|Isparta Kapı MASA|Çalışma Masası|Yemek Masası "
              "/ Dolap İZMİR IĞ MASA");
    EXPECT_EQ(AnaForm.Çağrılar, "yenileyenileyenile");
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_FALSE(Form().isVisible());
}

TEST_F(ÜrünFormu, GrupSilmeİkiKezSorarVeHayırBirŞeySilmez) {
    Çalıştır({"INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('Masa', 'Küçük')"});
    Aç<ÜrünEkleSilFormu>();
    const QString önce = Ürünler();
    EXPECT_TRUE(Odakta("ÜrünListesi"));
    EXPECT_EQ(Seçili("ÜrünListesi"), "-") << "the focus alone selects nothing";
    Beklenen(Simge::Bilgi, 538, Yanıt::Tamam);
    Tıkla("ÜrünSilButonu");
    for (int i = 0; i < 2; ++i) Seç(0, 0, Qt::ControlModifier);
    EXPECT_EQ(Seçili("ÜrünListesi") + Durum({}, {"ÜrünSilButonu"}), "Gardırop/Ürün &Sil");
    Seç(1);
    EXPECT_EQ(Seçili("ÜrünListesi") + Durum({}, {"ÜrünSilButonu"}), "MASA/Ürün Grubu &Sil");
    Beklenen(Simge::Soru, 540, Yanıt::Hayır);
    Tıkla("ÜrünSilButonu");
    for (const Yanıt yanıt : {Yanıt::Hayır, Yanıt::Evet}) {
        EXPECT_EQ(Ürünler(), önce);
        Beklenen(Simge::Soru, 540, Yanıt::Evet);
        Beklenen(Simge::Ünlem, 550, yanıt);
        Tıkla("ÜrünSilButonu");
    }
    EXPECT_EQ(Ürünler(), "DOLAP|Gardırop");
    EXPECT_EQ(Görünen(), " DOLAP|Gardırop / DOLAP") << "every letter case of the group goes";
    EXPECT_EQ(Oku("SELECT UrunAdi FROM UrunMalzemeTablosu"), "");
    EXPECT_EQ(AnaForm.Çağrılar, "yenile");
}

TEST_F(ÜrünFormu, SonÜrünlerGrubuVeSonraHerŞeyiBoşaltır) {
    Aç<ÜrünEkleSilFormu>();
    for (const auto& [grup, kalan] : {std::pair(1, " DOLAP|Gardırop MASA|Yemek Masası / DOLAP MASA/Yemek Masası"),
                                      {1, " DOLAP|Gardırop / DOLAP/"},
                                      {0, " //"}}) {
        Seç(grup, 0);
        Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
        Tıkla("ÜrünSilButonu");
        EXPECT_EQ(Görünen() + "/" + Oku("SELECT UrunAdi FROM UrunMalzemeTablosu"), kalan);
    }
    EXPECT_EQ(Ürünler(), "");
    Tıkla("ÜrünEkleKaydetButonu");
    Tıkla("KapatİptalButonu");
    EXPECT_EQ(Kip(), "/Ürün &Ekle /Kapat (Esc)") << "also after an add that was given up";
}

}  // namespace

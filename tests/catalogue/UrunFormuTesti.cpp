#include "KatalogTesti.h"
#include "UrunEkleSilFormu.h"

namespace {

constexpr const char* Ağaç = "ÜrünListesi";

class ÜrünFormu : public KatalogTesti {
  protected:
    ÜrünFormu() {
        ÜrünEkle("MASA", "Yemek Masası");
        ÜrünEkle("MASA", "Çalışma Masası");
        ÜrünEkle("DOLAP", "Gardırop");
        KullanımEkle("MASA", "Yemek Masası", "Vida", "4 Adet", "12,5");
        KullanımEkle("MASA", "Çalışma Masası", "Vida", "4 Adet", "12,5");
    }
    QString Ürünler() { return Oku("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"); }
    // The tree, and the groups in the combo box.
    QString Görünen() { return Satırlar(Ağaç) + " / " + Satırlar("ÜrünGrubuListesi"); }
    QString Kip() {
        return Etkinler({"Çerçeve", Ağaç, "ÜrünSilButonu"}) + " /" +
               Yazılar({"ÜrünEkleKaydetButonu", "KapatİptalButonu"});
    }
    const QString Gözatma = "ÜrünListesi ÜrünSilButonu /Ürün &Ekle Kapat (Esc)";
    const QString Ekleme = "Çerçeve /Kaydet İptal";
};

TEST_F(ÜrünFormu, EklemeDenetlerYerleştirirVeBaştanBaşlar) {
    // As long as not every group could be read, none is added.
    const QString okunmaz(255, 'Z');
    ÜrünEkle(okunmaz, "x");
    for (int kutu = 0; kutu < 3; ++kutu) Kutular().Yanıtla(Yanıt::Tamam);
    Aç<ÜrünEkleSilFormu>(AnaForm);
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Kip(), Gözatma);
    Çalıştır("DELETE FROM UrunTablosu WHERE UrunGrubu= '" + okunmaz + "'");
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Kip(), Ekleme);
    Kutular().Al();

    Çalıştır("UPDATE UrunTablosu SET UrunGrubu= 'Dolap' WHERE UrunGrubu= 'DOLAP'");
    Aç<ÜrünEkleSilFormu>(AnaForm);
    const QString önce = Ürünler();
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Odak(), "ÜrünGrubuListesi");
    Denetle({"ÜrünGrubuListesi", "ÜrünAdıKutusu"}, "ÜrünEkleKaydetButonu",
            {{{" ", ""}, MetinNo::ÜrünGrubuBoş, "ÜrünGrubuListesi"},
             {{"3,5", "X"}, MetinNo::ÜrünGrubuSayı, "ÜrünGrubuListesi"},
             {{"2024A", ""}, MetinNo::ÜrünAdıBoş, "ÜrünAdıKutusu"},
             {{"MASA", "yemek masası"}, MetinNo::ÜrünListedeVar, "ÜrünAdıKutusu"}});
    // A quote breaks the statement: nothing is stored, what was typed stays.
    Yaz("ÜrünAdıKutusu", "O'Neil");
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Yazı("ÜrünAdıKutusu") + Kip() + Ürünler() + AnaForm.Çağrılar, "O'neil" + Ekleme + önce);
    Esc();

    // A group that begins another's name counts as existing: it gets no node here. One that the file takes for the same
    // is written as it stands there.
    for (const auto& [grup, ad] : {std::pair("izmir ığ", " ıSPARTA kapı "), {"mas", "sehpa"}, {"DOLAP", "vitrin"}}) {
        EXPECT_EQ(Kip() + Yazılar({"ÜrünGrubuListesi", "ÜrünAdıKutusu"}), Gözatma + ' ');
        Tıkla("ÜrünEkleKaydetButonu");
        Tuş(Qt::Key_Down);
        EXPECT_EQ(Yazı("ÜrünGrubuListesi"), "Dolap") << "each add begins with nothing chosen";
        Yaz("ÜrünGrubuListesi", grup);
        Tuş(Qt::Key_Return);
        EXPECT_EQ(Odak(), "ÜrünAdıKutusu");
        Yaz("ÜrünAdıKutusu", ad);
        Tuş(Qt::Key_Enter);
        EXPECT_EQ(Odak(), "ÜrünEkleKaydetButonu");
        Tuş(Qt::Key_Return);
    }
    EXPECT_EQ(Ürünler(),
              "Dolap|Gardırop; Dolap|Vitrin; İZMİR IĞ|Isparta Kapı; MAS|Sehpa; MASA|Çalışma Masası; "
              "MASA|Yemek Masası");
    EXPECT_EQ(Görünen(),
              "Dolap; -Gardırop; -Vitrin; İZMİR IĞ; -Isparta Kapı; MASA; -Çalışma Masası; -Yemek Masası / "
              "Dolap; İZMİR IĞ; MASA");
    EXPECT_EQ(AnaForm.Çağrılar, "yenileyenileyenile");
}

TEST_F(ÜrünFormu, GrupSilmeİkiKezSorarVeHayırBirŞeySilmez) {
    ÜrünEkle("Masa", "Küçük");
    Aç<ÜrünEkleSilFormu>(AnaForm);
    const QString önce = Ürünler();
    EXPECT_EQ(Odak() + Seçili(Ağaç), "ÜrünListesi-") << "the focus alone selects nothing";
    Beklenen(Simge::Bilgi, MetinNo::ÜrünSeçiniz, Yanıt::Tamam);
    Tıkla("ÜrünSilButonu");
    for (int i = 0; i < 2; ++i) Tıkla(Ağaç, Yer(Ağaç, "DOLAP", "Gardırop"), Qt::ControlModifier);
    EXPECT_EQ(Seçili(Ağaç) + Yazı("ÜrünSilButonu"), "GardıropÜrün &Sil");
    Tıkla(Ağaç, Yer(Ağaç, "MASA"));
    EXPECT_EQ(Seçili(Ağaç) + Yazı("ÜrünSilButonu"), "MASAÜrün Grubu &Sil");
    Beklenen(Simge::Soru, MetinNo::GrupSilmeSorusu, Yanıt::Hayır);
    Tıkla("ÜrünSilButonu");
    for (const Yanıt yanıt : {Yanıt::Hayır, Yanıt::Evet}) {
        EXPECT_EQ(Ürünler(), önce);
        Beklenen(Simge::Soru, MetinNo::GrupSilmeSorusu, Yanıt::Evet);
        Beklenen(Simge::Ünlem, MetinNo::SilmeGeriAlınamaz, yanıt);
        Tıkla("ÜrünSilButonu");
    }
    EXPECT_EQ(Ürünler(), "DOLAP|Gardırop");
    EXPECT_EQ(Görünen(), "DOLAP; -Gardırop / DOLAP") << "every letter case of the group goes";
    EXPECT_EQ(Oku("SELECT UrunAdi FROM UrunMalzemeTablosu"), "");
    Tıkla(Ağaç, Yer(Ağaç, "DOLAP", "Gardırop"));
    Beklenen(Simge::Ünlem, MetinNo::SilmeGeriAlınamaz, Yanıt::Evet);
    Tıkla("ÜrünSilButonu");
    EXPECT_EQ(Ürünler() + Görünen() + Kip(), " /  /Ürün &Ekle Kapat (Esc)") << "the last product takes its group along";
    EXPECT_EQ(AnaForm.Çağrılar, "yenileyenile");
}

}  // namespace

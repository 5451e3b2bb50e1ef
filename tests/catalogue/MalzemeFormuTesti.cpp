#include <QListWidget>

#include "DegiskenModulu.h"
#include "KatalogTesti.h"
#include "MalzemeEkleSilFormu.h"
#include "MetinTablosu.h"

namespace {

class MalzemeFormu : public KatalogTesti {
  protected:
    void SetUp() override {
        VeriyeBağlan();
        MalzemeEkle("Çivi", "12,5");
        MalzemeEkle("Abanoz", "1250,5");
        MalzemeEkle("İp", "3");
        KullanımEkle("3/7/2004", "Sehpa", "Çivi");
        KullanımEkle("11/22/2026", "Sehpa", "Çivi");
        SeçiliÜrünSırası = 3;
        Aç<MalzemeEkleSilFormu>();
    }
    QListWidget& Liste() { return Bul<QListWidget>("MalzemeListesi"); }
    void SatıraTıkla(int satır, Qt::KeyboardModifiers ile = {}) {
        KatalogTesti::SatıraTıkla("MalzemeListesi", Liste().model()->index(satır, 0), ile);
    }
    // The marked row and what the boxes show.
    QString Görünen() {
        return Seçili("MalzemeListesi") + " " + Yazı("MalzemeAdıKutusu") + "|" + Yazı("MalzemeFiyatıKutusu");
    }
    QString Katalog() { return Oku("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC"); }
    QString Kullanılan() { return Oku("SELECT KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu"); }
    QString Kip() {
        return Durum({"Çerçeve", "MalzemeAdıKutusu", "MalzemeListesi", "MalzemeBulKutusu", "MalzemeSilButonu",
                      "MalzemeFiyatıDeğiştirButonu", "MalzemeEkleKaydetButonu"},
                     {"MalzemeEkleKaydetButonu", "MalzemeFiyatıDeğiştirButonu", "KapatİptalButonu"});
    }
    const char* Gözatma =
        "MalzemeListesi MalzemeBulKutusu MalzemeSilButonu MalzemeFiyatıDeğiştirButonu MalzemeEkleKaydetButonu /Malzeme "
        "&Ekle /Fiyat &Değiştir /Kapat (Esc)";
};

TEST_F(MalzemeFormu, KomutlarAncakSeçiliGörüneneUygulanır) {
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50");
    Yaz("MalzemeBulKutusu", "İP");
    EXPECT_EQ(Görünen(), "İp İp|3,00");
    Yaz("MalzemeBulKutusu", "yok");
    Tuş(Qt::Key_Return);
    for (const char* düğme : {"MalzemeSilButonu", "MalzemeFiyatıDeğiştirButonu"}) {
        EXPECT_TRUE(Odakta("MalzemeListesi"));
        EXPECT_EQ(Görünen(), "- |") << "the focus alone selects nothing";
        Beklenen(Simge::Bilgi, 710, Yanıt::Tamam);
        Tıkla(düğme);
    }
    Tuş(Qt::Key_Down);
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50");
    for (int i = 0; i < 2; ++i) SatıraTıkla(1, Qt::ControlModifier);
    Tuş(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Görünen(), "Çivi Çivi|12,50") << "Ctrl takes no mark away";
    Tuş(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(Görünen(), "İp İp|3,00");
    Yaz("MalzemeBulKutusu", "");
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50") << "an empty find text selects the first";

    Liste().addItem("O'Neil");  // reading it fails with a box
    for (const char* ne : {"a click that changes the row", "a click on the row that is marked"}) {
        Kutular().Al();
        Kutular().Yanıtla(Yanıt::Tamam);
        SatıraTıkla(3);
        EXPECT_EQ(Kutular().Al().size(), 1u) << ne << " reads once";
    }
}

TEST_F(MalzemeFormu, EklemeDenetlerKaydederVeSırayaKoyar) {
    Tıkla("MalzemeEkleKaydetButonu");
    EXPECT_TRUE(Odakta("MalzemeAdıKutusu"));
    Denetle({"MalzemeAdıKutusu", "MalzemeFiyatıKutusu"}, "MalzemeEkleKaydetButonu",
            {{{"", ""}, 680, "MalzemeAdıKutusu"},
             {{"Boya", ""}, 690, "MalzemeFiyatıKutusu"},
             {{"çivi", "5"}, 700, "MalzemeAdıKutusu"}});
    EXPECT_EQ(Kip(), "Çerçeve MalzemeAdıKutusu MalzemeEkleKaydetButonu /Kaydet /Fiyat &Değiştir /İptal");
    EXPECT_EQ(Görünen(), "Abanoz Çivi|5,00");
    Yaz("MalzemeAdıKutusu", "cam");
    Yaz("MalzemeFiyatıKutusu", "922337203685478");
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla("MalzemeEkleKaydetButonu");
    Kutular().TekKutu(Simge::Bilgi, Metin(MetinNo::SayıÇokBüyük) + QStringLiteral(" 922.337.203.685.477,5807"));
    EXPECT_EQ(Görünen(), "Abanoz Cam|922.337.203.685.478,00");
    Yaz("MalzemeAdıKutusu", "boya 1. sınıf");
    Yaz("MalzemeFiyatıKutusu", "1250,125");
    Tuş(Qt::Key_Return);
    Tıkla("MalzemeEkleKaydetButonu");
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_TRUE(Odakta("MalzemeEkleKaydetButonu"));
    EXPECT_EQ(Görünen(), "Boya 1. Sınıf Boya 1. Sınıf|1.250,13");

    Tıkla("MalzemeEkleKaydetButonu");
    Yaz("MalzemeAdıKutusu", "Vazgeç");
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(Görünen(), "Boya 1. Sınıf |");
    SatıraTıkla(1);
    EXPECT_EQ(Görünen(), "Boya 1. Sınıf Boya 1. Sınıf|1.250,13");
    EXPECT_EQ(Katalog(), "Abanoz|1250.5 Boya 1. Sınıf|1250.13 Çivi|12.5 İp|3");
}

TEST_F(MalzemeFormu, FiyatDeğişimiHerGününSatırınaUlaşır) {
    Yaz("MalzemeBulKutusu", "çiv");
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_TRUE(Odakta("MalzemeFiyatıKutusu"));
    Denetle({"MalzemeFiyatıKutusu"}, "MalzemeFiyatıDeğiştirButonu", {{{""}, 690, "MalzemeFiyatıKutusu"}});
    EXPECT_EQ(Kip(), "Çerçeve MalzemeFiyatıDeğiştirButonu /Malzeme &Ekle /Kaydet /İptal");
    Yaz("MalzemeFiyatıKutusu", "9999");
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(Görünen(), "Çivi Çivi|9.999,00") << "until the next selection";
    SatıraTıkla(1);
    EXPECT_EQ(Görünen(), "Çivi Çivi|12,50");

    Tıkla("MalzemeFiyatıDeğiştirButonu");
    Yaz("MalzemeFiyatıKutusu", "77");
    std::optional<Yazan> başkası(VeriDosyası());
    Kutular().Yanıtla(Yanıt::Tamam, [&](const auto&) { başkası.reset(); });
    Beklenen(Simge::Ünlem, 2172, Yanıt::Tamam);
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Görünen(), "Çivi Çivi|12,50") << "the refused price does not stay as if stored";
    EXPECT_EQ(Kullanılan(), "Çivi|77 Çivi|77") << "the second statement runs all the same";

    Tıkla("MalzemeFiyatıDeğiştirButonu");
    Yaz("MalzemeFiyatıKutusu", "1234,5");
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Görünen(), "Çivi Çivi|1.234,50");
    EXPECT_EQ(Katalog(), "Abanoz|1250.5 Çivi|1234.5 İp|3");
    EXPECT_EQ(Kullanılan(), "Çivi|1234.5 Çivi|1234.5");
    EXPECT_EQ(AnaForm.Çağrılar, "seç 3seç 3");

    Çalıştır({"DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Çivi'"});
    Beklenen(Simge::Bilgi, 2170, Yanıt::Tamam);
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Kip(), Gözatma) << "what is no longer stored cannot be changed";
}

TEST_F(MalzemeFormu, SilmeÜrünlereAncakİzinleDokunur) {
    const auto sil = [this](Yanıt ürünlerden, const std::function<void()>& sorulurken = {}) {
        Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
        Beklenen(Simge::Soru, 720, ürünlerden, sorulurken);
        Tıkla("MalzemeSilButonu");
    };
    Yaz("MalzemeBulKutusu", "ç");
    Beklenen(Simge::Ünlem, 550, Yanıt::Hayır);
    Tıkla("MalzemeSilButonu");
    sil(Yanıt::Hayır);
    EXPECT_EQ(Katalog(), "Abanoz|1250.5 İp|3");
    EXPECT_EQ(Kullanılan(), "Çivi|12.5 Çivi|12.5") << "products keep the material unless the user agrees";
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50") << "the item above is selected and shown";

    Çalıştır({"UPDATE UrunMalzemeTablosu SET KullanilanMalzemeAdi= 'Abanoz' WHERE KullanilanMalzemeAdi= 'Çivi'"});
    std::optional<Yazan> başkası;
    sil(Yanıt::Evet, [&] {
        başkası.emplace(VeriDosyası());
        Kutular().Yanıtla(Yanıt::Tamam);
        Beklenen(Simge::Ünlem, 2173, Yanıt::Tamam);
    });
    başkası.reset();
    EXPECT_EQ(Seçili("MalzemeListesi"), "Abanoz") << "half done: the row stays, to be deleted once more";
    sil(Yanıt::Evet);
    EXPECT_EQ(Kullanılan(), "");
    EXPECT_EQ(AnaForm.Çağrılar, "seç 3");
    EXPECT_EQ(Görünen(), "İp İp|3,00") << "the first was removed: the new first is selected";

    sil(Yanıt::Hayır);
    EXPECT_EQ(Kip(), "MalzemeEkleKaydetButonu /Malzeme &Ekle /Fiyat &Değiştir /Kapat (Esc)");
    EXPECT_EQ(Görünen() + Yazı("MalzemeBulKutusu"), "- |");
}

}  // namespace

#include <QListWidget>

#include "KatalogTesti.h"
#include "MalzemeEkleSilFormu.h"

namespace {

constexpr const char* Liste = "MalzemeListesi";

class MalzemeFormu : public KatalogTesti {
  protected:
    MalzemeFormu() {
        MalzemeEkle("Çivi", "12,5");
        MalzemeEkle("Abanoz", "1250,5");
        MalzemeEkle("İp", "3");
        for (const char* gün : {"#3/7/2004#", "#11/22/2026#"})
            KullanımEkle("MASA", "Sehpa", "Çivi", "4 Adet", "12,5", gün);
        SeçiliÜrünSırası = 3;
        Aç<MalzemeEkleSilFormu>(AnaForm);
    }
    // The marked row and what the boxes show.
    QString Görünen() { return Seçili(Liste) + " " + Yazı("MalzemeAdıKutusu") + "|" + Yazı("MalzemeFiyatıKutusu"); }
    QString Katalog() { return Oku("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC"); }
    QString Kullanılan() { return Oku("SELECT KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu"); }
    QString Kip() {
        return Etkinler({"Çerçeve", "MalzemeAdıKutusu", Liste, "MalzemeBulKutusu", "MalzemeSilButonu",
                         "MalzemeFiyatıDeğiştirButonu", "MalzemeEkleKaydetButonu"}) +
               " /" + Yazılar({"MalzemeEkleKaydetButonu", "MalzemeFiyatıDeğiştirButonu", "KapatİptalButonu"});
    }
    const char* Gözatma =
        "MalzemeListesi MalzemeBulKutusu MalzemeSilButonu MalzemeFiyatıDeğiştirButonu MalzemeEkleKaydetButonu /Malzeme "
        "&Ekle Fiyat &Değiştir Kapat (Esc)";
};

TEST_F(MalzemeFormu, KomutlarAncakSeçiliGörüneneUygulanır) {
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50");
    Yaz("MalzemeBulKutusu", "İP");
    EXPECT_EQ(Görünen(), "İp İp|3,00");
    Yaz("MalzemeBulKutusu", "yok");
    Tuş(Qt::Key_Return);
    for (const char* düğme : {"MalzemeSilButonu", "MalzemeFiyatıDeğiştirButonu"}) {
        EXPECT_EQ(Odak() + Görünen(), "MalzemeListesi- |") << "the focus alone selects nothing";
        Beklenen(Simge::Bilgi, MetinNo::MalzemeSeçiniz, Yanıt::Tamam);
        Tıkla(düğme);
    }
    Tuş(Qt::Key_Down);
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50");
    for (int i = 0; i < 2; ++i) Tıkla(Liste, Yer(Liste, "Çivi"), Qt::ControlModifier);
    Tuş(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Görünen(), "Çivi Çivi|12,50") << "Ctrl takes no mark away";
    Tuş(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(Görünen(), "İp İp|3,00");
    Yaz("MalzemeBulKutusu", "");
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50") << "an empty find text selects the first";

    Bul<QListWidget>(Liste).addItem("O'Neil");  // reading it fails with a box
    for (const char* ne : {"a click that changes the row", "a click on the row that is marked"}) {
        Kutular().Al();
        Kutular().Yanıtla(Yanıt::Tamam);
        Tıkla(Liste, Yer(Liste, "O'Neil"));
        EXPECT_EQ(Kutular().Al().size(), 1u) << ne << " reads once";
    }
}

TEST_F(MalzemeFormu, EklemeDenetlerKaydederVeSırayaKoyar) {
    Tıkla("MalzemeEkleKaydetButonu");
    EXPECT_EQ(Odak(), "MalzemeAdıKutusu");
    Denetle({"MalzemeAdıKutusu", "MalzemeFiyatıKutusu"}, "MalzemeEkleKaydetButonu",
            {{{"", ""}, MetinNo::MalzemeAdıBoş, "MalzemeAdıKutusu"},
             {{"Boya", ""}, MetinNo::MalzemeFiyatıBoş, "MalzemeFiyatıKutusu"},
             {{"çivi", "5"}, MetinNo::MalzemeListedeVar, "MalzemeAdıKutusu"},
             {{"cam", "922337203685478"}, MetinNo::SayıÇokBüyük, "MalzemeFiyatıKutusu"}});
    EXPECT_EQ(Kip(), "Çerçeve MalzemeAdıKutusu MalzemeEkleKaydetButonu /Kaydet Fiyat &Değiştir İptal");
    EXPECT_EQ(Görünen(), "Abanoz Cam|922.337.203.685.478,00");
    Yaz("MalzemeAdıKutusu", "boya 1. sınıf");
    Yaz("MalzemeFiyatıKutusu", "1250,125");
    Tuş(Qt::Key_Return);
    Tıkla("MalzemeEkleKaydetButonu");
    EXPECT_EQ(Kip() + Odak(), Gözatma + QStringLiteral("MalzemeEkleKaydetButonu"));
    EXPECT_EQ(Görünen(), "Boya 1. Sınıf Boya 1. Sınıf|1.250,13");

    Tıkla("MalzemeEkleKaydetButonu");
    Yaz("MalzemeAdıKutusu", "Vazgeç");
    Esc();
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(Görünen(), "Boya 1. Sınıf |");
    Tıkla(Liste, Yer(Liste, "Boya 1. Sınıf"));
    EXPECT_EQ(Görünen(), "Boya 1. Sınıf Boya 1. Sınıf|1.250,13");
    EXPECT_EQ(Katalog(), "Abanoz|1250.5; Boya 1. Sınıf|1250.13; Çivi|12.5; İp|3");
}

TEST_F(MalzemeFormu, FiyatDeğişimiHerGününSatırınaUlaşır) {
    Yaz("MalzemeBulKutusu", "çiv");
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Odak(), "MalzemeFiyatıKutusu");
    Denetle({"MalzemeFiyatıKutusu"}, "MalzemeFiyatıDeğiştirButonu",
            {{{""}, MetinNo::MalzemeFiyatıBoş, "MalzemeFiyatıKutusu"}});
    EXPECT_EQ(Kip(), "Çerçeve MalzemeFiyatıDeğiştirButonu /Malzeme &Ekle Kaydet İptal");
    Yaz("MalzemeFiyatıKutusu", "9999");
    Esc();
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(Görünen(), "Çivi Çivi|9.999,00") << "until the next selection";
    Tıkla(Liste, Yer(Liste, "Çivi"));
    EXPECT_EQ(Görünen(), "Çivi Çivi|12,50");

    Tıkla("MalzemeFiyatıDeğiştirButonu");
    Yaz("MalzemeFiyatıKutusu", "77");
    std::optional<Yazan> başkası(VeriDosyası());
    Kutular().Yanıtla(Yanıt::Tamam, [&](const auto&) { başkası.reset(); });
    Beklenen(Simge::Ünlem, MetinNo::FiyatKatalogdaEski, Yanıt::Tamam);
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Görünen(), "Çivi Çivi|12,50") << "the refused price does not stay as if stored";
    EXPECT_EQ(Kullanılan(), "Çivi|77; Çivi|77") << "the second statement runs all the same";

    Tıkla("MalzemeFiyatıDeğiştirButonu");
    Yaz("MalzemeFiyatıKutusu", "1234,5");
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Görünen(), "Çivi Çivi|1.234,50");
    EXPECT_EQ(Katalog() + Kullanılan(), "Abanoz|1250.5; Çivi|1234.5; İp|3Çivi|1234.5; Çivi|1234.5");
    EXPECT_EQ(AnaForm.Çağrılar, "seç 3seç 3");
    // Recorded with what it was before, the used rows that had a price of their own singly.
    EXPECT_EQ(Oku("SELECT MalzemeAdi, EskiFiyat, YeniFiyat FROM FiyatGecmisiTablosu"), "Çivi|12.5|1234.5");
    EXPECT_EQ(Oku("SELECT UrunAdi, EskiFiyat FROM FiyatSatirTablosu"), "Sehpa|77; Sehpa|77");
    // A record that fails (here its number is taken) does not keep the price back, nor does it pass unseen.
    Çalıştır("UPDATE FiyatIslemTablosu SET IslemNo= '2' WHERE IslemNo= '1'");
    Çalıştır(
        "INSERT INTO FiyatIslemTablosu (IslemNo, IslemZamani, IslemTuru, Aciklama, Karsiligi, GeriAlan, DovizKodu, "
        "EskiKur, YeniKur, EskiKurGunu, YeniKurGunu) VALUES ('10000000000000000000000', '', '', '', '0', '0', '', '0', "
        "'0', "
        "'', '')");
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    Yaz("MalzemeFiyatıKutusu", "5");
    Beklenen(Simge::Ünlem, MetinNo::GeçmişeYazılamadı, Yanıt::Tamam);
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Katalog() + Kullanılan(), "Abanoz|1250.5; Çivi|5; İp|3Çivi|5; Çivi|5");

    Çalıştır("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Çivi'");
    Beklenen(Simge::Bilgi, MetinNo::SilinmişMalzeme, Yanıt::Tamam);
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Kip(), Gözatma) << "what is no longer stored cannot be changed";
}

TEST_F(MalzemeFormu, SilmeÜrünlereAncakİzinleDokunur) {
    const auto sil = [this](Yanıt ürünlerden, const std::function<void()>& sorulurken = {}) {
        Beklenen(Simge::Ünlem, MetinNo::SilmeGeriAlınamaz, Yanıt::Evet);
        Beklenen(Simge::Soru, MetinNo::ÜrünlerdenÇıkarmaSorusu, ürünlerden, {}, sorulurken);
        Tıkla("MalzemeSilButonu");
    };
    Yaz("MalzemeBulKutusu", "ç");
    Beklenen(Simge::Ünlem, MetinNo::SilmeGeriAlınamaz, Yanıt::Hayır);
    Tıkla("MalzemeSilButonu");
    EXPECT_EQ(Seçili(Liste), "Çivi");
    sil(Yanıt::Hayır);
    EXPECT_EQ(Katalog(), "Abanoz|1250.5; İp|3");
    EXPECT_EQ(Kullanılan(), "Çivi|12.5; Çivi|12.5") << "products keep the material unless the user agrees";
    EXPECT_EQ(Görünen(), "Abanoz Abanoz|1.250,50") << "the item above is selected and shown";

    Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeAdi= 'Abanoz' WHERE KullanilanMalzemeAdi= 'Çivi'");
    std::optional<Yazan> başkası;
    sil(Yanıt::Evet, [&] {
        başkası.emplace(VeriDosyası());
        Kutular().Yanıtla(Yanıt::Tamam);
        Beklenen(Simge::Ünlem, MetinNo::ÜrünlerdenSilinemedi, Yanıt::Tamam);
    });
    başkası.reset();
    EXPECT_EQ(Seçili(Liste), "Abanoz") << "half done: the row stays, to be deleted once more";
    sil(Yanıt::Evet);
    EXPECT_EQ(Kullanılan(), "");
    EXPECT_EQ(AnaForm.Çağrılar, "seç 3");
    EXPECT_EQ(Görünen(), "İp İp|3,00") << "the first was removed: the new first is selected";

    sil(Yanıt::Hayır);
    EXPECT_EQ(Kip(), "MalzemeEkleKaydetButonu /Malzeme &Ekle Fiyat &Değiştir Kapat (Esc)");
    EXPECT_EQ(Görünen() + Yazı("MalzemeBulKutusu"), "- |");
}

}  // namespace

#include "KatalogTesti.h"
#include "MalzemeListesiOlusturFormu.h"
#include "MiktarTurleri.h"

namespace {

constexpr const char* Liste = "EklenecekMalzemeListesi";

class ListeFormu : public KatalogTesti {
  protected:
    ListeFormu() {
        MalzemeEkle("Çivi", "0,3355");
        MalzemeEkle("Kereste", "1250,5");
        SaatiAyarla([] { return QDate(2004, 3, 7); });
        Aç<MalzemeListesiOluşturFormu>(AnaForm);
    }
    void Ekle(const char* malzeme, const char* miktar, const char* tür) {
        Yaz("MalzemeBulKutusu", malzeme);
        Yaz("MalzemeMiktarıKutusu", miktar);
        Yaz("MiktarTürüListesi", tür);
        Tıkla("ListeyeEkleButonu");
    }
    QString Düğmeler() { return Etkinler({"ListedenÇıkarButonu", "ListeyiTemizleButonu", "ListeyiAktarButonu"}); }
    QString Kullanılan() {
        return Oku(
            "SELECT KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, "
            "KullanilanMalzemeFiyati FROM UrunMalzemeTablosu");
    }
};

TEST_F(ListeFormu, EklemeDenetimleriSırasıylaVeSatırBiçimli) {
    Denetle({"MalzemeBulKutusu", "MalzemeMiktarıKutusu", "MiktarTürüListesi"}, "ListeyeEkleButonu",
            {{{"yok", "1", "Adet"}, MetinNo::MalzemeSeçiniz, "MalzemeListesi"},
             {{"ç", "", "Adet"}, MetinNo::MiktarıBelirtiniz, "MalzemeMiktarıKutusu"},
             {{"ç", "1", " "}, MetinNo::MiktarTürünüBelirtiniz, "MiktarTürüListesi"},
             {{"ç", "0", "Metre"}, MetinNo::MiktarSıfır, "MalzemeMiktarıKutusu"},
             {{"ç", "99999999999999,99", "Metre"}, MetinNo::BasamakÇokFazla, "MalzemeMiktarıKutusu"}});
    EXPECT_EQ(Satırlar(Liste) + Düğmeler(), "");
    EXPECT_EQ(MiktarTürleri::Oku(), QStringList("Metre")) << "the type is remembered before the zero test";

    // The price is rounded to the decimals on display before it is multiplied: 0,34 x 3, not 0,3355 x 3.
    Ekle("çi", "3", "Ad3'et");
    Ekle("ker", "0,5", "Metre");
    EXPECT_EQ(Satırlar(Liste), "3,00 Adet|Çivi|0,34|1,02; 0,50 Metre|Kereste|1.250,50|625,25");
    EXPECT_EQ(Yazı("MalzemeMiktarıKutusu"), "0,50") << "the boxes keep their texts";
    QTest::keyClick(&Bul("MiktarTürüListesi"), Qt::Key_Up);
    EXPECT_EQ(Yazı("MiktarTürüListesi"), "Adet") << "the list goes on from the type that is shown";

    Beklenen(Simge::Soru, MetinNo::TekrarEklemeSorusu, Yanıt::Hayır);
    Ekle("çi", "1", "Adet");
    EXPECT_EQ(Satırlar(Liste).count(";"), 1);
    Tıkla("ListeyiTemizleButonu");
    EXPECT_EQ(Düğmeler(), "");
    Çalıştır("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Kereste'");
    Ekle("ker", "2", "Metre");
    EXPECT_EQ(Satırlar(Liste), "2,00 Metre|Kereste|1,00|2,00") << "gone from the catalogue: price 1";
}

TEST_F(ListeFormu, ÇıkarmaSeçiliyiSorarVeSonSatırDüğmeleriKapatır) {
    Ekle("ker", "5", "Adet");
    Ekle("çi", "4", "Adet");
    EXPECT_EQ(Düğmeler(), "ListedenÇıkarButonu ListeyiTemizleButonu ListeyiAktarButonu");
    for (int i = 0; i < 2; ++i) Tıkla(Liste, Yer(Liste, "5,00 Adet"), Qt::ControlModifier);
    for (const Yanıt yanıt : {Yanıt::Hayır, Yanıt::Evet}) {
        EXPECT_EQ(Seçili(Liste), "5,00 Adet|Kereste|1.250,50|6.252,50");
        Beklenen(Simge::Soru, MetinNo::ListedenÇıkarmaSorusu, yanıt, " 5,00 Adet Kereste");
        Tıkla("ListedenÇıkarButonu");
    }
    EXPECT_EQ(Seçili(Liste), "4,00 Adet|Çivi|0,34|1,36");
    Beklenen(Simge::Soru, MetinNo::ListedenÇıkarmaSorusu, Yanıt::Evet, " 4,00 Adet Çivi");
    ÇiftTıkla(Liste, Yer(Liste, "4,00 Adet"));
    EXPECT_EQ(Düğmeler(), "");
}

TEST_F(ListeFormu, AktarmaVarOlanıDeğiştirirYeniyiEklerAktarılamayanıSöyler) {
    KullanımEkle("MASA", "Sehpa", "Kereste", "4 Adet", "12,5", "#1/2/2003#");
    const QString önce = Kullanılan();
    std::optional<Yazan> başkası;
    const auto aktar = [this](Yanıt yanıt, const std::function<void()>& sorulurken = {}) {
        Aç<MalzemeListesiOluşturFormu>(AnaForm);
        EXPECT_EQ(Satırlar(Liste), "");
        Ekle("ker", "1250,5", "Metre");
        Ekle("çi", "2", "Adet");
        Beklenen(Simge::Soru, MetinNo::TekrarEklemeSorusu, Yanıt::Evet);
        Tıkla("ListeyeEkleButonu");
        Beklenen(Simge::Soru, MetinNo::AktarmaSorusu, yanıt, {}, sorulurken);
        Tıkla("ListeyiAktarButonu");
        EXPECT_FALSE(Form().isVisible());
    };
    aktar(Yanıt::Hayır);
    EXPECT_EQ(AnaForm.Çağrılar, "");
    aktar(Yanıt::Evet, [&] {
        başkası.emplace(VeriDosyası());
        Kutular().Yanıtla(Yanıt::Tamam, [&](const auto&) { başkası.reset(); });
        Beklenen(Simge::Ünlem, MetinNo::Aktarılamayanlar, Yanıt::Tamam, "\n1.250,50 Metre Kereste");
    });
    EXPECT_TRUE(Kullanılan().startsWith(önce + ";")) << "the others still go";
    Çalıştır("DELETE FROM UrunMalzemeTablosu WHERE KullanilanMalzemeAdi= 'Çivi'");
    aktar(Yanıt::Evet);
    EXPECT_EQ(HareketTarihiSQL, "#3/7/2004#");
    EXPECT_EQ(Kullanılan(),
              "2004-03-07 00:00:00|MASA|Sehpa|Kereste|1.250,50 Metre|1250.5; 2004-03-07 00:00:00|MASA|Sehpa|Çivi|"
              "2,00 Adet|0.34; 2004-03-07 00:00:00|MASA|Sehpa|Çivi|2,00 Adet|0.34");
    EXPECT_EQ(AnaForm.Çağrılar, "yükleyükle");
}

TEST_F(ListeFormu, MiktarTürleriOnTaneVeÖnEkleAranır) {
    QStringList türler;
    for (char16_t harf = u'A'; harf <= u'J'; ++harf) MiktarTürleri::Hatırla(türler, QString(QChar(harf)) + "-tür");
    EXPECT_EQ(türler.first(), "J-tür") << "newest on top";
    MiktarTürleri::Hatırla(türler, "c-t");
    EXPECT_EQ(türler.size(), 10) << "the beginning of a kept type is not remembered";
    türler = MiktarTürleri::Oku();
    MiktarTürleri::Hatırla(türler, "Yeni");
    EXPECT_EQ(MiktarTürleri::Oku(), türler);
    EXPECT_EQ(türler.first() + türler.last(), "YeniI-tür") << "the last gave way";

    // Settings with gaps and blanks.
    const QStringList ayarlar{"Sıfır", "", "", "Üç", "  "};
    for (int i = 0; i <= 10; ++i) AyarYaz("Miktarlar", QStringLiteral("Miktar-%1").arg(i), ayarlar.value(i, ""));
    türler = MiktarTürleri::Oku();
    EXPECT_EQ(türler, QStringList({"Sıfır", "Üç"}));
    MiktarTürleri::Hatırla(türler, "Kova");
    EXPECT_EQ(AyarOku("Miktarlar", "Miktar-3", QString()) + AyarOku("Miktarlar", "Miktar-4", QString()), "ÜçKova");
    // What no product could take is not offered.
    AyarYaz("Miktarlar", "Miktar-0", QString(300, u'x'));
    AyarYaz("Miktarlar", "Miktar-1", "on'luk");
    Aç<MalzemeListesiOluşturFormu>(AnaForm);
    EXPECT_EQ(Yazı("MiktarTürüListesi"), "Üç");
}

}  // namespace

#include <QTreeWidget>

#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "KatalogTesti.h"
#include "MalzemeListesiOlusturFormu.h"
#include "MiktarTurleri.h"
#include "Saat.h"

namespace {

class ListeFormu : public KatalogTesti {
  protected:
    void SetUp() override {
        VeriyeBağlan();
        MalzemeEkle("Çivi", "0,3355");
        MalzemeEkle("Kereste", "1250,5");
        SaatiAyarla([] { return QDate(2004, 3, 7); });
        Aç<MalzemeListesiOluşturFormu>();
    }
    QTreeWidget& Liste() { return Bul<QTreeWidget>("EklenecekMalzemeListesi"); }
    QString Satırlar() {
        QString satırlar;
        for (int i = 0; i < Liste().topLevelItemCount(); ++i)
            for (int sütun = 0; sütun < 4; ++sütun) satırlar += Liste().topLevelItem(i)->text(sütun) + "|";
        return satırlar;
    }
    void Ekle(const char* malzeme, const char* miktar, const char* tür) {
        Yaz("MalzemeBulKutusu", malzeme);
        Yaz("MalzemeMiktarıKutusu", miktar);
        Yaz("MiktarTürüListesi", tür);
        Tıkla("ListeyeEkleButonu");
    }
    QString Düğmeler() { return Durum({"ListedenÇıkarButonu", "ListeyiTemizleButonu", "ListeyiAktarButonu"}); }
    QString Kullanılan() {
        return Oku(
            "SELECT KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, "
            "KullanilanMalzemeFiyati FROM UrunMalzemeTablosu");
    }
};

TEST_F(ListeFormu, EklemeDenetimleriSırasıylaVeSatırBiçimli) {
    Denetle({"MalzemeBulKutusu", "MalzemeMiktarıKutusu", "MiktarTürüListesi"}, "ListeyeEkleButonu",
            {{{"yok", "1", "Adet"}, 710, "MalzemeListesi"},
             {{"ç", "", "Adet"}, 820, "MalzemeMiktarıKutusu"},
             {{"ç", "1", " "}, 830, "MiktarTürüListesi"},
             {{"ç", "0", "Metre"}, 840, "MalzemeMiktarıKutusu"},
             {{"ç", "99999999999999,99", "Metre"}, 2141, "MalzemeMiktarıKutusu"}});
    EXPECT_EQ(Satırlar() + Düğmeler(), "");
    EXPECT_EQ(MiktarTürleri::Oku(), QStringList("Metre")) << "the type is remembered before the zero test";

    // The price is rounded to the decimals on display before it is multiplied: 0,34 x 3, not 0,3355 x 3.
    Ekle("çi", "3", "Ad3'et");
    Ekle("ker", "0,5", "Metre");
    EXPECT_EQ(Satırlar(), "3,00 Adet|Çivi|0,34|1,02|0,50 Metre|Kereste|1.250,50|625,25|");
    EXPECT_EQ(Yazı("MalzemeMiktarıKutusu"), "0,50") << "the boxes keep their texts";
    QTest::keyClick(&Bul("MiktarTürüListesi"), Qt::Key_Up);
    EXPECT_EQ(Yazı("MiktarTürüListesi"), "Adet") << "the list goes on from the type that is shown";

    Beklenen(Simge::Soru, 850, Yanıt::Hayır);
    Ekle("çi", "1", "Adet");
    EXPECT_EQ(Liste().topLevelItemCount(), 2);
    Tıkla("ListeyiTemizleButonu");
    EXPECT_EQ(Düğmeler(), "");
    Çalıştır({"DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Kereste'"});
    Ekle("ker", "2", "Metre");
    EXPECT_EQ(Satırlar(), "2,00 Metre|Kereste|1,00|2,00|") << "gone from the catalogue: price 1";
}

TEST_F(ListeFormu, ÇıkarmaSeçiliyiSorarVeSonSatırDüğmeleriKapatır) {
    const auto çıkarılacak = [this](Yanıt yanıt, const char* satır) {
        Beklenen(Simge::Soru, 440, yanıt, [this, satır] { EXPECT_TRUE(Kutular().Al().back().metin.endsWith(satır)); });
    };
    Ekle("ker", "5", "Adet");
    Ekle("çi", "4", "Adet");
    EXPECT_EQ(Düğmeler(), "ListedenÇıkarButonu ListeyiTemizleButonu ListeyiAktarButonu");
    for (int i = 0; i < 2; ++i)
        SatıraTıkla("EklenecekMalzemeListesi", Liste().model()->index(0, 1), Qt::ControlModifier);
    for (const Yanıt yanıt : {Yanıt::Hayır, Yanıt::Evet}) {
        EXPECT_EQ(Seçili("EklenecekMalzemeListesi"), "5,00 Adet|Kereste|1.250,50|6.252,50");
        çıkarılacak(yanıt, ": 5,00 Adet Kereste");
        Tıkla("ListedenÇıkarButonu");
    }
    EXPECT_EQ(Seçili("EklenecekMalzemeListesi"), "4,00 Adet|Çivi|0,34|1,36");
    çıkarılacak(Yanıt::Evet, ": 4,00 Adet Çivi");
    const QPoint yer = Liste().visualItemRect(Liste().topLevelItem(0)).center();
    QTest::mouseClick(Liste().viewport(), Qt::LeftButton, {}, yer);
    QTest::mouseDClick(Liste().viewport(), Qt::LeftButton, {}, yer);
    EXPECT_EQ(Düğmeler(), "");
}

TEST_F(ListeFormu, AktarmaVarOlanıDeğiştirirYeniyiEklerAktarılamayanıSöyler) {
    KullanımEkle("1/2/2003", "Sehpa", "Kereste");
    const QString önce = Kullanılan();
    std::optional<Yazan> başkası;
    const auto aktar = [this](Yanıt yanıt, const std::function<void()>& sorulurken) {
        Aç<MalzemeListesiOluşturFormu>();
        EXPECT_EQ(Satırlar(), "");
        Ekle("ker", "1250,5", "Metre");
        Ekle("çi", "2", "Adet");
        Beklenen(Simge::Soru, 850, Yanıt::Evet);
        Tıkla("ListeyeEkleButonu");
        Beklenen(Simge::Soru, 860, yanıt, sorulurken);
        Tıkla("ListeyiAktarButonu");
        EXPECT_FALSE(Form().isVisible());
    };
    aktar(Yanıt::Hayır, [] {});
    EXPECT_EQ(AnaForm.Çağrılar, "");
    aktar(Yanıt::Evet, [&] {
        başkası.emplace(VeriDosyası());
        Kutular().Yanıtla(Yanıt::Tamam, [&](const auto&) { başkası.reset(); });
        Beklenen(Simge::Ünlem, 2175, Yanıt::Tamam);
    });
    EXPECT_TRUE(Kutular().Al().back().metin.endsWith(":\n1.250,50 Metre Kereste"));
    EXPECT_TRUE(Kullanılan().startsWith(önce + " ")) << "the others still go";
    Çalıştır({"DELETE FROM UrunMalzemeTablosu WHERE KullanilanMalzemeAdi= 'Çivi'"});
    aktar(Yanıt::Evet, [] {});
    EXPECT_EQ(HareketTarihiSQL, "#3/7/2004#");
    EXPECT_EQ(Kullanılan(),
              "2004-03-07 00:00:00|MASA|Sehpa|Kereste|1.250,50 Metre|1250.5 "
              "2004-03-07 00:00:00|MASA|Sehpa|Çivi|2,00 Adet|0.34 2004-03-07 00:00:00|MASA|Sehpa|Çivi|2,00 Adet|0.34");
    EXPECT_EQ(AnaForm.Çağrılar, "yükleyükle");
}

QString Kayıtlı(int numara) {
    return AyarOku("Miktarlar", QStringLiteral("Miktar-%1").arg(numara), QString());
}

TEST_F(ListeFormu, MiktarTürleriOnTaneVeÖnEkleAranır) {
    QStringList türler;
    for (char16_t harf = u'A'; harf <= u'J'; ++harf) MiktarTürleri::Hatırla(türler, QString(QChar(harf)) + "-tür");
    EXPECT_EQ(türler.first(), "J-tür") << "newest on top";
    EXPECT_EQ(Kayıtlı(1) + Kayıtlı(10), "A-türJ-tür");
    MiktarTürleri::Hatırla(türler, "c-t");
    EXPECT_EQ(türler.size(), 10) << "the beginning of a kept type is not remembered";
    türler = MiktarTürleri::Oku();
    MiktarTürleri::Hatırla(türler, "Yeni");
    EXPECT_EQ(Kayıtlı(1) + Kayıtlı(2) + Kayıtlı(10), "YeniA-türI-tür") << "the last gave way";
    EXPECT_EQ(MiktarTürleri::Oku(), türler);

    // Settings with gaps, blanks and surplus entries.
    const QStringList bozuk{"Sıfır", "", "", "Üç", "  ", "", "", "", "", "", ""};
    for (int i = 0; i <= 10; ++i) AyarYaz("Miktarlar", QStringLiteral("Miktar-%1").arg(i), bozuk.at(i));
    türler = MiktarTürleri::Oku();
    EXPECT_EQ(türler.join("|"), "Sıfır|Üç");
    MiktarTürleri::Hatırla(türler, "Kova");
    EXPECT_EQ(Kayıtlı(3) + Kayıtlı(4), "ÜçKova");
    for (int i = 0; i <= 10; ++i) AyarYaz("Miktarlar", QStringLiteral("Miktar-%1").arg(i), QString(QChar(u'a' + i)));
    türler = MiktarTürleri::Oku();
    MiktarTürleri::Hatırla(türler, "Z");
    EXPECT_EQ(MiktarTürleri::Oku().join(""), "abcdefghijk") << "with more than ten nothing is remembered";

    // What no product could take is not offered.
    AyarYaz("Miktarlar", "Miktar-0", QString(300, u'x'));
    AyarYaz("Miktarlar", "Miktar-1", "on'luk");
    Aç<MalzemeListesiOluşturFormu>();
    EXPECT_EQ(Yazı("MiktarTürüListesi"), "c");
}

}  // namespace

#include <QLineEdit>
#include <QListWidget>

#include "DegiskenModulu.h"
#include "KatalogTesti.h"
#include "MalzemeEkleSilFormu.h"
#include "MetinTablosu.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class MalzemeFormu : public KatalogTesti {
  protected:
    void SetUp() override {
        for (const char* sql : {"INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Çivi', '12,5')",
                                "INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Abanoz', '1250,5')",
                                "INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('İp', '3')"}) {
            Çalıştır(sql);
        }
        for (const char* gün : {"#3/7/2004#", "#11/22/2026#"}) {
            TestVerisi(VeriDosyası())
                .Çalıştır(
                    QStringLiteral("INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, "
                                   "KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES "
                                   "(%1, 'MASA', 'Sehpa', 'Çivi', '4 Adet', '12,5')")
                        .arg(QLatin1String(gün)));
        }
    }
    QListWidget& Liste() { return Bul<QListWidget>("MalzemeListesi"); }
    QString Seçili() { return Liste().currentItem() ? Liste().currentItem()->text() : QString(); }
    QString Kutu(const char* ad) { return Bul<QLineEdit>(ad).text(); }
    QString AdVeFiyat() { return Kutu("MalzemeAdıKutusu") + QLatin1Char('|') + Kutu("MalzemeFiyatıKutusu"); }
    QStringList Katalog() {
        return Oku("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC");
    }
    QStringList Kullanılanlar() {
        return Oku("SELECT KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu");
    }
    QString Kip() {
        return Etkinler({"Çerçeve", "MalzemeAdıKutusu", "MalzemeListesi", "MalzemeBulKutusu", "MalzemeSilButonu",
                         "MalzemeFiyatıDeğiştirButonu", "MalzemeEkleKaydetButonu"}) +
               QLatin1Char('/') + Başlık("MalzemeEkleKaydetButonu") + QLatin1Char('/') +
               Başlık("MalzemeFiyatıDeğiştirButonu") + QLatin1Char('/') + Başlık("KapatİptalButonu");
    }
    const QString Gözatma = QStringLiteral(
        "MalzemeListesi MalzemeBulKutusu MalzemeSilButonu MalzemeFiyatıDeğiştirButonu MalzemeEkleKaydetButonu/Malzeme "
        "&Ekle/Fiyat &Değiştir/Kapat (Esc)");
    const QString Ekleme =
        QStringLiteral("Çerçeve MalzemeAdıKutusu MalzemeEkleKaydetButonu/Kaydet/Fiyat &Değiştir/İptal");
    const QString Fiyat = QStringLiteral("Çerçeve MalzemeFiyatıDeğiştirButonu/Malzeme &Ekle/Kaydet/İptal");
    const QString Boş = QStringLiteral("MalzemeEkleKaydetButonu/Malzeme &Ekle/Fiyat &Değiştir/Kapat (Esc)");
};

TEST_F(MalzemeFormu, SeçimVeAramaKutularıDoldurur) {
    Aç<MalzemeEkleSilFormu>();
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("Abanoz|1.250,50"));
    QTest::keyClick(&Liste(), Qt::Key_Down);
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("Çivi|12,50"));
    Yaz("MalzemeBulKutusu", QStringLiteral("İP"));
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("İp|3,00"));
    Yaz("MalzemeBulKutusu", QStringLiteral("yok"));
    EXPECT_EQ(Liste().currentRow(), -1);
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("|"));
    Yaz("MalzemeBulKutusu", QString());
    EXPECT_EQ(Seçili(), QStringLiteral("Abanoz")) << "an empty find text selects the first";
}

TEST_F(MalzemeFormu, EklemeDenetlerKaydederVeSırayaKoyar) {
    Aç<MalzemeEkleSilFormu>();
    Tıkla("MalzemeEkleKaydetButonu");
    EXPECT_EQ(Kip(), Ekleme);
    EXPECT_TRUE(Odakta("MalzemeAdıKutusu"));
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("|"));
    struct {
        const char* Ad;
        const char* Fiyat;
        int Metin;
    } durumlar[] = {{"", "", 680}, {"Boya", "", 690}, {"çivi", "5", 700}};
    for (const auto& durum : durumlar) {
        Yaz("MalzemeAdıKutusu", QString::fromUtf8(durum.Ad));
        Yaz("MalzemeFiyatıKutusu", QString::fromUtf8(durum.Fiyat));
        Beklenen(Simge::Bilgi, durum.Metin, Yanıt::Tamam);
        Tıkla("MalzemeEkleKaydetButonu");
        EXPECT_EQ(Kutular().Al().size(), 1u);
        EXPECT_EQ(Kip(), Ekleme);
    }
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("Çivi|5,00"));
    Yaz("MalzemeAdıKutusu", QStringLiteral("cam"));
    Yaz("MalzemeFiyatıKutusu", QStringLiteral("922337203685478"));
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla("MalzemeEkleKaydetButonu");
    Kutular().TekKutu(Simge::Bilgi, Metin(2140) + QStringLiteral(" 922.337.203.685.477,5807"));
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("Cam|922.337.203.685.478,00"));
    Yaz("MalzemeAdıKutusu", QStringLiteral("boya 1. sınıf"));
    Yaz("MalzemeFiyatıKutusu", QStringLiteral("1x2.50,125"));
    EXPECT_EQ(Kutu("MalzemeFiyatıKutusu"), QStringLiteral("1250,125")) << "letters and dots are swallowed";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    Tıkla("MalzemeEkleKaydetButonu");
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_TRUE(Odakta("MalzemeEkleKaydetButonu"));
    EXPECT_EQ(Seçili(), QStringLiteral("Boya 1. Sınıf"));
    EXPECT_EQ(Liste().currentRow(), 1);
    EXPECT_TRUE(Katalog().contains(QStringLiteral("Boya 1. Sınıf|1250.13")));

    Tıkla("MalzemeEkleKaydetButonu");
    Yaz("MalzemeAdıKutusu", QStringLiteral("Vazgeç"));
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("|"));
    EXPECT_EQ(Katalog().size(), 4);
}

TEST_F(MalzemeFormu, FiyatDeğişimiHerGününSatırınaUlaşır) {
    SeçiliÜrünSırası = 3;
    Aç<MalzemeEkleSilFormu>();
    Yaz("MalzemeBulKutusu", QStringLiteral("çiv"));
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Kip(), Fiyat);
    EXPECT_TRUE(Odakta("MalzemeFiyatıKutusu"));
    Yaz("MalzemeFiyatıKutusu", QString());
    Beklenen(Simge::Bilgi, 690, Yanıt::Tamam);
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Kip(), Fiyat);
    Yaz("MalzemeFiyatıKutusu", QStringLiteral("9999"));
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(Kullanılanlar(), QStringList({QStringLiteral("Çivi|12.5"), QStringLiteral("Çivi|12.5")}));

    // The first press shows the stored price again, not the one that was given up.
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("Çivi|12,50"));
    Yaz("MalzemeFiyatıKutusu", QStringLiteral("1234,5"));
    Tıkla("MalzemeFiyatıDeğiştirButonu");
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_TRUE(Katalog().contains(QStringLiteral("Çivi|1234.5")));
    EXPECT_EQ(Kullanılanlar(), QStringList({QStringLiteral("Çivi|1234.5"), QStringLiteral("Çivi|1234.5")}));
    EXPECT_EQ(AnaForm.Çağrılar, QStringList(QStringLiteral("seç 3")));
}

TEST_F(MalzemeFormu, SilmeÜrünlereAncakİzinleDokunur) {
    Aç<MalzemeEkleSilFormu>();
    Yaz("MalzemeBulKutusu", QStringLiteral("ç"));
    Beklenen(Simge::Ünlem, 550, Yanıt::Hayır);
    Tıkla("MalzemeSilButonu");
    EXPECT_EQ(Katalog().size(), 3);
    Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
    Beklenen(Simge::Soru, 720, Yanıt::Hayır);
    Tıkla("MalzemeSilButonu");
    EXPECT_EQ(Katalog().size(), 2);
    EXPECT_EQ(Kullanılanlar().size(), 2) << "products keep the material unless the user agrees";
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("Abanoz|1.250,50")) << "the item above is selected and shown";

    Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeAdi= 'Abanoz' WHERE KullanilanMalzemeAdi= 'Çivi'");
    SeçiliÜrünSırası = 0;
    Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
    Beklenen(Simge::Soru, 720, Yanıt::Evet);
    Tıkla("MalzemeSilButonu");
    EXPECT_TRUE(Kullanılanlar().isEmpty());
    EXPECT_EQ(AnaForm.Çağrılar, QStringList(QStringLiteral("seç 0")));
    EXPECT_EQ(AdVeFiyat(), QStringLiteral("İp|3,00")) << "the first was removed: the new first is selected";

    Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
    Beklenen(Simge::Soru, 720, Yanıt::Hayır);
    Tıkla("MalzemeSilButonu");
    EXPECT_EQ(Kip(), Boş);
    EXPECT_EQ(AdVeFiyat() + Kutu("MalzemeBulKutusu"), QStringLiteral("|"));
}

}  // namespace

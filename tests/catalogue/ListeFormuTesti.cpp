#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>

#include "Ayarlar.h"
#include "DegiskenModulu.h"
#include "KatalogTesti.h"
#include "MalzemeListesiOlusturFormu.h"
#include "MetinTablosu.h"
#include "MiktarTurleri.h"
#include "Saat.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class ListeFormu : public KatalogTesti {
  protected:
    void SetUp() override {
        for (const char* sql :
             {"INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Çivi', '0,3355')",
              "INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Kereste', '1250,5')"}) {
            Çalıştır(sql);
        }
        AnaForm.Seçili = AnaFormErişimi::Ürün{QStringLiteral("MASA"), QStringLiteral("Sehpa")};
        SaatiAyarla([] { return QDate(2004, 3, 7); });
    }
    QStringList Satırlar() {
        QStringList satırlar;
        auto& liste = Bul<QTreeWidget>("EklenecekMalzemeListesi");
        for (int i = 0; i < liste.topLevelItemCount(); ++i) {
            const auto* satır = liste.topLevelItem(i);
            satırlar.append(
                QStringList({satır->text(0), satır->text(1), satır->text(2), satır->text(3)}).join(QLatin1Char('|')));
        }
        return satırlar;
    }
    void Seç(const char* malzeme) { Yaz("MalzemeBulKutusu", QString::fromUtf8(malzeme)); }
    void Ekle(const char* malzeme, const char* miktar, const char* tür) {
        Seç(malzeme);
        Yaz("MalzemeMiktarıKutusu", QString::fromUtf8(miktar));
        Yaz("MiktarTürüListesi", QString::fromUtf8(tür));
        Tıkla("ListeyeEkleButonu");
    }
    QString ListeDüğmeleri() { return Etkinler({"ListedenÇıkarButonu", "ListeyiTemizleButonu", "ListeyiAktarButonu"}); }
    QStringList Kullanılanlar() {
        return Oku(
            "SELECT KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, "
            "KullanilanMalzemeFiyati FROM UrunMalzemeTablosu");
    }
    const QString HepsiEtkin = QStringLiteral("ListedenÇıkarButonu ListeyiTemizleButonu ListeyiAktarButonu");
};

TEST_F(ListeFormu, EklemeDenetimleriSırasıylaVeSatırBiçimli) {
    Aç<MalzemeListesiOluşturFormu>();
    EXPECT_EQ(ListeDüğmeleri(), QString());
    struct {
        const char* Malzeme;
        const char* Miktar;
        const char* Tür;
        int Metin;
    } durumlar[] = {{"yok", "1", "Adet", 710},
                    {"ç", "", "Adet", 820},
                    {"ç", "1", " ", 830},
                    {"ç", "0", "Metre", 840},
                    {"ç", "99999999999999,99", "Metre", 2141}};
    for (const auto& durum : durumlar) {
        Beklenen(Simge::Bilgi, durum.Metin, Yanıt::Tamam);
        Ekle(durum.Malzeme, durum.Miktar, durum.Tür);
        EXPECT_EQ(Kutular().Al().size(), 1u);
    }
    EXPECT_TRUE(Satırlar().isEmpty());
    EXPECT_EQ(MiktarTürleri::Oku(), QStringList(QStringLiteral("Metre")))
        << "the type is remembered before the zero test";

    // The price is rounded to the decimals on display before it is multiplied: 0,34 x 3, not 0,3355 x 3.
    Ekle("çi", "3a", "Ad3et");
    Ekle("ker", "0,5", "Metre");
    EXPECT_EQ(Satırlar(), QStringList({QStringLiteral("3,00 Adet|Çivi|0,34|1,02"),
                                       QStringLiteral("0,50 Metre|Kereste|1.250,50|625,25")}));
    EXPECT_EQ(ListeDüğmeleri(), HepsiEtkin);
    EXPECT_EQ(Bul<QLineEdit>("MalzemeMiktarıKutusu").text(), QStringLiteral("0,50")) << "the boxes keep their texts";

    Beklenen(Simge::Soru, 850, Yanıt::Hayır);
    Ekle("çi", "1", "Adet");
    EXPECT_EQ(Satırlar().size(), 2);
    Beklenen(Simge::Soru, 850, Yanıt::Evet);
    Tıkla("ListeyeEkleButonu");
    EXPECT_EQ(Satırlar().size(), 3);

    Çalıştır("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Kereste'");
    Tıkla("ListeyiTemizleButonu");
    EXPECT_EQ(ListeDüğmeleri(), QString());
    Ekle("ker", "2", "Metre");
    EXPECT_EQ(Satırlar(), QStringList(QStringLiteral("2,00 Metre|Kereste|1,00|2,00")))
        << "gone from the catalogue: price 1";
}

TEST_F(ListeFormu, ÇıkarmaSorarVeSonSatırDüğmeleriKapatır) {
    Aç<MalzemeListesiOluşturFormu>();
    Ekle("çi", "4", "Adet");
    const auto bekle = [this](Yanıt yanıt) {
        Kutular().Yanıtla(yanıt, [](const MesajKutusu::İstek& kutu) {
            EXPECT_EQ(kutu.simge, Simge::Soru);
            EXPECT_EQ(kutu.metin, Metin(440) + QStringLiteral(" 4,00 Adet Çivi"));
        });
    };
    bekle(Yanıt::Hayır);
    Tıkla("ListedenÇıkarButonu");
    EXPECT_EQ(Satırlar().size(), 1);
    bekle(Yanıt::Evet);
    auto& liste = Bul<QTreeWidget>("EklenecekMalzemeListesi");
    const QPoint yer = liste.visualItemRect(liste.topLevelItem(0)).center();
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, yer);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, yer);
    EXPECT_EQ(ListeDüğmeleri(), QString());
}

TEST_F(ListeFormu, AktarmaVarOlanıDeğiştirirYeniyiEkler) {
    Çalıştır(
        "INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
        "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#1/2/2003#, 'MASA', 'Sehpa', 'Kereste', '9 Metre', "
        "'7')");
    AnaForm.Kullanılanlar = {QStringLiteral("KERESTE")};
    Aç<MalzemeListesiOluşturFormu>();
    Ekle("ker", "1250,5", "Metre");
    Ekle("çi", "2", "Adet");
    Beklenen(Simge::Soru, 850, Yanıt::Evet);
    Tıkla("ListeyeEkleButonu");
    Beklenen(Simge::Soru, 860, Yanıt::Evet);
    Tıkla("ListeyiAktarButonu");
    EXPECT_FALSE(Form().isVisible());
    EXPECT_EQ(HareketTarihiSQL, QStringLiteral("#3/7/2004#"));
    EXPECT_EQ(Kullanılanlar(),
              QStringList({QStringLiteral("2004-03-07 00:00:00|MASA|Sehpa|Kereste|1.250,50 Metre|1250.5"),
                           QStringLiteral("2004-03-07 00:00:00|MASA|Sehpa|Çivi|2,00 Adet|0.34"),
                           QStringLiteral("2004-03-07 00:00:00|MASA|Sehpa|Çivi|2,00 Adet|0.34")}));
    EXPECT_EQ(AnaForm.Çağrılar, QStringList(QStringLiteral("yükle")));
}

TEST_F(ListeFormu, AktarmadaHayırVeİptalBirŞeyYazmaz) {
    Aç<MalzemeListesiOluşturFormu>();
    Ekle("çi", "2", "Adet");
    Beklenen(Simge::Soru, 860, Yanıt::Hayır);
    Tıkla("ListeyiAktarButonu");
    EXPECT_FALSE(Form().isVisible());
    Aç<MalzemeListesiOluşturFormu>();
    EXPECT_TRUE(Satırlar().isEmpty());
    EXPECT_EQ(Bul<QComboBox>("MiktarTürüListesi").currentText(), QStringLiteral("Adet"));
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_FALSE(Form().isVisible());
    EXPECT_TRUE(Kullanılanlar().isEmpty());
    EXPECT_TRUE(AnaForm.Çağrılar.isEmpty());
}

QString Kayıtlı(int numara) {
    return AyarOku(QStringLiteral("Miktarlar"), QStringLiteral("Miktar-%1").arg(numara), QString());
}

TEST_F(ListeFormu, MiktarTürleriOnTaneVeÖnEkleAranır) {
    QStringList türler;
    for (int i = 0; i < 10; ++i) MiktarTürleri::Hatırla(türler, QString(QChar(u'A' + i)) + QStringLiteral("-tür"));
    EXPECT_EQ(türler.first(), QStringLiteral("J-tür")) << "newest on top";
    EXPECT_EQ(Kayıtlı(1), QStringLiteral("A-tür"));
    EXPECT_EQ(Kayıtlı(10), QStringLiteral("J-tür"));
    MiktarTürleri::Hatırla(türler, QStringLiteral("c-t"));
    EXPECT_EQ(türler.size(), 10) << "the beginning of a kept type is not remembered";
    türler = MiktarTürleri::Oku();
    MiktarTürleri::Hatırla(türler, QStringLiteral("Yeni"));
    EXPECT_EQ(türler.size(), 10);
    EXPECT_EQ(Kayıtlı(1), QStringLiteral("Yeni"));
    EXPECT_EQ(Kayıtlı(2), QStringLiteral("A-tür"));
    EXPECT_EQ(Kayıtlı(10), QStringLiteral("I-tür")) << "the last of the list gave way";
    EXPECT_EQ(MiktarTürleri::Oku(), türler);
}

TEST_F(ListeFormu, BozukAyarlardaTürKaybolmaz) {
    AyarYaz(QStringLiteral("Miktarlar"), QStringLiteral("Miktar-0"), QStringLiteral("Sıfır"));
    AyarYaz(QStringLiteral("Miktarlar"), QStringLiteral("Miktar-3"), QStringLiteral("Üç"));
    AyarYaz(QStringLiteral("Miktarlar"), QStringLiteral("Miktar-4"), QStringLiteral("  "));
    QStringList türler = MiktarTürleri::Oku();
    EXPECT_EQ(türler, QStringList({QStringLiteral("Sıfır"), QStringLiteral("Üç")}));
    MiktarTürleri::Hatırla(türler, QStringLiteral("Kova"));
    EXPECT_EQ(Kayıtlı(3), QStringLiteral("Üç"));
    EXPECT_EQ(Kayıtlı(4), QStringLiteral("Kova"));
    for (int i = 0; i <= 10; ++i)
        AyarYaz(QStringLiteral("Miktarlar"), QStringLiteral("Miktar-%1").arg(i), QString(QChar(u'a' + i)));
    türler = MiktarTürleri::Oku();
    ASSERT_EQ(türler.size(), 11);
    MiktarTürleri::Hatırla(türler, QStringLiteral("Z"));
    EXPECT_EQ(MiktarTürleri::Oku().size(), 11) << "with more than ten nothing is remembered";
    EXPECT_EQ(Kayıtlı(1), QStringLiteral("b"));
}

}  // namespace

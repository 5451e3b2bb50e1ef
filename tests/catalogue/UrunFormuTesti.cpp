#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>

#include "KatalogTesti.h"
#include "UrunEkleSilFormu.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class ÜrünFormu : public KatalogTesti {
  protected:
    void SetUp() override {
        for (const char* sql : {"INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('MASA', 'Yemek Masası')",
                                "INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('MASA', 'Çalışma Masası')",
                                "INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('DOLAP', 'Gardırop')"}) {
            Çalıştır(sql);
        }
        for (const char* ürün : {"Yemek Masası", "Çalışma Masası"}) {
            TestVerisi(VeriDosyası())
                .Çalıştır(
                    QStringLiteral("INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, "
                                   "KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES "
                                   "(#3/7/2004#, 'MASA', '%1', 'Vida', '4 Adet', '1,5')")
                        .arg(QString::fromUtf8(ürün)));
        }
    }

    QStringList Ürünler() { return Oku("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"); }
    QStringList Kullanılanlar() { return Oku("SELECT UrunAdi FROM UrunMalzemeTablosu"); }
    QStringList Ağaç() {
        QStringList satırlar;
        auto& ağaç = Bul<QTreeWidget>("ÜrünListesi");
        for (int i = 0; i < ağaç.topLevelItemCount(); ++i) {
            QStringList satır(ağaç.topLevelItem(i)->text(0));
            for (int j = 0; j < ağaç.topLevelItem(i)->childCount(); ++j)
                satır.append(ağaç.topLevelItem(i)->child(j)->text(0));
            satırlar.append(satır.join(QLatin1Char('|')));
        }
        return satırlar;
    }
    QStringList Gruplar() {
        QStringList gruplar;
        auto& kutu = Bul<QComboBox>("ÜrünGrubuListesi");
        for (int i = 0; i < kutu.count(); ++i) gruplar.append(kutu.itemText(i));
        return gruplar;
    }
    QTreeWidgetItem* Düğüm(int grup, int ürün = -1) {
        QTreeWidgetItem* düğüm = Bul<QTreeWidget>("ÜrünListesi").topLevelItem(grup);
        return ürün < 0 ? düğüm : düğüm->child(ürün);
    }
    void Seç(QTreeWidgetItem* düğüm) {
        auto& ağaç = Bul<QTreeWidget>("ÜrünListesi");
        ağaç.expandAll();
        QTest::mouseClick(ağaç.viewport(), Qt::LeftButton, {}, ağaç.visualItemRect(düğüm).center());
        ASSERT_EQ(ağaç.currentItem(), düğüm);
    }
    QString Kip() {
        return Etkinler({"Çerçeve", "ÜrünListesi", "ÜrünSilButonu"}) + QLatin1Char('/') +
               Başlık("ÜrünEkleKaydetButonu") + QLatin1Char('/') + Başlık("KapatİptalButonu");
    }
    const QString Gözatma = QStringLiteral("ÜrünListesi ÜrünSilButonu/Ürün &Ekle/Kapat (Esc)");
    const QString Ekleme = QStringLiteral("Çerçeve/Kaydet/İptal");
};

TEST_F(ÜrünFormu, EklemeTuşlarlaBaştanSona) {
    Aç<ÜrünEkleSilFormu>();
    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_EQ(Gruplar(), QStringList({QStringLiteral("DOLAP"), QStringLiteral("MASA")}));
    EXPECT_EQ(Bul<QComboBox>("ÜrünGrubuListesi").currentText(), QString());

    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Kip(), Ekleme);
    EXPECT_TRUE(Odakta("ÜrünGrubuListesi"));
    Yaz("ÜrünGrubuListesi", QStringLiteral("izmir ığ"));
    EXPECT_EQ(Bul<QComboBox>("ÜrünGrubuListesi").currentText(), QStringLiteral("İZMİR IĞ"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(Odakta("ÜrünAdıKutusu"));
    Yaz("ÜrünAdıKutusu", QStringLiteral(" ıSPARTA kapı "));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    EXPECT_EQ(Bul<QLineEdit>("ÜrünAdıKutusu").text(), QStringLiteral("Isparta Kapı"));
    EXPECT_TRUE(Odakta("ÜrünEkleKaydetButonu"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);

    EXPECT_EQ(Kip(), Gözatma);
    EXPECT_TRUE(Ürünler().contains(QStringLiteral("İZMİR IĞ|Isparta Kapı")));
    EXPECT_EQ(Gruplar(), QStringList({QStringLiteral("DOLAP"), QStringLiteral("İZMİR IĞ"), QStringLiteral("MASA")}));
    EXPECT_EQ(Ağaç().at(1), QStringLiteral("İZMİR IĞ|Isparta Kapı"));
    EXPECT_EQ(AnaForm.Çağrılar, QStringList(QStringLiteral("yenile")));
    EXPECT_EQ(Bul<QComboBox>("ÜrünGrubuListesi").currentText() + Bul<QLineEdit>("ÜrünAdıKutusu").text(), QString());
    EXPECT_EQ(Oku("SELECT IscilikYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu WHERE UrunAdi= 'Isparta Kapı'"),
              QStringList(QStringLiteral("0|0")));
}

TEST_F(ÜrünFormu, DenetimlerSırasıylaVeEklemeKipindeKalır) {
    struct {
        const char* Grup;
        const char* Ad;
        int Metin;
        const char* Odak;
    } durumlar[] = {{" ", "", 560, "ÜrünGrubuListesi"},
                    {"2024", "X", 565, "ÜrünGrubuListesi"},
                    {"3,5", "X", 565, "ÜrünGrubuListesi"},
                    {"2024A", "", 570, "ÜrünAdıKutusu"},
                    {"MASA", "yemek masası", 580, "ÜrünAdıKutusu"}};
    Aç<ÜrünEkleSilFormu>();
    const QStringList önce = Ürünler();
    Tıkla("ÜrünEkleKaydetButonu");
    for (const auto& durum : durumlar) {
        Yaz("ÜrünGrubuListesi", QString::fromUtf8(durum.Grup));
        Yaz("ÜrünAdıKutusu", QString::fromUtf8(durum.Ad));
        Beklenen(Simge::Bilgi, durum.Metin, Yanıt::Tamam);
        Tıkla("ÜrünEkleKaydetButonu");
        EXPECT_EQ(Kutular().Al().size(), 1u);
        EXPECT_TRUE(Odakta(durum.Odak)) << durum.Metin;
        EXPECT_EQ(Kip(), Ekleme);
    }
    // A quote breaks the statement: nothing is stored, what was typed stays.
    Yaz("ÜrünAdıKutusu", QStringLiteral("O'Neil"));
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_EQ(Kutular().Al().size(), 1u);
    EXPECT_EQ(Bul<QLineEdit>("ÜrünAdıKutusu").text(), QStringLiteral("O'neil"));
    EXPECT_EQ(Kip(), Ekleme);
    EXPECT_EQ(Ürünler(), önce);
    EXPECT_TRUE(AnaForm.Çağrılar.isEmpty());

    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_EQ(Kip(), Gözatma);
    QTest::keyClick(&Form(), Qt::Key_Escape);
    EXPECT_FALSE(Form().isVisible());
}

TEST_F(ÜrünFormu, VarOlanGrubunBaşıOlanGrupYeniDüğümAlmaz) {
    Aç<ÜrünEkleSilFormu>();
    const QStringList ağaç = Ağaç();
    Tıkla("ÜrünEkleKaydetButonu");
    Yaz("ÜrünGrubuListesi", QStringLiteral("mas"));
    Yaz("ÜrünAdıKutusu", QStringLiteral("sehpa"));
    Tıkla("ÜrünEkleKaydetButonu");
    EXPECT_TRUE(Ürünler().contains(QStringLiteral("MAS|Sehpa")));
    EXPECT_EQ(Ağaç(), ağaç);
    EXPECT_EQ(AnaForm.Çağrılar, QStringList(QStringLiteral("yenile")));
}

TEST_F(ÜrünFormu, GrupSilmeİkiKezSorarVeHayırBirŞeySilmez) {
    Çalıştır("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('Masa', 'Küçük')");
    Aç<ÜrünEkleSilFormu>();
    Bul<QTreeWidget>("ÜrünListesi").setCurrentItem(nullptr);
    Beklenen(Simge::Bilgi, 538, Yanıt::Tamam);
    Tıkla("ÜrünSilButonu");
    Seç(Düğüm(0));
    EXPECT_EQ(Başlık("ÜrünSilButonu"), QStringLiteral("Ürün Grubu &Sil"));
    Seç(Düğüm(1));
    const QStringList önce = Ürünler();
    Beklenen(Simge::Soru, 540, Yanıt::Hayır);
    Tıkla("ÜrünSilButonu");
    Beklenen(Simge::Soru, 540, Yanıt::Evet);
    Beklenen(Simge::Ünlem, 550, Yanıt::Hayır);
    Tıkla("ÜrünSilButonu");
    EXPECT_EQ(Ürünler(), önce);
    EXPECT_EQ(Kullanılanlar().size(), 2);

    Beklenen(Simge::Soru, 540, Yanıt::Evet);
    Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
    Tıkla("ÜrünSilButonu");
    EXPECT_EQ(Ürünler(), QStringList(QStringLiteral("DOLAP|Gardırop")));
    EXPECT_EQ(Ağaç(), QStringList(QStringLiteral("DOLAP|Gardırop"))) << "every letter case of the group goes";
    EXPECT_EQ(Gruplar(), QStringList(QStringLiteral("DOLAP")));
    EXPECT_TRUE(Kullanılanlar().isEmpty());
    EXPECT_EQ(AnaForm.Çağrılar, QStringList(QStringLiteral("yenile")));
}

TEST_F(ÜrünFormu, SonÜrünlerGrubuVeSonraHerŞeyiBoşaltır) {
    Aç<ÜrünEkleSilFormu>();
    Seç(Düğüm(1, 0));
    EXPECT_EQ(Başlık("ÜrünSilButonu"), QStringLiteral("Ürün &Sil"));
    Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
    Tıkla("ÜrünSilButonu");
    EXPECT_EQ(Ağaç(), QStringList({QStringLiteral("DOLAP|Gardırop"), QStringLiteral("MASA|Yemek Masası")}));
    EXPECT_EQ(Kullanılanlar(), QStringList(QStringLiteral("Yemek Masası")));
    Seç(Düğüm(1, 0));
    Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
    Tıkla("ÜrünSilButonu");
    EXPECT_EQ(Gruplar(), QStringList(QStringLiteral("DOLAP")));
    Seç(Düğüm(0, 0));
    Beklenen(Simge::Ünlem, 550, Yanıt::Evet);
    Tıkla("ÜrünSilButonu");
    EXPECT_TRUE(Ağaç().isEmpty() && Ürünler().isEmpty());
    EXPECT_EQ(Kip(), QStringLiteral("/Ürün &Ekle/Kapat (Esc)"));

    // The empty catalogue: an add begins, is cancelled, and tree and delete button stay disabled.
    Tıkla("ÜrünEkleKaydetButonu");
    Tıkla("KapatİptalButonu");
    EXPECT_EQ(Kip(), QStringLiteral("/Ürün &Ekle/Kapat (Esc)"));
}

}  // namespace

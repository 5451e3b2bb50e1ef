#include <QAction>
#include <QImage>

#include "AnaFormOrtami.h"
#include "Deyimler.h"
#include "UrunMetinleri.h"

// What the menu of products does to the main form.

namespace {

class ÜrünMenüsü : public AnaFormOrtamı {
  protected:
    // The product that is selected, and the group it stands in.
    QString SeçiliÜrün() {
        const QModelIndex yer = Bul<QAbstractItemView>(Ağaç).currentIndex();
        return yer.parent().data().toString() + '/' + yer.data().toString();
    }
};

TEST_F(ÜrünMenüsü, KopyaBütünüyleYazılırYaDaHiç) {
    ÜrünEkle("Masa", "Sehpa", {"12,5", "7,1234", "-3,75", "0"});
    ÜrünEkle("MASA", "sehpa");  // the same, later in the file: does not count
    for (const char* miktar : {"2,5 Küçük Kutu", "1 Küçük Kutu", "çok"})
        KullanımEkle("MASA", "Sehpa", "Çivi", miktar, "4,0625", "#1/2/2020#");
    KullanımEkle("MASA", "Kalan", "Vida", "1 Adet", "9");  // its product is gone
    const auto kopya = [this] {
        return Veri().Oku(
            "SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati, KullanimTarihi, UrunAdi "
            "FROM UrunMalzemeTablosu WHERE UrunGrubu= 'DOLAP'");
    };
    ÜrünEkle("Dolap", "Vitrin");
    SaatiAyarla([] { return QDate(2026, 3, 7); });
    Aç();
    Seç("Masa");
    EXPECT_FALSE(Bul<QAction>("ÜrünKopyalaMenüsü").isEnabled()) << "a group is selected";
    const QString sayılmayan = "\nçok Çivi";
    Beklenen(Simge::Kritik, MetinNo::SayılmayanMalzemeler, Yanıt::Tamam, sayılmayan);
    Seç("Masa", "Sehpa");
    Modal("ÜrünKopyalaMenüsü", "ÜrünKopyalaFormu", [&] {
        const auto önce = Veri().HerSatır();
        const auto reddedilir = [&](const QString& grup, const QString& ad, MetinNo neden, const char* odak) {
            Yaz("YeniGrupListesi", grup);
            Yaz("YeniAdKutusu", ad);
            Beklenen(Simge::Bilgi, neden, Yanıt::Tamam);
            Tıkla("TamamButonu");
            EXPECT_EQ(Odak(), odak);
            EXPECT_EQ(Veri().HerSatır(), önce);
        };
        EXPECT_EQ(Yazılar({"YeniGrupListesi", "YeniAdKutusu"}), "Masa Sehpa");
        reddedilir("12", "", MetinNo::ÜrünGrubuSayı, "YeniGrupListesi");
        reddedilir("masa", "sehpa", MetinNo::ÜrünListedeVar, "YeniAdKutusu");
        reddedilir("masa", "kalan", ÜrünMetni::KopyaKalanVar, "YeniAdKutusu");
        Yaz("YeniGrupListesi", "dolap");
        Yaz("YeniAdKutusu", "ali'nin sehpası");
        Çalıştır(Deyimler::ÜrünlerdeFiyatDeğiştir("ÇİVİ", "5,0625"));
        const auto değişen = Veri().HerSatır();
        Beklenen(Simge::Bilgi, ÜrünMetni::KopyalananDeğişmiş, Yanıt::Tamam);
        Tıkla("TamamButonu");
        EXPECT_EQ(Veri().HerSatır(), değişen);
        Beklenen(Simge::Kritik, MetinNo::SayılmayanMalzemeler, Yanıt::Tamam, sayılmayan);
        Tuş(Qt::Key_Return);
    });
    EXPECT_EQ(SeçiliÜrün(), "Dolap/Ali’nin Sehpası");
    EXPECT_EQ(Yazı("KarYüzdesiKutusu"), "7,12");
    QStringList satırlar;
    for (const QStringList& satır : kopya()) satırlar += satır.join('|');
    EXPECT_EQ(satırlar.join("; "),
              "2,5 Küçük Kutu|Çivi|5.0625|2026-03-07 00:00:00|Ali’nin Sehpası; "
              "1 Küçük Kutu|Çivi|5.0625|2026-03-07 00:00:00|Ali’nin Sehpası; "
              "çok|Çivi|5.0625|2026-03-07 00:00:00|Ali’nin Sehpası");
    EXPECT_EQ(Oku(Deyimler::Yüzdeler("DOLAP", "Ali’nin Sehpası")), "12.5|7.1234|-3.75|0");
}

// The form shows what the main form and its amounts show; its picture is for paper, whatever the screen's theme.
TEST_F(ÜrünMenüsü, DağılımAnaFormunRakamlarınıGösterirVeResmiAkÜstüneKaradır) {
    ÜrünEkle("MASA", "Sehpa", {"12,5", "7,126", "-3,75", "0"});
    KullanımEkle("MASA", "Sehpa", "Kullanılmaz", "çok", "4");
    for (int i = 0; i < 18; ++i)
        KullanımEkle("MASA", "Sehpa", QString("Çıta %1").arg(i, 2, 10, QChar('0')), QString("%1,3333 Metre").arg(i),
                     "7");
    OndalıkBasamak = 3;
    Aç();
    Beklenen(Simge::Kritik, MetinNo::SayılmayanMalzemeler, Yanıt::Tamam, "\nçok Kullanılmaz");
    Seç("MASA", "Sehpa");
    QString beklenen;
    Modal("MiktarlarıGösterDüğmesi", "MiktarGösterFormu", [&] {
        beklenen = Yazılar({"MalzemeMaliyetiKutusu", "İşçilikMaliyetiKutusu", "KarMaliyetiKutusu", "DiğerVarnekKutusu",
                            "VadeMaliyetiKutusu", "ToplamMaliyetKutusu"});
    });
    const QPalette eski = QApplication::palette();
    QPalette koyu(Qt::white, Qt::black);
    koyu.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(koyu);
    Modal("MaliyetDağılımıMenüsü", "MaliyetDağılımıFormu", [&] {
        QStringList tutarlar;
        for (const QString& satır : Satırlar("DağılımTablosu").split("; "))
            if (!satır.startsWith("Yuvarlama")) tutarlar += satır.section('|', 1, 1);
        EXPECT_EQ(tutarlar.join(' '), beklenen);
        const QString paylar = Satırlar("PaylarTablosu");
        EXPECT_EQ(paylar.section("; ", 0, 0), "Çıta 17|17,333 Metre|121,333|10,90|10,90");
        EXPECT_EQ(paylar.section("; ", 18, 18), "Kullanılmaz (maliyete katılmadı)|çok|||");
        EXPECT_TRUE(Yazı("NotEtiketi").endsWith(": çok Kullanılmaz"));
        const QString sesli = Bul("PaylarGrafiği").accessibleDescription();
        EXPECT_TRUE(sesli.contains("Çıta 03 23,333 (%2,10); Diğerleri (3) 27,999 (%2,52)")) << sesli.toStdString();
        const QString yol = Klasör() + "resim.png";
        Modal("ResimKaydetButonu", "ResimDosyasıFormu", [&] {
            Yaz("fileNameEdit", yol);
            Tuş(Qt::Key_Return);
        });
        const QImage resim(yol);
        ASSERT_FALSE(resim.isNull());
        EXPECT_EQ(resim.pixelColor(0, 0), QColor(Qt::white));
        int kara = 0;
        for (int x = 0; x < resim.width(); ++x)
            for (int y = 0; y < 100; ++y) kara += resim.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
        EXPECT_GT(kara, 100) << "the caption";
    });
    QApplication::setPalette(eski);
}

TEST_F(ÜrünMenüsü, BulYazılanıBulurVeİşaretliOlanaGider) {
    for (int i = 0; i < 250; ++i) MalzemeEkle(QString("Çok Çivi %1").arg(i, 3, 10, QChar('0')), "1");
    for (const auto& [grup, ad] :
         {std::pair("MASA", "Sehpa"), {"İŞLER", "Çivili Sehpa"}, {"ÇİVİ", "Raf"}, {"ÇİVİ", "Sehpa"}})
        ÜrünEkle(grup, ad);
    ÜrünEkle("çivi", "raf");  // the same product
    Aç();
    Seç("MASA", "Sehpa");
    QTest::keyClick(&Bul(Ağaç), Qt::Key_F2);
    ASSERT_TRUE(Bekle([this] { return Düzenleyici() != nullptr; }));
    QTest::keyClick(Düzenleyici(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(QApplication::activeModalWidget()) << "a name is being edited";
    QTest::keyClick(Düzenleyici(), Qt::Key_Escape);

    const auto kısayol = [this] { Tuş(Qt::Key_F, Qt::ControlModifier); };
    Modal(kısayol, "BulFormu", [this] {
        Tuş(Qt::Key_Return);  // nothing is marked: goes nowhere
        Yaz("BulKutusu", "çivi");
        EXPECT_EQ(Satırlar("BulunanlarListesi").section("; ", 0, 1), "Çivili Sehpa|İŞLER|ürün; Çok Çivi 000||malzeme");
        EXPECT_EQ(Satırlar("BulunanlarListesi").count("; "), 199);
        EXPECT_EQ(Yazı("BulunanSayısıEtiketi"), "253 ad bulundu; ilk 200 tanesi listede");
        Yaz("BulKutusu", "i'");
        EXPECT_EQ(Yazı("BulKutusu"), "i’");
        Yaz("BulKutusu", "SEHPA");
        EXPECT_EQ(Satırlar("BulunanlarListesi"), "Sehpa|ÇİVİ|ürün; Sehpa|MASA|ürün; Çivili Sehpa|İŞLER|ürün");
        Tuş(Qt::Key_PageDown);
        EXPECT_EQ(Odak(), "BulKutusu");
        Tuş(Qt::Key_Enter);
    });
    EXPECT_EQ(SeçiliÜrün(), "İŞLER/Çivili Sehpa");
    EXPECT_EQ(Odak(), Ağaç);
    Modal("BulMenüsü", "BulFormu", [this] {
        Yaz("BulKutusu", "ÇOK ÇİVİ 2");
        EXPECT_EQ(Yazı("BulunanSayısıEtiketi"), "50 ad bulundu");
    });
}

}  // namespace

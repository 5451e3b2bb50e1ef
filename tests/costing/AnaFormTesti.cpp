#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>

#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "FormOrtami.h"
#include "MetinTemsilcisi.h"
#include "MetinTablosu.h"
#include "ModalBekleyici.h"
#include "OdbcModulu.h"
#include "AnaFormDuzeni.h"
#include "Renk.h"
#include "Saat.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class AnaFormu : public FormOrtamı {
  protected:
    void Örnek() {
        Ürün("MASA", "Sehpa", "33,33");
        Malzeme("MASA", "Sehpa", "Çam Kereste", "2,5 Metre", "4");
        Ürün("MASA", "Yemek Masası", "10", "20", "-5", "3");
        Malzeme("MASA", "Yemek Masası", "İnce Çivi", "500 Adet", "0,5");
        Malzeme("MASA", "Yemek Masası", "Ihlamur", "1,5 Metre", "500");
        Ürün("SANDALYE", "Tabure");
        Aç();
    }
    std::string Maliyet() {
        return Yazılar({"MalzemeMaliyetiToplamıKutusu", "İşçilikYüzdesiKutusu", "KarYüzdesiKutusu",
                        "DiğerMaliyetYüzdesiKutusu", "VadeFarkıYüzdesiKutusu", "ToplamMaliyetKutusu"});
    }
    // What a loaded product or group leaves enabled, in a row of letters.
    std::string Etkinler() {
        std::string s;
        for (const auto& [harf, ad] : {std::pair{"Ç", "Çerçeve"},
                                       {"s", "ListedenMalzemeSilButonu"},
                                       {"k", "DeğişiklikleriKaydetButonu"},
                                       {"g", "MalzemeMiktarıveBirimVarnekGösterSeçeneği"}}) {
            if (Etkin(ad)) s += harf;
        }
        return s;
    }
};

TEST_F(AnaFormu, YüklenenÜrünüGösterir) {
    Örnek();
    ÜrünSeç("MASA", "Yemek Masası");
    EXPECT_EQ(Satırlar(), QStringList({"1,50 Metre|Ihlamur|500,00|750,00", "500,00 Adet|İnce Çivi|0,50|250,00"}));
    EXPECT_EQ(Maliyet(), "1.000,00 10,00 20,00 -5,00 3,00 1.280,00");
    EXPECT_EQ(Etkinler(), "Çsg");

    ÜrünSeç("MASA", "Sehpa");
    EXPECT_EQ(Maliyet(), "10,00 33,33 0,00 0,00 0,00 13,33");

    // A product without materials: nothing to remove or to compute, a cost of nought.
    ÜrünSeç("SANDALYE", "Tabure");
    EXPECT_EQ(Satırlar(), QStringList());
    EXPECT_EQ(Maliyet(), "0,00 0,00 0,00 0,00 0,00 0,00");
    EXPECT_EQ(Etkinler(), "g");

    Tıkla(Düğüm("MASA"));
    EXPECT_EQ(Maliyet(), "     ");
    EXPECT_EQ(Etkinler(), "");
}

// The material cost is the rounded sum of the unrounded amounts; what cannot be read counts nothing and is told.
TEST_F(AnaFormu, TutarlarıToplarOkunamayanıSöyler) {
    Ürün("MASA", "Sehpa");
    Malzeme("MASA", "Sehpa", "Boya", "12.5 Adet", "100");
    for (const char* ad : {"C", "D", "E"}) Malzeme("MASA", "Sehpa", ad, "1 Adet", "0,335");
    Aç();
    Kutular().Yanıtla(Yanıt::Tamam);
    ÜrünSeç("MASA", "Sehpa");
    Kutular().TekKutu(Simge::Kritik, Metin(MetinNo::SayılmayanMalzemeler) + "\n12.5 Adet Boya");
    EXPECT_EQ(Satırlar().mid(0, 2), QStringList({"12.5 Adet|Boya|100,00|0,00", "1,00 Adet|C|0,34|0,34"}));
    EXPECT_EQ(Maliyet(), "1,01 0,00 0,00 0,00 0,00 1,01");
}

TEST_F(AnaFormu, OrtadaYaDaSaklananKonumdaAçılır) {
    SaatiAyarla([] { return QDate(2026, 11, 22); });
    Örnek();
    EXPECT_EQ(Ağaç().currentItem(), Ağaç().topLevelItem(0));
    EXPECT_EQ(Etkinler(), "");
    EXPECT_EQ(Bul<QStatusBar>("DurumÇubuğu").findChild<QLabel*>()->text(), "22 Kasım 2026 Pazar   ");
    EXPECT_EQ(QApplication::focusWidget(), &Ağaç());
    OyukÇizgi çizgi;
    EXPECT_EQ(çizgi.grab().toImage().pixel(0, 0), RenkÇöz(0x80000010, çizgi.palette()).rgb());
    const QSize boşluk = Form().screen()->geometry().size() - Form().size();
    EXPECT_EQ(Form().pos(), QPoint(boşluk.width() / 2, boşluk.height() / 2));

    KonumuKaydet(QPoint(12, 34));
    Aç();
    EXPECT_EQ(Form().pos(), QPoint(12, 34));
    KonumuKaydet(QPoint(5000, -3000));  // its screen is gone
    Aç();
    EXPECT_TRUE(Form().screen()->geometry().contains(Form().geometry().center())) << Form().pos().x();
}

TEST_F(AnaFormu, SeçiminHerDeğişmesiVeYineTıklanmasıBirKezYükler) {
    Örnek();
    QSignalSpy dolma(Liste().model(), &QAbstractItemModel::rowsInserted);
    Düğüm("MASA")->setExpanded(true);
    QTest::keyClick(&Ağaç(), Qt::Key_Down);
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "13,33");
    Tıkla(Düğüm("MASA", "Yemek Masası"));
    EXPECT_EQ(dolma.count(), 2);
    Malzeme("MASA", "Yemek Masası", "Vida", "10 Adet", "0,1");
    Tıkla(Düğüm("MASA", "Yemek Masası"));
    EXPECT_EQ(dolma.count(), 3);
    EXPECT_EQ(Satırlar().size(), 3);
    // The collapsed group becomes current, whatever was.
    Ağaç().collapseItem(Düğüm("MASA"));
    EXPECT_EQ(Ağaç().currentItem(), Düğüm("MASA"));
    EXPECT_EQ(Satırlar().size(), 0);
}

// Not loaded is not empty: nothing of the product before stays, nothing can be written or printed.
TEST_F(AnaFormu, YüklenemeyenDeğiştirilemezTekrarYüklenir) {
    Örnek();
    const auto yüklenemedi = [this](const QStringList& satırlar) {
        EXPECT_EQ(Maliyet(), "     ");
        EXPECT_EQ(Satırlar(), satırlar);
        EXPECT_EQ(Etkinler(), "");
        for (const char* ad : {"ListeyeMalzemeEkleButonu", "MiktarlarıGösterDüğmesi", "ÖnizlemeButonu"}) {
            EXPECT_FALSE(Etkin(ad)) << ad;
        }
        EXPECT_TRUE(Bul("ÜrünüTekrarYükle").isVisible());
    };
    ÜrünSeç("MASA", "Sehpa");
    ODBCBağlantısınıKapat();
    ÜrünSeç("MASA", "Yemek Masası");
    yüklenemedi({});
    ASSERT_TRUE(ODBCBağlan());
    QTest::keyClick(&Ağaç(), Qt::Key_T, Qt::AltModifier);
    EXPECT_FALSE(Bul("ÜrünüTekrarYükle").isVisible());
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "1.280,00");
    EXPECT_EQ(Etkinler(), "Çsg");
    // Rows that stop early are shown, but make no figures.
    Malzeme("MASA", "Yemek Masası", QString(255, QChar(u'a')), "1 Adet", "1");
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla(Düğüm("MASA", "Yemek Masası"));
    yüklenemedi({"1,00 Adet|" + QString(254, QChar(u'a')) + "|1,00|1,00"});

    // An unread list of products asks for no first one.
    ODBCBağlantısınıKapat();
    Aç();
    EXPECT_TRUE(Bul("ÜrünListesiniTekrarYükle").isVisible());
    QTest::mouseClick(Ağaç().viewport(), Qt::LeftButton, {}, QPoint(20, 20));
    ASSERT_TRUE(ODBCBağlan());
    QTest::mouseClick(&Bul("ÜrünListesiniTekrarYükleDüğmesi"), Qt::LeftButton);
    EXPECT_FALSE(Bul("ÜrünListesiniTekrarYükle").isVisible());
    EXPECT_EQ(Düğümler().size(), 5);
    EXPECT_EQ(QApplication::focusWidget(), &Ağaç());
}

TEST_F(AnaFormu, EnBüyükSayılarKüçükEkrandaSığarGizlenenHanelerSöylenir) {
    Ürün("MASA", "Altın", "0", "0", "-112,25");
    Malzeme("MASA", "Altın", "Külçe", "1 Adet", "922337203685477");
    Ürün("MASA", "Kablo");
    Malzeme("MASA", "Kablo", "Bakır", "450 Metre", "0,0968");
    OndalıkBasamak = 6;
    Aç();
    Form().resize(800, 560);
    ÜrünSeç("MASA", "Altın");
    EXPECT_EQ(Yazı("MalzemeMaliyetiToplamıKutusu"), "922.337.203.685.477,000000");
    QTest::keyClick(&Bul("MalzemeMiktarıveBirimVarnekGösterSeçeneği"), Qt::Key_Space);
    for (const auto* kutu : Form().findChildren<QLineEdit*>()) {
        EXPECT_LT(kutu->fontMetrics().horizontalAdvance(kutu->text()), kutu->width() - 4)
            << kutu->objectName().toStdString();
    }
    OndalıkBasamak = 2;
    ÜrünSeç("MASA", "Kablo");
    EXPECT_EQ(Satırlar(), QStringList("450,00 Metre|Bakır|0,10|43,56"));
    EXPECT_EQ(Liste().topLevelItem(0)->data(1, AyrıntıRolü).toString(), "Fiyatı: 0,0968");
}

TEST_F(AnaFormu, YazarkenHesaplarVeDeğişikliğiİşaretler) {
    Örnek();
    ÜrünSeç("MASA", "Yemek Masası");
    SQLMetni.clear();
    Yaz("VadeFarkıYüzdesiKutusu", "1");  // the whole text was selected
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "1.260,00");
    EXPECT_EQ(Etkinler(), "Çskg");
    QTest::keyClicks(&Bul("VadeFarkıYüzdesiKutusu"), "0,5,x-.");
    EXPECT_EQ(Yazı("VadeFarkıYüzdesiKutusu"), "10,5");
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "1.355,00");
    QTest::keyClick(&Bul("VadeFarkıYüzdesiKutusu"), Qt::Key_Return);
    EXPECT_EQ(Yazı("VadeFarkıYüzdesiKutusu"), "10,50");
    EXPECT_EQ(QApplication::focusWidget(), &Bul("DeğişiklikleriKaydetButonu"));
    EXPECT_TRUE(SQLMetni.isEmpty()) << "a keystroke must send no statement";

    // Another selection drops the change; stored percentages are as displayed.
    ÜrünSeç("MASA", "Sehpa");
    EXPECT_EQ(Etkinler(), "Çsg");
    Yaz("KarYüzdesiKutusu", "7,125");
    QTest::mouseClick(&Bul("DeğişiklikleriKaydetButonu"), Qt::LeftButton);
    EXPECT_EQ(Etkinler(), "Çsg");
    EXPECT_EQ(Oku("SELECT UrunAdi, KarYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu ORDER BY UrunAdi ASC"),
              QList<QStringList>({{"Sehpa", "7.13", "0"}, {"Tabure", "0", "0"}, {"Yemek Masası", "20", "3"}}));
}

TEST_F(AnaFormu, YalnızDiğerMaliyetEksiOlabilir) {
    Örnek();
    ÜrünSeç("MASA", "Yemek Masası");
    for (const char* kutu : {"İşçilikYüzdesiKutusu", "KarYüzdesiKutusu", "VadeFarkıYüzdesiKutusu"}) {
        Yaz(kutu, "-1");
        EXPECT_EQ(Yazı(kutu), "1") << kutu;
    }
    Yaz("DiğerMaliyetYüzdesiKutusu", "-");
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "1.030,00");  // counts 0
    Kutular().Yanıtla(Yanıt::Tamam);
    QTest::mouseClick(&Bul("DeğişiklikleriKaydetButonu"), Qt::LeftButton);
    Kutular().TekKutu(Simge::Kritik, Metin(MetinNo::SayıDeğil));
    EXPECT_EQ(Yazı("DiğerMaliyetYüzdesiKutusu"), "-");
    EXPECT_TRUE(Etkin("DeğişiklikleriKaydetButonu"));
    // Nor does one that takes the focus from no box.
    Bul("DiğerMaliyetYüzdesiKutusu").setFocus();
    Kutular().Yanıtla(Yanıt::Tamam);
    QTest::keyClick(&Bul("DiğerMaliyetYüzdesiKutusu"), Qt::Key_F4);
    Kutular().TekKutu(Simge::Kritik, Metin(MetinNo::SayıDeğil));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    Yaz("DiğerMaliyetYüzdesiKutusu", "-1000000000000000000000");
    Kutular().Yanıtla(Yanıt::Tamam);
    QTest::mouseClick(&Bul("DeğişiklikleriKaydetButonu"), Qt::LeftButton);
    Kutular().TekKutu(Simge::Bilgi, Metin(MetinNo::SayıÇokBüyük) + " 1.000.000");
    EXPECT_EQ(Yazı("DiğerMaliyetYüzdesiKutusu"), "-1.000.000.000.000.000.000.000,00");
    EXPECT_EQ(QApplication::focusWidget(), &Bul("DiğerMaliyetYüzdesiKutusu"));
    EXPECT_TRUE(Etkin("DeğişiklikleriKaydetButonu"));
}

TEST_F(AnaFormu, OndalıkDeğişikliğiSonrakiYüklemedeGörünür) {
    Örnek();
    ÜrünSeç("MASA", "Sehpa");
    QTest::keyClick(&Bul("HaneSayısıKutusu"), Qt::Key_4);
    EXPECT_EQ(OndalıkBasamak, 4);
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "13,33");
    Tıkla(Düğüm("MASA", "Sehpa"));
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "13,3330");
    EXPECT_EQ(Satırlar(), QStringList("2,5000 Metre|Çam Kereste|4,0000|10,0000"));
    EXPECT_EQ(Bul<QComboBox>("HaneSayısıKutusu").count(), 6);
}

TEST_F(AnaFormu, MalzemeyiSoruncaÇıkarır) {
    Örnek();
    ÜrünSeç("MASA", "Yemek Masası");
    Kutular().Yanıtla(Yanıt::Hayır);
    QTest::mouseClick(&Bul("ListedenMalzemeSilButonu"), Qt::LeftButton);
    Kutular().TekKutu(Simge::Soru, Metin(MetinNo::ListedenÇıkarmaSorusu) + " 1,50 Metre Ihlamur");
    EXPECT_EQ(Satırlar().size(), 2);
    Liste().setCurrentItem(nullptr);
    Kutular().Yanıtla(Yanıt::Tamam);
    QTest::mouseClick(&Bul("ListedenMalzemeSilButonu"), Qt::LeftButton);
    Kutular().TekKutu(Simge::Bilgi, Metin(MetinNo::MalzemeSeçiniz));

    Kutular().Yanıtla(Yanıt::Evet);
    const QPoint ikinci = Liste().visualItemRect(Liste().topLevelItem(1)).center();
    QTest::mouseClick(Liste().viewport(), Qt::LeftButton, {}, ikinci);
    QTest::mouseDClick(Liste().viewport(), Qt::LeftButton, {}, ikinci);
    EXPECT_EQ(Satırlar(), QStringList("1,50 Metre|Ihlamur|500,00|750,00"));
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "960,00");
    Kutular().Yanıtla(Yanıt::Evet);
    QTest::mouseClick(&Bul("ListedenMalzemeSilButonu"), Qt::LeftButton);
    EXPECT_EQ(Etkinler(), "g");
    EXPECT_EQ(Oku("SELECT KullanilanMalzemeAdi FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA'").size(), 1);
}

TEST_F(AnaFormu, ÇıkışıSorar) {
    Örnek();
    m_kapansın = false;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(m_kapanmaSorusu, 1);
    EXPECT_TRUE(Form().isVisible());
    ÜrünSeç("MASA", "Sehpa");
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "13,33");

    Yaz("DiğerMaliyetYüzdesiKutusu", "-");  // unreadable, but nothing is reported while the form closes
    QWidget öteki;
    öteki.show();
    m_kapansın = true;
    Bul<QMenu>("ProgramMenüsü").actions().last()->trigger();
    EXPECT_EQ(m_kapanmaSorusu, 2);
    EXPECT_FALSE(Form().isVisible());
    EXPECT_FALSE(öteki.isVisible());
}

TEST_F(AnaFormu, SekmeOkumaSırasındaGezerF4FormaGider) {
    Örnek();
    ÜrünSeç("MASA", "Sehpa");
    Ağaç().setFocus();
    QStringList gezilen;
    do {
        gezilen.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != &Ağaç() && gezilen.size() < 20);
    EXPECT_EQ(gezilen.join(' ').toStdString(),
              "ÜrünListesi HaneSayısıKutusu KullanılanMalzemeListesi ListeyeMalzemeEkleButonu ListedenMalzemeSilButonu "
              "YazdırButonu "
              "PdfKaydetButonu ÖnizlemeButonu İşçilikYüzdesiKutusu KarYüzdesiKutusu "
              "DiğerMaliyetYüzdesiKutusu VadeFarkıYüzdesiKutusu MiktarlarıGösterDüğmesi "
              "MalzemeMiktarıveBirimVarnekGösterSeçeneği GünlükMalzemeHareketleriGösterButonu "
              "MalzemeListesiGösterButonu ÜrünListesiGösterButonu ÇıkışButonu");
    Bul("HaneSayısıKutusu").setFocus();
    // F4 is the form's, not the list's.
    ModalAç([this] { QTest::keyClick(&Bul("HaneSayısıKutusu"), Qt::Key_F4); }, "MalzemeHareketleriFormu",
            [](QWidget& rapor) {
                EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
                QTest::keyClick(&rapor, Qt::Key_Escape);
            });
}

TEST(EkranKonumu, UlaşılamayanPencereEkranaGelir) {
    const QList<QRect> ekranlar = {QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};
    const QSize boy(1000, 700);
    const std::pair<QPoint, QPoint> durumlar[] = {
        {{100, 50}, {100, 50}},      {{1200, 50}, {1200, 50}},    // across both
        {{-900, 50}, {-900, 50}},                                 // enough of the title bar to take hold of
        {{-990, 50}, {0, 50}},       {{5000, 4000}, {280, 100}},  // its screen is gone
        {{1500, -20}, {1500, 0}},                                 // title bar above the screen
        {{1400, 1070}, {1400, 380}},
    };
    for (const auto& [eski, yeni] : durumlar) EXPECT_EQ(EkranaGetir(QRect(eski, boy), ekranlar), yeni) << eski.x();
    EXPECT_EQ(EkranaGetir(QRect(QPoint(900, 900), boy), {QRect(0, 0, 800, 600)}), QPoint(0, 0));
}

}  // namespace

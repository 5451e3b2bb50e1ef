#include <QComboBox>
#include <QMenu>
#include <QProcess>
#include <QSignalSpy>
#include <QTreeView>

#include "AnaFormDuzeni.h"
#include "AnaFormOrtami.h"
#include "MetinTemsilcisi.h"
#include "OdbcModulu.h"

namespace {

class AnaFormu : public AnaFormOrtamı {
  protected:
    void Örnek() {
        ÜrünEkle("MASA", "Sehpa", {"33,33", "0", "0", "0"});
        KullanımEkle("MASA", "Sehpa", "Çam Kereste", "2,5 Metre", "4");
        ÜrünEkle("MASA", "Yemek Masası", {"10", "20", "-5", "3"});
        KullanımEkle("MASA", "Yemek Masası", "İnce Çivi", "500 Adet", "0,5");
        KullanımEkle("MASA", "Yemek Masası", "Ihlamur", "1,5 Metre", "500");
        ÜrünEkle("SANDALYE", "Tabure");
        Aç();
    }
    QString Maliyet() {
        return Yazılar({"MalzemeMaliyetiToplamıKutusu", "İşçilikYüzdesiKutusu", "KarYüzdesiKutusu",
                        "DiğerMaliyetYüzdesiKutusu", "VadeFarkıYüzdesiKutusu", "ToplamMaliyetKutusu"});
    }
    // What a loaded product or group leaves enabled, in a row of letters.
    QString Harfler() {
        QString harfler;
        for (const auto& [harf, ad] : {std::pair{"Ç", "Çerçeve"},
                                       {"s", "ListedenMalzemeSilButonu"},
                                       {"k", "DeğişiklikleriKaydetButonu"},
                                       {"g", "MalzemeMiktarıveBirimVarnekGösterSeçeneği"},
                                       {"e", "ListeyeMalzemeEkleButonu"},
                                       {"m", "MiktarlarıGösterDüğmesi"},
                                       {"y", "YazdırButonu"},
                                       {"p", "PdfKaydetButonu"},
                                       {"ö", "ÖnizlemeButonu"}}) {
            if (Etkin(ad)) harfler += harf;
        }
        return harfler;
    }
    void Kaydet() { Tıkla("DeğişiklikleriKaydetButonu"); }
    void BoşaTıkla() { QTest::mouseClick(Bul<QTreeView>(Ağaç).viewport(), Qt::LeftButton, {}, QPoint(20, 20)); }
    // The open form is to add something.
    void EklemeKipinde(const char* düğme) { EXPECT_EQ(Etkinler({"Çerçeve"}) + Yazı(düğme), "ÇerçeveKaydet"); }
};

TEST_F(AnaFormu, YüklenenÜrünüGösterir) {
    Örnek();
    Seç("MASA", "Yemek Masası");
    EXPECT_EQ(Satırlar(Liste), "1,50 Metre|Ihlamur|500,00|750,00; 500,00 Adet|İnce Çivi|0,50|250,00");
    for (const auto& [grup, ürün, maliyet, harfler] :
         {std::tuple("MASA", "Yemek Masası", "1.000,00 10,00 20,00 -5,00 3,00 1.280,00", "Çsgemypö"),
          {"MASA", "Sehpa", "10,00 33,33 0,00 0,00 0,00 13,33", "Çsgemypö"},
          {"SANDALYE", "Tabure", "0,00 0,00 0,00 0,00 0,00 0,00", "gem"},  // nothing to remove or to print
          {"MASA", "", "     ", ""}}) {
        Seç(grup, ürün);
        EXPECT_EQ(Maliyet(), maliyet);
        EXPECT_EQ(Harfler(), harfler) << maliyet;
    }
    EXPECT_EQ(Satırlar(Liste), "");
}

// The material cost is the rounded sum of the unrounded amounts; what cannot be read counts nothing and is told.
TEST_F(AnaFormu, TutarlarıToplarOkunamayanıSöyler) {
    ÜrünEkle("MASA", "Sehpa");
    KullanımEkle("MASA", "Sehpa", "Boya", "12.5 Adet", "100");
    for (const char* ad : {"C", "D", "E"}) KullanımEkle("MASA", "Sehpa", ad, "1 Adet", "0,335");
    Aç();
    Beklenen(Simge::Kritik, MetinNo::SayılmayanMalzemeler, Yanıt::Tamam, "\n12.5 Adet Boya");
    Seç("MASA", "Sehpa");
    EXPECT_TRUE(Satırlar(Liste).startsWith("12.5 Adet|Boya|100,00|0,00; 1,00 Adet|C|0,34|0,34;"));
    EXPECT_EQ(Maliyet(), "1,01 0,00 0,00 0,00 0,00 1,01");
}

TEST_F(AnaFormu, SaklananKonumdaAçılır) {
    KonumuKaydet(QPoint(12, 34));
    Örnek();
    EXPECT_EQ(Form().pos(), QPoint(12, 34));
    EXPECT_EQ(Seçili(Ağaç) + Harfler() + Odak(), QString("MASA") + Ağaç);
}

TEST_F(AnaFormu, SeçiminHerDeğişmesiVeYineTıklanmasıBirKezYükler) {
    Örnek();
    auto& ağaç = Bul<QTreeView>(Ağaç);
    QSignalSpy dolma(Bul<QTreeView>(Liste).model(), &QAbstractItemModel::rowsInserted);
    ağaç.expand(Yer(Ağaç, "MASA"));
    QTest::keyClick(&ağaç, Qt::Key_Down);
    EXPECT_EQ(Toplam(), "13,33");
    Seç("MASA", "Yemek Masası");
    EXPECT_EQ(dolma.count(), 2);
    KullanımEkle("MASA", "Yemek Masası", "Vida", "10 Adet", "0,1");
    Seç("MASA", "Yemek Masası");
    EXPECT_EQ(dolma.count(), 3);
    EXPECT_EQ(Satırlar(Liste).count(";"), 2);
    // The collapsed group becomes current, whatever was.
    ağaç.collapse(Yer(Ağaç, "MASA"));
    EXPECT_EQ(Seçili(Ağaç), "MASA");
    EXPECT_EQ(Satırlar(Liste), "");
}

// Not loaded is not empty: nothing of the product before stays, nothing can be written or printed.
TEST_F(AnaFormu, YüklenemeyenDeğiştirilemezTekrarYüklenir) {
    Örnek();
    const auto yüklenemedi = [this](const QString& satırlar) {
        EXPECT_EQ(Maliyet() + Satırlar(Liste) + Harfler(), "     " + satırlar);
        EXPECT_TRUE(Bul("ÜrünüTekrarYükle").isVisible());
    };
    Seç("MASA", "Sehpa");
    ODBCBağlantısınıKapat();
    Seç("MASA", "Yemek Masası");
    yüklenemedi({});
    ASSERT_TRUE(ODBCBağlan());
    QTest::keyClick(&Bul(Ağaç), Qt::Key_T, Qt::AltModifier);
    EXPECT_FALSE(Bul("ÜrünüTekrarYükle").isVisible());
    EXPECT_EQ(Toplam() + Harfler(), "1.280,00Çsgemypö");
    // Rows that stop early are shown, but make no figures.
    KullanımEkle("MASA", "Yemek Masası", QString(255, QChar(u'a')), "1 Adet", "1");
    Kutular().Yanıtla(Yanıt::Tamam);
    Seç("MASA", "Yemek Masası");
    yüklenemedi("1,00 Adet|" + QString(254, QChar(u'a')) + "|1,00|1,00");

    // An unread list of products asks for no first one.
    ODBCBağlantısınıKapat();
    Aç();
    EXPECT_TRUE(Bul("ÜrünListesiniTekrarYükle").isVisible());
    BoşaTıkla();
    ASSERT_TRUE(ODBCBağlan());
    Tıkla("ÜrünListesiniTekrarYükleDüğmesi");
    EXPECT_FALSE(Bul("ÜrünListesiniTekrarYükle").isVisible());
    EXPECT_EQ(Satırlar(Ağaç).count(";"), 4);
    EXPECT_EQ(Odak(), Ağaç);
}

TEST_F(AnaFormu, EnBüyükSayılarKüçükEkrandaSığarGizlenenHanelerSöylenir) {
    ÜrünEkle("MASA", "Altın", {"0", "0", "-112,25", "0"});
    KullanımEkle("MASA", "Altın", "Külçe", "1 Adet", "922337203685477");
    ÜrünEkle("MASA", "Kablo");
    KullanımEkle("MASA", "Kablo", "Bakır", "450 Metre", "0,0968");
    OndalıkBasamak = 6;
    Aç();
    Form().resize(800, 560);
    Seç("MASA", "Altın");
    EXPECT_EQ(Yazı("MalzemeMaliyetiToplamıKutusu"), "922.337.203.685.477,000000");
    QTest::keyClick(&Bul("MalzemeMiktarıveBirimVarnekGösterSeçeneği"), Qt::Key_Space);
    for (const auto* kutu : Form().findChildren<QLineEdit*>()) {
        EXPECT_LT(kutu->fontMetrics().horizontalAdvance(kutu->text()), kutu->width() - 4)
            << kutu->objectName().toStdString();
    }
    OndalıkBasamak = 2;
    Seç("MASA", "Kablo");
    EXPECT_EQ(Satırlar(Liste), "450,00 Metre|Bakır|0,10|43,56");
    EXPECT_EQ(Yer(Liste, "450,00 Metre").siblingAtColumn(1).data(AyrıntıRolü), "Fiyatı: 0,0968");
}

TEST_F(AnaFormu, YazarkenHesaplarVeDeğişikliğiİşaretler) {
    Örnek();
    Seç("MASA", "Yemek Masası");
    SQLMetni.clear();
    Yaz("VadeFarkıYüzdesiKutusu", "1");
    EXPECT_EQ(Toplam() + Harfler(), "1.260,00Çskgemypö");
    QTest::keyClicks(&Bul("VadeFarkıYüzdesiKutusu"), "0,5,x-.");
    EXPECT_EQ(Yazı("VadeFarkıYüzdesiKutusu"), "10,5");
    EXPECT_EQ(Toplam(), "1.355,00");
    Tuş(Qt::Key_Return);
    EXPECT_EQ(Yazı("VadeFarkıYüzdesiKutusu"), "10,50");
    EXPECT_EQ(Odak(), "DeğişiklikleriKaydetButonu");
    EXPECT_TRUE(SQLMetni.isEmpty()) << "a keystroke must send no statement";

    // Another selection drops the change; stored percentages are as displayed.
    Seç("MASA", "Sehpa");
    EXPECT_FALSE(Etkin("DeğişiklikleriKaydetButonu"));
    Yaz("KarYüzdesiKutusu", "7,125");
    Kaydet();
    EXPECT_FALSE(Etkin("DeğişiklikleriKaydetButonu"));
    EXPECT_EQ(Oku("SELECT UrunAdi, KarYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu ORDER BY UrunAdi ASC"),
              "Sehpa|7.13|0; Tabure|0|0; Yemek Masası|20|3");
}

TEST_F(AnaFormu, YalnızDiğerMaliyetEksiOlabilir) {
    const char* diğer = "DiğerMaliyetYüzdesiKutusu";
    Örnek();
    Seç("MASA", "Yemek Masası");
    for (const char* kutu : {"İşçilikYüzdesiKutusu", "KarYüzdesiKutusu", "VadeFarkıYüzdesiKutusu"}) {
        Yaz(kutu, "-1");
        EXPECT_EQ(Yazı(kutu), "1") << kutu;
    }
    Yaz(diğer, "-");
    EXPECT_EQ(Toplam(), "1.030,00");  // counts 0
    Beklenen(Simge::Kritik, MetinNo::SayıDeğil, Yanıt::Tamam);
    Kaydet();
    EXPECT_EQ(Yazı(diğer), "-");
    EXPECT_TRUE(Etkin("DeğişiklikleriKaydetButonu"));
    // Nor does one that takes the focus from no box.
    Bul(diğer).setFocus();
    Beklenen(Simge::Kritik, MetinNo::SayıDeğil, Yanıt::Tamam);
    Tuş(Qt::Key_F4);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    Yaz(diğer, "-1000000000000000000000");
    Beklenen(Simge::Bilgi, MetinNo::SayıÇokBüyük, Yanıt::Tamam, " 1.000.000");
    Kaydet();
    EXPECT_EQ(Yazı(diğer), "-1.000.000.000.000.000.000.000,00");
    EXPECT_EQ(Odak(), diğer);
    EXPECT_TRUE(Etkin("DeğişiklikleriKaydetButonu"));
}

TEST_F(AnaFormu, OndalıkDeğişikliğiSonrakiYüklemedeGörünür) {
    Örnek();
    Seç("MASA", "Sehpa");
    QTest::keyClick(&Bul("HaneSayısıKutusu"), Qt::Key_4);
    EXPECT_EQ(OndalıkBasamak, 4);
    EXPECT_EQ(Toplam(), "13,33");
    Seç("MASA", "Sehpa");
    EXPECT_EQ(Toplam(), "13,3330");
    EXPECT_EQ(Satırlar(Liste), "2,5000 Metre|Çam Kereste|4,0000|10,0000");
}

TEST_F(AnaFormu, MalzemeyiSoruncaÇıkarır) {
    Örnek();
    Seç("MASA", "Yemek Masası");
    Beklenen(Simge::Soru, MetinNo::ListedenÇıkarmaSorusu, Yanıt::Hayır, " 1,50 Metre Ihlamur");
    Tıkla("ListedenMalzemeSilButonu");
    EXPECT_EQ(Satırlar(Liste).count(";"), 1);
    Bul<QTreeView>(Liste).setCurrentIndex({});
    Beklenen(Simge::Bilgi, MetinNo::MalzemeSeçiniz, Yanıt::Tamam);
    Tıkla("ListedenMalzemeSilButonu");
    Kutular().Yanıtla(Yanıt::Evet);
    ÇiftTıkla(Liste, Yer(Liste, "500,00 Adet"));
    EXPECT_EQ(Satırlar(Liste), "1,50 Metre|Ihlamur|500,00|750,00");
    EXPECT_EQ(Toplam(), "960,00");
    Kutular().Yanıtla(Yanıt::Evet);
    Tıkla("ListedenMalzemeSilButonu");
    EXPECT_EQ(Harfler(), "gem");
    EXPECT_EQ(Oku("SELECT UrunAdi FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA'"), "Sehpa");
}

TEST_F(AnaFormu, ÇıkışıSorar) {
    Örnek();
    m_kapansın = false;
    Tuş(Qt::Key_Escape);
    EXPECT_EQ(m_kapanmaSorusu, 1);
    EXPECT_TRUE(Form().isVisible());
    Seç("MASA", "Sehpa");
    EXPECT_EQ(Toplam(), "13,33");

    Yaz("DiğerMaliyetYüzdesiKutusu", "-");  // unreadable, but nothing is reported while the form closes
    QWidget öteki;
    öteki.show();
    m_kapansın = true;
    Bul<QMenu>("ProgramMenüsü").actions().last()->trigger();
    EXPECT_EQ(m_kapanmaSorusu, 2);
    EXPECT_FALSE(Form().isVisible() || öteki.isVisible());
}

TEST_F(AnaFormu, SekmeOkumaSırasındaGezerTuşlarRaporlarıAçar) {
    Örnek();
    Seç("MASA", "Sehpa");
    Bul(Ağaç).setFocus();
    EXPECT_EQ(SekmeSırası(),
              "ÜrünListesi HaneSayısıKutusu KullanılanMalzemeListesi ListeyeMalzemeEkleButonu ListedenMalzemeSilButonu "
              "YazdırButonu PdfKaydetButonu ÖnizlemeButonu TabloyaAktarButonu İşçilikYüzdesiKutusu "
              "KarYüzdesiKutusu DiğerMaliyetYüzdesiKutusu VadeFarkıYüzdesiKutusu MiktarlarıGösterDüğmesi "
              "MalzemeMiktarıveBirimVarnekGösterSeçeneği GünlükMalzemeHareketleriGösterButonu "
              "MalzemeListesiGösterButonu ÜrünListesiGösterButonu ÇıkışButonu");
    for (const auto& [tuş, form] : {std::pair(Qt::Key_F4, "MalzemeHareketleriFormu"),  // not to the drop-down list
                                    {Qt::Key_F5, "MalzemeListesiFormu"},
                                    {Qt::Key_F6, "ÜrünListesiFormu"}}) {
        Modal([&, t = tuş] { QTest::keyClick(&Bul("HaneSayısıKutusu"), t); }, form,
              [] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
    }
}

// The data-file tool prints what the main form and the form of amounts show.
TEST_F(AnaFormu, MaliyetKomutuFormunGösterdiğiniYazar) {
    Örnek();
    for (const int basamak : {2, 4}) {
        QProcess araç;
        araç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"),
                   {"maliyet", VeriDosyası(), "--basamak", QString::number(basamak)});
        ASSERT_TRUE(araç.waitForFinished());
        QStringList satırlar = QString::fromUtf8(araç.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        ASSERT_EQ(satırlar.size(), 4);
        EXPECT_EQ(satırlar.takeFirst(), "UrunGrubu;UrunAdi;MalzemeMaliyeti;Iscilik;Kar;Diger;Vade;Toplam");
        Bul<QComboBox>("HaneSayısıKutusu").setCurrentText(QString::number(basamak));
        for (const QString& satır : satırlar) {
            const QStringList alanlar = satır.split(';');
            Seç(alanlar[0], alanlar[1]);
            QString formun = alanlar[0] + ';' + alanlar[1] + ';';
            Modal("MiktarlarıGösterDüğmesi", "MiktarGösterFormu", [&] {
                formun += Yazılar({"MalzemeMaliyetiKutusu", "İşçilikMaliyetiKutusu", "KarMaliyetiKutusu",
                                   "DiğerVarnekKutusu", "VadeMaliyetiKutusu", "ToplamMaliyetKutusu"})
                              .replace(' ', ';')
                              .remove('.');
            });
            EXPECT_EQ(satır, formun);
        }
    }
}

TEST_F(AnaFormu, BoşListelerÖnceEklemeyiSorar) {
    Beklenen(Simge::Soru, MetinNo::ÜrünListesiBoş, Yanıt::Hayır);
    Aç();
    Beklenen(Simge::Soru, MetinNo::ÜrünListesiBoş, Yanıt::Evet);
    Modal([this] { BoşaTıkla(); }, "ÜrünEkleSilFormu", [this] { EklemeKipinde("ÜrünEkleKaydetButonu"); });

    ÜrünEkle("MASA", "Sehpa");
    Aç();
    Seç("MASA", "Sehpa");
    Beklenen(Simge::Soru, MetinNo::MalzemeListesiBoş, Yanıt::Hayır);
    Tıkla("ListeyeMalzemeEkleButonu");
    Beklenen(Simge::Soru, MetinNo::MalzemeListesiBoş, Yanıt::Evet);
    Modal("ListeyeMalzemeEkleButonu", "MalzemeEkleSilFormu", [this] { EklemeKipinde("MalzemeEkleKaydetButonu"); });
}

TEST_F(AnaFormu, MiktarFormuTutarlarıKendiKuralıylaGösterir) {
    // 24,99 at 0,50 % is 0,1250 inside the total, but 0,12 on the amounts form.
    ÜrünEkle("MASA", "Sehpa", {"0,5", "20", "-4", "0"});
    KullanımEkle("MASA", "Sehpa", "Cam", "1 Adet", "24,99");
    Aç();
    Seç("MASA", "Sehpa");
    const QString toplam = Toplam();
    Modal("MiktarlarıGösterDüğmesi", "MiktarGösterFormu", [&] {
        EXPECT_EQ(Yazılar({"MalzemeMaliyetiKutusu", "İşçilikMaliyetiKutusu", "KarMaliyetiKutusu", "VadeMaliyetiKutusu",
                           "DiğerVarnekKutusu"}),
                  "24,99 0,12 5,00 0,00 -1,00");
        EXPECT_EQ(Toplam(), toplam);
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

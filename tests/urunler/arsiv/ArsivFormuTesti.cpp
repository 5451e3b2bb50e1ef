#include <QComboBox>
#include <QTabWidget>

#include "AnaFormOrtami.h"
#include "ArsivCiktilari.h"
#include "ArsivMetinleri.h"
#include "KayitYuzeyi.h"
#include "Yazdirma.h"

namespace {

constexpr const char* Arşivler = "ArşivTablosu";
constexpr const char* Föyler = "FöyTablosu";
constexpr const char* Farklar = "FarkTablosu";
constexpr const char* Parçalar = "ParçaTablosu";

class ArşivFormu : public AnaFormOrtamı {
  protected:
    ArşivFormu() {
        for (const char* malzeme : {"Çam Kereste", "Kayın", "Vida"}) MalzemeEkle(malzeme, "1");
        ÜrünEkle("MASA", "Sehpa", {"33,33", "12,5", "-2,125", "0"});
        KullanımEkle("MASA", "Sehpa", "Çam Kereste", "2,33335 Metre", "4,0001");
        KullanımEkle("MASA", "Sehpa", "Kayın", "1250,5 Metre", "1234,5678");
        ÜrünEkle("MASA", "Tabure", {"10", "0", "0", "0"});
        KullanımEkle("MASA", "Tabure", "Vida", "çok Adet", "1,5");
        KullanımEkle("MASA", "Tabure", "Kayın", "2 Metre", "10");
        YazıcıVar = true;
        YazıcıyıAyarla([this](const Yazdırılacak& iş) {
            KayıtYüzeyi yüzey;
            iş.Yaz(yüzey);
            m_basılan = yüzey.SayfaMetinleri(1);
        });
        SaatiAyarla([this] { return m_bugün; });
    }
    ~ArşivFormu() override { YazıcıyıAyarla(nullptr); }

    // The printed texts behind the title.
    QString Basılan() const { return m_basılan.section('|', 1); }

    void ArşivdeYap(const std::function<void()>& iş) { Modal("MaliyetArşiviMenüsü", "MaliyetArşiviFormu", iş); }
    void HepsiniArşivle() {
        Bul<QComboBox>("GrupListesi").setCurrentIndex(0);
        Kutular().Yanıtla(Yanıt::Evet);
        Tıkla("ArşivleButonu");
        EXPECT_TRUE(Kutular().Al().at(0).metin.startsWith("2 ürün, 4 malzeme satırı")) << "told before it is written";
    }
    QModelIndex Satır(const char* tablo, int satır) { return Bul<QAbstractItemView>(tablo).model()->index(satır, 0); }
    void FöyüYazdır(int satır) {
        Tıkla(Föyler, Satır(Föyler, satır));
        Modal("FöyüGösterButonu", "ArşivFöyüFormu", [this] {
            Tıkla("YazdırButonu");
            m_uyarı = Bul("NotEtiketi").isVisible() ? Yazı("NotEtiketi") : QString();
        });
    }

    QDate m_bugün{2026, 11, 22};
    QString m_basılan;
    QString m_uyarı;
};

// The same texts as the main form's own printout of that day, whatever has changed since.
TEST_F(ArşivFormu, FöyOGününMaliyetKâğıdıdır) {
    Aç();
    for (const int basamak : {2, 5}) {
        OndalıkBasamak = basamak;
        m_bugün = m_bugün.addDays(1);
        QStringList fişler;
        for (const char* ürün : {"Sehpa", "Tabure"}) {
            // A row that does not count is told, and that the units differ.
            for (int kutu = 0; QString(ürün) == "Tabure" && kutu < 2; ++kutu) Kutular().Yanıtla(Yanıt::Tamam);
            Seç("MASA", ürün);
            Tıkla("MalzemeMiktarıveBirimVarnekGösterSeçeneği");
            Tıkla("YazdırButonu");
            fişler += Basılan();
        }
        Kutular().Al();
        ArşivdeYap([&] { HepsiniArşivle(); });
        Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '9999' WHERE KullanilanMalzemeAdi= 'Kayın'");
        Çalıştır("UPDATE UrunTablosu SET IscilikYuzdesi= '99' WHERE UrunAdi= 'Sehpa'");
        OndalıkBasamak = 3;
        ArşivdeYap([&] {
            EXPECT_EQ(Satırlar(Föyler), "") << "nothing is read before it is asked for";
            Tıkla(Arşivler, Satır(Arşivler, 0));
            for (int i = 0; i < 2; ++i) {
                FöyüYazdır(i);
                EXPECT_EQ(Basılan(), fişler[i]);
            }
        });
        EXPECT_TRUE(m_basılan.startsWith(QString("Tabure – %1").arg(m_bugün.toString("dd.MM.yyyy"))));
        EXPECT_TRUE(m_uyarı.contains("okunamayan miktar"));
        Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '1234,5678' WHERE UrunAdi= 'Sehpa'");
    }
}

TEST_F(ArşivFormu, DeğiştirilmişFöyEkrandaVeKâğıttaBellidir) {
    Aç();
    ArşivdeYap([&] {
        HepsiniArşivle();
        FöyüYazdır(0);
        EXPECT_EQ(m_uyarı, "");
        Çalıştır("UPDATE ArsivSatirTablosu SET TutarMetni= '1,00' WHERE MalzemeAdi= 'Çam Kereste'");
        FöyüYazdır(0);
        EXPECT_EQ(m_uyarı, Metin(ArşivMetni::FöyBozukUyarısı));
        EXPECT_TRUE(m_basılan.contains(Metin(ArşivMetni::DurumBozuk)));
        Tıkla("KarşılaştırButonu");
        EXPECT_EQ(Yer(Farklar, "MASA").siblingAtColumn(12).data(), Metin(ArşivMetni::DurumBozuk));
        // Deleting asks, and "no" deletes nothing.
        for (const Yanıt yanıt : {Yanıt::Hayır, Yanıt::Evet}) {
            Kutular().Yanıtla(yanıt);
            Tıkla("ArşivSilButonu");
            EXPECT_EQ(Satırlar(Arşivler), yanıt == Yanıt::Hayır ? "1|22.11.2026|2|Tümü|" : "");
        }
        EXPECT_EQ(Satırlar(Farklar), "") << "a comparison with what is gone goes too";
        Kutular().Al();
    });
}

TEST_F(ArşivFormu, FarkEskiAdlaDaBulunurVeGelişimÇizilir) {
    Aç();
    ArşivdeYap([&] { HepsiniArşivle(); });
    m_bugün = m_bugün.addDays(30);
    Çalıştır("UPDATE UrunTablosu SET UrunAdi= 'Yan Sehpa' WHERE UrunAdi= 'Sehpa'");
    Çalıştır("UPDATE UrunMalzemeTablosu SET UrunAdi= 'Yan Sehpa' WHERE UrunAdi= 'Sehpa' AND UrunGrubu= 'MASA'");
    Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '5' WHERE KullanilanMalzemeAdi= 'Çam Kereste'");
    Çalıştır(
        "UPDATE UrunMalzemeTablosu SET KullanilanMalzemeMiktari= '3 Metre' WHERE UrunAdi= 'Tabure' AND "
        "UrunGrubu= 'MASA' AND KullanilanMalzemeAdi= 'Kayın'");
    ArşivdeYap([&] {
        Beklenen(Simge::Bilgi, ArşivMetni::ArşivSeçiniz, Yanıt::Tamam);
        Tıkla("KarşılaştırButonu");
        Tıkla(Arşivler, Satır(Arşivler, 0));
        Tıkla("KarşılaştırButonu");
        EXPECT_EQ(Satırlar(Farklar),
                  "MASA|Tabure|22,00|33,00|11,00|50,00||11,00|||||eksik: okunamayan miktar; "
                  "MASA|Yan Sehpa||2.218.573,40|2.218.573,40||||||||yeni; "
                  "MASA|Sehpa|2.218.570,05||-2.218.570,05||||||||silinmiş");
        Tıkla(Farklar, Satır(Farklar, 0));
        EXPECT_EQ(Satırlar(Parçalar), "11,00|miktar|Kayın");
        Tıkla(Farklar, Satır(Farklar, 1));
        EXPECT_EQ(Satırlar("ÖtekiAdListesi"), "MASA / Sehpa") << "Tabure has its own";
        Tıkla("EşleştirButonu");
        EXPECT_EQ(Satırlar(Farklar),
                  "MASA|Tabure|22,00|33,00|11,00|50,00||11,00|||||eksik: okunamayan miktar; "
                  "MASA|Yan Sehpa|2.218.570,05|2.218.573,40|3,35|0,00|||3,35||||eski adı: MASA / Sehpa");
        Bul<QTabWidget>("BölümSayfaları").setCurrentIndex(1);
        EXPECT_EQ(Satırlar("GelişimTablosu"), "bugün||2.218.573,40|||");
        auto& adlar = Bul<QComboBox>("ÖncekiAdListesi");
        adlar.setCurrentIndex(adlar.findText("MASA / Sehpa"));
        EXPECT_EQ(Satırlar("GelişimTablosu"), "22.11.2026|1|2.218.570,05|||; bugün||2.218.573,40|3,35|0,00|");
        EXPECT_TRUE(Bul("GelişimGrafiği").accessibleName().contains("2.218.570,05"));
    });
}

// Many columns: captions and page number on every page, a long name in further lines, no figure cut.
TEST_F(ArşivFormu, FarkÇıktısıHerSayfadaBaşlıklıdır) {
    FarkSatırları satırlar;
    for (int i = 0; i < 60; ++i) {
        ÜrünFarkı fark;
        fark.Eski = fark.Yeni = FöyYeri{{}, 0, "MASA", i == 0 ? QString(100, 'x') + ' ' + QString(100, 'y') : "Sehpa"};
        fark.EskiToplam = Para::OnBindeBirden(123'456'789'012'345);
        fark.YeniToplam = Para::OnBindeBirden(987'654'321'098'765);
        fark.Ayrım.Parçalar[2] = TutarFarkı(fark.YeniToplam, fark.EskiToplam);
        satırlar.Satırlar.push_back(fark);
    }
    TabloModeli model(satırlar, FarkSütunlarınıVer());
    KayıtYüzeyi yüzey(297, 210);
    FarklarıYaz(yüzey, "Başlık", satırlar, model);
    EXPECT_EQ(yüzey.Bul("Yuvarlama").size(), yüzey.SayfaNo());
    EXPECT_EQ(yüzey.Bul("Sayfa - 2").size(), 1);
    EXPECT_GE(yüzey.SayfaNo(), 2);
    EXPECT_EQ(yüzey.Bul("86.419.753.208,65").size(), 60) << "the difference of every row";
    EXPECT_EQ(yüzey.Bul("86.419.753.208,64").size(), 60) << "the price's part, and a kuruş of rounding";
    for (const auto& metin : yüzey.Metinler) EXPECT_LE(metin.Sağ(), 297.01) << metin.Metin.toStdString();
}

}  // namespace

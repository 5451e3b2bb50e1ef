#include <QAbstractItemView>

#include "AnaFormOrtami.h"
#include "DarDisk.h"
#include "Deyimler.h"
#include "DoluDisk.h"
#include "KopyaYazma.h"
#include "OdbcModulu.h"
#include "OdbcYedek.h"
#include "VeriYollari.h"
#include "YedekIsi.h"
#include "YedekMetinleri.h"
#include "YedekSatirlari.h"

namespace {

constexpr const char* TABLO = "YedekTablosu";

class YedeklerFormuTesti : public AnaFormOrtamı {
  protected:
    YedeklerFormuTesti() {
        ÜrünEkle("MASA", "Sehpa");
        MalzemeEkle("Çam Kereste", "4");
        KullanımEkle("MASA", "Sehpa", "Çam Kereste", "2,5 Metre", "4");
    }
    QStringList KopyaAdları() const {
        QStringList adlar;
        for (const KopyaYeri& yer : KopyaYerleri(m_yollar.YedekKlasörü))
            for (const Kopya& kopya : KopyalarıOku(yer.Klasör))
                adlar += QFileInfo(kopya.Yol).fileName().section(QLatin1Char(' '), 3);
        return adlar;
    }
    // Kind, counts and check of each row, once all checks have ended.
    QString Denetlenenler() {
        const auto hepsi = [this] {
            return QString(Satırlar(TABLO)).replace(QRegularExpression("[^;]*?\\|([^|]*)\\|[^|]*KB\\|"), " \\1|");
        };
        EXPECT_TRUE(Bekle([&] { return !hepsi().contains("sırada") && !hepsi().contains("denetleniyor"); }));
        return hepsi().trimmed();
    }

    const VeriYolları m_yollar = VeriYollarınıBul();
};

TEST_F(YedeklerFormuTesti, GeriYüklenenFormdaGörünürEskisiSaklanır) {
    Aç();
    Seç("MASA", "Sehpa");
    Modal("YedeklerMenüsü", "YedeklerFormu", [this] {
        EXPECT_FALSE(Etkin("GeriYükleButonu"));
        // The second one would be the same.
        for (int i = 0; i < 2; ++i) {
            Kutular().Yanıtla(Yanıt::Tamam);
            Tıkla("ŞimdiYedekleButonu");
        }
        EXPECT_EQ(Denetlenenler(), "elle|1|1|1|sağlam|bu veri dosyası");
        // Another version's, and a damaged one, are listed and cannot be used.
        const Kopya kopya = KopyalarıOku(KopyaYerleri(m_yollar.YedekKlasörü).at(0).Klasör).at(0);
        QByteArray baytlar = Baytlar(kopya.Yol);
        DosyaYaz(QString(kopya.Yol).replace("000001", "000003"), baytlar.replace(63, 1, "\x09"));
        DosyaYaz(QString(kopya.Yol).replace("000001", "000002"), Baytlar(kopya.Yol).left(20000));
    });
    Modal("YedeklerMenüsü", "YedeklerFormu", [this] {
        EXPECT_EQ(Denetlenenler(),
                  "elle||||başka sürüm|bu veri dosyası; elle||||BOZUK|bu veri dosyası; "
                  "elle|1|1|1|sağlam|bu veri dosyası");
        for (const int satır : {0, 1}) {
            Tıkla(TABLO, Bul<QAbstractItemView>(TABLO).model()->index(satır, 0));
            Kutular().Yanıtla(Yanıt::Tamam);
            Tıkla("GeriYükleButonu");
        }
        for (const Kopya& kopya : KopyalarıOku(KopyaYerleri(m_yollar.YedekKlasörü).at(0).Klasör))
            if (kopya.Ad.Sıra > 1) QFile::remove(kopya.Yol);
    });
    ÜrünEkle("MASA", "Kitaplık");
    MalzemeEkle("Tutkal", "1");
    Çalıştır("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA'");
    m_veri.reset();
    Modal("YedeklerMenüsü", "YedeklerFormu", [this] {
        Denetlenenler();
        // No: nothing has happened.
        const QByteArray önce = Baytlar(VeriDosyası());
        Kutular().Yanıtla(Yanıt::Hayır);
        Tıkla("GeriYükleButonu");
        EXPECT_EQ(Baytlar(VeriDosyası()), önce);
        EXPECT_EQ(KopyaAdları().size(), 1);
        // Another client's open transaction: the reason is told, and the program is connected again.
        {
            TestVerisi başkası(VeriDosyası());
            başkası.ElleOnayla();
            başkası.Çalıştır("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Tutkal'");
            Kutular().Yanıtla(Yanıt::Evet);
            Kutular().Yanıtla(Yanıt::Tamam);
            Tıkla("GeriYükleButonu");
        }
        EXPECT_EQ(Baytlar(VeriDosyası()), önce);
        EXPECT_EQ(KopyaAdları(), QStringList("000001 elle.ydk")) << "what was kept for it goes with it";
        Kutular().Yanıtla(Yanıt::Evet);
        Kutular().Yanıtla(Yanıt::Tamam);
        Tıkla("GeriYükleButonu");
    });
    EXPECT_EQ(Oku("SELECT UrunAdi FROM UrunTablosu"), "Sehpa");
    EXPECT_EQ(Satırlar(Ağaç), "MASA; -Sehpa");
    EXPECT_TRUE(KopyaAdları().join(' ').contains("once.ydk"));
}

TEST_F(YedeklerFormuTesti, SeçilenGelirAğaçtaGörünürGeriAlınır) {
    ÜrünEkle("MASA", "Kitaplık", {"5", "50", "0", "0"});
    KullanımEkle("MASA", "Kitaplık", "Tutkal", "1 Adet", "1");
    Aç();
    Modal("YedeklerMenüsü", "YedeklerFormu", [this] {
        Kutular().Yanıtla(Yanıt::Tamam);
        Tıkla("ŞimdiYedekleButonu");
        Denetlenenler();
        // The same as the data: there is nothing to pick from.
        Kutular().Yanıtla(Yanıt::Tamam);
        Tıkla("SeçerekGetirButonu");
        Çalıştır(Deyimler::ÜrünüSil("MASA", "Sehpa"));
        Çalıştır(Deyimler::ÜrününMalzemeleriniSil("MASA", "Sehpa"));
        Çalıştır(Deyimler::MalzemeSil("Çam Kereste"));
        m_veri.reset();
        const QModelIndex satır = Bul<QAbstractItemView>(TABLO).model()->index(0, 0);
        Tıkla(TABLO, satır, Qt::ControlModifier);
        EXPECT_FALSE(Etkin("SeçerekGetirButonu")) << "nothing is selected";
        Tıkla(TABLO, satır);
        Modal("SeçerekGetirButonu", "SeçerekGetirFormu", [this] {
            EXPECT_FALSE(Etkin("GetirButonu"));
            auto& model = *Bul<QAbstractItemView>("FarkTablosu").model();
            EXPECT_TRUE(model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
            EXPECT_EQ(Satırlar("FarkTablosu"),
                      "ürün|MASA|Sehpa|şimdi yok|10,00||10,00|; "
                      "malzeme||Çam Kereste|şimdi yok|4,00||4,00|ürünle birlikte kataloğa eklenir");
            // What comes along cannot be left behind.
            model.setData(model.index(1, 0), Qt::Unchecked, Qt::CheckStateRole);
            EXPECT_EQ(model.index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
            {
                const DoluDisk dolu;
                Kutular().Yanıtla(Yanıt::Tamam);
                Tıkla("GetirButonu");
            }
            EXPECT_EQ(Oku("SELECT UrunAdi FROM UrunTablosu"), "Kitaplık");
            m_veri.reset();
            Kutular().Yanıtla(Yanıt::Tamam);
            Tıkla("GetirButonu");
        });
    });
    EXPECT_EQ(Satırlar(Ağaç), "MASA; -Kitaplık; -Sehpa");
    EXPECT_EQ(Oku("SELECT UrunAdi, KullanilanMalzemeAdi FROM UrunMalzemeTablosu WHERE UrunAdi= 'Sehpa'"),
              "Sehpa|Çam Kereste");
    EXPECT_EQ(KopyaAdları().filter("once").size(), 1);
    m_veri.reset();
    Modal("GeriAlMenüsü", "SeçerekGetirFormu", [this] { Tıkla("GetirButonu"); });
    EXPECT_EQ(Satırlar(Ağaç), "MASA; -Kitaplık");
    EXPECT_EQ(Oku("SELECT MalzemeAdi FROM MalzemeTablosu"), "");

    // A percentage that is typed and not stored stays typed; the others are those that came.
    Çalıştır(Deyimler::YüzdeleriKaydet("5", "0", "0", "0", "MASA", "Kitaplık"));
    m_veri.reset();
    Seç("MASA", "Kitaplık");
    Yaz("İşçilikYüzdesiKutusu", "33");
    Kutular().Yanıtla(Yanıt::Hayır);
    Modal("YedeklerMenüsü", "YedeklerFormu", [this] {
        Modal("SeçerekGetirButonu", "SeçerekGetirFormu", [this] {
            auto& model = *Bul<QAbstractItemView>("FarkTablosu").model();
            EXPECT_TRUE(model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
            Kutular().Yanıtla(Yanıt::Tamam);
            Tıkla("GetirButonu");
        });
    });
    EXPECT_EQ(Yazı("İşçilikYüzdesiKutusu") + '|' + Yazı("KarYüzdesiKutusu"), "33,00|50,00");
}

TEST_F(YedeklerFormuTesti, KapanıştaDeğişenYedeklenir) {
    m_veri.reset();
    ODBCBağlantısınıKapat();
    {
        const DoluDisk dolu;
        Kutular().Yanıtla(Yanıt::Tamam);
        KapanıştaYedekle();
        EXPECT_EQ(KopyaAdları(), QStringList());
    }
    {
        const DarDisk dar(QFileInfo(VeriDosyası()).size());
        Kutular().Yanıtla(Yanıt::Tamam);
        for (int kapanış = 0; kapanış < 2; ++kapanış) KapanıştaYedekle();  // told once a day
        EXPECT_EQ(KopyaAdları(), QStringList());
    }
    KapanıştaYedekle();
    EXPECT_EQ(KopyaAdları(), QStringList("000001.ydk"));
    KapanıştaYedekle();
    EXPECT_EQ(KopyaAdları(), QStringList("000001.ydk"));
    // Another row, and the next copy has it.
    TestVerisi(VeriDosyası()).Çalıştır(Deyimler::MalzemeEkle("Tutkal", "1"));
    KapanıştaYedekle();
    EXPECT_EQ(KopyaAdları(), QStringList({"000002.ydk", "000001.ydk"}));
    EXPECT_FALSE(QFile::exists(m_yollar.Yedek)) << "the one backup is the start's alone";
}

// The file is damaged, and dated copies are there: the start offers them, keeps the damaged bytes and their journal.
TEST_F(YedeklerFormuTesti, BozukDosyanınYerineKopyaSunulur) {
    ASSERT_EQ(
        KopyaYaz({m_yollar.YedekKlasörü, m_yollar.GerçekDosya, QDateTime::currentDateTime(), KopyaTürü::Günlük, {}, {}})
            .Ne,
        KopyaSonucu::Tür::Yazıldı);
    m_veri.reset();
    ODBCBağlantısınıKapat();
    const QByteArray bozuk(5000, 'x');
    DosyaYaz(VeriDosyası(), bozuk);
    DosyaYaz(VeriDosyası() + "-journal", "günlük");
    Kutular().Yanıtla(Yanıt::Evet);
    ModalAç([] { EXPECT_TRUE(YedekleriSun()); }, QStringLiteral("YedeklerFormu"),
            [this](QWidget& form) {
                EXPECT_FALSE(form.findChild<QWidget*>("ŞimdiYedekleButonu")->isVisible());
                Kutular().Yanıtla(Yanıt::Evet);
                Kutular().Yanıtla(Yanıt::Tamam);
                QTest::mouseClick(form.findChild<QWidget*>("GeriYükleButonu"), Qt::LeftButton);
            });
    ASSERT_TRUE(ODBCBağlan());
    EXPECT_EQ(Oku("SELECT UrunAdi FROM UrunTablosu"), "Sehpa");
    int ham = 0;
    for (const KopyaYeri& yer : KopyaYerleri(m_yollar.YedekKlasörü))
        for (const Kopya& kopya : KopyalarıOku(yer.Klasör))
            if (kopya.Ad.Tür == KopyaTürü::Ham) {
                ++ham;
                EXPECT_EQ(Baytlar(kopya.Yol), bozuk);
                EXPECT_EQ(Baytlar(kopya.Yol + "-journal"), "günlük");
            }
    EXPECT_EQ(ham, 1);
    for (const YedekSatırı& satır : YedekleriBul(m_yollar, VeriDosyasıDamgası(ODBCBağlantısı())))
        EXPECT_EQ(satır.Yer, QString()) << satır.Yol.toStdString();
}

}  // namespace

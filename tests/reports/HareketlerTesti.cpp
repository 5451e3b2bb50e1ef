#include <QCalendarWidget>
#include <QClipboard>
#include <QDateEdit>

#include "BaskiTesti.h"
#include "HareketSatiri.h"
#include "MalzemeHareketleriFormu.h"
#include "MetinTemsilcisi.h"
#include "Tablo.h"

namespace {

constexpr const char* Liste = "MalzemeHareketleriListesi";

class Hareketler : public BaskıTesti {
  protected:
    Hareketler() {
        Gün({2026, 3, 5});
        KullanımEkle("Grup", "Yemek Masası", "Vernik", "1 Litre", "80", "#3/5/2026#");
        KullanımEkle("Grup", "Çalışma Masası", "Vida", "8 Adet", "0,25", "#3/5/2026#");
        KullanımEkle("Grup", "Çalışma Masası", "Çam", "2,5 Kilogram", "12,5", "#3/5/2026#");
        KullanımEkle("Grup", "Başka Gün", "Boya", "1 Adet", "1", "#5/3/2026#");
        KullanımEkle("Grup", "Şifonyer", "Tutkal", "1 Adet", "3", "#3/6/2026#");
    }
    static void Gün(QDate gün) {
        SaatiAyarla([gün] { return gün; });
    }
    // Opens the date dialog and works on it.
    void TarihDeğiştir(const std::function<void()>& iş) { Modal("TarihDeğiştirButonu", "TarihDeğiştirFormu", iş); }
    QDateEdit& Tarih() { return Bul<QDateEdit>("TarihKutusu"); }
    // A row that only a fresh load can show.
    void YeniSatır() { KullanımEkle("Grup", "Zigon", "Yeni", "1 Adet", "1", "#3/5/2026#"); }
    qsizetype SatırSayısı() { return Satırlar(Liste).split("; ", Qt::SkipEmptyParts).size(); }
};

}  // namespace

TEST(HareketSatırı, Biçimler) {
    const struct {
        const char *Miktar, *Fiyat;
        int Basamak;
        const char* Biçimli;
    } durumlar[] = {
        {"2,5 Kilogram", "12.5", 2, "2,50 Kilogram|12,50|31,25"},
        {"0,33 Kg", "3.015", 2, "0,33 Kg|3,02|1,00"},  // money first, then two decimals
        {"1.250,5 Metre küp", "1000", 4, "1.250,5000 Metre küp|1.000,0000|1.250.500,0000"},
        {"12.5 Adet", "5", 2, "12.5 Adet|5,00|0,00"},
        {"", "5", 2, "|5,00|0,00"},
        {"999999999999 Adet", "999999999", 2, "999.999.999.999,00 Adet|999.999.999,00|"},  // out of range
    };
    for (const auto& durum : durumlar) {
        const HareketSatırı satır = HareketiBiçimle(durum.Miktar, durum.Fiyat, durum.Basamak);
        EXPECT_EQ(satır.Miktar + '|' + satır.Fiyat + '|' + satır.Tutar, durum.Biçimli);
    }
}

TEST_F(Hareketler, BugününSatırlarıÜrünSırasında) {
    Aç<MalzemeHareketleriFormu>();
    EXPECT_EQ(Satırlar(Liste),
              "Vida|8,00 Adet|0,25|2,00|Çalışma Masası; Çam|2,50 Kilogram|12,50|31,25|Çalışma Masası; "
              "Vernik|1,00 Litre|80,00|80,00|Yemek Masası");
    EXPECT_EQ(YazdırılabilirOlanlar(), Hepsi);
    Tıkla("YazdırButonu");
    EXPECT_EQ(Yazdırılan()->SayfaMetinleri(1),
              "(05.03.2026) Tarihli Malzeme Hareketleri|Miktarı|Adı|Fiyatı|Tutarı|Kullanıldığı Ürün|"
              "Vida|8,00 Adet|0,25|2,00|Çalışma Masası|Çam|2,50 Kilogram|12,50|31,25|Çalışma Masası|"
              "Vernik|1,00 Litre|80,00|80,00|Yemek Masası");
}

// The date that was written is taken, or none is.
TEST_F(Hareketler, YazılanTarihAlınır) {
    Gün({2026, 11, 23});
    Aç<MalzemeHareketleriFormu>();
    for (const QStringList& satır :
         Tablo("15.10.2025 > 2025-10-15 | 1.2.20 > 2020-02-01 | 010298 > 1998-02-01 | 15102025 > 2025-10-15 | "
               "2025-10-15 > 2025-10-15 |  15 / 10 / 2025 > 2025-10-15 | 31.02.2026 >  | 15.10 >  | 15..2025 >  | "
               "15.10.202 >  | 1.2.0026 >  | 15 Ekim 2025 >  |  > ")) {
        const QString& yazılan = satır[0];
        const QDate alınan = QDate::fromString(satır[1], Qt::ISODate);  // null: refused
        const QDate önceki = HareketTarihi;
        TarihDeğiştir([&] {
            QApplication::setActiveWindow(&Form());     // so that leaving the box is felt there
            QTest::keyClick(&Tarih(), Qt::Key_Delete);  // all of it is selected
            QTest::keyClicks(&Tarih(), yazılan);
            if (alınan.isNull()) Beklenen(Simge::Bilgi, MetinNo::TarihGeçersiz, Yanıt::Tamam);
            Tıkla("TamamButonu");
            if (alınan.isValid()) return;
            EXPECT_EQ(Tarih().text(), yazılan);
            EXPECT_TRUE(Tarih().hasFocus());
            Tıkla("İptalButonu");
        });
        EXPECT_EQ(HareketTarihi, alınan.isValid() ? alınan : önceki) << yazılan.toStdString();
    }
}

TEST_F(Hareketler, BaşkaGünOklaBölümlePanoylaTakvimleSeçilir) {
    KullanımEkle("Grup", "Sandık", "Çivi", "999999999999 Adet", "999999999", "#9/2/2026#");
    Aç<MalzemeHareketleriFormu>();
    const auto alınan = [this](const std::function<void(QDateEdit&)>& iş) {
        TarihDeğiştir([&] {
            iş(Tarih());
            Tıkla("TamamButonu");
        });
        return HareketTarihi;
    };
    EXPECT_EQ(alınan([](QDateEdit& kutu) {
                  EXPECT_EQ(kutu.text(), "05.03.2026");
                  for (const Qt::Key tuş : {Qt::Key_Home, Qt::Key_Up}) QTest::keyClick(&kutu, tuş);
              }),
              QDate(2026, 3, 6));
    EXPECT_EQ(HareketTarihiSQL, "#3/6/2026#");
    EXPECT_EQ(Satırlar(Liste), "Tutkal|1,00 Adet|3,00|3,00|Şifonyer");
    EXPECT_EQ(Yazı("Çerçeve"), "(06.03.2026) Tarihli Malzeme Hareketleri");
    EXPECT_EQ(alınan([](QDateEdit& kutu) {
                  auto* metin = kutu.findChild<QLineEdit*>();
                  const QPoint yıl(metin->fontMetrics().horizontalAdvance("06.03.20"), metin->height() / 2);
                  QTest::mouseDClick(metin, Qt::LeftButton, {}, yıl);
                  QTest::keyClicks(&kutu, "2027");
              }),
              QDate(2027, 3, 6));
    QGuiApplication::clipboard()->setText("7.8.2026\n");
    EXPECT_EQ(alınan([](QDateEdit& kutu) { QTest::keySequence(&kutu, QKeySequence::Paste); }), QDate(2026, 8, 7));
    EXPECT_EQ(alınan([](QDateEdit& kutu) {
                  auto* takvim = kutu.calendarWidget();
                  const QPoint ok(kutu.width() - 5, kutu.height() / 2);
                  Yaz(kutu, "1.9.2026");
                  QTest::mouseClick(&kutu, Qt::LeftButton, {}, ok);
                  EXPECT_TRUE(takvim->isVisible() && takvim->selectedDate() == QDate(2026, 9, 1));
                  QWidget* günler = takvim->findChild<QWidget*>("qt_calendar_calendarview");
                  for (const Qt::Key tuş : {Qt::Key_Right, Qt::Key_Return}) QTest::keyClick(günler, tuş);
                  EXPECT_EQ(kutu.text(), "02.09.2026");
              }),
              QDate(2026, 9, 2));
    EXPECT_EQ(Satırlar(Liste), "Çivi|999.999.999.999,00 Adet|999.999.999,00|?|Sandık");
    EXPECT_EQ(Yer(Liste, "Çivi").data(AyrıntıRolü), Metin(MetinNo::TutarÇokBüyük));
    // The next opening starts with today again.
    Aç<MalzemeHareketleriFormu>();
    EXPECT_EQ(SatırSayısı(), 3);
}

// Each of the program's own windows over the form makes it load again; a look at another program does not.
TEST_F(Hareketler, PencereKapanıncaYenilenir) {
    Aç<MalzemeHareketleriFormu>();
    YeniSatır();
    QApplication::setActiveWindow(nullptr);
    QApplication::setActiveWindow(&Form());
    QApplication::processEvents();
    Tıkla("YazdırButonu");
    EXPECT_EQ(SatırSayısı(), 3);

    Modal("PdfKaydetButonu", "PdfDosyasıFormu");
    EXPECT_EQ(SatırSayısı(), 4);
    YeniSatır();
    YazıcıVar = false;
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla("YazdırButonu");
    EXPECT_EQ(SatırSayısı(), 5);
    YeniSatır();
    TarihDeğiştir([this] {
        QTest::keyClicks(&Tarih(), "1.1.2026");  // another day, but not taken
        Esc();
    });
    EXPECT_EQ(SatırSayısı(), 5);
    EXPECT_EQ(HareketTarihi, QDate(2026, 3, 5));
}

TEST_F(Hareketler, BoşGünVeBozukDeyim) {
    Gün({2027, 1, 1});
    Aç<MalzemeHareketleriFormu>();
    EXPECT_EQ(Satırlar(Liste) + YazdırılabilirOlanlar(), "");
    EXPECT_EQ(SekmeSırası(), "TarihDeğiştirButonu KapatButonu");

    Gün({2026, 3, 5});
    Aç<MalzemeHareketleriFormu>();
    HareketTarihiSQL = "#2/30/2026#";
    Kutular().Yanıtla(Yanıt::Tamam);  // the driver's, at the load after the preview
    Modal("ÖnizlemeButonu", "ÖnizlemeFormu");
    EXPECT_EQ(Satırlar(Liste) + YazdırılabilirOlanlar(), "");
}

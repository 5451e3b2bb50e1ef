#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QClipboard>
#include <QDateEdit>
#include <QGroupBox>
#include <QLineEdit>

#include "DegiskenModulu.h"
#include "HareketSatiri.h"
#include "MalzemeHareketleriFormu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "ModalBekleyici.h"
#include "OdbcModulu.h"
#include "RaporTesti.h"
#include "Saat.h"

namespace {

constexpr const char* Liste = "MalzemeHareketleriListesi";

class Hareketler : public RaporTesti {
  protected:
    Hareketler() {
        SaatiAyarla([] { return QDate(2026, 3, 5); });
        HareketEkle("#3/5/2026#", "Yemek Masası", "Vernik", "1 Litre", "80");
        HareketEkle("#3/5/2026#", "Çalışma Masası", "Vida", "8 Adet", "0,25");
        HareketEkle("#3/5/2026#", "Çalışma Masası", "Çam", "2,5 Kilogram", "12,5");
        HareketEkle("#5/3/2026#", "Başka Gün", "Boya", "1 Adet", "1");
        HareketEkle("#3/6/2026#", "Şifonyer", "Tutkal", "1 Adet", "3");
    }

    // Opens the date dialog and works on it.
    void TarihDeğiştir(const std::function<void(QWidget&)>& iş) {
        ModalAç([this] { Tıkla("TarihDeğiştirButonu"); }, U("TarihDeğiştirFormu"), iş);
    }
    static void Bas(QWidget& form, const char* düğme) {
        QTest::mouseClick(form.findChild<QAbstractButton*>(U(düğme)), Qt::LeftButton);
    }
    // A row that only a fresh load can show.
    void YeniSatır() { HareketEkle("#3/5/2026#", "Zigon", "Yeni", "1 Adet", "1"); }
    qsizetype SatırSayısı() { return Satırlar(Liste).size(); }
    QString Başlık() { return Bul<QGroupBox>("Çerçeve").title(); }
};

}  // namespace

TEST(HareketSatırı, Biçimler) {
    const struct {
        const char *Miktar, *Fiyat;
        int Basamak;
        const char *MiktarMetni, *FiyatMetni, *Tutar;
    } durumlar[] = {
        {"2,5 Kilogram", "12.5", 2, "2,50 Kilogram", "12,50", "31,25"},
        {"0,33 Kg", "3.015", 2, "0,33 Kg", "3,02", "1,00"},  // money first, then two decimals
        {"1.250,5 Metre küp", "1000", 4, "1.250,5000 Metre küp", "1.000,0000", "1.250.500,0000"},
        {"bozuk", "5", 2, "bozuk", "5,00", "0,00"},
        {"12.5 Adet", "5", 2, "12.5 Adet", "5,00", "0,00"},
        {"Adet 5", "5", 2, "Adet 5", "5,00", "0,00"},
        {"", "5", 2, "", "5,00", "0,00"},
        {"7", "5", 2, "7,00", "5,00", "35,00"},
        {"999999999999 Adet", "999999999", 2, "999.999.999.999,00 Adet", "999.999.999,00", ""},  // out of range
    };
    for (const auto& durum : durumlar) {
        const HareketSatırı satır = HareketiBiçimle(U(durum.Miktar), U(durum.Fiyat), durum.Basamak);
        EXPECT_EQ(satır.Miktar.toStdString(), durum.MiktarMetni);
        EXPECT_EQ(satır.Fiyat.toStdString(), durum.FiyatMetni);
        EXPECT_EQ(satır.Tutar.toStdString(), durum.Tutar) << durum.Miktar;
    }
}

TEST_F(Hareketler, BugününSatırlarıÜrünSırasında) {
    Aç<MalzemeHareketleriFormu>();
    EXPECT_EQ(SQLMetni.toStdString(),
              "SELECT KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, UrunAdi FROM "
              "UrunMalzemeTablosu WHERE KullanimTarihi = #3/5/2026# ORDER BY UrunAdi ASC");
    EXPECT_EQ(Satırlar(Liste), QStringList({U("Vida|8,00 Adet|0,25|2,00|Çalışma Masası"),
                                            U("Çam|2,50 Kilogram|12,50|31,25|Çalışma Masası"),
                                            U("Vernik|1,00 Litre|80,00|80,00|Yemek Masası")}));
    EXPECT_EQ(Başlık(), U("(05.03.2026) Tarihli Malzeme Hareketleri"));
    EXPECT_EQ(Form().windowTitle(), U("Günlük Malzeme Hareketleri..."));
    EtkinlikBeklenen(true);
    OdakSırasıBeklenen(
        {Liste, "TarihDeğiştirButonu", "YazdırButonu", "PdfKaydetButonu", "ÖnizlemeButonu", "KapatButonu"});
    EXPECT_EQ(Başlıklar(Liste), U("Adı|>Miktarı|>Fiyatı|>Tutarı|Kullanıldığı Ürün"));
    Tıkla("YazdırButonu");
    const auto yazdırılan = Yazdırılan();
    ASSERT_TRUE(yazdırılan);
    EXPECT_EQ(yazdırılan->Metinler.at(0).Metin, Başlık());
    const auto malzeme = yazdırılan->Bul(U("Çam")).at(0);
    EXPECT_EQ(malzeme.X, yazdırılan->Bul(U("Miktarı")).at(0).X);
    EXPECT_EQ(yazdırılan->Bul(U("2,50 Kilogram")).at(0).X, yazdırılan->Bul(U("Adı")).at(0).X);
}

TEST_F(Hareketler, BaşkaGünYenidenYüklenir) {
    Aç<MalzemeHareketleriFormu>();
    TarihDeğiştir([](QWidget& form) {
        auto& tarih = *form.findChild<QDateEdit*>(U("TarihKutusu"));
        EXPECT_EQ(tarih.text(), U("05.03.2026"));
        EXPECT_EQ(tarih.calendarWidget()->locale().language(), QLocale::Turkish);
        QTest::keyClick(&tarih, Qt::Key_Home);
        QTest::keyClick(&tarih, Qt::Key_Up);
        Bas(form, "TamamButonu");
    });
    EXPECT_EQ(HareketTarihi, QDate(2026, 3, 6));
    EXPECT_EQ(HareketTarihiSQL, U("#3/6/2026#"));
    EXPECT_EQ(Satırlar(Liste), QStringList(U("Tutkal|1,00 Adet|3,00|3,00|Şifonyer")));
    EXPECT_EQ(Başlık(), U("(06.03.2026) Tarihli Malzeme Hareketleri"));

    // The next opening starts with today again.
    Aç<MalzemeHareketleriFormu>();
    EXPECT_EQ(SatırSayısı(), 3);
}

// The date that was written is taken, or none is.
TEST_F(Hareketler, YazılanTarihAlınır) {
    const struct {
        QDate Günü;
        const char* Yazılan;
        QDate Alınan;  // null: refused
    } durumlar[] = {
        {{2026, 11, 23}, "15.10.2025", {2025, 10, 15}},
        {{2020, 1, 1}, "02.02.2020", {2020, 2, 2}},
        {{2026, 11, 23}, "15102025", {2025, 10, 15}},
        {{2026, 11, 23}, "1.2.2020", {2020, 2, 1}},
        {{2026, 11, 23}, "1.2.20", {2020, 2, 1}},
        {{2026, 11, 23}, "010298", {1998, 2, 1}},
        {{2026, 11, 23}, "2025-10-15", {2025, 10, 15}},
        {{2026, 11, 23}, " 15 / 10 / 2025", {2025, 10, 15}},
        {{2026, 11, 23}, "31.02.2026", {}},
        {{2026, 11, 23}, "15.10", {}},
        {{2026, 11, 23}, "15..2025", {}},
        {{2026, 11, 23}, "15.10.202", {}},
        {{2026, 11, 23}, "1.2.0026", {}},
        {{2026, 11, 23}, "15 Ekim 2025", {}},
        {{2026, 11, 23}, "", {}},
    };
    for (const auto& durum : durumlar) {
        SaatiAyarla([gün = durum.Günü] { return gün; });
        Aç<MalzemeHareketleriFormu>();
        TarihDeğiştir([&](QWidget& form) {
            QApplication::setActiveWindow(&form);  // so that leaving the box is felt there
            auto& tarih = *form.findChild<QDateEdit*>(U("TarihKutusu"));
            QTest::keyClick(&tarih, Qt::Key_Delete);  // all of it is selected
            QTest::keyClicks(&tarih, U(durum.Yazılan));
            if (durum.Alınan.isNull()) Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
            Bas(form, "TamamButonu");
            if (durum.Alınan.isValid()) return;
            Kutular().TekKutu(MesajKutusu::Simge::Bilgi, Metin(MetinNo::TarihGeçersiz));
            EXPECT_EQ(tarih.text(), U(durum.Yazılan));
            EXPECT_TRUE(tarih.hasFocus());
            Bas(form, "İptalButonu");
        });
        EXPECT_EQ(HareketTarihi, durum.Alınan.isValid() ? durum.Alınan : durum.Günü) << durum.Yazılan;
    }
}

// One part written over, a pasted date, a day of the calendar.
TEST_F(Hareketler, TarihBölümüPanoVeTakvim) {
    HareketEkle("#9/2/2026#", "Sandık", "Çivi", "999999999999 Adet", "999999999");
    Aç<MalzemeHareketleriFormu>();
    const auto kutu = [](QWidget& form) { return form.findChild<QDateEdit*>(U("TarihKutusu")); };
    TarihDeğiştir([&](QWidget& form) {
        auto* metin = kutu(form)->findChild<QLineEdit*>();
        QPoint ay(0, metin->height() / 2);
        while (metin->cursorPositionAt(ay) < 4) ay.rx()++;
        QTest::mouseDClick(metin, Qt::LeftButton, {}, ay);
        QTest::keyClicks(kutu(form), U("11"));
        Bas(form, "TamamButonu");
    });
    EXPECT_EQ(HareketTarihi, QDate(2026, 11, 5));
    QGuiApplication::clipboard()->setText(U("7.8.2026\n"));
    TarihDeğiştir([&](QWidget& form) {
        QTest::keySequence(kutu(form), QKeySequence::Paste);
        Bas(form, "TamamButonu");
    });
    EXPECT_EQ(HareketTarihi, QDate(2026, 8, 7));
    TarihDeğiştir([&](QWidget& form) {
        const auto takvimiAç = [&] {
            QTest::mouseClick(kutu(form), Qt::LeftButton, {},
                              QPoint(kutu(form)->width() - 5, kutu(form)->height() / 2));
        };
        QTest::keyClicks(kutu(form), U("31.2"));
        takvimiAç();
        QTest::keyClick(kutu(form)->calendarWidget(), Qt::Key_Escape);
        EXPECT_EQ(kutu(form)->text(), U("31.2"));
        QTest::keySequence(kutu(form), QKeySequence::SelectAll);
        QTest::keyClicks(kutu(form), U("1.9.2026"));
        QTest::mouseClick(kutu(form), Qt::LeftButton, {}, QPoint(kutu(form)->width() - 5, kutu(form)->height() / 2));
        auto* takvim = kutu(form)->calendarWidget();
        EXPECT_TRUE(takvim->isVisible());
        EXPECT_EQ(takvim->selectedDate(), QDate(2026, 9, 1));
        QWidget* günler = takvim->findChild<QWidget*>(U("qt_calendar_calendarview"));
        QTest::keyClick(günler, Qt::Key_Right);
        QTest::keyClick(günler, Qt::Key_Return);
        EXPECT_EQ(kutu(form)->text(), U("02.09.2026"));
        Bas(form, "TamamButonu");
    });
    EXPECT_EQ(HareketTarihi, QDate(2026, 9, 2));
    EXPECT_EQ(Satırlar(Liste), QStringList(U("Çivi|999.999.999.999,00 Adet|999.999.999,00|?|Sandık")));
    EXPECT_EQ(Bul<QTreeWidget>(Liste).topLevelItem(0)->data(0, AyrıntıRolü), Metin(MetinNo::TutarÇokBüyük));
}

TEST_F(Hareketler, AynıGünVeİptalYenidenYüklemez) {
    const std::function<void(QWidget&)> kapanışlar[] = {
        [](QWidget& form) { Bas(form, "TamamButonu"); },
        [](QWidget& form) {
            // Another day, but not taken.
            QTest::keyClicks(form.findChild<QDateEdit*>(U("TarihKutusu")), U("1.1.2026"));
            Bas(form, "İptalButonu");
        },
        [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); },
        [](QWidget& form) { form.close(); },
    };
    int sıra = 0;
    for (const auto& kapanış : kapanışlar) {
        Aç<MalzemeHareketleriFormu>();
        const qsizetype satır = SatırSayısı();
        YeniSatır();
        TarihDeğiştir(kapanış);
        EXPECT_EQ(SatırSayısı(), satır) << sıra;
        EXPECT_EQ(HareketTarihiSQL, QString()) << sıra;
        EXPECT_EQ(HareketTarihi, QDate(2026, 3, 5)) << sıra;
        EXPECT_EQ(Başlık(), U("(05.03.2026) Tarihli Malzeme Hareketleri")) << sıra;
        ++sıra;
    }
}

// Each of the program's own windows over the form makes it load again; a look at another program does not.
TEST_F(Hareketler, PencereKapanıncaYenilenir) {
    Aç<MalzemeHareketleriFormu>();
    YeniSatır();
    QApplication::setActiveWindow(nullptr);
    QApplication::setActiveWindow(&Form());
    QApplication::processEvents();
    EXPECT_EQ(SatırSayısı(), 3);
    Tıkla("YazdırButonu");
    EXPECT_EQ(SatırSayısı(), 3);

    ModalAç([this] { Tıkla("PdfKaydetButonu"); }, U("PdfDosyasıFormu"),
            [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_EQ(SatırSayısı(), 4);
    YeniSatır();
    ModalAç([this] { Tıkla("ÖnizlemeButonu"); }, U("ÖnizlemeFormu"),
            [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_EQ(SatırSayısı(), 5);
    YeniSatır();
    YazıcıVar = false;
    Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
    Tıkla("YazdırButonu");
    Kutular().Al();
    EXPECT_EQ(SatırSayısı(), 6);
}

TEST_F(Hareketler, BoşGünVeBozukDeyim) {
    SaatiAyarla([] { return QDate(2027, 1, 1); });
    Aç<MalzemeHareketleriFormu>();
    EXPECT_EQ(SatırSayısı(), 0);
    EtkinlikBeklenen(false);
    OdakSırasıBeklenen({"TarihDeğiştirButonu", "KapatButonu"});

    SaatiAyarla([] { return QDate(2026, 3, 5); });
    Aç<MalzemeHareketleriFormu>();
    HareketTarihiSQL = U("#2/30/2026#");
    Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);  // the preview below is no message box; this is the driver's
    ModalAç([this] { Tıkla("ÖnizlemeButonu"); }, U("ÖnizlemeFormu"),
            [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_EQ(Kutular().Al().size(), 1u);
    EXPECT_EQ(SatırSayısı(), 0);
    EtkinlikBeklenen(false);
}

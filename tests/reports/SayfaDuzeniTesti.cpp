#include <gtest/gtest.h>

#include <QLineF>

#include "KayitYuzeyi.h"
#include "MetinSigdir.h"
#include "SayfaDuzeni.h"

TEST(SayfaDüzeni, TamMilimetreYarımlarıÇifteYuvarlar) {
    const struct {
        double Milimetre;
        int Tam;
    } durumlar[] = {
        {297.5, 298},     {296.5, 296},     {209.9, 210},     {210 / 13.5, 16}, {210 / 4.5, 47}, {210 / 1.6, 131},
        {210 / 1.2, 175}, {212 / 1.6, 132}, {207 / 1.2, 172}, {205.0 / 10, 20}, {-0.5, 0},
    };
    for (const auto& durum : durumlar) EXPECT_EQ(TamMilimetre(durum.Milimetre), durum.Tam) << durum.Milimetre;
}

// The page's size counts in whole millimetres, before columns and edges are taken from it.
TEST(SayfaDüzeni, SayfaBoyuTamMilimetredir) {
    KayıtYüzeyi yüzey(211.5, 296.5);
    SayfaDüzeni düzen(yüzey, QStringLiteral("Başlık"), {{414, 1.6, HücreTürü::Metin}, {416, 1.2, HücreTürü::Sayı}});
    ASSERT_TRUE(düzen.Başla());
    EXPECT_EQ(düzen.SayfaYüksekliği(), 296);
    EXPECT_EQ(düzen.SütunKonumu(0), 132);
    EXPECT_EQ(düzen.SütunKonumu(1), 177);
    // 6 letters of 14 points, bold: the title stays fractional.
    EXPECT_DOUBLE_EQ(yüzey.Metinler.at(0).X, (212 - 6 * 14 * 0.20) / 2);
}

TEST(SayfaDüzeni, BaşlayamayanYüzeyeYazılmaz) {
    KayıtYüzeyi yüzey(210, 297, false);
    SayfaDüzeni düzen(yüzey, QStringLiteral("Başlık"), {{414, 10, HücreTürü::Metin}});
    EXPECT_FALSE(düzen.Başla());
    EXPECT_TRUE(yüzey.Metinler.isEmpty());
}

// A row is the last of its page exactly when the next one would start within 15 mm of the page's end.
TEST(SayfaDüzeni, SayfaSonuTamSınırdaDır) {
    for (const double yükseklik : {100.0, 101.0}) {
        KayıtYüzeyi yüzey(210, yükseklik);
        SayfaDüzeni düzen(yüzey, QStringLiteral("B"), {{414, 10, HücreTürü::Metin}});
        ASSERT_TRUE(düzen.Başla());
        yüzey.YAyarla(85);
        EXPECT_EQ(düzen.SayfaSonunaBak(), yükseklik == 100) << yükseklik;
        EXPECT_EQ(yüzey.SayfaNo(), yükseklik == 100 ? 2 : 1);
        EXPECT_DOUBLE_EQ(yüzey.Y(), yükseklik == 100 ? 15 : 85);
    }
}

TEST(SayfaDüzeni, DevamSayfasıBaşlığı) {
    KayıtYüzeyi yüzey;
    SayfaDüzeni düzen(yüzey, QStringLiteral("Rapor"), {{414, 10, HücreTürü::Metin}});
    ASSERT_TRUE(düzen.Başla());
    EXPECT_TRUE(yüzey.Çizgiler.isEmpty());
    for (int sayfa = 2; sayfa <= 12; sayfa += 10) {
        while (yüzey.SayfaNo() < sayfa) düzen.SayfaBaşlığıYaz();
        const auto metinler = yüzey.Metinler.mid(yüzey.Metinler.size() - 2);
        EXPECT_EQ(metinler.at(0).Metin, QStringLiteral("Rapor"));
        EXPECT_EQ(metinler.at(0).X, 10);
        EXPECT_EQ(metinler.at(0).Y, 5);
        EXPECT_EQ(metinler.at(0).yazı, (SayfaYüzeyi::Yazı{11, false, false}));
        EXPECT_EQ(metinler.at(1).Metin, QStringLiteral("Sayfa - %1").arg(sayfa));
        EXPECT_DOUBLE_EQ(metinler.at(1).Sağ(), 200);
        const auto çizgi = yüzey.Çizgiler.constLast();
        EXPECT_EQ(QLineF(çizgi.X1, çizgi.Y1, çizgi.X2, çizgi.Y2), QLineF(10, 10, 200, 10));
        EXPECT_EQ(çizgi.Renk, QColor(Qt::black));
        EXPECT_EQ(yüzey.Y(), 15);
    }
}

// A name that is too wide ends before the next text, and a figure leaves its neighbour less room.
TEST(SayfaDüzeni, MetinlerYanındakineGirmez) {
    KayıtYüzeyi yüzey;
    SayfaDüzeni düzen(yüzey, QString(200, QLatin1Char('B')),
                      {{412, 13.5, HücreTürü::Miktar}, {414, 4.5, HücreTürü::Metin}, {416, 1.6, HücreTürü::Sayı}});
    ASSERT_TRUE(düzen.Başla());
    const auto& başlık = yüzey.Metinler.at(0);
    EXPECT_EQ(başlık.X, 10);
    EXPECT_EQ(başlık.Sağ(), 200);

    yüzey.Metinler.clear();
    const QString ad(100, QLatin1Char('m'));
    const QString fiyat = QStringLiteral("9.999.999.999,99");
    düzen.SatırYaz({QStringLiteral("1.250,00 Metrekare"), ad, fiyat});
    const auto miktar = yüzey.Metinler.at(0);
    EXPECT_EQ(miktar.yer.Genişlik, 47 - 2 - 16);
    EXPECT_EQ(miktar.yer.Korunan, 8);  // the figure
    const auto metin = yüzey.Metinler.at(1);
    EXPECT_EQ(metin.Metin, ad);
    EXPECT_DOUBLE_EQ(metin.Sağ(), yüzey.Metinler.at(2).X - 2);
    EXPECT_EQ(yüzey.Metinler.at(2).yer.Genişlik, SayfaYüzeyi::SINIRSIZ);
    EXPECT_DOUBLE_EQ(yüzey.Metinler.at(2).Sağ(), düzen.SağKenar(2));

    düzen.SayfaBaşlığıYaz();
    const auto sayfaNo = yüzey.Metinler.constLast();
    EXPECT_DOUBLE_EQ(yüzey.Metinler.at(yüzey.Metinler.size() - 2).Sağ(), sayfaNo.X - 2);
}

TEST(MetniSığdır, ÖnceDaraltırSonraKeser) {
    const auto ölçü = [](const QString& metin) { return 10.0 * static_cast<double>(metin.size()); };
    const struct {
        const char* Metin;
        double Yer;
        int Korunan;
        const char* Sığan;
        double Oran;
    } durumlar[] = {
        {"Kereste", 70, 0, "Kereste", 1},
        {"Kereste", 63, 0, "Kereste", 0.9},
        {"Kereste", 49, 0, "Kereste", 0.7},
        {"Kereste", 48, 0, "Keres…", 0.7},
        {"Çam Kereste", 40, 0, "Çam…", 0.7},  // no blank before the sign
        {"Kereste", 5, 0, "…", 0.7},
        {"", 5, 0, "", 1},
        {"1.250,50 Metre", 77, 8, "1.250,50 M…", 0.7},
        {"1.250,50 Metre", 30, 8, "1.250,50…", 0.7},  // never the figure
        {"12345", 10, 5, "12345", 0.7},
    };
    for (const auto& durum : durumlar) {
        const QString metin = QString::fromUtf8(durum.Metin);
        const Sığdırılan sığan = MetniSığdır(metin, {durum.Yer, durum.Korunan}, ölçü);
        EXPECT_EQ(sığan.Metin.toStdString(), durum.Sığan) << durum.Metin;
        EXPECT_DOUBLE_EQ(sığan.Oran, durum.Oran) << durum.Metin;
        EXPECT_DOUBLE_EQ(sığan.Genişlik, ölçü(sığan.Metin) * durum.Oran) << durum.Metin;
    }
}

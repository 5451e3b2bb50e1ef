#include <algorithm>
#include <cmath>

#include "KayitYuzeyi.h"
#include "MaliyetFisi.h"
#include "MetinSigdir.h"
#include "RaporCiktilari.h"
#include "SayfaDuzeni.h"
#include "MetinTablosu.h"

namespace {

// Everything stands on the paper, nothing in anything else, and nothing is cut but the title over a further page.
void YazılarDüzgün(const KayıtYüzeyi& yüzey) {
    for (const auto& metin : yüzey.Metinler) {
        const bool üstBaşlık = metin.Sayfa > 1 && metin.Y < 10 && yüzey.Genişlik() < 100;
        EXPECT_GE(metin.X, 0) << metin.Metin.toStdString();
        EXPECT_LE(metin.Sağ(), yüzey.Genişlik() + 1e-6) << metin.Metin.toStdString();
        EXPECT_LT(metin.Y, yüzey.Yükseklik() - 10) << metin.Metin.toStdString();
        EXPECT_TRUE(üstBaşlık || metin.yer.Korunan >= metin.Metin.size() || metin.Genişlik + 1e-6 >= metin.Doğal * 0.7)
            << metin.Metin.toStdString();
        for (const auto& öteki : yüzey.Metinler) {
            if (&öteki == &metin || öteki.Sayfa != metin.Sayfa || std::abs(öteki.Y - metin.Y) > 1) continue;
            EXPECT_TRUE(öteki.Sağ() <= metin.X || metin.Sağ() <= öteki.X)
                << yüzey.Genişlik() << ": " << metin.Metin.toStdString() << " | " << öteki.Metin.toStdString();
        }
    }
}

qsizetype HarfSayısı(const QString& metin) {
    return metin.size() - metin.count(QLatin1Char(' '));
}

}  // namespace

// Papers from A4 to a narrow roll; names and figures of any length.
TEST(SayfaDüzeni, HerKâğıttaHerŞeyYazılır) {
    const QString büyük = "922.337.203.685.477,580700";
    const QList<QStringList> satırlar{
        {"Çam Kereste", "2,50 Metre", "1.250,50", "3.126,25", "Çalışma Masası"},
        {"Sunta Levha 18 mm Ceviz Kaplamalı Tip A", "1,00 Adet", "-112,250000", "1,00", "Üç Kapılı Dolap"},
        {QString(255, QLatin1Char('m')), "999.999.999.999,123456 Santimetreküp", büyük, büyük, "Masa"},
        {"Vida", "999.999.999.999,123456", büyük, büyük, "Üç Kapılı Aynalı Çekmeceli Lüks Gardırop"}};
    MaliyetFişi fiş;
    fiş.Ürün = "Üç Kapılı Aynalı Çekmeceli Gardırop ve Yatak Odası Takımı, ceviz kaplamalı";
    for (const QStringList& satır : satırlar) fiş.Satırlar.append({satır.at(1), satır.at(0), satır.at(2), satır.at(3)});
    fiş.MalzemeMaliyeti = fiş.ToplamMaliyet = fiş.ToplamMiktar = fiş.BirimMaliyet = büyük;
    fiş.İşçilikYüzdesi = "12345678901234,123456";
    fiş.OndalıkBasamak = 6;
    qsizetype beklenen = HarfSayısı("Başlık Miktarı Adı Fiyatı Tutarı Kullanıldığı Ürün");
    for (const QStringList& satır : satırlar) beklenen += HarfSayısı(satır.join(QString()));

    for (const double genişlik : {200.0, 138.0, 72.0, 50.0}) {
        KayıtYüzeyi hareketler(genişlik, 297);
        MalzemeHareketleriniYaz(hareketler, "Başlık", satırlar);
        qsizetype yazılan = 0;
        for (const auto& metin : hareketler.Metinler) yazılan += metin.Y == 5 ? 0 : HarfSayısı(metin.Metin);
        EXPECT_EQ(yazılan, beklenen) << genişlik;
        YazılarDüzgün(hareketler);
        KayıtYüzeyi liste(genişlik, 297);
        MalzemeListesiniYaz(liste, "Başlık", {{satırlar.at(2).at(0), büyük}, {satırlar.at(1).at(0), büyük}});
        YazılarDüzgün(liste);
        KayıtYüzeyi fişYüzeyi(genişlik, 297);
        MaliyetFişiniYaz(fişYüzeyi, fiş);
        YazılarDüzgün(fişYüzeyi);
        EXPECT_EQ(fişYüzeyi.Bul(büyük).size() + hareketler.Bul(büyük).size() + liste.Bul(büyük).size(), 4 + 4 + 4 + 2);
        for (const KayıtYüzeyi* yüzey : {&hareketler, &fişYüzeyi}) {
            const auto sayılı = [](const auto& m) { return m.Metin.startsWith("999.999.999.999,123456"); };
            EXPECT_EQ(std::count_if(yüzey->Metinler.begin(), yüzey->Metinler.end(), sayılı), 2) << genişlik;
        }
    }
    // The longest title over a further page: in two lines above the rule.
    KayıtYüzeyi a4(190, 297);
    SayfaDüzeni düzen(a4, QString("Masa ").repeated(50), {{MetinNo::AdıSütunu, 10, HücreTürü::Metin}});
    ASSERT_TRUE(düzen.Başla());
    düzen.SayfaBaşlığıYaz();
    EXPECT_LT(a4.Metinler.at(a4.Metinler.size() - 2).Y, 8);
    YazılarDüzgün(a4);
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
        {"12345", 10, 5, "12345", 0.2},  // never the figure
    };
    for (const auto& durum : durumlar) {
        const QString metin = QString::fromUtf8(durum.Metin);
        const Sığdırılan sığan = MetniSığdır(metin, {durum.Yer, durum.Korunan}, ölçü);
        EXPECT_EQ(sığan.Metin.toStdString(), durum.Sığan) << durum.Metin;
        EXPECT_DOUBLE_EQ(sığan.Oran, durum.Oran) << durum.Metin;
        EXPECT_DOUBLE_EQ(sığan.Genişlik, ölçü(sığan.Metin) * durum.Oran) << durum.Metin;
    }
}

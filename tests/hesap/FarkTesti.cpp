#include <gtest/gtest.h>

#include <QStringList>
#include <numeric>
#include <random>

#include "FarkAyrimi.h"
#include "MalzemeToplami.h"
#include "SayiMetni.h"

namespace {

Para Tutar(const char* metin) {
    return *ParaOku(QString::fromUtf8(metin));
}

FarkMalzemesi Satır(const char* ad, const char* birim, double miktar, const char* fiyat) {
    return {QString::fromUtf8(ad), QString::fromUtf8(birim), miktar, Tutar(fiyat)};
}

// What the product's total is, reckoned on its own.
Para Toplam(const FarkTarafı& taraf) {
    MalzemeSayımı sayım;
    for (const FarkMalzemesi& m : taraf.Malzemeler) sayım.Ekle(m.Miktar, m.Fiyat, {});
    return GösterilenToplam(sayım.Tutar(), taraf.Oranlar, 4);
}

Para Toplamı(std::span<const Para> parçalar) {
    return std::accumulate(parçalar.begin(), parçalar.end(), Para(), [](Para a, Para b) { return *Topla(a, b); });
}

void Tutmalı(const FarkTarafı& eski, const FarkTarafı& yeni) {
    const FarkAyrımı ayrım = FarkıAyır(eski, yeni);
    EXPECT_EQ(ayrım.Eski, Toplam(eski));
    EXPECT_EQ(ayrım.Yeni, Toplam(yeni));
    EXPECT_EQ(Toplamı(ayrım.Parçalar), TutarFarkı(ayrım.Yeni, ayrım.Eski));
    std::vector<Para> kalemler;
    for (const FarkKalemi& kalem : ayrım.Kalemler) kalemler.push_back(kalem.Tutar);
    EXPECT_EQ(Toplamı(kalemler), TutarFarkı(ayrım.Yeni, ayrım.Eski));
    for (int basamak = 0; basamak <= 6; ++basamak) {
        const auto göster = [basamak](Para tutar) { return *GösterilenTutar(tutar, basamak); };
        const Para fark = TutarFarkı(göster(ayrım.Yeni), göster(ayrım.Eski));
        std::vector<Para> gösterilen{YuvarlamaKalanı(fark, ayrım.Parçalar, basamak)};
        for (const Para parça : ayrım.Parçalar) gösterilen.push_back(göster(parça));
        EXPECT_EQ(Toplamı(gösterilen), fark) << basamak;
    }
}

}  // namespace

TEST(FarkAyrımı, ParçalarSırasıylaAyrılır) {
    const FarkTarafı eski{
        {Satır("Çam", "m", 2, "100"), Satır("Vida", "Adet", 10, "1"), Satır("Boya", "Litre", 1, "50")},
        {Tutar("10"), {}, {}, {}}};
    // The screws are gone, more of dearer wood, the paint by another measure, glue, more labour.
    const FarkTarafı yeni{{Satır("ÇAM", "m", 3, "120"), Satır("Boya", "Kutu", 1, "50"), Satır("Tutkal", "Kg", 1, "5")},
                          {Tutar("20"), {}, {}, {}}};
    const FarkAyrımı ayrım = FarkıAyır(eski, yeni);
    QStringList parçalar;
    for (const FarkKalemi& k : ayrım.Kalemler)
        parçalar += QString::number(static_cast<int>(k.Tür)) + k.Malzeme + "=" + SayıBiçimle(k.Tutar, 2);
    EXPECT_EQ(parçalar.join(' ').toStdString(),
              "0Boya=-55,00 0Vida=-11,00 1ÇAM=110,00 2ÇAM=66,00 3Boya=55,00 3Tutkal=5,50 4=41,50");
    Tutmalı(eski, yeni);
    Tutmalı(eski, eski);
    EXPECT_TRUE(FarkıAyır(eski, eski).Kalemler.empty());
    Tutmalı({}, yeni);
}

// Prices and percentages whose totals round at every step, names that are listed twice, rows that do not count.
TEST(FarkAyrımı, ParçalarKuruşuKuruşunaTutar) {
    std::mt19937 rastgele(20261123);
    const auto sayı = [&](int en, int boy) { return std::uniform_int_distribution(en, boy)(rastgele); };
    for (int deneme = 0; deneme < 300; ++deneme) {
        FarkTarafı taraflar[2];
        for (FarkTarafı& taraf : taraflar) {
            for (int i = sayı(0, 12); i > 0; --i) {
                FarkMalzemesi m{QString("Malzeme %1").arg(sayı(1, 9)), sayı(0, 5) ? "Adet" : "Kg",
                                sayı(0, 99999) / 997.0, Para::OnBindeBirden(sayı(0, 20'000'000))};
                if (sayı(0, 9) == 0) m.Miktar.reset();
                taraf.Malzemeler.push_back(m);
            }
            const auto oran = [&] { return Para::OnBindeBirden(sayı(-50'000, 999'999)); };
            taraf.Oranlar = {oran(), oran(), oran(), oran()};
        }
        Tutmalı(taraflar[0], taraflar[1]);
    }
}

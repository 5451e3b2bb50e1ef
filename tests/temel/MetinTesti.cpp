#include <gtest/gtest.h>

#include "Saat.h"
#include "Tablo.h"
#include "TurkceMetin.h"

namespace {

TEST(TürkçeMetin, BaşHarflerBüyür) {
    for (const QStringList& satır : Tablo(
             "ıSPARTA kapı > Isparta Kapı | İZMİR > İzmir | IŞIK İNCE > Işık İnce |   çam   kereste  > Çam   Kereste | "
             "çam\tKERESTE > Çam\tKereste | yemek (masası) a-b 2.el > Yemek (masası) A-b 2.el |  \t  > "
             " | îKİNCİ Â > Îkinci Â | 3mm VİDA > 3mm Vida | 😀ABC d > 😀abc D"))
        EXPECT_EQ(TürkçeBaşHarfBüyüt(satır[0]).toStdString(), satır[1].toStdString());
    EXPECT_EQ(TürkçeBüyükHarf(QStringLiteral("izmir ısparta çğöşüâîûéž ß 1-a")).toStdString(),
              "İZMİR ISPARTA ÇĞÖŞÜÂÎÛÉŽ ß 1-A");
}

TEST(Saat, AyarlananGünTürkçeYazılır) {
    SaatiAyarla([] { return QDate(2024, 2, 9); });
    EXPECT_EQ(TürkçeUzunTarih(Bugün()).toStdString(), "09 Şubat 2024 Cuma");
    SaatiAyarla(nullptr);
    EXPECT_GT(Bugün(), QDate(2024, 2, 9));
}

}  // namespace

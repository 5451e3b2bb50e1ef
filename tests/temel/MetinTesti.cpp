#include <gtest/gtest.h>

#include "Saat.h"
#include "TurkceMetin.h"

namespace {

TEST(TürkçeMetin, BaşHarflerBüyür) {
    const std::pair<const char*, std::string> durumlar[] = {
        {"ıSPARTA kapı", "Isparta Kapı"},
        {"İZMİR", "İzmir"},
        {"IŞIK İNCE", "Işık İnce"},
        {"  çam   kereste ", "Çam   Kereste"},
        {"çam\tKERESTE", "Çam\tKereste"},
        {"yemek (masası) a-b 2.el", "Yemek (masası) A-b 2.el"},
        {"ŞÖĞÜÇ", "Şöğüç"},
        {"îKİNCİ Â", "Îkinci Â"},
        {"3mm VİDA", "3mm Vida"},
        {"", ""},
        {" \t ", ""},
        {"😀ABC d", "😀abc D"},
    };
    for (const auto& [metin, beklenen] : durumlar)
        EXPECT_EQ(TürkçeBaşHarfBüyüt(QString::fromUtf8(metin)).toStdString(), beklenen) << metin;
}

TEST(TürkçeMetin, BüyükHarfBoyuDeğiştirmez) {
    EXPECT_EQ(TürkçeBüyükHarf(QString::fromUtf8("izmir ısparta çğöşüâ ß 1-a")).toStdString(),
              "İZMİR ISPARTA ÇĞÖŞÜÂ ß 1-A");
}

TEST(Saat, TarihTürkçeYazılır) {
    EXPECT_EQ(TürkçeUzunTarih(QDate(2026, 11, 22)).toStdString(), "22 Kasım 2026 Pazar");
    EXPECT_EQ(TürkçeUzunTarih(QDate(2024, 2, 9)).toStdString(), "09 Şubat 2024 Cuma");
}

TEST(Saat, AyarlananGünGeçerliOlur) {
    SaatiAyarla([] { return QDate(2004, 3, 7); });
    EXPECT_EQ(Bugün(), QDate(2004, 3, 7));
    SaatiAyarla(nullptr);
    EXPECT_EQ(Bugün(), QDate::currentDate());
}

}  // namespace

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <random>

#include "TurkceSira.h"
#include "Utf8.h"

namespace {

int Bayt(const std::string& a, const std::string& b) {
    return Türkçe::Karşılaştır(std::string_view(a), std::string_view(b));
}

// Below 0, 0 or above 0; fails when the two encodings do not agree.
int Sıra(const QString& a, const QString& b) {
    const int sıra = Türkçe::Karşılaştır(QStringView(a), QStringView(b));
    EXPECT_EQ(sıra, Bayt(a.toStdString(), b.toStdString())) << a.toStdString() << " | " << b.toStdString();
    return sıra;
}

QStringList Parçala(const char* metin) {
    return QString::fromUtf8(metin).split(QChar(u'|'));
}

TEST(TürkçeSıra, MetinlerSözlükSırasında) {
    const QStringList sıralı = Parçala(
        "| a|(a)|-|…|0|10|2|a|a "
        "b|a-b|a1|aa|aâ|ab|az|âa|b|c|ca|ç|d|e|f|g|ğ|h|ı|ıa|i|ia|iz|î|îa|j|k|l|m|n|o|oz|ö|p|q|r|s|"
        "sz|ş|t|u|û|ü|v|w|x|y|z|za|ω|ж|漢|𐐷");
    for (int ilk = 0; ilk < sıralı.size(); ++ilk)
        for (int son = ilk; son < sıralı.size(); ++son)
            EXPECT_EQ(Sıra(sıralı[ilk], sıralı[son]), ilk == son ? 0 : -1) << ilk << ' ' << son;
}

// Every Latin, Greek and Cyrillic letter: the order's idea of case is that of Büyük and Küçük.
TEST(TürkçeSıra, BüyükKüçükSayılmaz) {
    for (char16_t harf = 0; harf < 0x52F; ++harf) {
        const bool ekBlok = (harf >= 0x180 && harf < 0x385) || (harf >= 0x3CE && harf < 0x400);
        if (ekBlok) continue;
        const char16_t sonraki = harf + 1;
        EXPECT_EQ(Sıra(QChar(harf), QChar(Türkçe::Küçük(harf))), 0) << int(harf);
        EXPECT_EQ(Sıra(QChar(harf), QChar(Türkçe::Büyük(harf))), 0) << int(harf);
        EXPECT_EQ(Sıra(QChar(harf), QChar(sonraki)) == 0, Türkçe::Büyük(harf) == Türkçe::Büyük(sonraki)) << int(harf);
    }
}

TEST(TürkçeSıra, TamSıradırVeÖnEkleTutarlıdır) {
    const QStringList parçalar = Parçala(
        "a|A|â|Â|b|c|C|ç|Ç|g|ğ|Ğ|ı|I|i|İ|î|Î|o|ö|Ö|s|ş|Ş|u|Û|û|ü|Ü|z|é|É|ß|0|7| |\t|-|(|'|ω|Ω|Ж|ж|…|€|½|😀|𐐷|漢");
    std::mt19937 rastgele(20261122);
    const auto metin = [&] {
        QString sonuç;
        for (auto kalan = rastgele() % 5; kalan > 0; --kalan) sonuç += parçalar[int(rastgele() % parçalar.size())];
        return sonuç;
    };
    for (int tur = 0; tur < 100'000; ++tur) {
        const QString a = metin(), b = metin(), c = metin();
        ASSERT_EQ(Sıra(a, b), -Sıra(b, a));
        if (Sıra(a, b) <= 0 && Sıra(b, c) <= 0) {
            ASSERT_LE(Sıra(a, c), Sıra(a, b) == 0 ? Sıra(b, c) : -1);
        }
        bool başlar = false;
        for (int uzunluk = 0; uzunluk <= a.size(); ++uzunluk) {
            const bool harfOrtası = uzunluk < a.size() && a[uzunluk].isLowSurrogate();
            başlar = başlar || (!harfOrtası && Sıra(a.left(uzunluk), b) == 0);
        }
        ASSERT_EQ(Türkçe::İleBaşlar(a, b), başlar) << a.toStdString() << " | " << b.toStdString();
    }
}

TEST(TürkçeSıra, BozukBaytlarHarflerdenSonraGelirVeOkumaMetindeKalır) {
    for (const std::string bozuk :
         {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xC3", "\xE2\x82", "\xF0\x9F\x98",
          "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"}) {
        EXPECT_FALSE(Utf8Geçerli(bozuk)) << bozuk;
        EXPECT_GT(Bayt(bozuk, "\xF0\x90\x90\xB7"), 0) << bozuk;
        EXPECT_LT(Bayt(bozuk, bozuk + "a"), 0) << bozuk;
    }
    EXPECT_GT(Türkçe::Karşılaştır(QString(QChar(0xD83D)), u"\U00010437"), 0);
}

TEST(Utf8, BütünKarakterlerSayılırVeKesilir) {
    for (const char* geçerli : {"", "Çığ", "€", "\U0001F600", "\xEF\xBF\xBF", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(Utf8Geçerli(geçerli)) << geçerli;
    EXPECT_EQ(Utf8Çöz(std::string_view("€").substr(0, 2)).Boy, 0u);
    EXPECT_EQ(Utf16Uzunluğu("aş€\U0001F600"), 5u);
    EXPECT_EQ(BütünKarakterlerleKes("aşş", 4), "aş");
    EXPECT_EQ(BütünKarakterlerleKes("aşş", 3), "aş");
    EXPECT_EQ(BütünKarakterlerleKes("aşş", 5), "aşş");
    EXPECT_EQ(BütünKarakterlerleKes("€", 2), "");
}

}  // namespace

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <random>

#include "TurkceSira.h"

namespace {

// Below 0, 0 or above 0; fails when the two encodings do not agree.
int Sıra(const QString& a, const QString& b) {
    const QByteArray birinci = a.toUtf8();
    const QByteArray ikinci = b.toUtf8();
    const int sıra = Türkçe::Karşılaştır(a, b);
    EXPECT_EQ(sıra, Türkçe::Karşılaştır(std::string_view(birinci.data(), birinci.size()),
                                        std::string_view(ikinci.data(), ikinci.size())))
        << birinci.data() << " | " << ikinci.data();
    return sıra;
}

QStringList Parçala(const char* metin) {
    return QString::fromUtf8(metin).split(QChar(u'|'));
}

QString RastgeleMetin(std::mt19937& rastgele) {
    static const QStringList parçalar = Parçala(
        "a|A|â|Â|b|c|C|ç|Ç|g|ğ|Ğ|ı|I|i|İ|î|Î|o|ö|Ö|s|ş|Ş|u|Û|û|ü|Ü|z|é|É|ß|0|7| |\t|-|(|'|ω|Ω|Ж|ж|…|€|½|😀|𐐷|漢");
    QString metin;
    for (auto kalan = rastgele() % 5; kalan > 0; --kalan) metin += parçalar[int(rastgele() % parçalar.size())];
    return metin;
}

TEST(TürkçeSıra, MetinlerSözlükSırasında) {
    const QStringList sıralı = Parçala(
        "| a|(a)|-|…|0|10|2|a|a "
        "b|a-b|a1|aa|aâ|ab|az|âa|b|c|ca|ç|d|e|f|g|ğ|h|ı|ıa|i|ia|iz|î|îa|j|k|l|m|n|o|oz|ö|p|q|r|s|"
        "sz|ş|t|u|û|ü|v|w|x|y|z|za|ω|ж|漢|𐐷");
    for (int ilk = 0; ilk < sıralı.size(); ++ilk)
        for (int son = ilk; son < sıralı.size(); ++son) {
            EXPECT_EQ(Sıra(sıralı[ilk], sıralı[son]), ilk == son ? 0 : -1) << ilk << ' ' << son;
            EXPECT_EQ(Sıra(sıralı[son], sıralı[ilk]), ilk == son ? 0 : 1) << ilk << ' ' << son;
        }
}

TEST(TürkçeSıra, BüyükKüçükSayılmazAmaIİleİAyrıdır) {
    const QString küçük = QString::fromUtf8("aâbcçdefgğhıiîjklmnoöpqrsştuûüvwxyzéñžωέж");
    const QString büyük = QString::fromUtf8("AÂBCÇDEFGĞHIİÎJKLMNOÖPQRSŞTUÛÜVWXYZÉÑŽΩΈЖ");
    for (int sıra = 0; sıra < küçük.size(); ++sıra) {
        EXPECT_EQ(Türkçe::Büyük(küçük[sıra].unicode()), büyük[sıra].unicode()) << sıra;
        EXPECT_EQ(Türkçe::Küçük(büyük[sıra].unicode()), küçük[sıra].unicode()) << sıra;
        EXPECT_EQ(Sıra(küçük.mid(sıra, 1), büyük.mid(sıra, 1)), 0) << sıra;
    }
    EXPECT_EQ(Türkçe::Büyük(u'ß'), u'ß');
    EXPECT_LT(Sıra(QStringLiteral("KI"), QStringLiteral("ki")), 0);
}

// Every Latin, Greek and Cyrillic letter: the order's idea of case must be that of Büyük and Küçük.
TEST(TürkçeSıra, SıraHarfÇevirmeyleUyuşur) {
    for (char16_t harf = 0; harf < 0x52F; ++harf) {
        const bool ekBlok = (harf >= 0x180 && harf < 0x385) || (harf >= 0x3CE && harf < 0x400);
        if (ekBlok) continue;
        const QString metin{QChar(harf)};
        EXPECT_EQ(Sıra(metin, QString(QChar(Türkçe::Küçük(harf)))), 0) << int(harf);
        EXPECT_EQ(Sıra(metin, QString(QChar(Türkçe::Büyük(harf)))), 0) << int(harf);
        const char16_t sonraki = harf + 1;
        EXPECT_EQ(Sıra(metin, QString(QChar(sonraki))) == 0, Türkçe::Büyük(harf) == Türkçe::Büyük(sonraki))
            << int(harf);
    }
}

TEST(TürkçeSıra, TamSıradırVeÖnEkleTutarlıdır) {
    std::mt19937 rastgele(20261122);
    for (int tur = 0; tur < 100'000; ++tur) {
        const QString a = RastgeleMetin(rastgele);
        const QString b = RastgeleMetin(rastgele);
        const QString c = RastgeleMetin(rastgele);
        ASSERT_EQ(Sıra(a, b), -Sıra(b, a));
        if (Sıra(a, b) <= 0 && Sıra(b, c) <= 0) {
            ASSERT_LE(Sıra(a, c), Sıra(a, b) == 0 ? Sıra(b, c) : -1);
        }
        ASSERT_TRUE(Türkçe::İleBaşlar(a + b, a));
        bool başlar = false;
        for (int uzunluk = 0; uzunluk <= a.size(); ++uzunluk) {
            const bool harfOrtası = uzunluk < a.size() && a[uzunluk].isLowSurrogate();
            başlar = başlar || (!harfOrtası && Sıra(a.left(uzunluk), b) == 0);
        }
        ASSERT_EQ(Türkçe::İleBaşlar(a, b), başlar) << a.toStdString() << " | " << b.toStdString();
    }
}

TEST(TürkçeSıra, BozukBaytlarHarflerdenSonraGelirVeOkumaMetindeKalır) {
    for (const std::string_view bozuk : {"\x80", "\xC0\x80", "\xE0\x80\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x98",
                                         "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"}) {
        EXPECT_GT(Türkçe::Karşılaştır(bozuk, std::string_view("\xF0\x90\x90\xB7")), 0) << bozuk;
        EXPECT_EQ(Türkçe::Karşılaştır(bozuk, bozuk), 0);
        EXPECT_LT(Türkçe::Karşılaştır(bozuk, std::string(bozuk) + "a"), 0);
    }
    const QString tekVekil(QChar(0xD83D));
    EXPECT_GT(Türkçe::Karşılaştır(QStringView(tekVekil), QStringView(u"\U00010437")), 0);
    EXPECT_LT(Türkçe::Karşılaştır(QStringView(tekVekil), QStringView(QString(tekVekil + QChar(u'a')))), 0);
}

}  // namespace

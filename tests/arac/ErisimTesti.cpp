#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

#include "AccessUreteci.h"
#include "Cozum.h"
#include "OdbcSurucu.h"
#include "TestVerisi.h"

using namespace Qt::StringLiterals;

namespace {

using Üreteç = AccessÜreteci;
using Satırlar = QList<QStringList>;

std::string M(std::u16string_view metin) {
    return Üreteç::Metin(metin);
}

// The taking over of an Access file, as its users run it: as Varnek.vtb in a folder of its own.
class ErişimTesti : public testing::Test {
  protected:
    static void SetUpTestSuite() { SürücüKlasörünüAyarla(VARNEK_BIN); }

    QString Yol(const QString& ad = u"Varnek.vtb"_s) const { return m_klasör.filePath(ad); }
    QStringList Klasördekiler() const {
        return QDir(m_klasör.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static QByteArray İçerik(const QString& yol) {
        QFile dosya(yol);
        EXPECT_TRUE(dosya.open(QIODevice::ReadOnly)) << yol.toStdString();
        return dosya.readAll();
    }
    void Koy(const std::string& baytlar) {
        QFile dosya(Yol());
        ASSERT_TRUE(dosya.open(QIODevice::WriteOnly));
        dosya.write(baytlar.data(), qint64(baytlar.size()));
    }

    // The tool's words, with its exit code.
    QString Al(int kod, const QStringList& sözler = {}, rlim_t enBüyükDosya = RLIM_INFINITY) {
        QProcess süreç;
        süreç.setChildProcessModifier([enBüyükDosya] {
            const rlimit sınır{enBüyükDosya, RLIM_INFINITY};
            setrlimit(RLIMIT_FSIZE, &sınır);
            std::signal(SIGXFSZ, SIG_IGN);
        });
        // What the user has set for other programs of the library must not show in the values.
        QProcessEnvironment ortam = QProcessEnvironment::systemEnvironment();
        ortam.insert(u"MDBICONV"_s, u"ISO-8859-1"_s);
        süreç.setProcessEnvironment(ortam);
        süreç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), QStringList{u"erisimden-al"_s, Yol()} + sözler);
        EXPECT_TRUE(süreç.waitForFinished(120000));
        EXPECT_EQ(süreç.exitCode(), kod);
        return QString::fromUtf8(süreç.readAllStandardError());
    }
    // Refused with these words; the file is as it was, and nothing lies beside it.
    void Alınmaz(const std::string& baytlar, const QString& sözler) {
        Koy(baytlar);
        const QStringList önce = Klasördekiler();
        const QString hata = Al(1);
        EXPECT_TRUE(hata.contains(sözler)) << hata.toStdString();
        EXPECT_EQ(Klasördekiler(), önce) << sözler.toStdString();
        EXPECT_EQ(İçerik(Yol()).toStdString(), baytlar);
    }

    QTemporaryDir m_klasör;
};

TEST_F(ErişimTesti, TheGenuineFileIsTakenOverAsItStands) {
    const Üreteç örnek;
    Koy(örnek.Baytlar());
    const QDateTime zaman(QDate(2021, 3, 4), QTime(5, 6, 7));
    {
        QFile dosya(Yol());
        ASSERT_TRUE(dosya.open(QIODevice::ReadWrite) && dosya.setFileTime(zaman, QFileDevice::FileModificationTime));
    }
    EXPECT_EQ(Al(0), QString());
    EXPECT_EQ(Klasördekiler(), (QStringList{u"Varnek.vtb"_s, u"Varnek.vtb.access"_s}));
    EXPECT_EQ(İçerik(Yol(u"Varnek.vtb.access"_s)).toStdString(), örnek.Baytlar());
    EXPECT_EQ(QFileInfo(Yol()).lastModified(), zaman);
    TestVerisi veri(Yol());
    EXPECT_EQ(veri.Oku("SELECT * FROM UrunTablosu ORDER BY UrunGrubu ASC").value(3),
              (QStringList{u"SANDALYE"_s, u"Ahşap Sandalye"_s, u"15"_s, u"30"_s, u"-2.5"_s, u"1.75"_s}));
    EXPECT_EQ(veri.Oku("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'Kumaş Döşemelik'"),
              Satırlar{{u"345.6789"_s}});
    EXPECT_EQ(veri.Oku("SELECT * FROM UrunMalzemeTablosu").value(1),
              (QStringList{u"2004-03-07 00:00:00"_s, u"MASA"_s, u"Çalışma Masası"_s, u"Vida 4x40"_s, u"48 Adet"_s,
                           u"0.35"_s}));
    // It is one of ours now. Another Access file in its place, here with a deleted row, keeps its own copy; an equal
    // one uses that again.
    std::string silinmiş = örnek.Baytlar();
    silinmiş[34 * 4096 + 14 + 2 * 2 + 1] |= '\xC0';
    silinmiş[28 * 4096 + 16] = 5;
    EXPECT_TRUE(Al(1).contains(u"Access dosyası değil"_s));
    for (int kez = 0; kez < 2; ++kez) {
        Koy(silinmiş);
        Al(0);
        EXPECT_EQ(TestVerisi(Yol()).Oku("SELECT * FROM UrunMalzemeTablosu").size(), 5);
        EXPECT_EQ(Klasördekiler(), (QStringList{u"Varnek.vtb"_s, u"Varnek.vtb.access"_s, u"Varnek.vtb.access-2"_s}));
    }
}

TEST_F(ErişimTesti, ValuesOfEveryKindArrive) {
    Üreteç dosya;
    dosya.DeğişkenYap("MalzemeTablosu", "MalzemeAdi", 0x0C);
    dosya.TürVer("MalzemeTablosu", "MalzemeFiyati", 0x07, 8);
    dosya.TürVer("UrunTablosu", "IscilikYuzdesi", 0x06, 4);
    dosya.TürVer("UrunTablosu", "KarYuzdesi", 0x03, 2);
    dosya.DeğişkenYap("UrunMalzemeTablosu", "KullanilanMalzemeFiyati", 0x0A);
    const std::u16string uzun(254, u'ş');
    dosya.SatırlarıKoy("MalzemeTablosu", {{Üreteç::UzunMetin(uzun), Üreteç::Ham(0.1 + 0.2)},
                                          {Üreteç::UzunMetin(u"Işık"), Üreteç::Ham(12.35)},
                                          {Üreteç::UzunMetin(u"IŞIK"), Üreteç::Ham(13.0)},
                                          {Üreteç::UzunMetin(u"ışık"), Üreteç::Ham(12.35)},
                                          {std::nullopt, Üreteç::Ham(HUGE_VAL)},
                                          {std::nullopt, std::nullopt}});
    dosya.SatırlarıKoy("UrunTablosu",
                       {{Üreteç::SıkışıkMetin("\xC7"
                                              "ar\x9F"
                                              "af"),
                         M(u"D'Artagnan\r\n\xD83D\xDE00"), Üreteç::Ham(12.3F), Üreteç::Ham(std::int16_t{-7}),
                         Üreteç::Ham(1.0 / 3), Üreteç::Ham(2e15)},
                        {M(u""), std::nullopt, Üreteç::Ham(0.5F), std::nullopt, Üreteç::Ham(-0.0), Üreteç::Ham(1e-9)}});
    const auto gün = [](double tarih, std::u16string_view ad, std::u16string_view fiyat) {
        return Üreteç::Satır{Üreteç::Ham(tarih), M(u"G"), M(u"Ü"), M(ad), M(u"2,5  Metre "), M(fiyat)};
    };
    dosya.SatırlarıKoy("UrunMalzemeTablosu", {gün(2, u"IŞIK", u"1.250,5"), gün(73050.75, u"ışık", u"12.5"),
                                              gün(-18000.25, u"Işık", u"-3"), gün(1e9, u"x", u" 7 ")});
    Koy(dosya.Baytlar());
    const QString not_ = Al(0);
    EXPECT_TRUE(not_.contains(u"Liste: Varnek.vtb.access.txt"_s)) << not_.toStdString();
    TestVerisi veri(Yol());
    const QString uzunAd = QString::fromStdU16String(uzun);
    EXPECT_EQ(veri.Oku("SELECT * FROM MalzemeTablosu"),
              (Satırlar{{uzunAd, u"0.3"_s}, {u"Işık"_s, u"12.35"_s}, {u"IŞIK (2)"_s, u"13"_s}, {u""_s, u"0"_s}}));
    EXPECT_EQ(
        veri.Oku("SELECT * FROM UrunTablosu"),
        (Satırlar{{u"Çar\u009Faf"_s, u"D’Artagnan \U0001F600"_s, u"12.3"_s, u"-7"_s, u"0.3333333333333333"_s, u"0"_s},
                  {u""_s, u""_s, u"0.5"_s, u"0"_s, u"0"_s, u"0.000000001"_s}}));
    const auto satır = [](const char16_t* tarih, const char16_t* ad, const char16_t* fiyat) {
        return QStringList{QString::fromUtf16(tarih) + u" 00:00:00"_s,
                           u"G"_s,
                           u"Ü"_s,
                           QString::fromUtf16(ad),
                           u"2,5  Metre "_s,
                           QString::fromUtf16(fiyat)};
    };
    EXPECT_EQ(veri.Oku("SELECT * FROM UrunMalzemeTablosu"),
              (Satırlar{satır(u"1900-01-01", u"IŞIK (2)", u"1250.5"), satır(u"2099-12-31", u"ışık", u"0"),
                        satır(u"1850-09-18", u"Işık", u"-3"), satır(u"1900-01-01", u"x", u"7")}));
    // 0,30000000000000004; a price that is infinite, and one that is no number text; a percentage beyond 10^15; a day
    // that no calendar has; NULLs; times; a row of nothing.
    const QString liste = QString::fromUtf8(İçerik(Yol(u"Varnek.vtb.access.txt"_s)));
    for (const QString& sayı : {u"3 boş değer"_s, u"4 okunamayan"_s, u"1 dört basamağa"_s, u"1 en kısa"_s, u"2 saati"_s,
                                u"1 işareti"_s, u"1 alınmayan boş satır"_s, u"2 adı değiştirilen"_s, u"1 bir kez"_s})
        EXPECT_TRUE(liste.contains(sayı)) << sayı.toStdString() << "\n" << liste.toStdString();
    EXPECT_TRUE(
        liste.contains(u"UrunTablosu 1. satır, Çar\u009Faf / D'Artagnan  \U0001F600 / IscilikYuzdesi: "
                       u"en kısa ondalığıyla alınan yüzde; \"12,300000190734863\" -> \"12,3\"\n"_s))
        << liste.toStdString();
}

TEST_F(ErişimTesti, WhatCannotBeTakenOverWholeStaysAsItIs) {
    const Üreteç örnek;
    const auto bozuk = [&örnek](std::size_t sayfa, std::size_t yer, char bayt) {
        std::string baytlar = örnek.Baytlar();
        baytlar[sayfa * 4096 + yer] = bayt;
        return baytlar;
    };
    Üreteç eksik;
    eksik.AdVer("UrunMalzemeTablosu", "UrunMalzemeTablos_");
    Alınmaz(eksik.Baytlar(), u"UrunMalzemeTablosu adında bir tablo yok"_s);
    Üreteç sütunsuz;
    sütunsuz.AdVer("VadeFarkiYuzdesi", "VadeFarkiYuzdes_");
    Alınmaz(sütunsuz.Baytlar(), u"UrunTablosu.VadeFarkiYuzdesi sütunu yok"_s);
    Üreteç türsüz;
    türsüz.TürVer("UrunMalzemeTablosu", "KullanimTarihi", 0x05, 8);
    Alınmaz(türsüz.Baytlar(), u"UrunMalzemeTablosu.KullanimTarihi sütununun türü"_s);
    Üreteç uzun;
    uzun.SatırlarıKoy("MalzemeTablosu", {{M(u"Uzun " + std::u16string(250, u'x')), Üreteç::Para(1)}});
    Alınmaz(uzun.Baytlar(),
            u"MalzemeTablosu tablosunun MalzemeAdi sütununda 254 karakterden uzun bir metin var: \"Uzun x"_s);
    Alınmaz(örnek.Baytlar().substr(0, 100'000), u"sonu eksik"_s);
    Alınmaz(örnek.Baytlar().substr(0, 30 * 4096), u"bozuk"_s);
    Alınmaz(örnek.Baytlar().substr(0, 10 * 4096), u"kesilmiş ya da bozuk"_s);
    Alınmaz(bozuk(26, 16, 11), u"MalzemeTablosu tablosunda olması gerekenden az satır"_s);
    Alınmaz(bozuk(34, 4, 99), u"UrunMalzemeTablosu tablosu okunamıyor"_s);
    Alınmaz(bozuk(24, 55, 0x7F), u"bozuk"_s);  // the library crashes
    Alınmaz(bozuk(0, 20, 2), u".accdb"_s);

    Koy(örnek.Baytlar());
    QFile kilit(Yol(u"Varnek.ldb"_s));
    ASSERT_TRUE(kilit.open(QIODevice::WriteOnly));
    Alınmaz(örnek.Baytlar(), u"yanında Varnek.ldb var"_s);
    kilit.remove();
    // A disk that is full at the new file, and at the copy of the original.
    for (const rlim_t boy : {20'000, 100'000}) {
        Al(1, {}, boy);
        EXPECT_EQ(Klasördekiler(), QStringList{u"Varnek.vtb"_s}) << boy;
        EXPECT_EQ(İçerik(Yol()).toStdString(), örnek.Baytlar());
    }
}

TEST(ErişimÇözümüTesti, TextsOfAccess97AndDecimalsAreRead) {
    const auto çözülen = Erişim::MetniÇöz("\xD0\xDD\xDE\xF0\xFD\xFE\xC7\x80\x92", true);
    EXPECT_EQ(çözülen.Metin, "ĞİŞğışÇ€’");
    EXPECT_TRUE(Erişim::MetniÇöz("\x81", true).Değiştirildi);
    using namespace std::string_view_literals;
    EXPECT_EQ(Erişim::MetniÇöz("\xFF\xFE"
                               "A\0\x5F\x01\0B"sv,
                               false)
                  .Metin,
              "AşB");
    EXPECT_EQ(Erişim::MetniÇöz("\x3D\xD8"sv, false).Metin, "\uFFFD");
    const std::string sayı = std::string("\1", 1) + std::string(8, '\0') + std::string("\1\0\0\0\x39\x30\0\0", 8);
    const auto ondalık = Erişim::SayıyıÇöz(Erişim::HücreTürü::Ondalık, 4, sayı, false);
    ASSERT_TRUE(ondalık);
    EXPECT_TRUE(ondalık->Eksi);
    EXPECT_EQ(std::string(ondalık->Tam()) + "," + std::string(ondalık->Kesir()), "429497,9641");
}

}  // namespace

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int SayfaBoyu = 4096;
constexpr const char* Bom = "\xEF\xBB\xBF";

class KomutTesti : public testing::Test {
  protected:
    struct Sonuç {
        int Kod;
        QString Çıktı;
        QString Hata;
    };

    QString Yol(const QString& ad) const { return m_klasör.filePath(ad); }

    // Runs a command in the test's folder.
    Sonuç Çalıştır(const QStringList& sözler) const {
        QProcess süreç;
        süreç.setWorkingDirectory(m_klasör.path());
        süreç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), sözler);
        EXPECT_TRUE(süreç.waitForFinished(120000)) << süreç.errorString().toStdString();
        EXPECT_EQ(süreç.exitStatus(), QProcess::NormalExit);
        return {süreç.exitCode(), QString::fromUtf8(süreç.readAllStandardOutput()),
                QString::fromUtf8(süreç.readAllStandardError())};
    }
    int Kod(const QStringList& sözler) const { return Çalıştır(sözler).Kod; }

    QByteArray İçerik(const QString& ad) const {
        QFile dosya(Yol(ad));
        EXPECT_TRUE(dosya.open(QIODevice::ReadOnly)) << ad.toStdString();
        return dosya.readAll();
    }
    void Yaz(const QString& ad, const QByteArray& içerik) const {
        QFile dosya(Yol(ad));
        ASSERT_TRUE(dosya.open(QIODevice::WriteOnly));
        dosya.write(içerik);
    }
    QStringList Dosyalar(const QString& klasör) const {
        return QDir(Yol(klasör)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    // A folder with the three tables that every file has.
    void TablolarıYaz(const QByteArray& ürünler, const QByteArray& malzemeler, const QByteArray& kullanılanlar) const {
        QDir(m_klasör.path()).mkdir(u"csv"_s);
        Yaz(u"csv/UrunTablosu.csv"_s,
            Bom + QByteArray("UrunGrubu;UrunAdi;IscilikYuzdesi;KarYuzdesi;DigerVarnekYuzdesi;VadeFarkiYuzdesi\r\n") +
                ürünler);
        Yaz(u"csv/MalzemeTablosu.csv"_s, Bom + QByteArray("MalzemeAdi;MalzemeFiyati\r\n") + malzemeler);
        Yaz(u"csv/UrunMalzemeTablosu.csv"_s,
            Bom +
                QByteArray("KullanimTarihi;UrunGrubu;UrunAdi;KullanilanMalzemeAdi;KullanilanMalzemeMiktari;"
                           "KullanilanMalzemeFiyati\r\n") +
                kullanılanlar);
    }

    QTemporaryDir m_klasör;
};

}  // namespace

TEST_F(KomutTesti, DışarıVerilenAynenGeriGelir) {
    TablolarıYaz(
        "İĞÜŞ;\"a;b\";0,1;1000000000000000;-0,0000000000000000012;12,5\r\n"
        "=1+1;\"a\"\"b\";0;0;0;0\r\n\" boş\t\";\"satır\r\n\nsonu\r\";0;0;0;0\r\n;;0;0;0;0\r\n",
        "\xEF\xBB\xBFVida;1\r\n\xF0\x9F\x98\x80;922337203685477,5807\r\nı;-922337203685477,5808\r\ni;0,0001\r\n",
        "01.01.0100;a;b;c;;0\r\n31.12.9999;a;b;c;1.250,5 Metre;1,5\r\n");
    const Sonuç alım = Çalıştır({u"iceri-aktar"_s, u"csv"_s, u"bir.vtb"_s});
    ASSERT_EQ(alım.Kod, 0) << alım.Hata.toStdString();
    ASSERT_EQ(Kod({u"disari-aktar"_s, u"bir.vtb"_s, u"csv2"_s}), 0);
    for (const QString& ad : Dosyalar(u"csv"_s))
        EXPECT_EQ(İçerik(u"csv/"_s + ad).toStdString(), İçerik(u"csv2/"_s + ad).toStdString());

    // All tables of the sample, into a folder that is there.
    ASSERT_EQ(Kod({u"ornek"_s, u"ornek.vtb"_s}), 0);
    QDir(m_klasör.path()).mkdir(u"a"_s);
    ASSERT_EQ(Kod({u"disari-aktar"_s, u"ornek.vtb"_s, u"a"_s}), 0);
    EXPECT_GE(Dosyalar(u"a"_s).size(), 10);
    ASSERT_EQ(Kod({u"iceri-aktar"_s, u"a"_s, u"ornek2.vtb"_s}), 0);
    ASSERT_EQ(Kod({u"disari-aktar"_s, u"ornek2.vtb"_s, u"b"_s}), 0);
    EXPECT_EQ(Dosyalar(u"a"_s), Dosyalar(u"b"_s));
    for (const QString& ad : Dosyalar(u"a"_s))
        EXPECT_EQ(İçerik(u"a/"_s + ad), İçerik(u"b/"_s + ad)) << ad.toStdString();
    EXPECT_EQ(Kod({u"disari-aktar"_s, u"ornek.vtb"_s, u"a"_s}), 1) << "what is there is never written over";
}

TEST_F(KomutTesti, AlınamayanSatırıylaBildirilirDosyaOluşmaz) {
    for (const auto& [malzemeler, satır] : {std::pair(QByteArray("a;1\r\nb;1,00001\r\n"), u":3:"_s),
                                            {"a;12.5\r\n", u":2:"_s},
                                            {"a\r\n", u":2:"_s},
                                            {"\"a\n\n\";1\r\nÇ;1\r\nç;2\r\n", u":6:"_s},
                                            {"a'b;1\r\n", u":2:"_s},
                                            {"\"a;1\r\n", u":2:"_s},
                                            {QByteArray(255, 'x') + ";1\r\n", u":2:"_s},
                                            {"a;1;\r\n", u":2:"_s},
                                            {"\xFF;1\r\n", u":2:"_s}}) {
        TablolarıYaz("", malzemeler, "");
        const Sonuç sonuç = Çalıştır({u"iceri-aktar"_s, u"csv"_s, u"yeni.vtb"_s});
        EXPECT_EQ(sonuç.Kod, 1) << malzemeler.toStdString();
        EXPECT_TRUE(sonuç.Hata.contains(u"MalzemeTablosu.csv"_s + satır)) << sonuç.Hata.toStdString();
    }
    TablolarıYaz("a;b;0;0;0;0\r\na;c;0;0;1000000000000001;0\r\n", "", "");
    EXPECT_TRUE(Çalıştır({u"iceri-aktar"_s, u"csv"_s, u"yeni.vtb"_s}).Hata.contains(u"UrunTablosu.csv:3:"_s));
    TablolarıYaz("", "", "31.02.2026;a;b;c;1;1\r\n");
    EXPECT_EQ(Kod({u"iceri-aktar"_s, u"csv"_s, u"yeni.vtb"_s}), 1);
    TablolarıYaz("", "", "");
    for (const auto& [ad, içerik] :
         {std::pair(u"csv/Baska.csv"_s, ""), {u"csv/DovizTablosu.csv"_s, "DovizKodu;Kur\n"}}) {
        Yaz(ad, içerik);  // no table of the program; one of two that belong together
        EXPECT_EQ(Kod({u"iceri-aktar"_s, u"csv"_s, u"yeni.vtb"_s}), 1) << ad.toStdString();
        QFile::remove(Yol(ad));
    }
    EXPECT_EQ(Dosyalar({}), QStringList(u"csv"_s));
    EXPECT_EQ(Kod({u"iceri-aktar"_s, u"csv"_s, u"yeni.vtb"_s}), 0);
}

TEST_F(KomutTesti, DenetimHerBulguyuYazar) {
    TablolarıYaz("A;Masa;0;0;0;0\r\na;MASA;0;0;0;0\r\n", "Vida;1\r\n",
                 "01.01.2026;A;Masa;Vida;2 Adet;1\r\n01.01.2026;A;Masa;Silinmiş;2 Adet;1\r\n");
    ASSERT_EQ(Kod({u"iceri-aktar"_s, u"csv"_s, u"bir.vtb"_s}), 0);
    const Sonuç çift = Çalıştır({u"denetle"_s, u"bir.vtb"_s});
    EXPECT_EQ(çift.Kod, 3);
    EXPECT_EQ(çift.Çıktı.count(u'\n'), 2) << "a doubled product, and a note";
    TablolarıYaz("A;Masa;0;0;0;0\r\n", "Vida;1\r\n",
                 "01.01.2026;A;Masa;Vida;12.5 Adet;1\r\n01.01.2026;A;Sehpa;Vida;2 Adet;1\r\n");
    ASSERT_EQ(Kod({u"iceri-aktar"_s, u"csv"_s, u"iki.vtb"_s}), 0);
    EXPECT_EQ(Çalıştır({u"denetle"_s, u"iki.vtb"_s}).Çıktı.count(u"bulgu: UrunMalzemeTablosu"_s), 2);
    TablolarıYaz("A;Masa;0;0;0;0\r\n", "", "01.01.2026;A;Masa;Silinmiş;2 Adet;1\r\n");
    ASSERT_EQ(Kod({u"iceri-aktar"_s, u"csv"_s, u"notlu.vtb"_s}), 0);
    EXPECT_EQ(Kod({u"denetle"_s, u"notlu.vtb"_s}), 0) << "a note is no find";
    Yaz(u"bozuk.vtb"_s, İçerik(u"iki.vtb"_s).left(3 * SayfaBoyu));
    EXPECT_EQ(Kod({u"denetle"_s, u"bozuk.vtb"_s}), 1);
    EXPECT_EQ(Kod({u"denetle"_s}), 2);
    EXPECT_EQ(Kod({u"denetle"_s, u"--help"_s}), 0);
}

TEST_F(KomutTesti, OnarımOkunabileniAlırKaybıSöyler) {
    ASSERT_EQ(Kod({u"buyuk"_s, u"bir.vtb"_s, u"4000"_s}), 0);
    const QByteArray sağlam = İçerik(u"bir.vtb"_s);
    const auto bayt = [](QByteArray içerik, qsizetype yer, int fark) {
        içerik[yer] = char(içerik[yer] + fark);
        return içerik;
    };
    EXPECT_EQ(Kod({u"onar"_s, u"bir.vtb"_s, u"tam.vtb"_s}), 0);
    ASSERT_EQ(Kod({u"disari-aktar"_s, u"bir.vtb"_s, u"once"_s}), 0);
    const QList<QByteArray> önce = İçerik(u"once/UrunMalzemeTablosu.csv"_s).split('\n');

    // Two pages of rows are gone, with whole ones between them; a page lies in another's place; the last page but one
    // stands in no list of pages any more, of which the rows bear no sign.
    QByteArray sıfır = sağlam;
    for (const int sayfa : {40, 60}) sıfır.replace(sayfa * SayfaBoyu, SayfaBoyu, QByteArray(SayfaBoyu, '\0'));
    QByteArray kayık = sağlam;
    kayık.replace(60 * SayfaBoyu, SayfaBoyu, sağlam.mid(40 * SayfaBoyu, SayfaBoyu));
    qsizetype düğüm = 0;
    for (qsizetype yer = SayfaBoyu; yer < sağlam.size(); yer += SayfaBoyu)
        if (sağlam[yer] == '\x05' && (düğüm == 0 || sağlam[yer + 4] > sağlam[düğüm + 4])) düğüm = yer;
    for (const QByteArray& bozuk : {sıfır, kayık, bayt(sağlam, düğüm + 4, -1)}) {
        Yaz(u"bozuk.vtb"_s, bozuk);
        EXPECT_EQ(Kod({u"disari-aktar"_s, u"bozuk.vtb"_s, u"yok"_s}), 1);
        const Sonuç onarım = Çalıştır({u"onar"_s, u"bozuk.vtb"_s, u"yeni.vtb"_s});
        EXPECT_EQ(onarım.Kod, 3) << onarım.Hata.toStdString();
        EXPECT_TRUE(onarım.Çıktı.contains(u"UrunMalzemeTablosu: bütünlük"_s)) << onarım.Çıktı.toStdString();
        EXPECT_EQ(İçerik(u"bozuk.vtb"_s), bozuk);
        EXPECT_NE(Kod({u"denetle"_s, u"yeni.vtb"_s}), 1);
        ASSERT_EQ(Kod({u"disari-aktar"_s, u"yeni.vtb"_s, u"sonra"_s}), 0);
        const QList<QByteArray> sonra = İçerik(u"sonra/UrunMalzemeTablosu.csv"_s).split('\n');
        // Every row is there or named, in order.
        const qsizetype anılan = onarım.Çıktı.count(u"  UrunMalzemeTablosu "_s);
        EXPECT_GT(anılan, 0);
        EXPECT_EQ(sonra.size() + anılan, önce.size()) << onarım.Çıktı.left(500).toStdString();
        qsizetype yer = 0;
        for (const QByteArray& satır : önce)
            if (yer < sonra.size() && satır == sonra[yer]) ++yer;
        EXPECT_EQ(yer, sonra.size());
        EXPECT_EQ(Kod({u"onar"_s, u"bozuk.vtb"_s, u"yeni.vtb"_s}), 1) << "never written over";
        QFile::remove(Yol(u"yeni.vtb"_s));
        QDir(Yol(u"sonra"_s)).removeRecursively();
    }

    // A letter of one declaration; the whole list of what the file holds: the rows are all there.
    const qsizetype bildirim = sağlam.indexOf("CREATE TABLE \"MalzemeTablosu");
    for (const QByteArray& bozuk :
         {bayt(sağlam, bildirim, 1),
          QByteArray(sağlam).replace(100, SayfaBoyu - 100, QByteArray(SayfaBoyu - 100, '\0'))}) {
        Yaz(u"listesiz.vtb"_s, bozuk);
        EXPECT_EQ(Kod({u"onar"_s, u"listesiz.vtb"_s, u"yeni.vtb"_s}), 3);
        ASSERT_EQ(Kod({u"disari-aktar"_s, u"yeni.vtb"_s, u"sonra"_s}), 0);
        for (const QString& ad : Dosyalar(u"once"_s))
            EXPECT_EQ(İçerik(u"once/"_s + ad), İçerik(u"sonra/"_s + ad)) << ad.toStdString();
        QFile::remove(Yol(u"yeni.vtb"_s));
        QDir(Yol(u"sonra"_s)).removeRecursively();
    }

    Yaz(u"kesik.vtb"_s, sağlam.left(50 * SayfaBoyu));
    EXPECT_EQ(Kod({u"onar"_s, u"kesik.vtb"_s, u"kesik2.vtb"_s}), 3);
    EXPECT_NE(Kod({u"denetle"_s, u"kesik2.vtb"_s}), 1);
    Yaz(u"cop.vtb"_s, QByteArray(10 * SayfaBoyu, 'x'));
    EXPECT_EQ(Kod({u"onar"_s, u"cop.vtb"_s, u"cop2.vtb"_s}), 1);
    EXPECT_FALSE(QFile::exists(Yol(u"cop2.vtb"_s)));
}

// What is made is made though it cannot be said; losses that cannot be said are not made a file of.
TEST_F(KomutTesti, ÇıktıYazılamayınca) {
    const auto dolu = [this](const QStringList& sözler) {
        QProcess süreç;
        süreç.setWorkingDirectory(m_klasör.path());
        süreç.setStandardOutputFile(u"/dev/full"_s);
        süreç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), sözler);
        EXPECT_TRUE(süreç.waitForFinished(120000));
        return süreç.exitCode();
    };
    EXPECT_EQ(dolu({u"ornek"_s, u"bir.vtb"_s}), 0);
    Yaz(u"bozuk.vtb"_s, İçerik(u"bir.vtb"_s).left(30 * SayfaBoyu));
    EXPECT_EQ(dolu({u"onar"_s, u"bozuk.vtb"_s, u"yeni.vtb"_s}), 1);
    EXPECT_EQ(Dosyalar({}), (QStringList{u"bir.vtb"_s, u"bozuk.vtb"_s}));
}

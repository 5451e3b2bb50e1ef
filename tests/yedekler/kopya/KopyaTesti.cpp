#include <fcntl.h>
#include <sys/stat.h>

#include <ctime>

#include "AccessUreteci.h"
#include "DarDisk.h"
#include "DisKopya.h"
#include "DoluDisk.h"
#include "GeciciDosya.h"
#include "HazirlikTesti.h"
#include "KopyaYazma.h"
#include "OdbcModulu.h"
#include "OdbcYedek.h"
#include "Saat.h"
#include "Seyreltme.h"
#include "VeriYollari.h"
#include "YedekOkuma.h"

namespace {

// "day time[ kind]" of each copy in the order of their numbers, from 1; what goes, as "number>the one that stays".
QString Gidenler(const QStringList& kopyalar) {
    std::vector<KopyaAdı> adlar;
    for (const QString& kopya : kopyalar) {
        const QString ek = kopya.section(QLatin1Char(' '), 2);
        const QString ad = QStringLiteral("Varnek %1 %2%3.ydk")
                               .arg(kopya.section(QLatin1Char(' '), 0, 1))
                               .arg(adlar.size() + 1, 6, 10, QLatin1Char('0'))
                               .arg(ek.isEmpty() ? QString() : QLatin1Char(' ') + ek);
        const std::optional<KopyaAdı> okunan = KopyaAdınıOku(ad);
        if (!okunan || KopyaAdınıYaz(*okunan) != ad) return ad;
        adlar.push_back(*okunan);
    }
    std::map<int, int> gidenler;
    for (const Fazlalık& fazlalık : Seyrelt(adlar)) gidenler[fazlalık.Sıra] = fazlalık.YerineKalan;
    QStringList metin;
    for (const auto& [sıra, kalan] : gidenler) metin += QStringLiteral("%1>%2").arg(sıra).arg(kalan);
    return metin.join(QLatin1Char(' '));
}

QStringList HerGün(const QDate& ilk, int sayı, int adım = 1) {
    QStringList günler;
    for (int i = 0; i < sayı; ++i)
        günler += ilk.addDays(qint64{i} * adım).toString(Qt::ISODate) + QStringLiteral(" 1803");
    return günler;
}

TEST(Seyreltme, GünHaftaVeAySonlarıKalır) {
    // 22 November 2026 is a Sunday: 14 days, the ends of two more weeks, that of October and of its week before.
    EXPECT_EQ(Gidenler(HerGün({2026, 10, 24}, 30)), "1>2 3>8 4>8 5>8 6>8 7>8 10>16 11>16 12>16 13>16 14>16 15>16");
    // One a month over three years: 24 of them, and nothing of what the weeks and days keep twice.
    EXPECT_EQ(Gidenler(HerGün({2024, 1, 1}, 30, 31)), "1>7 2>7 3>7 4>7 5>7 6>7");
    for (const auto& [kopyalar, gidenler] : {
             // All of the two newest days, the last of the third.
             std::pair(QStringList{"2026-11-20 0900", "2026-11-20 1000", "2026-11-21 0900", "2026-11-21 1000",
                                   "2026-11-22 0900", "2026-11-22 1000"},
                       "1>2"),
             // A long pause takes nothing; nor does a year that the clock ran ahead, or one that it was set back.
             {QStringList{"2019-01-05 0900", "2019-01-06 0900", "2026-11-22 0900"}, ""},
             {QStringList{"2031-01-01 0900", "2026-11-21 0900", "2026-11-22 0900", "2026-11-22 1000"}, ""},
             {QStringList{"2026-11-22 0900", "2026-11-22 1000", "2020-01-01 0900", "2020-01-02 0900",
                          "2020-01-02 1000"},
              "1>2"},
             // Those asked for stand apart, the newest ten of them, a damaged file's bytes included; such bytes alone
             // push nothing else out.
             {QStringList{"2026-11-22 0900 ham"} + QStringList(11, "2026-11-22 0900 elle") +
                  QStringList{"2026-11-22 0900 once", "2026-11-22 0900"},
              "1>4 2>4 3>4"},
             {QStringList{"2026-11-22 0900 elle"} + QStringList(11, "2026-11-22 0900 ham"), "1>0 2>3"},
         })
        EXPECT_EQ(Gidenler(kopyalar), gidenler) << kopyalar.join(", ").toStdString();
    for (const char* yabancı : {"Varnek 2026-11-31 1803 000001.ydk", "Varnek 2026-11-22 2503 000001.ydk",
                                "Varnek 2026-11-22 1803 000001.ydk.yeni", "Varnek 2026-11-22 1803 000001 x.ydk"})
        EXPECT_FALSE(KopyaAdınıOku(yabancı)) << yabancı;
}

class Kopyalar : public HazırlıkTesti {
  protected:
    using Tür = KopyaSonucu::Tür;

    bool Başlat(QDate gün) {
        SaatiAyarla([gün] { return gün; });
        const bool tamam = VeritabanınıHazırla();
        ODBCBağlantısınıKapat();
        return tamam;
    }
    Kopyaİşi İş(KopyaTürü tür = KopyaTürü::Günlük) const {
        return {YedekKlasörü(), VeriDosyası(), DeğişmeZamanı(VeriDosyası()), tür, {}, {}};
    }
    // Of all folders, the newest first.
    QStringList Adlar() const {
        QStringList adlar;
        for (const KopyaYeri& yer : KopyaYerleri(YedekKlasörü()))
            for (const Kopya& kopya : KopyalarıOku(yer.Klasör)) adlar += QFileInfo(kopya.Yol).fileName();
        return adlar;
    }
    QString Klasörü() const { return KopyaYerleri(YedekKlasörü()).at(0).Klasör; }
    QStringList Dosyalar() const { return QDir(Klasörü()).entryList(QDir::Files); }
    void MalzemeEkle(const QString& ad) {
        TestVerisi(VeriDosyası()).Çalıştır(Deyimler::MalzemeEkle(ad, QStringLiteral("1")));
    }
};

TEST_F(Kopyalar, DeğişenHerGününKopyasıOlur) {
    DosyaYap(VeriDosyası(), QStringLiteral("İlk"), QDateTime(Gün.addDays(-3), QTime(18, 3)));
    const Satırlar ilk = Oku(VeriDosyası());
    const auto ad = [](QDate gün, const char* ek) {
        return QStringLiteral("Varnek ") + gün.toString(Qt::ISODate) + QLatin1String(ek);
    };
    ASSERT_TRUE(Başlat(Gün.addDays(-2)));
    EXPECT_EQ(Adlar(), QStringList(ad(Gün.addDays(-3), " 1803 000001.ydk")));
    EXPECT_EQ(Oku(Klasörü() + Adlar().at(0)), ilk);
    QFile yer(Klasörü() + "yer.txt");
    ASSERT_TRUE(yer.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(yer.readAll()).trimmed(), VeriYollarınıBul().GerçekDosya);
    // A day without changes: compacting alone makes no copy.
    ZamanVer(VeriDosyası(), QDateTime(Gün.addDays(-1), QTime(9, 0)));
    ASSERT_TRUE(Başlat(Gün));
    EXPECT_EQ(Adlar().size(), 1);
    // The clock was set back by years; the copy is the newest nevertheless, and hides none.
    MalzemeEkle(QStringLiteral("Sonraki"));
    const QDate eski(2001, 5, 7);
    ZamanVer(VeriDosyası(), QDateTime(eski, QTime(7, 5)));
    ASSERT_TRUE(Başlat(Gün));
    EXPECT_EQ(Adlar(), QStringList({ad(eski, " 0705 000002.ydk"), ad(Gün.addDays(-3), " 1803 000001.ydk")}));
    EXPECT_EQ(Oku(Klasörü() + Adlar().at(0)).size(), ilk.size() + 1);
    // The described backup is what it was without all this.
    EXPECT_EQ(Oku(Yedek()), Oku(VeriDosyası()));
}

TEST_F(Kopyalar, HerDosyanınKlasörüAyrıdır) {
    DosyaYap(VeriDosyası(), QStringLiteral("Birinci"), ÖncekiGün);
    ASSERT_EQ(KopyaYaz(İş()).Ne, Tür::Yazıldı);
    // The same file at another place.
    const QString başka = Klasör() + QStringLiteral("baska/Varnek.vtb");
    QDir().mkpath(QFileInfo(başka).path());
    ASSERT_TRUE(QFile::copy(VeriDosyası(), başka));
    Kopyaİşi iş = İş();
    iş.Dosya = başka;
    ASSERT_EQ(KopyaYaz(iş).Ne, Tür::Yazıldı);
    EXPECT_EQ(KopyaYerleri(YedekKlasörü()).size(), 2);
    // Another stick at the same place: a package's file has got a mark of its own; its rows and its password stay.
    const Satırlar önce = Oku(VeriDosyası());
    ASSERT_TRUE(VeriDosyasınıDamgala(VeriDosyası()));
    ASSERT_EQ(KopyaYaz(İş()).Ne, Tür::Yazıldı);
    EXPECT_EQ(KopyaYerleri(YedekKlasörü()).size(), 3);
    for (const KopyaYeri& yer : KopyaYerleri(YedekKlasörü())) EXPECT_EQ(KopyalarıOku(yer.Klasör).size(), 1);
    EXPECT_EQ(Oku(VeriDosyası()), önce);
}

TEST_F(Kopyalar, OlmayanKopyaİzBırakmazEskileriDeSilmez) {
    DosyaYap(VeriDosyası(), QStringLiteral("İlk"), ÖncekiGün);
    ASSERT_EQ(KopyaYaz(İş()).Ne, Tür::Yazıldı);
    EXPECT_EQ(KopyaYaz(İş()).Ne, Tür::Aynı);
    const QStringList önce = Dosyalar();
    MalzemeEkle(QStringLiteral("Yeni"));
    for (const rlim_t boy : {500, 5000, 20000}) {
        const DoluDisk dolu(boy);
        EXPECT_EQ(KopyaYaz(İş()).Ne, Tür::Olmadı) << boy;
        EXPECT_EQ(Dosyalar(), önce);
    }
    // Stopped in the making.
    {
        TestVerisi veri(VeriDosyası());
        veri.ElleOnayla();
        for (int i = 0; i < 20000; ++i)
            veri.Çalıştır(Deyimler::MalzemeEkle(QStringLiteral("Çok %1").arg(i), QStringLiteral("1")));
        veri.Onayla();
    }
    Kopyaİşi iş = İş();
    iş.Dur = Klasör() + QStringLiteral("dur");
    DosyaYaz(iş.Dur, {});
    EXPECT_EQ(KopyaYaz(iş).Ne, Tür::Durduruldu);
    EXPECT_EQ(Dosyalar(), önce);
    // A damaged data file gives no copy.
    DosyaYaz(VeriDosyası(), SayfasıBozuk(Baytlar(VeriDosyası())));
    const QStringList kalan = Dosyalar();
    EXPECT_EQ(KopyaYaz(İş()).Ne, Tür::Olmadı);
    EXPECT_EQ(Dosyalar(), kalan);
    // Nor does one without products and materials.
    QFile::remove(VeriDosyası());
    VeriDosyasıOluştur(VeriDosyası());
    EXPECT_EQ(KopyaYaz(İş()).Ne, Tür::Boş);
}

TEST_F(Kopyalar, YerineKalanBozuksaSilinmez) {
    DosyaYap(VeriDosyası(), QStringLiteral("Eski"), ÖncekiGün);
    Kopyaİşi iş = İş();
    iş.Hazır = VeriDosyası();
    const auto yaz = [&](int gün, int saat) {
        MalzemeEkle(QStringLiteral("%1.%2").arg(gün).arg(saat));
        iş.Değişme = QDateTime(QDate(2026, 11, gün), QTime(saat, 0));
        ASSERT_EQ(KopyaYaz(iş).Ne, Tür::Yazıldı);
    };
    yaz(9, 8);
    yaz(9, 9);
    yaz(10, 8);
    const QString kalan = Klasörü() + "Varnek 2026-11-09 0900 000002.ydk";
    const QByteArray sağlam = Baytlar(kalan);
    DosyaYaz(kalan, SayfasıBozuk(sağlam));
    yaz(11, 8);
    EXPECT_EQ(Adlar().size(), 4) << "the last sound one of its day is gone";
    DosyaYaz(kalan, sağlam);
    yaz(12, 8);
    EXPECT_EQ(Adlar().join(' ').count("000001.ydk"), 0);
    EXPECT_EQ(Adlar().size(), 4);
}

// What is kept before a restore makes room only when that was done; what was asked for twice is one copy.
TEST_F(Kopyalar, SaklananlarAncakİşBitinceYerAçar) {
    DosyaYap(VeriDosyası(), QStringLiteral("İlk"), ÖncekiGün);
    const KopyaSonucu elle = KopyaYaz(İş(KopyaTürü::Elle));
    ASSERT_EQ(elle.Ne, Tür::Yazıldı);
    QString son;
    for (int i = 0; i < 10; ++i) son = KopyaYaz(İş(KopyaTürü::Önce)).Yol;
    const KopyaSonucu yine = KopyaYaz(İş(KopyaTürü::Elle));
    EXPECT_EQ(yine.Ne, Tür::Aynı);
    EXPECT_EQ(yine.Yol, elle.Yol);
    // Nor does a daily one.
    Kopyaİşi günlük = İş();
    günlük.Hazır = VeriDosyası();
    EXPECT_EQ(KopyaYaz(günlük).Ne, Tür::Yazıldı);
    EXPECT_EQ(Adlar().size(), 12);
    ÖncekiKopyayıBağla(son, true);
    EXPECT_EQ(Adlar().size(), 11);
    EXPECT_FALSE(QFile::exists(elle.Yol));
    // Raw ones, of which none is sound; with its journal goes the one that goes.
    DosyaYaz(VeriDosyası(), QByteArray(5000, 'x'));
    DosyaYaz(VeriDosyası() + "-journal", "günlük");
    const QString ilk = HamınıSakla(YedekKlasörü(), VeriDosyası());
    for (int i = 0; i < 10; ++i) son = HamınıSakla(YedekKlasörü(), VeriDosyası());
    ÖncekiKopyayıBağla(son, true);
    EXPECT_EQ(QDir(QFileInfo(son).path()).entryList({"*ham.ydk*"}).size(), 20);
    EXPECT_FALSE(QFile::exists(ilk));
    EXPECT_EQ(Adlar().size(), 21);
}

TEST_F(Kopyalar, AccessBiçimindekiYedek) {
    AccessÜreteci dosya;
    dosya.SatırlarıKoy("MalzemeTablosu", {{AccessÜreteci::Metin(u"Çıta"), std::nullopt}});
    const QString yol = Klasör() + QStringLiteral("eski.vtb");
    dosya.Yaz(yol.toStdString());
    QDir().mkpath(YedekKlasörü());
    DosyaYaz(Klasör() + "eski.ldb", {});
    const YedekBilgisi açıkken = AçılmışYedek(yol, YedekKlasörü()).Denetle();
    EXPECT_EQ(açıkken.Durum, YedekDurumu::Okunamadı);
    EXPECT_TRUE(açıkken.Neden.contains("yanında eski.ldb var")) << açıkken.Neden.toStdString();
    QFile::remove(Klasör() + "eski.ldb");
    AçılmışYedek yedek(yol, YedekKlasörü());
    EXPECT_EQ(yedek.Denetle().Durum, YedekDurumu::Sağlam);
    EXPECT_EQ(yedek.Değişenler(), "1 değer olduğu gibi alınamadı (1 boş değer)");
    DosyaYaz(VeriDosyası() + ".access.txt", "başka bir liste");
    const QString liste = yedek.DeğişenleriSakla(VeriDosyası());
    EXPECT_EQ(liste, VeriDosyası() + ".access-2.txt");
    EXPECT_TRUE(Baytlar(liste).contains("Çıta"));
    EXPECT_EQ(Baytlar(yol).toStdString(), dosya.Baytlar());
}

// The room for the copy, and the data file's size beyond it.
TEST_F(Kopyalar, YerYetmezseEskilerKalırGündeBirSöylenir) {
    DosyaYap(VeriDosyası(), QStringLiteral("Eski"), ÖncekiGün);
    Kopyaİşi iş = İş();
    iş.Hazır = Klasör() + QStringLiteral("hazır");
    int saat = 0;
    const auto yaz = [&](int gün) {
        MalzemeEkle(QStringLiteral("%1").arg(++saat));
        QFile::remove(iş.Hazır);
        EXPECT_TRUE(QFile::copy(VeriDosyası(), iş.Hazır));
        iş.Değişme = QDateTime(QDate(2026, 11, gün), QTime(saat, 0));
        return KopyaYaz(iş).Ne;
    };
    for (const int gün : {9, 9, 10}) ASSERT_EQ(yaz(gün), Tür::Yazıldı);
    const QStringList önce = Dosyalar();
    const qint64 yeter = 2 * QFileInfo(VeriDosyası()).size();
    {
        const DarDisk dar(yeter - 1);
        EXPECT_EQ(yaz(11), Tür::YerYok);
        EXPECT_EQ(Dosyalar(), önce);
        // The start goes on, with its one backup, and says so once a day.
        for (const int gün : {0, 0, 1}) {
            MalzemeEkle(QStringLiteral("Başlangıç %1").arg(++saat));
            ZamanVer(VeriDosyası(), ÖncekiGün);
            if (saat != 6) Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
            EXPECT_TRUE(Başlat(Gün.addDays(gün)));
            EXPECT_EQ(Oku(Yedek()), Oku(VeriDosyası()));
        }
        EXPECT_EQ(Dosyalar(), önce);
    }
    const DarDisk dar(QFileInfo(VeriDosyası()).size() * 2);
    EXPECT_EQ(yaz(11), Tür::Yazıldı);
    EXPECT_EQ(Adlar().join(' ').count("000001.ydk"), 0) << "thinned now";
}

TEST_F(Kopyalar, ÖldürülenKopyanınYarısıSonrakiBaşlangıçtaSilinir) {
    DosyaYap(VeriDosyası(), QStringLiteral("İlk"), ÖncekiGün);
    ASSERT_TRUE(Başlat(Gün));
    const QStringList önce = Dosyalar();
    const QString yarım = Klasörü() + "Varnek 2026-11-22 1803 000002";
    for (const char* ek : {".ydk.yeni", ".ydk.yeni-journal", " ham.ydk-journal.yeni"}) DosyaYaz(yarım + ek, "yarım");
    const QString eski = YedekKlasörü() + "gecici-eski";
    const QString süren = YedekKlasörü() + "gecici-suren";
    for (const QString& klasör : {eski, süren}) ASSERT_TRUE(QDir().mkpath(klasör));
    const timespec evvelki[2] = {{time(nullptr) - 90000, 0}, {time(nullptr) - 90000, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(eski).constData(), evvelki, 0), 0);
    // What another program is writing stays.
    const QString başkasınınAdı = "Varnek 2001-11-22 1804 000003.ydk";
    Dosya::GeçiciDosya başkasının((Klasörü() + başkasınınAdı).toStdString());
    ASSERT_TRUE(başkasının.Aç().Tamam());
    ASSERT_TRUE(Başlat(Gün));  // without a copy: it has been made today
    EXPECT_EQ(Dosyalar(), QStringList(başkasınınAdı + ".yeni") + önce);
    EXPECT_FALSE(QFileInfo::exists(eski));
    EXPECT_TRUE(QFileInfo::exists(süren));
}

TEST_F(Kopyalar, BaşkaDiskteYarımDosyaKalmaz) {
    const QString kaynak = Klasör() + QStringLiteral("kaynak");
    const QString klasör = Klasör() + QStringLiteral("bellek/");
    QDir().mkpath(klasör);
    DosyaYaz(kaynak, QByteArray(3 << 20, 'v'));
    DosyaYaz(klasör + "a.ydk.yeni1", "başkasının");
    const auto yaz = [&](int azami) {
        int adım = 0;
        return Dosya::DışarıKopyala(kaynak.toStdString(), (klasör + "a.ydk").toStdString(),
                                    [&](std::int64_t) { return ++adım < azami; });
    };
    for (int azami = 1; azami <= 6; ++azami) EXPECT_EQ(yaz(azami), Dosya::DisKopyaSonucu::Durduruldu) << azami;
    {
        const DoluDisk dolu(1500000);
        EXPECT_EQ(yaz(100), Dosya::DisKopyaSonucu::Yazılamadı);
    }
    EXPECT_EQ(QDir(klasör).entryList(QDir::Files), QStringList("a.ydk.yeni1"));
    // Changed on the disk while it was written: what is read back is something else.
    int adım = 0;
    const auto boz = [&](std::int64_t) {
        if (++adım != 3) return true;
        QFile yazılan(klasör + "a.ydk.yeni2");
        return yazılan.open(QIODevice::ReadWrite) && yazılan.putChar('x');
    };
    EXPECT_EQ(Dosya::DışarıKopyala(kaynak.toStdString(), (klasör + "a.ydk").toStdString(), boz),
              Dosya::DisKopyaSonucu::Tutmadı);
    EXPECT_EQ(yaz(100), Dosya::DisKopyaSonucu::Yazıldı);
    EXPECT_EQ(Baytlar(klasör + "a.ydk"), Baytlar(kaynak));
    EXPECT_EQ(yaz(100), Dosya::DisKopyaSonucu::Var);
    EXPECT_EQ(Baytlar(klasör + "a.ydk.yeni1"), "başkasının");
}

TEST_F(Kopyalar, GeriYüklemeBaşkasınınİşiniEzmez) {
    const QString yedek = Klasör() + QStringLiteral("yedek.ydk");
    DosyaYap(yedek, QStringLiteral("Yedekteki"), ÖncekiGün);
    DosyaYap(VeriDosyası(), QStringLiteral("Şimdiki"), ÖncekiGün);
    const Satırlar yedekteki = Oku(yedek);
    const Satırlar şimdiki = Oku(VeriDosyası());
    {
        TestVerisi başkası(VeriDosyası());
        başkası.ElleOnayla();
        başkası.Çalıştır(Deyimler::MalzemeEkle(QStringLiteral("Yarım"), QStringLiteral("1")));
        EXPECT_FALSE(VeriDosyasınıGeriYükle(yedek, VeriDosyası()));
        EXPECT_TRUE(SürücüKurulumHatası().contains(QStringLiteral("başka bir program")));
        başkası.Onayla();
    }
    EXPECT_EQ(Oku(VeriDosyası()).size(), şimdiki.size() + 1);
    // A damaged source, and a disk that is full, leave the data as they are.
    const QByteArray önce = Baytlar(VeriDosyası());
    const QString bozuk = Klasör() + QStringLiteral("bozuk.ydk");
    DosyaYaz(bozuk, SayfasıBozuk(Baytlar(yedek)));
    EXPECT_FALSE(VeriDosyasınıGeriYükle(bozuk, VeriDosyası()));
    {
        const DoluDisk dolu(20000);
        EXPECT_FALSE(VeriDosyasınıGeriYükle(yedek, VeriDosyası()));
    }
    EXPECT_EQ(Baytlar(VeriDosyası()), önce);
    EXPECT_EQ(QDir(ProgramKlasörü()).entryList(QDir::Files), QStringList("Varnek.vtb"));
    // An idle client is told, and then goes on with what is there now. Whom the former file let in, the new one does.
    ASSERT_TRUE(QFile::setPermissions(VeriDosyası(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const auto izinler = QFileInfo(VeriDosyası()).permissions();
    TestVerisi boşta(VeriDosyası());
    boşta.Oku("SELECT MalzemeAdi FROM MalzemeTablosu");
    ASSERT_TRUE(VeriDosyasınıGeriYükle(yedek, VeriDosyası())) << SürücüKurulumHatası().toStdString();
    EXPECT_TRUE(QString::fromStdString(boşta.Dene("SELECT MalzemeAdi FROM MalzemeTablosu").Mesaj)
                    .contains("bir yedek geri yüklenmiş olabilir"));
    EXPECT_EQ(boşta.HerSatır(), yedekteki);
    EXPECT_EQ(QFileInfo(VeriDosyası()).permissions(), izinler);
    EXPECT_EQ(DeğişmeZamanı(VeriDosyası()), ÖncekiGün);
    // What is too damaged to be opened is replaced as well.
    DosyaYaz(VeriDosyası(), QByteArray(5000, 'x'));
    ASSERT_TRUE(VeriDosyasınıGeriYükle(yedek, VeriDosyası())) << SürücüKurulumHatası().toStdString();
    EXPECT_EQ(Oku(VeriDosyası()), yedekteki);
}

}  // namespace

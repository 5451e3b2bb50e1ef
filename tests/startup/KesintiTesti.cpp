#include "CocukSureci.h"
#include "HazirlikTesti.h"
#include "KopyaKlasoru.h"
#include "MetinTablosu.h"
#include "OdbcYedek.h"

namespace {

class KesintiTesti : public HazırlıkTesti {
  protected:
    void SetUp() override {
        DosyaYap(m_eskiKalıp, QStringLiteral("Eski"), ÖncekiGün.addDays(-3));
        DosyaYap(m_yeniKalıp, QStringLiteral("Yeni"), ÖncekiGün);
        m_eski = Oku(m_eskiKalıp);
        m_yeni = Oku(m_yeniKalıp);
        ASSERT_NE(m_eski, m_yeni);
    }

    void YerineKoy(const QString& kalıp, const QString& yol) {
        QDir().mkpath(QFileInfo(yol).path());
        QFile::remove(yol);
        ASSERT_TRUE(QFile::copy(kalıp, yol));
        ZamanVer(yol, DeğişmeZamanı(kalıp));
    }

    // Runs the child again and again, disturbed at its first, second, third ... change of a file, until one run comes
    // through undisturbed. `kur` lays the files out before each run, `denetle` looks at what is left.
    void HerNoktada(const char* bozma, QStringList istek, const std::function<void()>& kur,
                    const std::function<void(ÇocukSüreci&)>& denetle, int enAzNokta) {
        for (int n = 1; n < 1000; ++n) {
            SCOPED_TRACE(n);
            kur();
            ÇocukSüreci çocuk(istek, QString::fromLatin1("%1 %2").arg(QLatin1String(bozma)).arg(n));
            const bool öldü = çocuk.Sonuç() == ÇocukSüreci::ÖLDÜ;
            denetle(çocuk);
            m_sonNokta = n;
            if (HasFailure()) return;
            if (bozma == QLatin1String("oldur") ? !öldü : n > 2 * enAzNokta) break;
        }
        EXPECT_GE(m_sonNokta, enAzNokta) << "hardly anything was written";
    }
    QStringList Hazırla() const { return {QStringLiteral("hazirla"), ProgramKlasörü(), Gün.toString(Qt::ISODate)}; }

    // The next start comes through without a message, and every row is there.
    void YenidenBaşlat(const Satırlar& beklenen) {
        ÇocukSüreci çocuk(Hazırla(), QStringLiteral("oldur 1000000"));
        EXPECT_EQ(çocuk.Sonuç(), 0);
        EXPECT_EQ(çocuk.Kutular(), QString());
        EXPECT_EQ(Oku(VeriDosyası()), beklenen);
        EXPECT_EQ(Oku(Yedek()), beklenen);
        EXPECT_EQ(QDir(ProgramKlasörü()).entryList(QDir::Files), QStringList(QStringLiteral("Varnek.vtb")));
        EXPECT_EQ(QDir(YedekKlasörü()).entryList(QDir::Files), QStringList(QStringLiteral("Varnek.ydk")));
    }

    // Whatever a cut-off run left, each dated copy is whole.
    void KopyalarSağlam() {
        for (const KopyaYeri& yer : KopyaYerleri(YedekKlasörü()))
            for (const Kopya& kopya : KopyalarıOku(yer.Klasör))
                EXPECT_TRUE(VeriDosyasıSağlam(kopya.Yol)) << kopya.Yol.toStdString();
    }

    const QString m_eskiKalıp = Klasör() + QStringLiteral("eski");
    const QString m_yeniKalıp = Klasör() + QStringLiteral("yeni");
    Satırlar m_eski;
    Satırlar m_yeni;
    int m_sonNokta = 0;
};

TEST_F(KesintiTesti, SıkıştırırkenÖldürülürse) {
    HerNoktada(
        "oldur", Hazırla(),
        [this] {
            YerineKoy(m_eskiKalıp, Yedek());
            YerineKoy(m_yeniKalıp, VeriDosyası());
        },
        [this](ÇocukSüreci&) {
            // At every point both are whole: the data file never changes, the backup is the old or the new one.
            EXPECT_EQ(Oku(VeriDosyası()), m_yeni);
            const Satırlar yedek = Oku(Yedek());
            EXPECT_TRUE(yedek == m_eski || yedek == m_yeni);
            KopyalarSağlam();
            YenidenBaşlat(m_yeni);
        },
        20);
}

TEST_F(KesintiTesti, GeriYüklerkenÖldürülürse) {
    HerNoktada(
        "oldur", Hazırla(),
        [this] {
            QFile::remove(VeriDosyası());
            YerineKoy(m_yeniKalıp, Yedek());
        },
        [this](ÇocukSüreci&) {
            EXPECT_EQ(Oku(Yedek()), m_yeni);
            EXPECT_TRUE(!QFile::exists(VeriDosyası()) || Oku(VeriDosyası()) == m_yeni);
            YenidenBaşlat(m_yeni);
        },
        20);
}

TEST_F(KesintiTesti, YazarkenÖldürülürse) {
    Satırlar sonra;
    {
        YerineKoy(m_yeniKalıp, VeriDosyası());
        TestVerisi veri(VeriDosyası());
        veri.Çalıştır(QStringLiteral("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA'"));
        sonra = veri.HerSatır();
        ASSERT_LT(sonra.size() + 5, m_yeni.size());
    }
    HerNoktada(
        "oldur",
        {QStringLiteral("yaz"), ProgramKlasörü(),
         QStringLiteral("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA'")},
        [this] {
            QFile::remove(Yedek());
            YerineKoy(m_yeniKalıp, VeriDosyası());
        },
        [&](ÇocukSüreci& çocuk) {
            // The crash's journal lies beside the file that the next start compacts and replaces.
            EXPECT_EQ(ÇocukSüreci(Hazırla(), QStringLiteral("oldur 1000000")).Sonuç(), 0);
            const Satırlar şimdi = Oku(VeriDosyası());
            EXPECT_TRUE(şimdi == sonra || (şimdi == m_yeni && çocuk.Sonuç() == ÇocukSüreci::ÖLDÜ));
            EXPECT_EQ(Oku(Yedek()), şimdi);
        },
        5);
}

TEST_F(KesintiTesti, DiskDolarsa) {
    HerNoktada(
        "doldur", Hazırla(),
        [this] {
            YerineKoy(m_eskiKalıp, Yedek());
            YerineKoy(m_yeniKalıp, VeriDosyası());
        },
        [this](ÇocukSüreci& çocuk) {
            // A backup that cannot be written is told, and the program starts.
            EXPECT_EQ(çocuk.Sonuç(), 0);
            EXPECT_EQ(Oku(VeriDosyası()), m_yeni);
            const Satırlar yedek = Oku(Yedek());
            EXPECT_TRUE(yedek == m_eski || yedek == m_yeni);
            EXPECT_EQ(çocuk.Kutular().contains(Yedek()), yedek == m_eski);
            YenidenBaşlat(m_yeni);
        },
        10);
    // Without room for the restored file the start ends and says so.
    QFile::remove(VeriDosyası());
    ÇocukSüreci çocuk(Hazırla(), QStringLiteral("doldur 1"));
    EXPECT_EQ(çocuk.Sonuç(), 1);
    EXPECT_TRUE(çocuk.Kutular().contains(Metin(MetinNo::YedekGeriYüklenemedi)));
    EXPECT_TRUE(QDir(ProgramKlasörü()).isEmpty());
    YenidenBaşlat(m_yeni);
}

}  // namespace

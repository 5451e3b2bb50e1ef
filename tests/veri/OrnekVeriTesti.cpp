#include <QDate>
#include <QHash>
#include <QSet>
#include <algorithm>

#include "AracTesti.h"
#include "OrnekVeri.h"
#include "SayiMetni.h"
#include "TurkceMetin.h"

using namespace Qt::StringLiterals;

namespace {

// The sample as it reads back through the driver.
class ÖrnekVeriTesti : public AraçTesti {
  protected:
    void SetUp() override {
        ASSERT_EQ(Çalıştır({u"ornek"_s, Yol(u"Örnek.vtb"_s)}).kod, 0);
        m_veri = std::make_unique<VeriBağlantısı>(Yol(u"Örnek.vtb"_s));
    }

    QList<QStringList> Oku(const QString& sorgu) { return m_veri->Oku(sorgu); }

    std::unique_ptr<VeriBağlantısı> m_veri;
};

// A number as the driver gives it ("." as decimal mark), as money.
std::optional<Para> SürücüdenPara(const QString& metin) {
    return ParaOku(NoktayıVirgüleÇevir(metin));
}

}  // namespace

TEST_F(ÖrnekVeriTesti, HoldsEveryEntryOfTheTable) {
    QHash<QString, std::optional<Para>> fiyatlar;
    for (const ÖrnekMalzeme& malzeme : ÖrnekMalzemeler()) {
        fiyatlar.insert(malzeme.ad.toString(), ParaOku(malzeme.fiyat, NoktaKuralı::Yerinde));
    }
    const auto malzemeler = Oku(u"SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC"_s);
    EXPECT_EQ(malzemeler.size(), fiyatlar.size());
    for (const QStringList& satır : malzemeler) {
        ASSERT_TRUE(fiyatlar.value(satır[0]).has_value()) << satır[0].toStdString();
        EXPECT_EQ(SürücüdenPara(satır[1]), fiyatlar.value(satır[0])) << satır[0].toStdString();
    }
    EXPECT_EQ(Oku(u"SELECT UrunAdi FROM UrunTablosu"_s).size(), ÖrnekÜrünler().size());
    for (const ÖrnekÜrün& ürün : ÖrnekÜrünler()) {
        const QString koşul = u"WHERE UrunGrubu= '%1' AND UrunAdi= '%2'"_s.arg(ürün.grup, ürün.ad);
        const auto yüzdeler =
            Oku(u"SELECT IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM "
                u"UrunTablosu "_s +
                koşul);
        ASSERT_EQ(yüzdeler.size(), 1) << ürün.ad.toString().toStdString();
        const QStringView yazılanlar[] = {ürün.yüzdeler.işçilik, ürün.yüzdeler.kâr, ürün.yüzdeler.diğer,
                                          ürün.yüzdeler.vade};
        for (int i = 0; i < 4; ++i) EXPECT_EQ(SürücüdenPara(yüzdeler[0][i]), ParaOku(yazılanlar[i]));

        auto satırlar =
            Oku(u"SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM "
                u"UrunMalzemeTablosu "_s +
                koşul + u" ORDER BY KullanilanMalzemeAdi ASC"_s);
        ASSERT_EQ(satırlar.size(), ürün.malzemeler.size()) << ürün.ad.toString().toStdString();
        for (const ÖrnekMiktar& beklenen : ürün.malzemeler) {
            const auto satır = std::find_if(satırlar.begin(), satırlar.end(),
                                            [&](const QStringList& s) { return s[1] == beklenen.malzeme; });
            ASSERT_NE(satır, satırlar.end()) << beklenen.malzeme.toString().toStdString();
            EXPECT_EQ(satır->at(0), beklenen.miktar.toString());
            EXPECT_EQ(SürücüdenPara(satır->at(2)), fiyatlar.value(satır->at(1)));
            satırlar.erase(satır);
        }
    }
}

TEST_F(ÖrnekVeriTesti, ShowsWhatTheProgramCanDo) {
    QSet<QString> gruplar;
    QString harfler;
    int eksiYüzde = 0, malzemesiz = 0, kalabalık = 0, tekBirim = 0, karışıkBirim = 0;
    for (const ÖrnekÜrün& ürün : ÖrnekÜrünler()) {
        gruplar.insert(ürün.grup.toString());
        harfler += ürün.grup.toString() + ürün.ad.toString();
        eksiYüzde += ürün.yüzdeler.diğer.startsWith(u'-');
        malzemesiz += ürün.malzemeler.isEmpty();
        kalabalık += ürün.malzemeler.size() >= 40;
        QSet<QString> birimler;
        for (const ÖrnekMiktar& satır : ürün.malzemeler) birimler.insert(satır.miktar.toString().section(u' ', 1));
        tekBirim += birimler.size() == 1;
        karışıkBirim += birimler.size() > 1;
    }
    EXPECT_EQ(gruplar.size(), 6);
    EXPECT_EQ(ÖrnekÜrünler().size(), 25);
    EXPECT_EQ(ÖrnekMalzemeler().size(), 60);
    EXPECT_EQ(eksiYüzde, 1);
    EXPECT_EQ(malzemesiz, 1);
    EXPECT_EQ(kalabalık, 1);
    EXPECT_GE(tekBirim, 2);
    EXPECT_GE(karışıkBirim, 15);
    for (const ÖrnekMalzeme& malzeme : ÖrnekMalzemeler()) harfler += malzeme.ad;
    for (const QChar harf : u"çğıİöşü"_s) EXPECT_TRUE(harfler.contains(harf)) << QString(harf).toStdString();
}

TEST_F(ÖrnekVeriTesti, NamesAndQuantitiesAreWhatTheFormsWouldStore) {
    for (const ÖrnekMalzeme& malzeme : ÖrnekMalzemeler()) {
        EXPECT_EQ(TürkçeBaşHarfBüyüt(malzeme.ad.toString()), malzeme.ad.toString());
    }
    for (const ÖrnekÜrün& ürün : ÖrnekÜrünler()) {
        EXPECT_EQ(TürkçeBüyükHarf(ürün.grup.toString()), ürün.grup.toString());
        EXPECT_EQ(TürkçeBaşHarfBüyüt(ürün.ad.toString()), ürün.ad.toString());
        for (const ÖrnekMiktar& satır : ürün.malzemeler) {
            const QStringList parçalar = satır.miktar.toString().split(u' ');
            ASSERT_EQ(parçalar.size(), 2) << satır.miktar.toString().toStdString();
            EXPECT_TRUE(SayıMı(parçalar[0])) << satır.miktar.toString().toStdString();
        }
    }
}

TEST_F(ÖrnekVeriTesti, DaysOfUseReachBackFromToday) {
    const auto hareketler = [&](QDate gün) {
        return Oku(u"SELECT KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, UrunAdi FROM "
                   u"UrunMalzemeTablosu WHERE KullanimTarihi = #%1/%2/%3# ORDER BY UrunAdi ASC"_s.arg(gün.month())
                       .arg(gün.day())
                       .arg(gün.year()))
            .size();
    };
    const QDate bugün = QDate::currentDate();
    EXPECT_GT(hareketler(bugün), 20);
    EXPECT_EQ(hareketler(bugün.addDays(1)), 0);
    int gün = 0;
    qsizetype satır = 0;
    for (int önce = 0; önce < 60; ++önce) {
        const qsizetype sayı = hareketler(bugün.addDays(-önce));
        gün += sayı > 0;
        satır += sayı;
    }
    EXPECT_GE(gün, 7);
    EXPECT_EQ(satır, Oku(u"SELECT UrunAdi FROM UrunMalzemeTablosu"_s).size());
}

#include "MalzemeDegisimi.h"

#include <random>

#include "Deyimler.h"
#include "GeriAlma.h"
#include "MaliyetHesabi.h"
#include "MalzemeToplami.h"
#include "Ondalik.h"
#include "SayiMetni.h"
#include "VarnekTesti.h"

// A material in another one's place: what the plan says must be what stands there afterwards, all of it or nothing, and
// taking it back must leave no trace.

namespace {

constexpr int BASAMAK = 2;
const QDate BUGÜN(2026, 11, 23);

class MalzemeDeğişimi : public VarnekTesti {
  protected:
    void SetUp() override { VeriDosyasıOluştur(VeriDosyası()); }
    OdbcBağlantısı& Bağ() { return Veri().Bağlantı(); }

    DeğişimPlanı Plan(const QString& eski, const QString& yeni, const QString& çarpan = "1") {
        DeğişimPlanı plan;
        EXPECT_TRUE(plan.Kur(Bağ(), {eski, yeni, *ParaOku(çarpan)}, BUGÜN, BASAMAK).Tamam());
        return plan;
    }
    DeğişimPlanı Dönüş(std::int64_t işlem, bool geri) {
        DeğişimPlanı plan;
        EXPECT_TRUE(plan.DönüşüKur(Bağ(), işlem, geri, BASAMAK).Tamam());
        return plan;
    }
    UygulamaSonu Uygula(const DeğişimPlanı& plan, İşlemTürü tür = İşlemTürü::Değiştir, std::int64_t karşılığı = 0,
                        std::int64_t geriAlan = 0, const İlerleme& ilerleme = {}) {
        return DeğişimiUygula(Bağ(), plan, {tür, "Değişim", karşılığı, geriAlan}, "2026-11-23 10:00:00", ilerleme).Son;
    }

    // Every row of the three tables that were there before; sorted, as rows put back come last in the file.
    QStringList Veriler() {
        QStringList satırlar;
        for (const QStringList& s : Veri().HerSatır())
            if (!s.first().contains("Degisim") && !s.first().startsWith("Fiyat")) satırlar += s.join('|');
        satırlar.sort();
        return satırlar;
    }

    Para AnaFormunToplamı(const QString& grup, const QString& ürün) {
        MalzemeToplamı toplam;
        for (const QStringList& k : Veri().Oku(Deyimler::KullanılanMalzemeler(grup, ürün)))
            toplam.Ekle(k[0], NoktayıVirgüleÇevir(k[2]), BASAMAK);
        const QStringList y = Veri().Oku(Deyimler::Yüzdeler(grup, ürün)).first();
        const auto kutu = [&y](int i) { return YüzdeMetni(y[i], BASAMAK); };
        const MaliyetGirdisi girdi{SayıBiçimle(toplam.Tutar(), BASAMAK), kutu(0), kutu(1), kutu(2), kutu(3)};
        return *GösterilenTutar(MaliyetHesapla(girdi).Toplam, BASAMAK);
    }

    // Rows of both materials, of others, twice listed, with units that differ, unreadable or on several days.
    void Doldur() {
        Veri().ElleOnayla();
        std::mt19937 rastgele(20261123);
        const auto sayı = [&](int en, int boy) { return std::uniform_int_distribution(en, boy)(rastgele); };
        for (const char* ad : {"Çam", "Meşe", "Vida"})
            MalzemeEkle(ad, QString("%1,12%2").arg(sayı(1, 90)).arg(sayı(10, 99)));
        const QString miktarlar[] = {"1 Adet",         "2,5 Adet", "0,3333 Adet", "1.250 Adet",
                                     "0,0000004 Adet", "çok Adet", "3 m"};
        for (int i = 0; i < 60; ++i) {
            ÜrünEkle("RAF", QString("Raf %1").arg(i), {"10", "7,125", "-2", "0"});
            for (int j = sayı(1, 4); j > 0; --j)
                KullanımEkle(sayı(0, 3) ? "RAF" : "raf", QString("RAF %1").arg(i),
                             sayı(0, 1) ? "ÇAM" : (sayı(0, 1) ? "Meşe" : "Vida"),
                             miktarlar[sayı(0, 15) < 12 ? sayı(0, 3) : sayı(4, 6)], QString("%1,5").arg(sayı(1, 40)),
                             QString("#11/%1/2026#").arg(sayı(21, 23)));
        }
        Veri().Onayla();
    }
};

QString Sonrası(const DeğişimPlanı& plan, std::size_t yer = 0) {
    const DeğişenÜrün& ürün = plan.Ürünler().at(yer);
    return ürün.Sonra.empty() ? QString() : ürün.Sonra.front().Miktar;
}

}  // namespace

TEST(Ondalık, ÇarparkenVeToplarkenBasamakYitirmez) {
    const auto oku = [](const char* metin) { return *OndalıkOku(QString::fromUtf8(metin)); };
    const auto yaz = [](const Ondalık& s) {
        return (s.Eksi ? "-" : "") + std::string(s.Tam()) + "," + std::string(s.Kesir());
    };
    EXPECT_EQ(yaz(Çarp(oku("12345678901234567890,5"), oku("-99999,99"))), "-1234567766666667776704321,095");
    EXPECT_EQ(yaz(Çarp(oku("-0,5"), oku("0"))), "0,0");
    EXPECT_EQ(yaz(Topla(oku("0,1"), oku("999,95"))), "1000,05");
    EXPECT_EQ(yaz(Topla(oku("0,1"), oku("-100"))), "-99,9");
    EXPECT_EQ(yaz(Topla(oku("-100,25"), oku("100,25"))), "0,00");
    EXPECT_EQ(yaz(Topla(oku("100"), oku("-0,01"))), "99,99");
}

TEST_F(MalzemeDeğişimi, MiktarTamOndalıklaHesaplanırVeNedeniyleDışarıdaKalır) {
    MalzemeEkle("Çam", "2");
    MalzemeEkle("Meşe", "3,1234");
    const struct {
        const char* Çam;
        const char* Meşe;
        const char* Çarpan;
        const char* Sonuç;
        DeğişimNedeni Neden;
    } durumlar[] = {
        {"1.250,10 Kg", nullptr, "1", "1250,1 Kg", DeğişimNedeni::Yok},
        {"0,1 Küçük Kutu", "0,2 Küçük Kutu", "1", "0,3 Küçük Kutu", DeğişimNedeni::Yok},
        {"0,1 Küçük Kutu", "0,2 Kutu", "1", "", DeğişimNedeni::BirimFarklı},
        {"0,0000015 m", nullptr, "1", "0,000002 m", DeğişimNedeni::Yok},
        {"0,0001 m", nullptr, "0,0049", "", DeğişimNedeni::SonuçSıfır},
        {"3 m", "-3 m", "1", "", DeğişimNedeni::SonuçSıfır},
        {"12.5 m", nullptr, "1", "", DeğişimNedeni::MiktarOkunamaz},
        {"900000000000000 m", nullptr, "2", "", DeğişimNedeni::TutarBüyük},
        {"7", nullptr, "0,5", "3,5", DeğişimNedeni::Yok},
    };
    int sıra = 0;
    for (const auto& d : durumlar) {
        SCOPED_TRACE(d.Çam);
        const QString ürün = QString("Ürün %1").arg(++sıra);
        ÜrünEkle("MASA", ürün);
        KullanımEkle("MASA", ürün, "Çam", d.Çam, "2");
        if (d.Meşe) KullanımEkle("MASA", ürün, "Meşe", d.Meşe, "1");
        const DeğişimPlanı plan = Plan("çam", "meşe", d.Çarpan);
        EXPECT_EQ(plan.Ürünler().back().Neden, d.Neden);
        EXPECT_EQ(Sonrası(plan, plan.Ürünler().size() - 1), QString::fromUtf8(d.Sonuç));
        EXPECT_EQ(plan.Ürünler().back().İşaretli, d.Neden == DeğişimNedeni::Yok);
    }
    ÜrünEkle("MASA", "Zor");
    KullanımEkle("MASA", "Zor", "Çam", "1 " + QString(252, 'm'), "2");
    EXPECT_EQ(Plan("Çam", "Meşe", "10").Ürünler().back().Neden, DeğişimNedeni::MetinUzun);
    EXPECT_EQ(Plan("Çam", "Meşe").Ürünler().back().Neden, DeğişimNedeni::Yok);
    EXPECT_TRUE(Plan("Çam", "ÇAM").YeniYok());
    EXPECT_TRUE(Plan("Çam", "Yok").YeniYok());
}

TEST_F(MalzemeDeğişimi, UygulanırGeriAlınırYinelenir) {
    Doldur();
    const QStringList önce = Veriler();
    const DeğişimPlanı plan = Plan("Çam", "Meşe", "1,5");
    const DeğişimÖzeti özet = plan.Özet();
    ASSERT_GT(özet.Ürün, 10);
    ASSERT_GT(özet.Dışarıda, 3);
    EXPECT_LT(özet.GünündenÇıkan, özet.Silinen);
    ASSERT_EQ(Uygula(plan), UygulamaSonu::Tamam);
    for (const DeğişenÜrün& ü : plan.Ürünler()) {
        SCOPED_TRACE(ü.Ad.toStdString());
        const auto satırlar = [&](const char* malzeme) {
            return Oku(
                "SELECT KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, KullanimTarihi FROM UrunMalzemeTablosu "
                "WHERE "
                "UrunGrubu= 'RAF' AND UrunAdi= '" +
                ü.Ad + "' AND KullanilanMalzemeAdi= '" + malzeme + "'");
        };
        EXPECT_EQ(satırlar("Çam").isEmpty(), ü.İşaretli);
        if (!ü.İşaretli) continue;
        EXPECT_EQ(satırlar("Meşe"), ü.Sonra[0].Miktar + "|" +
                                        Oku("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'Meşe'") +
                                        "|2026-11-23 00:00:00");
        EXPECT_EQ(AnaFormunToplamı("RAF", ü.Ad), ü.SonrakiToplam);
    }
    const QStringList sonra = Veriler();
    ASSERT_NE(sonra, önce);
    std::vector<Deyimler::Fiyat::İşlem> işlemler;
    ASSERT_TRUE(İşlemleriOku(Bağ(), işlemler).Tamam());
    ASSERT_EQ(GeriAlınacakİşlem(işlemler)->No, 1);
    EXPECT_TRUE(ÜrünleriDeğiştirir(işlemler[0]));
    const DeğişimPlanı geri = Dönüş(1, true);
    EXPECT_EQ(geri.Özet().Ürün, özet.Ürün);
    for (const DeğişenÜrün& ü : geri.Ürünler()) {
        EXPECT_EQ(ü.ÖncekiToplam, AnaFormunToplamı("RAF", ü.Ad));
        const auto eski = std::find_if(plan.Ürünler().begin(), plan.Ürünler().end(),
                                       [&ü](const DeğişenÜrün& p) { return p.Ad.toUpper() == ü.Ad.toUpper(); });
        EXPECT_EQ(ü.SonrakiToplam, eski->ÖncekiToplam);
    }
    ASSERT_EQ(Uygula(geri, İşlemTürü::GeriAlma, 1, 0), UygulamaSonu::Tamam);
    EXPECT_EQ(Veriler(), önce);
    EXPECT_EQ(Uygula(Dönüş(1, false), İşlemTürü::GeriAlma, 1, 0), UygulamaSonu::İşlemDeğişmiş);
    ASSERT_EQ(Uygula(Dönüş(1, false), İşlemTürü::Yineleme, 1, 2), UygulamaSonu::Tamam);
    EXPECT_EQ(Veriler(), sonra);
    ASSERT_EQ(Uygula(Dönüş(1, true), İşlemTürü::GeriAlma, 1, 0), UygulamaSonu::Tamam);
    EXPECT_EQ(Veriler(), önce);
}

TEST_F(MalzemeDeğişimi, DeğişenVeriyeYazılmazVeYarımKalmaz) {
    Doldur();
    const DeğişimPlanı plan = Plan("Çam", "Meşe", "1,5");
    const auto ilk =
        std::find_if(plan.Ürünler().begin(), plan.Ürünler().end(), [](const auto& ü) { return ü.İşaretli; });
    const QString ürün = " WHERE UrunGrubu= 'RAF' AND UrunAdi= '" + ilk->Ad + "' AND KullanilanMalzemeAdi= 'Çam'";
    ÜrünEkle("YENİ", "Ürün");
    for (const QString& deyim :
         {"UPDATE UrunMalzemeTablosu SET KullanimTarihi= #1/1/2020#" + ürün,
          "UPDATE UrunMalzemeTablosu SET KullanilanMalzemeMiktari= '9 Adet'" + ürün,
          QString("UPDATE MalzemeTablosu SET MalzemeFiyati= '1' WHERE MalzemeAdi= 'Meşe'"),
          Deyimler::KullanılanMalzemeEkle({"YENİ", "Ürün", "Çam", "1 Adet", "1", "#1/1/2020#"})}) {
        SCOPED_TRACE(deyim.toStdString());
        const DeğişimPlanı şimdiki = Plan("Çam", "Meşe", "1,5");
        Çalıştır(deyim);
        const QStringList önce = Veriler();
        EXPECT_EQ(Uygula(şimdiki), UygulamaSonu::Değişmiş);
        EXPECT_EQ(Veriler(), önce);
    }
    const QStringList önce = Veriler();
    const auto bırak = [](std::int64_t biten) { return biten < 3; };
    EXPECT_EQ(Uygula(Plan("Çam", "Meşe"), İşlemTürü::Değiştir, 0, 0, bırak), UygulamaSonu::Vazgeçildi);
    EXPECT_EQ(Veriler(), önce);
    bool var = true;
    ASSERT_TRUE(FiyatTablolarıVar(Bağ(), var).Tamam());
    EXPECT_FALSE(var);
    // What changed after the operation is not taken back over it.
    ASSERT_EQ(Uygula(Plan("Çam", "Meşe")), UygulamaSonu::Tamam);
    Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeMiktari= '77 Adet' WHERE UrunGrubu= 'RAF' AND UrunAdi= '" +
             ilk->Ad + "' AND KullanilanMalzemeAdi= 'Meşe'");
    const DeğişimPlanı geri = Dönüş(1, true);
    for (const DeğişenÜrün& ü : geri.Ürünler())
        EXPECT_EQ(ü.Neden, ü.Ad.toUpper() == ilk->Ad.toUpper() ? DeğişimNedeni::SatırlarıDeğişmiş : DeğişimNedeni::Yok);
}

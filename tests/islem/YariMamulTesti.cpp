#include <random>

#include "Deyimler.h"
#include "FiyatIslemi.h"
#include "MaliyetTablosu.h"
#include "MalzemeDegisimi.h"
#include "UrunAcilimi.h"
#include "VarnekTesti.h"
#include "YariMamulYayilimi.h"

// Materials that stand for products: their prices follow, through all levels and in one go, and never round a circle.

namespace {

class YarıMamul : public VarnekTesti {
  protected:
    void SetUp() override { VeriDosyasıOluştur(VeriDosyası()); }
    OdbcBağlantısı& Bağ() { return Veri().Bağlantı(); }

    // As the ties' form makes them: by an operation on the price that the product gives.
    void Bağla(const QString& malzeme, const QString& ürün, TutarTürü tür) {
        std::optional<KatalogMalzemesi> m;
        YarıMamulFiyatı fiyat;
        ASSERT_TRUE(MalzemeyiOku(Bağ(), malzeme, m).Tamam());
        ASSERT_TRUE(ÜrününFiyatınıHesapla(Bağ(), {"G", ürün}, tür, fiyat).Tamam());
        ASSERT_EQ(fiyat.Durum, BağDurumu::Uyuyor) << malzeme.toStdString();
        FiyatTeklifi teklif;
        teklif.Öneriler.push_back({malzeme, m->Fiyat, fiyat.Fiyat});
        if (m->Fiyat == fiyat.Fiyat) teklif.Öneriler[0].Neden = PlanNedeni::Değişmiyor;
        teklif.Bağ = YarıMamulBağı{malzeme, {"G", ürün}, tür};
        Uygula(std::move(teklif));
    }

    FiyatPlanı Uygula(FiyatTeklifi teklif) {
        FiyatPlanı plan;
        EXPECT_TRUE(plan.Kur(Bağ(), std::move(teklif), 2).Tamam());
        EXPECT_EQ(FiyatlarıUygula(Bağ(), plan, {İşlemTürü::YarıMamul, "x"}, "2026-11-23 10:00:00").Son,
                  UygulamaSonu::Tamam);
        return plan;
    }

    FiyatTeklifi Öneri(const QString& malzeme, Para yeni) {
        std::optional<KatalogMalzemesi> m;
        EXPECT_TRUE(MalzemeyiOku(Bağ(), malzeme, m).Tamam());
        FiyatTeklifi teklif;
        teklif.Öneriler.push_back({m->Ad, m->Fiyat, yeni});
        return teklif;
    }

    QString Fiyat(const QString& malzeme) {
        const auto satırlar = Veri().Oku(Deyimler::MalzemeFiyatı(malzeme));
        return satırlar.isEmpty() ? QString("yok") : satırlar[0][0];
    }

    BağDurumu Durum(const QString& malzeme) {
        const YarıMamulBağları* bağlar = nullptr;
        EXPECT_TRUE(YarıMamulleriAl(Bağ(), bağlar).Tamam());
        const YarıMamulBağı* bağ = bağlar->Bağı(malzeme);
        return bağ ? bağ->Durum : BağDurumu::Yazılamadı;
    }

    // Every tied price is what the product gives at this moment, in the catalogue and in every used row.
    void HerŞeyUyuyor() {
        const YarıMamulBağları* bağlar = nullptr;
        YarıMamulleriUnut();
        ASSERT_TRUE(YarıMamulleriAl(Bağ(), bağlar).Tamam());
        for (const YarıMamulBağı& bağ : bağlar->Bağlar()) {
            YarıMamulFiyatı fiyat;
            ASSERT_TRUE(ÜrününFiyatınıHesapla(Bağ(), bağ.Ürün, bağ.Tür, fiyat).Tamam());
            EXPECT_EQ(bağ.Durum, BağDurumu::Uyuyor);
            EXPECT_EQ(SaklananPara(Fiyat(bağ.Malzeme).toStdString()), fiyat.Fiyat) << bağ.Malzeme.toStdString();
            for (const QStringList& satır : Veri().Oku(Deyimler::MalzemeninKullanımları(bağ.Malzeme)))
                EXPECT_EQ(satır[3], Fiyat(bağ.Malzeme)) << satır.join('|').toStdString();
        }
    }

    // Six levels: P0 uses base materials; T(i) stands for P(i) and is used by P(i+1) and by many others.
    void KatlarıKur() {
        Veri().ElleOnayla();
        MalzemeEkle("Çivi", "0,3333");
        MalzemeEkle("Tahta", "12,5");
        for (int i = 0; i < 6; ++i) {
            MalzemeEkle(QString("T%1").arg(i), "1");
            ÜrünEkle("G", QString("P%1").arg(i), {"12,345", "7", "0", "-1,5"});
            KullanımEkle("G", QString("P%1").arg(i), "Çivi", "3 Adet", "0,3333");
            KullanımEkle("G", QString("P%1").arg(i), "Tahta", "0,7 Adet", "12,5");
            if (i > 0) KullanımEkle("g", QString("p%1").arg(i), QString("t%1").arg(i - 1), "1,25 Adet", "1");
        }
        for (int i = 0; i < 40; ++i) {
            ÜrünEkle("G", QString("Son %1").arg(i));
            KullanımEkle("G", QString("Son %1").arg(i), QString("T%1").arg(i % 6), "2 Adet", "1");
        }
        Veri().Onayla();
        const TutarTürü türler[] = {TutarTürü::Malzeme, TutarTürü::Toplam, TutarTürü::Birim};
        for (int i = 0; i < 6; ++i) Bağla(QString("T%1").arg(i), QString("P%1").arg(i), türler[i % 3]);
    }
};

}  // namespace

TEST_F(YarıMamul, BirFiyatBütünKatlaraYayılırÖnizlemeDeOnuGösterir) {
    KatlarıKur();
    HerŞeyUyuyor();
    const QString önce = Fiyat("T5");
    const FiyatPlanı plan = Uygula(Öneri("çivi", Para::OnBindeBirden(12345)));
    EXPECT_NE(Fiyat("T5"), önce);
    HerŞeyUyuyor();
    // What the preview promised, product by product, is what there is now.
    std::vector<MaliyetTablosuSatırı> satırlar;
    ASSERT_TRUE(MaliyetTablosunuOku(Bağ(), 2, satırlar).Tamam());
    EXPECT_EQ(plan.Ürünler().size(), satırlar.size());
    for (const PlanÜrünü& ürün : plan.Ürünler())
        for (const MaliyetTablosuSatırı& satır : satırlar)
            if (satır.Ad == ürün.Ad) {
                EXPECT_EQ(satır.Toplam, ürün.Sonra) << ürün.Ad.toStdString();
            }
    // Its own price is nobody else's.
    FiyatPlanı bağlının;
    ASSERT_TRUE(bağlının.Kur(Bağ(), Öneri("T3", Para::OnBindeBirden(1)), 2).Tamam());
    EXPECT_EQ(bağlının.Malzemeler()[0].Neden, PlanNedeni::YarıMamul);
}

TEST_F(YarıMamul, KomutlarınArdındanGelir) {
    KatlarıKur();
    const auto yürüt = [this](const VeriDeğişimi& değişim) {
        Yayılım y = YarıMamulleriYürüt(Bağ(), değişim);
        EXPECT_TRUE(y.Sonuç.Tamam());
        return y;
    };
    // A transfer writes the price rounded; percentages; a removed row.
    Veri().Çalıştır(Deyimler::KullanılanMalzemeDeğiştir({"G", "Son 1", "T5", "3 Adet", "99,99", "#11/23/2026#"}));
    Veri().Çalıştır(Deyimler::KullanılanMalzemeEkle({"G", "P0", "Boya", "2 Adet", "4,5", "#11/23/2026#"}));
    yürüt({.Ürünler = {{"G", "Son 1"}}});
    yürüt({.Ürünler = {{"G", "P0"}}});
    HerŞeyUyuyor();
    Veri().Çalıştır(Deyimler::YüzdeleriKaydet("50", "0", "0", "0", "G", "P1"));
    yürüt({.Ürünler = {{"G", "P1"}}});
    HerŞeyUyuyor();
    // The same into a product that gives a price itself: the rounded price is not passed on.
    Veri().Çalıştır(Deyimler::KullanılanMalzemeDeğiştir({"G", "P5", "T4", "2 Adet", "77,7", "#11/23/2026#"}));
    yürüt({.Ürünler = {{"G", "P5"}}});
    HerŞeyUyuyor();
    // An emptied product never makes others cheaper, nor does an unreadable quantity; what mends it is followed again.
    const QString önce = Fiyat("T0");
    Veri().Çalıştır(Deyimler::ÜrününMalzemeleriniSil("G", "P0"));
    yürüt({.Ürünler = {{"G", "P0"}}});
    EXPECT_EQ(Durum("T0"), BağDurumu::MalzemesizÜrün);
    EXPECT_EQ(Fiyat("T0"), önce);
    Veri().Çalıştır(Deyimler::KullanılanMalzemeEkle({"G", "P0", "Çivi", "çok Adet", "1", "#11/23/2026#"}));
    yürüt({.Ürünler = {{"G", "P0"}}});
    EXPECT_EQ(Durum("T0"), BağDurumu::OkunamayanMiktar);
    EXPECT_EQ(Fiyat("T0"), önce);
    Veri().Çalıştır(Deyimler::KullanılanMalzemeDeğiştir({"G", "P0", "Çivi", "7 Adet", "2", "#11/23/2026#"}));
    yürüt({.Ürünler = {{"G", "P0"}}});
    EXPECT_EQ(Fiyat("T0"), "14");
    HerŞeyUyuyor();
    // A rename goes with the tie; deleting dissolves it and leaves the price.
    Veri().Çalıştır(Deyimler::ÜrünAdınıDeğiştir("G", "P0", "Q"));
    Veri().Çalıştır(Deyimler::MalzemelerdeÜrünAdınıDeğiştir("G", "P0", "Q"));
    yürüt({.Ürünler = {{"G", "P0"}}, .YeniAd = ÜrünAdı{"G", "Q"}});
    HerŞeyUyuyor();
    Veri().Çalıştır(Deyimler::ÜrünüSil("G", "Q"));
    Veri().Çalıştır(Deyimler::ÜrününMalzemeleriniSil("G", "Q"));
    EXPECT_EQ(yürüt({.Ürünler = {{"G", "Q"}}, .Silindi = true}).Çözülenler, QStringList{"T0"});
    EXPECT_EQ(Fiyat("T0"), "14");
    HerŞeyUyuyor();
}

TEST_F(YarıMamul, MalzemeDeğişimiYayılırÖnizlemeDeOnuGösterir) {
    KatlarıKur();
    const auto denetle = [this](const DeğişimPlanı& plan) {
        std::vector<MaliyetTablosuSatırı> satırlar;
        ASSERT_TRUE(MaliyetTablosunuOku(Bağ(), 2, satırlar).Tamam());
        for (const DeğişenÜrün& ürün : plan.Ürünler())
            for (const MaliyetTablosuSatırı& satır : satırlar)
                if (satır.Ad == ürün.Ad) {
                    EXPECT_EQ(satır.Toplam, ürün.SonrakiToplam) << ürün.Ad.toStdString();
                }
        HerŞeyUyuyor();
    };
    const auto uygula = [&](const QString& eski, const QString& yeni, int kalan) {
        DeğişimPlanı plan;
        ASSERT_TRUE(plan.Kur(Bağ(), {eski, yeni}, {2026, 11, 23}, 2).Tamam());
        for (std::size_t i = 0; i < plan.Ürünler().size(); ++i)
            if (static_cast<int>(i) >= kalan) plan.İşaretle(i, false);
        plan.YayılımıYenile();
        ASSERT_EQ(DeğişimiUygula(Bağ(), plan, {İşlemTürü::Değiştir, "x"}, "2026-11-23 10:00:00").Son,
                  UygulamaSonu::Tamam);
        denetle(plan);
    };
    uygula("Tahta", "Çivi", 3);
    // A sub-assembly in a base material's place: not where it would close a circle.
    DeğişimPlanı plan;
    ASSERT_TRUE(plan.Kur(Bağ(), {"Çivi", "T1"}, {2026, 11, 23}, 2).Tamam());
    for (const DeğişenÜrün& ürün : plan.Ürünler()) {
        if (ürün.Ad == "P0" || ürün.Ad == "P1") {
            EXPECT_EQ(ürün.Neden, DeğişimNedeni::ÇemberKapatır);
        }
    }
    uygula("Çivi", "T1", 99);
    uygula("T4", "T0", 99);
}

TEST_F(YarıMamul, DöngüdeFiyatlarDurur) {
    KatlarıKur();
    const YarıMamulBağları* bağlar = nullptr;
    ASSERT_TRUE(YarıMamulleriAl(Bağ(), bağlar).Tamam());
    EXPECT_EQ(bağlar->Zincir({"T4"}, ÜrünAdı{"g", "p3"}), (QStringList{"T4", "P4", "t3"}));
    EXPECT_TRUE(bağlar->Zincir({"T2", "Çivi"}, ÜrünAdı{"G", "P3"}).isEmpty());
    // Closed behind the program's back, as a merge or a restored file does.
    KullanımEkle("G", "P0", "T2", "1 Adet", "5");
    ASSERT_TRUE(YarıMamulleriYürüt(Bağ(), {.Hepsi = true}).Sonuç.Tamam());
    for (const char* malzeme : {"T0", "T1", "T2"}) EXPECT_EQ(Durum(malzeme), BağDurumu::Döngüde) << malzeme;
    const QString önce = Fiyat("T1");
    Uygula(Öneri("Tahta", Para::OnBindeBirden(200000)));
    EXPECT_EQ(Fiyat("T1"), önce);
    EXPECT_EQ(Durum("T3"), BağDurumu::Uyuyor);  // depends on the circle, but is not in it
    // A dissolved tie opens the circle: the others follow at once.
    ASSERT_TRUE(YarıMamulBağınıÇöz(Bağ(), "T2").Tamam());
    EXPECT_NE(Fiyat("T1"), önce);
    HerŞeyUyuyor();
}

TEST_F(YarıMamul, YazılamayanSonradanTamamlanır) {
    KatlarıKur();
    const QString önce = Fiyat("T5");
    {
        TestVerisi başkası(VeriDosyası());
        Veri().Çalıştır(Deyimler::YüzdeleriKaydet("80", "0", "0", "0", "G", "P1"));
        başkası.ElleOnayla();
        başkası.Çalıştır("DELETE FROM UrunTablosu WHERE UrunGrubu= 'yok'");
        EXPECT_FALSE(YarıMamulleriYürüt(Bağ(), {.Ürünler = {{"G", "P1"}}}).Sonuç.Tamam());
        başkası.Onayla();
    }
    EXPECT_EQ(Fiyat("T5"), önce);
    EXPECT_EQ(Durum("T1"), BağDurumu::Yazılamadı);
    ASSERT_TRUE(YarıMamulleriYürüt(Bağ(), {.Malzemeler = {"hiç"}}).Sonuç.Tamam());
    EXPECT_NE(Fiyat("T5"), önce);
    HerŞeyUyuyor();
}

TEST_F(YarıMamul, AğaçHerYoluSayar) {
    MalzemeEkle("Boya", "2");
    MalzemeEkle("Karışım", "1");
    MalzemeEkle("Ayak", "1");
    for (const char* ürün : {"Boya karışımı", "Ayak ürünü", "Masa"}) ÜrünEkle("G", ürün);
    KullanımEkle("G", "Boya karışımı", "Boya", "3 Kg", "2");
    KullanımEkle("G", "Boya karışımı", "Tiner", "1 Kg", "1");
    KullanımEkle("G", "Ayak ürünü", "Karışım", "0,5 Kg", "1");
    KullanımEkle("G", "Ayak ürünü", "Tahta", "2 Adet", "1");
    KullanımEkle("G", "Masa", "Ayak", "4 Adet", "1");
    KullanımEkle("G", "Masa", "Karışım", "1 Litre", "1");
    KullanımEkle("G", "Masa", "Tahta", "1 Adet", "1");
    KullanımEkle("G", "Masa", "Tahta", "bir Adet", "1");
    Bağla("Karışım", "Boya karışımı", TutarTürü::Birim);
    Bağla("Ayak", "Ayak ürünü", TutarTürü::Toplam);
    ÜrünAçılımı açılım;
    ASSERT_TRUE(açılım.Oku(Bağ(), {"G", "Masa"}).Tamam());
    QStringList sonuç;
    for (const AçılımToplamı& t : açılım.Toplamlar(10))
        sonuç +=
            QString("%1 %2 %3 %4 %5").arg(t.Malzeme).arg(t.Miktar).arg(t.Birim).arg(t.Okunamayan).arg(t.FarklıBirim);
    // 10 tables: 40 legs with 20 Kg of mixture, and 10 Litre of it; a quarter of each is thinner.
    EXPECT_EQ(sonuç, (QStringList{"Boya 22.5 Kg 0 1", "Tahta 90 Adet 1 0", "Tiner 7.5 Kg 0 1"}));
}

#include <QFile>

#include "Deyimler.h"
#include "DovizDeyimleri.h"
#include "GetirmePlani.h"
#include "VarnekTesti.h"
#include "YariMamulYayilimi.h"

// Products and materials from a backup: what is shown beforehand stands there afterwards, at today's prices; the way
// back leaves no trace.

namespace {

constexpr int BASAMAK = 2;

class Getirme : public VarnekTesti {
  protected:
    // The backup's contents, and data that have moved on since.
    void SetUp() override {
        VeriDosyasıOluştur(VeriDosyası());
        for (const char* ad : {"Çam", "Meşe", "Vida", "Ayak", "Karışım", "Cam"}) MalzemeEkle(ad, "10");
        ÜrünEkle("MASA", "Sehpa", {"10", "0", "0", "0"});
        KullanımEkle("MASA", "Sehpa", "Çam", "2 m", "10");
        KullanımEkle("MASA", "Sehpa", "Vida", "1 Adet", "10", "#3/7/2004#");
        KullanımEkle("MASA", "Sehpa", "Hiçbiri", "1 Adet", "7");
        ÜrünEkle("MASA", "Dolap");
        KullanımEkle("MASA", "Dolap", "Karışım", "3 kg", "10");
        ÜrünEkle("YARI", "Karışım");
        KullanımEkle("YARI", "Karışım", "Meşe", "1 m", "10");
        KullanımEkle("YARI", "Karışım", "Ayak", "1 Adet", "10");
        ÜrünEkle("MASA", "Aynı");
        KullanımEkle("MASA", "Aynı", "Çam", "1 m", "10");
        ÜrünEkle("RAF", "İkiz");
        ÜrünEkle("RAF", "İKİZ");
        for (const QString& deyim : Deyimler::YarıMamul::TablolarıOluştur()) Çalıştır(deyim);
        Çalıştır(Deyimler::YarıMamul::BağEkle(Saklanan({"Karışım", {"YARI", "Karışım"}, TutarTürü::Malzeme})));
        for (const QString& deyim : Deyimler::Döviz::TablolarıOluştur()) Çalıştır(deyim);
        Çalıştır(Deyimler::Döviz::BağEkle({"Cam", "EUR", Para::OnBindeBirden(5000), {}, {}, 0}));
        Yay();
        m_veri.reset();
        ASSERT_TRUE(QFile::copy(VeriDosyası(), Klasör() + "yedek.vtb"));
        Çalıştır("DELETE FROM UrunTablosu WHERE UrunAdi= 'Sehpa'");
        // One of its rows was left behind.
        for (const char* ad : {"Çam", "Hiçbiri"}) Çalıştır(Deyimler::KullanılanMalzemeÇıkar("MASA", "Sehpa", ad));
        for (const char* ad : {"Vida", "Ayak"}) Çalıştır(Deyimler::MalzemeSil(ad));
        Çalıştır("DELETE FROM UrunMalzemeTablosu WHERE UrunAdi= 'Karışım' AND KullanilanMalzemeAdi= 'Ayak'");
        for (const char* ad : {"Çam", "Meşe", "Cam"}) {
            Çalıştır(Deyimler::FiyatDeğiştir(ad, "25"));
            Çalıştır(Deyimler::ÜrünlerdeFiyatDeğiştir(ad, "25"));
        }
        KullanımEkle("MASA", "Aynı", "meşe", "1 m", "3,3333");  // another price than the catalogue's
        Yay();
    }

    void Yay() { ASSERT_TRUE(YarıMamulleriYürüt(Veri().Bağlantı(), {.Hepsi = true}).Sonuç.Tamam()); }

    // A plan over a fresh copy of the data.
    GetirmePlanı& Plan(const std::function<İşSonucu(GetirmePlanı& plan, OdbcBağlantısı& deneme)>& kur) {
        m_veri.reset();
        m_plan = std::make_unique<GetirmePlanı>();
        m_deneme.reset();
        QFile::remove(Klasör() + "deneme.vtb");
        QFile::copy(VeriDosyası(), Klasör() + "deneme.vtb");
        m_deneme = std::make_unique<TestVerisi>(Klasör() + "deneme.vtb");
        if (!m_yedek) m_yedek = std::make_unique<TestVerisi>(Klasör() + "yedek.vtb");
        EXPECT_TRUE(kur(*m_plan, m_deneme->Bağlantı()).Tamam());
        EXPECT_TRUE(m_plan->Dene().Tamam());
        return *m_plan;
    }
    GetirmePlanı& YedektenPlan() {
        return Plan([this](GetirmePlanı& plan, OdbcBağlantısı& deneme) {
            return plan.YedektenKur(deneme, m_yedek->Bağlantı(), BASAMAK);
        });
    }
    GetirmePlanı& DönüşPlanı(std::int64_t no, İşlemTürü tür) {
        return Plan([&](GetirmePlanı& plan, OdbcBağlantısı& deneme) {
            std::vector<Deyimler::Fiyat::İşlem> işlemler;
            EXPECT_TRUE(İşlemleriOku(deneme, işlemler).Tamam());
            for (const auto& işlem : işlemler)
                if (işlem.No == no) m_işlem = işlem;
            return plan.KayıttanKur(deneme, m_işlem, tür, BASAMAK);
        });
    }

    GetirmeSonucu Uygula(const GetirmePlanı& plan, İşlemTürü tür = İşlemTürü::Getir, const İlerleme& ilerleme = {}) {
        const bool kendisi = tür == İşlemTürü::Getir;
        return plan.Uygula(Veri().Bağlantı(), {tür, "x", kendisi ? 0 : m_işlem.No, kendisi ? 0 : m_işlem.GeriAlan},
                           "2026-11-23 10:00:00", ilerleme);
    }

    static void İşaretle(GetirmePlanı& plan, const QString& ad) {
        for (std::size_t i = 0; i < plan.Kalemler().size(); ++i)
            if (plan.Kalemler()[i].Ad == ad) plan.İşaretle(i, true);
    }

    // Name, tick ("x", "+" comes along, "-" cannot), amounts in the backup, now, afterwards.
    static QStringList Kalemler(const GetirmePlanı& plan) {
        QStringList satırlar;
        const auto tutar = [](const std::optional<Para>& t) {
            return t ? QString::number(t->Double()) : QString("yok");
        };
        for (const GetirmeKalemi& k : plan.Kalemler()) {
            const char* işaret = !Uygulanır(k.Neden) ? "-" : k.Birlikte ? "+" : k.İşaretli ? "x" : "";
            satırlar +=
                QString("%1 %2|%3|%4|%5").arg(k.Ad, işaret, tutar(k.Yedekteki), tutar(k.Şimdiki), tutar(k.Sonraki));
        }
        return satırlar;
    }

    // Every row but the operations' records; sorted, as rows put back come last in the file.
    QStringList Veriler() {
        QStringList satırlar;
        for (const QStringList& s : Veri().HerSatır())
            if (!s.first().contains("Degisim") && !s.first().startsWith("Fiyat")) satırlar += s.join('|');
        satırlar.sort();
        return satırlar;
    }

    std::unique_ptr<TestVerisi> m_deneme;
    std::unique_ptr<TestVerisi> m_yedek;
    std::unique_ptr<GetirmePlanı> m_plan;
    Deyimler::Fiyat::İşlem m_işlem;
};

TEST_F(Getirme, GösterilenNeyseOGelirVeGeriDöner) {
    GetirmePlanı& plan = YedektenPlan();
    EXPECT_EQ(Kalemler(plan).join("; "),
              "Aynı |10|28.33|28.33; Sehpa |40.7|yok|yok; İkiz -|0|0|0; Karışım |20|25|25; "
              "Ayak |10|yok|yok; Cam |10|25|25; Çam |10|25|25; Karışım -|20|25|25; Meşe |10|25|25; Vida |10|yok|yok");
    for (const char* ad : {"Sehpa", "Karışım", "Meşe"}) İşaretle(plan, ad);
    EXPECT_TRUE(plan.Dene().Tamam());
    // Pine at today's price, screws with the backup's; the sub-assembly follows; what is in no catalogue keeps its own.
    EXPECT_EQ(Kalemler(plan).join("; "),
              "Aynı |10|28.33|35; Sehpa x|40.7|yok|73.7; İkiz -|0|0|0; Karışım x|20|25|20; "
              "Ayak +|10|yok|10; Cam |10|25|25; Çam |10|25|25; Karışım -|20|25|20; Meşe x|10|25|10; Vida +|10|yok|10");
    EXPECT_EQ(plan.Özet().Diğer, 1) << "the cupboard, by the sub-assembly";
    const QStringList önce = Veriler();

    // Given up half way, and met by other data: nothing is written.
    EXPECT_EQ(Uygula(plan, İşlemTürü::Getir, [](std::int64_t biten) { return biten < 1; }).Uygulama.Son,
              UygulamaSonu::Vazgeçildi);
    Çalıştır(Deyimler::FiyatDeğiştir("Çam", "26"));
    EXPECT_EQ(Uygula(plan).Uygulama.Son, UygulamaSonu::Değişmiş);
    Çalıştır(Deyimler::FiyatDeğiştir("Çam", "25"));
    EXPECT_EQ(Veriler(), önce);

    ASSERT_EQ(Uygula(plan).Uygulama.Son, UygulamaSonu::Tamam);
    EXPECT_EQ(Oku("SELECT KullanilanMalzemeAdi, KullanilanMalzemeFiyati, KullanimTarihi FROM UrunMalzemeTablosu WHERE "
                  "UrunAdi= 'Sehpa' ORDER BY KullanilanMalzemeAdi"),
              "Çam|25|2026-11-22 00:00:00; Hiçbiri|7|2026-11-22 00:00:00; Vida|10|2004-03-07 00:00:00");
    EXPECT_EQ(Oku("SELECT KullanilanMalzemeFiyati FROM UrunMalzemeTablosu WHERE UrunAdi= 'Dolap'"), "20");
    const QStringList sonra = Veriler();

    GetirmePlanı& geri = DönüşPlanı(1, İşlemTürü::GeriAlma);
    EXPECT_EQ(geri.Özet().Ürün, 2);
    EXPECT_EQ(geri.Özet().Malzeme, 3);
    ASSERT_EQ(Uygula(geri, İşlemTürü::GeriAlma).Uygulama.Son, UygulamaSonu::Tamam);
    EXPECT_EQ(Veriler(), önce);
    GetirmePlanı& yine = DönüşPlanı(1, İşlemTürü::Yineleme);
    ASSERT_EQ(Uygula(yine, İşlemTürü::Yineleme).Uygulama.Son, UygulamaSonu::Tamam);
    EXPECT_EQ(Veriler(), sonra);

    // What was worked on stays as it is; what comes back takes today's prices, never those between.
    KullanımEkle("YARI", "Karışım", "Cam", "1 m", "25");
    Çalıştır(Deyimler::ÜrünlerdeFiyatDeğiştir("Vida", "12"));
    EXPECT_EQ(Kalemler(DönüşPlanı(1, İşlemTürü::GeriAlma)).mid(0, 2).join("; "),
              "Sehpa x|yok|75.9|yok; Karışım -|yok|45|60");
    Çalıştır(Deyimler::KullanılanMalzemeÇıkar("YARI", "Karışım", "Cam"));
    Çalıştır(Deyimler::FiyatDeğiştir("Meşe", "30"));
    Çalıştır(Deyimler::ÜrünlerdeFiyatDeğiştir("Meşe", "30"));
    GetirmePlanı& sonraki = DönüşPlanı(1, İşlemTürü::GeriAlma);
    İşaretle(sonraki, "Karışım");
    EXPECT_TRUE(sonraki.Dene().Tamam());
    ASSERT_EQ(Uygula(sonraki, İşlemTürü::GeriAlma).Uygulama.Son, UygulamaSonu::Tamam);
    EXPECT_EQ(Oku("SELECT KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu WHERE UrunAdi= "
                  "'Karışım'"),
              "Meşe|30");
}

TEST_F(Getirme, ÇemberKapanacaksaHiçbiriGelmez) {
    // In the backup the mixture is made of the table; today the table is made of the mixture.
    m_yedek = std::make_unique<TestVerisi>(Klasör() + "yedek.vtb");
    m_yedek->Çalıştır(
        "UPDATE UrunMalzemeTablosu SET KullanilanMalzemeAdi= 'Dolabın kendi' WHERE UrunAdi= 'Karışım' AND "
        "KullanilanMalzemeAdi= 'Ayak'");
    MalzemeEkle("Dolabın kendi", "10");
    Çalıştır(Deyimler::YarıMamul::BağEkle(Saklanan({"Dolabın kendi", {"MASA", "Dolap"}, TutarTürü::Malzeme})));
    Yay();
    GetirmePlanı& plan = YedektenPlan();
    const QStringList önce = Veriler();
    for (std::size_t i = 0; i < plan.Kalemler().size(); ++i)
        if (plan.Kalemler()[i].Ürün && plan.Kalemler()[i].Ad == "Karışım") plan.İşaretle(i, true);
    EXPECT_FALSE(plan.Dene().Çember.isEmpty());
    EXPECT_FALSE(Uygula(plan).Tamam());
    EXPECT_EQ(Veriler(), önce);
}

}  // namespace

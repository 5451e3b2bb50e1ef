#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "Deyimler.h"
#include "FiyatIslemi.h"
#include "DovizKayitlari.h"
#include "GeriAlma.h"
#include "MaliyetHesabi.h"
#include "MaliyetTablosu.h"
#include "MalzemeToplami.h"
#include "SayiMetni.h"
#include "VarnekTesti.h"

// Prices as a whole: what the plan says must be what the main form would show, and what is carried out or taken back
// must be all of it or nothing.

namespace {

constexpr int BASAMAK = 2;
const QString ZAMAN = QStringLiteral("2026-11-23 10:00:00");

class Fiyatİşlemi : public VarnekTesti {
  protected:
    void SetUp() override { VeriDosyasıOluştur(VeriDosyası()); }
    OdbcBağlantısı& Bağ() { return Veri().Bağlantı(); }

    // A catalogue with what real files hold: other prices than the catalogue's, rows that nothing tells apart, names
    // that differ in letter case, rows without product or material, quantities that cannot be read.
    void Doldur() {
        Veri().ElleOnayla();
        std::mt19937 rastgele(20261123);
        const auto sayı = [&](int en, int boy) { return std::uniform_int_distribution(en, boy)(rastgele); };
        const auto fiyat = [&] { return QString("%1,%2").arg(sayı(0, 900)).arg(sayı(1, 9999), 4, 10, QChar('0')); };
        QStringList fiyatlar;
        for (int i = 0; i < 30; ++i) {
            fiyatlar.append(fiyat());
            MalzemeEkle(QString("Çıta %1").arg(i), fiyatlar.last());
        }
        for (int i = 0; i < 12; ++i) ÜrünEkle("IŞIK", QString("Ürün %1").arg(i), {fiyat(), "7,125", "-2", "0"});
        ÜrünEkle("ışık", "ürün 3", {"1", "7,125", "-2", "0"});  // the same as IŞIK, Ürün 3, and later in the file
        const QString miktarlar[] = {"1 Adet", "2,5 Küçük Kutu", "0,3333 Metre", "1.250 m", "çok", "12.5 Adet"};
        for (int i = 0; i < 400; ++i) {
            const int malzeme = sayı(0, 31);
            KullanımEkle("Işık", QString("ÜRÜN %1").arg(sayı(0, 12)), QString("ÇITA %1").arg(malzeme),
                         miktarlar[sayı(0, 5)],
                         sayı(0, 3) == 0 ? QString::number(sayı(1, 3)) : fiyatlar.value(malzeme, "5"),
                         QString("#11/%1/2026#").arg(sayı(1, 2)));
        }
        Veri().Onayla();
    }

    // What the main form shows for each product: group, name, total.
    QStringList Toplamlar() {
        QStringList sonuç;
        for (const QStringList& ü : Veri().Oku("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunAdi")) {
            if (ü[0] == "ışık") continue;
            MalzemeToplamı toplam;
            for (const QStringList& k : Veri().Oku(Deyimler::KullanılanMalzemeler(ü[0], ü[1])))
                toplam.Ekle(k[0], NoktayıVirgüleÇevir(k[2]), BASAMAK);
            const QStringList y = Veri().Oku(Deyimler::Yüzdeler(ü[0], ü[1])).first();
            const auto kutu = [&y](int i) { return YüzdeMetni(y[i], BASAMAK); };
            const MaliyetGirdisi girdi{SayıBiçimle(toplam.Tutar(), BASAMAK), kutu(0), kutu(1), kutu(2), kutu(3)};
            sonuç += ü[1] + "=" + SayıBiçimle(MaliyetHesapla(girdi).Toplam, BASAMAK);
        }
        sonuç.sort();
        return sonuç;
    }

    static QStringList PlanınToplamları(const FiyatPlanı& plan, Para PlanÜrünü::*alan) {
        QStringList sonuç;
        for (const PlanÜrünü& ü : plan.Ürünler()) sonuç += ü.Ad + "=" + SayıBiçimle(ü.*alan, BASAMAK);
        sonuç.sort();
        return sonuç;
    }

    FiyatPlanı ZamPlanı(Para yüzde) {
        MalzemeKataloğu katalog;
        EXPECT_TRUE(katalog.Oku(Bağ()).Tamam());
        std::vector<FiyatÖnerisi> öneriler;
        for (const KatalogMalzemesi& m : katalog.Malzemeler) {
            const YeniFiyat yeni = FiyatıBelirle(m.Fiyat, KesinTutar(m.Fiyat).YüzdeEkle(yüzde), {});
            öneriler.push_back({m.Ad, m.Fiyat, yeni.Fiyat, NedenBul(yeni.Durum)});
        }
        FiyatPlanı plan;
        EXPECT_TRUE(plan.Kur(Bağ(), {öneriler, {}}, BASAMAK).Tamam());
        return plan;
    }

    FiyatPlanı DönüşPlanı(std::int64_t no, İşlemTürü tür) {
        FiyatTeklifi teklif;
        GeriAlmaEksikleri eksikler;
        std::vector<Deyimler::Fiyat::İşlem> işlemler;
        EXPECT_TRUE(İşlemleriOku(Bağ(), işlemler).Tamam());
        const auto işlem = std::find_if(işlemler.begin(), işlemler.end(), [no](const auto& i) { return i.No == no; });
        EXPECT_TRUE(GeriAlmaÖnerileri(Bağ(), *işlem, tür, teklif, eksikler).Tamam());
        FiyatPlanı plan;
        EXPECT_TRUE(plan.Kur(Bağ(), std::move(teklif), BASAMAK).Tamam());
        return plan;
    }

    FiyatPlanı KurPlanı(const QString& kur) {
        FiyatTeklifi teklif;
        QStringList eksikler;
        EXPECT_TRUE(
            KurÖnerileri(Bağ(), {"USD", {}, *ParaOku(kur), "", "2026-11-23", {}}, {}, teklif, eksikler).Tamam());
        FiyatPlanı plan;
        EXPECT_TRUE(plan.Kur(Bağ(), std::move(teklif), BASAMAK).Tamam());
        return plan;
    }

    UygulamaSonu Uygula(const FiyatPlanı& plan, İşlemTürü tür = İşlemTürü::Toplu, std::int64_t karşılığı = 0,
                        std::int64_t geriAlan = 0) {
        return FiyatlarıUygula(Bağ(), plan, {tür, "Zam", karşılığı, geriAlan}, ZAMAN).Son;
    }

    // Every row, sorted: rows deleted and put in again come last in the file.
    QStringList Fiyatlar() {
        QStringList satırlar;
        for (const QStringList& s : Veri().HerSatır()) satırlar += s.join('|');
        return satırlar;
    }
};

// What stands in one of the lists only.
QStringList Fark(QStringList a, QStringList b) {
    const QStringList ilki = a;
    for (const QString& satır : b) a.removeOne(satır);
    for (const QString& satır : ilki) b.removeOne(satır);
    return a + b;
}

}  // namespace

TEST(FiyatKuralı, BirKezVeDoğrudanAdımaYuvarlar) {
    struct Durum {
        const char* Eski;
        const char* Yüzde;
        std::int64_t Adım;
        YuvarlamaYönü Yön;
        const char* Yeni;
        FiyatDurumu Sonuç;
    };
    using enum FiyatDurumu;
    constexpr auto yakın = YuvarlamaYönü::EnYakın;
    const Durum durumlar[] = {
        {"0,0968", "5", 0, yakın, "0,1016", Değişir},
        {"0,0001", "50", 0, yakın, "0,0002", Değişir},  // 0,00015 and 0,00025: halves to even
        {"0,0005", "-50", 0, yakın, "0,0002", Değişir},
        {"10,00", "4,45", 1000, yakın, "10,40", Değişir},  // 10,445: not first to 10,45, then to 10,50
        {"10,00", "4,5", 1000, yakın, "10,50", Değişir},   // halves away from zero
        {"10,00", "0,01", 10000, YuvarlamaYönü::Yukarı, "11,00", Değişir},
        {"10,00", "-0,01", 10000, YuvarlamaYönü::Aşağı, "9,00", Değişir},
        {"10,30", "1", 10000, yakın, "10,30", TersineDöndü},  // 10,403 would become 10
        {"10,00", "1", 10000, yakın, "10,00", TersineDöndü},  // no change though a rise was meant
        {"10,00", "-96", 100000, YuvarlamaYönü::Aşağı, "10,00", SıfırYaDaAltı},
        {"10,00", "-100", 0, yakın, "10,00", SıfırYaDaAltı},
        {"1,00", "900,01", 0, yakın, "10,0001", Olağandışı},
        {"922337203685477,00", "900000", 0, yakın, "922337203685477,00", ÇokBüyük},
    };
    for (const Durum& d : durumlar) {
        SCOPED_TRACE(std::string(d.Eski) + " " + d.Yüzde + " " + std::to_string(d.Adım));
        const Para eski = *ParaOku(QString(d.Eski));
        const YeniFiyat y =
            FiyatıBelirle(eski, KesinTutar(eski).YüzdeEkle(*ParaOku(QString(d.Yüzde))), {d.Adım, d.Yön});
        EXPECT_EQ(y.Durum, d.Sonuç);
        EXPECT_EQ(y.Fiyat, *ParaOku(QString(d.Yeni)));
    }
    // A price for a box of 1.000 with a discount: 96,83 × 0,88 ÷ 1000 = 0,0852104
    const auto kutu = KesinTutar(*ParaOku(u"96,83")).YüzdeEkle(*ParaOku(u"-12"))->Böl(*ParaOku(u"1000"));
    EXPECT_EQ(Yuvarla(*kutu, {}), ParaOku(u"0,0852"));
}

TEST_F(Fiyatİşlemi, PlanAnaFormlaBirdir) {
    Doldur();
    const QStringList önce = Toplamlar();
    FiyatPlanı plan = ZamPlanı(*ParaOku(u"17,35"));
    EXPECT_EQ(PlanınToplamları(plan, &PlanÜrünü::Önce), önce);
    // Unticking and ticking again leaves no trace; the last material stays out.
    for (std::uint32_t i = 0; i < plan.Malzemeler().size(); ++i) plan.İşaretle(i, false);
    EXPECT_EQ(PlanınToplamları(plan, &PlanÜrünü::Sonra), önce);
    EXPECT_EQ(plan.Özet().Ürün, 0);
    for (std::uint32_t i = 0; i + 1 < plan.Malzemeler().size(); ++i) plan.İşaretle(i, true);
    ASSERT_EQ(Uygula(plan), UygulamaSonu::Tamam);
    EXPECT_EQ(Toplamlar(), PlanınToplamları(plan, &PlanÜrünü::Sonra));
}

TEST_F(Fiyatİşlemi, GeriAlmakVeYinelemekHerSatırıBulur) {
    Doldur();
    const QStringList önce = Fiyatlar();
    ASSERT_EQ(Uygula(ZamPlanı(*ParaOku(u"10"))), UygulamaSonu::Tamam);
    const QStringList sonra = Fiyatlar();
    ASSERT_NE(sonra, önce);
    ASSERT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::GeriAlma), İşlemTürü::GeriAlma, 1), UygulamaSonu::Tamam);
    EXPECT_EQ(Fark(Fiyatlar(), önce), QStringList());
    std::vector<Deyimler::Fiyat::İşlem> işlemler;
    ASSERT_TRUE(İşlemleriOku(Bağ(), işlemler).Tamam());
    EXPECT_FALSE(GeriAlınacakİşlem(işlemler));
    ASSERT_TRUE(YinelenecekİşlemiBul(işlemler));
    // Somewhere else it was taken back before this plan was carried out.
    EXPECT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::GeriAlma), İşlemTürü::GeriAlma, 1), UygulamaSonu::İşlemDeğişmiş);
    ASSERT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::Yineleme), İşlemTürü::Yineleme, 1, 2), UygulamaSonu::Tamam);
    EXPECT_EQ(Fark(Fiyatlar(), sonra), QStringList());
    ASSERT_TRUE(İşlemleriOku(Bağ(), işlemler).Tamam());
    EXPECT_TRUE(GeriAlınacakİşlem(işlemler));
    EXPECT_FALSE(YinelenecekİşlemiBul(işlemler));

    // What was changed since stays, unless it is ticked.
    Çalıştır(Deyimler::FiyatDeğiştir("çıta 4", "77"));
    const FiyatPlanı plan = DönüşPlanı(1, İşlemTürü::GeriAlma);
    for (const PlanMalzemesi& m : plan.Malzemeler())
        EXPECT_EQ(m.Malzeme == "Çıta 4", m.Neden == PlanNedeni::SonradanDeğişmiş && !m.İşaretli)
            << m.Malzeme.toStdString();
    ASSERT_EQ(Uygula(plan, İşlemTürü::GeriAlma, 1), UygulamaSonu::Tamam);
    EXPECT_EQ(Veri().Tek("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'Çıta 4'"), "77");
}

// A rate goes and comes back with its prices; a price changed by hand is not overwritten unasked.
TEST_F(Fiyatİşlemi, KurFiyatlarlaBirlikteGiderGelir) {
    Doldur();
    const auto tek = [this](const QString& deyim) { return QString::fromStdString(m_veri->Tek(deyim)); };
    const auto fiyat = [&tek](const QString& malzeme) {
        return tek("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= '" + malzeme + "'");
    };
    const auto kur = [&tek] { return tek("SELECT Kur FROM DovizTablosu WHERE DovizKodu= 'USD'"); };
    ASSERT_TRUE(DövizEkle(Bağ(), {"USD", *ParaOku(u"30"), "2026-01-01"}).Tamam());
    for (const QString malzeme : {"Çıta 4", "Çıta 5"}) {
        m_veri->Çalıştır("UPDATE MalzemeTablosu SET MalzemeFiyati= '8' WHERE MalzemeAdi= '" + malzeme + "'");
        ASSERT_TRUE(BağıYaz(Bağ(), {malzeme, "USD", *ParaOku(u"0,25"), *ParaOku(u"8"), {}, 0}).Tamam());
    }
    ASSERT_EQ(Uygula(KurPlanı("34,5678"), İşlemTürü::Kur), UygulamaSonu::Tamam);
    EXPECT_EQ(fiyat("Çıta 4"), "8.642");  // 0,25 × 34,5678 = 8,64195, the half to even
    EXPECT_EQ(kur(), "34.5678");
    m_veri->Çalıştır("UPDATE MalzemeTablosu SET MalzemeFiyati= '9' WHERE MalzemeAdi= 'Çıta 5'");
    FiyatPlanı plan = KurPlanı("40");
    ASSERT_EQ(plan.Malzemeler().size(), 2U);
    for (const PlanMalzemesi& m : plan.Malzemeler())
        EXPECT_EQ(m.Malzeme == "Çıta 5", m.Neden == PlanNedeni::ElleDeğişmiş && !m.İşaretli);
    ASSERT_EQ(Uygula(plan, İşlemTürü::Kur), UygulamaSonu::Tamam);
    EXPECT_EQ(QStringList({fiyat("Çıta 4"), fiyat("Çıta 5"), kur()}), QStringList({"10", "9", "40"}));

    // The first rate can no longer be taken back with its operation: another one stands.
    EXPECT_FALSE(DönüşPlanı(1, İşlemTürü::GeriAlma).DövizKuru());
    ASSERT_EQ(Uygula(DönüşPlanı(2, İşlemTürü::GeriAlma), İşlemTürü::GeriAlma, 2), UygulamaSonu::Tamam);
    EXPECT_EQ(QStringList({fiyat("Çıta 4"), fiyat("Çıta 5"), kur()}), QStringList({"8.642", "9", "34.5678"}));
    // What the taking back wrote is no change by hand.
    EXPECT_EQ(KurPlanı("41").Özet().Malzeme, 1);
    ASSERT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::GeriAlma), İşlemTürü::GeriAlma, 1), UygulamaSonu::Tamam);
    EXPECT_EQ(KurPlanı("41").Özet().Malzeme, 1);
    ASSERT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::Yineleme), İşlemTürü::Yineleme, 1, 4), UygulamaSonu::Tamam);
    ASSERT_EQ(Uygula(DönüşPlanı(2, İşlemTürü::Yineleme), İşlemTürü::Yineleme, 2, 3), UygulamaSonu::Tamam);
    EXPECT_EQ(QStringList({fiyat("Çıta 4"), kur()}), QStringList({"10", "40"}));
    EXPECT_EQ(KurPlanı("41").Özet().Malzeme, 1);
}

// Materials that an operation added go with it, unless somebody needs them by then.
TEST_F(Fiyatİşlemi, EklenenMalzemeKullanılmıyorsaGeriAlınır) {
    Doldur();
    FiyatTeklifi teklif;
    for (const char* ad : {"Yeni Bir", "Yeni İki", "Yeni Üç"}) {
        teklif.Öneriler.push_back({QString::fromUtf8(ad), {}, *ParaOku(u"5,5")});
        teklif.Öneriler.back().Malzemenin = Varlık::Eklendi;
    }
    FiyatPlanı plan;
    ASSERT_TRUE(plan.Kur(Bağ(), teklif, BASAMAK).Tamam());
    m_veri->Çalıştır("INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('YENİ ÜÇ', '7')");
    EXPECT_EQ(Uygula(plan, İşlemTürü::Liste), UygulamaSonu::Değişmiş);  // somebody else added it
    ASSERT_TRUE(plan.Kur(Bağ(), teklif, BASAMAK).Tamam());
    ASSERT_EQ(plan.Özet().Malzeme, 2);
    ASSERT_EQ(Uygula(plan, İşlemTürü::Liste), UygulamaSonu::Tamam);
    m_veri->Çalıştır(
        "INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
        "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#1/1/2026#, 'MASA', 'Masa', 'yeni iki', '1 Adet', "
        "'5,5')");
    const auto kalan = [this] {
        return m_veri->Tek("SELECT Count(*) FROM MalzemeTablosu WHERE MalzemeAdi= 'Yeni Bir'");
    };
    ASSERT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::GeriAlma), İşlemTürü::GeriAlma, 1), UygulamaSonu::Tamam);
    EXPECT_EQ(kalan(), "0");
    EXPECT_EQ(m_veri->Tek("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'Yeni İki'"), "5.5");
    ASSERT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::Yineleme), İşlemTürü::Yineleme, 1, 2), UygulamaSonu::Tamam);
    EXPECT_EQ(kalan(), "1");
}

// Row by row what the main form shows: material cost, the amounts form's figures, total, unit cost.
TEST_F(Fiyatİşlemi, MaliyetTablosuAnaFormunRakamlarınıVerir) {
    Doldur();
    m_veri->Çalıştır("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('BOŞ', 'Malzemesiz')");
    for (const int basamak : {1, 2, 5}) {
        std::vector<MaliyetTablosuSatırı> satırlar;
        ASSERT_TRUE(MaliyetTablosunuOku(Bağ(), basamak, satırlar).Tamam());
        QStringList tablo;
        QStringList form;
        for (const MaliyetTablosuSatırı& s : satırlar) {
            const auto sayı = [basamak](const std::optional<double>& d) {
                return d ? *SayıBiçimle(*d, basamak) : QString();
            };
            QStringList metin{s.Grup, s.Ad, SayıBiçimle(s.MalzemeMaliyeti, basamak), SayıBiçimle(s.Toplam, basamak)};
            for (const auto& tutar : s.Tutarlar) metin += sayı(tutar);
            tablo += (metin << sayı(s.BirimMaliyet)).join('|');
            MalzemeToplamı toplam;
            for (const QStringList& k : Veri().Oku(Deyimler::KullanılanMalzemeler(s.Grup, s.Ad)))
                toplam.Ekle(k[0], NoktayıVirgüleÇevir(k[2]), basamak);
            const QStringList y = Veri().Oku(Deyimler::Yüzdeler(s.Grup, s.Ad)).first();
            const auto kutu = [&](int i) { return YüzdeMetni(y[i], basamak); };
            const MaliyetGirdisi girdi{SayıBiçimle(toplam.Tutar(), basamak), kutu(0), kutu(1), kutu(2), kutu(3)};
            const QString maliyet = SayıBiçimle(MaliyetHesapla(girdi).Toplam, basamak);
            metin = {s.Grup, s.Ad, girdi.MalzemeMaliyeti, maliyet};
            for (int i = 0; i < 4; ++i) metin += sayı(YüzdeTutarı(girdi.MalzemeMaliyeti, kutu(i)));
            const bool birimli = !toplam.BirimlerFarklı();
            form += (metin << sayı(birimli ? BirimMaliyet(maliyet, toplam.ToplamMiktar()) : std::nullopt)).join('|');
        }
        EXPECT_EQ(Fark(tablo, form), QStringList());
        EXPECT_EQ(satırlar.front().Dikkat, unsigned{MalzemesiYok});  // BOŞ stands first
        EXPECT_EQ(satırlar.size(), 13U);                             // one of the 14 is listed twice
    }
}

// Whatever another client did since the plan was made, nothing is written.
TEST_F(Fiyatİşlemi, DeğişenVeriyeYazılmaz) {
    Doldur();
    const QString değişimler[] = {
        Deyimler::FiyatDeğiştir("Çıta 29", "3"),
        Deyimler::ÜrünlerdeFiyatDeğiştir("Çıta 29", "123"),
        Deyimler::MalzemeyiÜrünlerdenSil("Çıta 29"),
        Deyimler::MalzemeSil("Çıta 29"),
    };
    for (const QString& değişim : değişimler) {
        SCOPED_TRACE(değişim.toStdString());
        const FiyatPlanı plan = ZamPlanı(*ParaOku(u"10"));
        TestVerisi(VeriDosyası()).Çalıştır(değişim);
        const QStringList önce = Fiyatlar();
        EXPECT_EQ(Uygula(plan), UygulamaSonu::Değişmiş);
        EXPECT_EQ(Fark(Fiyatlar(), önce), QStringList());
        // The connection writes each statement at once again.
        MalzemeEkle("Yeni", "1");
        TestVerisi(VeriDosyası()).Çalıştır(Deyimler::MalzemeSil("Yeni"));
        EXPECT_EQ(Fiyatlar(), önce);
    }
    const QStringList önce = Fiyatlar();
    const UygulamaSonucu bırakılan =
        FiyatlarıUygula(Bağ(), ZamPlanı(*ParaOku(u"10")), {}, ZAMAN, [](std::int64_t biten) { return biten < 12; });
    EXPECT_EQ(bırakılan.Son, UygulamaSonu::Vazgeçildi);
    EXPECT_EQ(Fark(Fiyatlar(), önce), QStringList());
}

TEST_F(Fiyatİşlemi, ÖldürülenYarımBırakmaz) {
    Doldur();
    const FiyatPlanı plan = ZamPlanı(*ParaOku(u"10"));
    const QStringList önce = Fiyatlar();
    m_veri.reset();
    bool yazıldı = false;
    int tur = 1;
    for (; tur < 40 && !yazıldı; tur += 3) {  // the last ones are killed after the commit
        const pid_t çocuk = fork();
        if (çocuk == 0) {
            TestVerisi veri(VeriDosyası());
            static_cast<void>(FiyatlarıUygula(veri.Bağlantı(), plan, {}, ZAMAN, [tur](std::int64_t biten) {
                return biten != tur || kill(getpid(), SIGKILL) == 0;
            }));
            kill(getpid(), SIGKILL);
        }
        int durum = 0;
        waitpid(çocuk, &durum, 0);
        yazıldı = Fiyatlar() != önce;
        bool var = false;
        ASSERT_TRUE(FiyatTablolarıVar(Bağ(), var).Tamam());
        ASSERT_EQ(var, yazıldı) << "a record without prices, or prices without a record";
        m_veri.reset();
    }
    EXPECT_TRUE(yazıldı && tur > 4);
    ASSERT_EQ(Uygula(DönüşPlanı(1, İşlemTürü::GeriAlma), İşlemTürü::GeriAlma, 1), UygulamaSonu::Tamam);
    EXPECT_EQ(Fark(Fiyatlar(), önce), QStringList());
}

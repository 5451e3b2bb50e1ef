#include <sys/wait.h>
#include <unistd.h>

#include "ArsivFarki.h"
#include "DoluDisk.h"
#include "MaliyetTablosu.h"
#include "VarnekTesti.h"

// Archives of cost sheets: all of it or nothing, never changed unseen, compared by name.

namespace {

class ArşivTesti : public VarnekTesti {
  protected:
    void SetUp() override {
        VeriDosyasıOluştur(VeriDosyası());
        MalzemeEkle("Çam", "100,125");
        MalzemeEkle("Vida", "0,3333");
        ÜrünEkle("IŞIK", "Avize", {"12,5", "7,125", "-2", "0"});
        KullanımEkle("IŞIK", "Avize", "Çam", "2,5 Metre", "100,125");
        KullanımEkle("ışık", "avize", "Vida", "0,33333 Kutu", "0,3333");
        ÜrünEkle("IŞIK", "Lamba", {"1", "0", "0", "0"});
        KullanımEkle("IŞIK", "Lamba", "Vida", "çok", "1");
        ÜrünEkle("MASA", "Sehpa");
    }
    OdbcBağlantısı& Bağ() { return Veri().Bağlantı(); }

    Başlık Arşivle(const Kapsam& kapsam = {}, const QString& gün = "2026-11-23") {
        Başlık yeni{0, gün, "Not", kapsam};
        EXPECT_TRUE(::Arşivle(Bağ(), yeni).Tamam());
        return yeni;
    }

    // "Avize+ Lamba-": the sheets, + for those that are what their digest says.
    QString Föyler(const Başlık& arşiv) {
        QStringList metin;
        EXPECT_TRUE(FöyleriOku(Bağ(), arşiv, [&](OkunanFöy& föy) -> İşSonucu {
                        metin += föy.Föy.Ürün + (föy.Sağlam ? '+' : '-');
                        return {};
                    }).Tamam());
        return metin.join(' ');
    }

    // Group, product and what became of it, with the former name in brackets.
    QString Farklar(const Başlık& eski, const std::optional<Başlık>& yeni = {}) {
        ArşivFarkı fark;
        EXPECT_TRUE(GünleriKarşılaştır(Bağ(), eski, yeni, fark).Tamam());
        QStringList metin;
        for (const ÜrünFarkı& ü : fark.Ürünler)
            metin += QString(ü.Bozuk ? "!" : "") + (!ü.Eski ? "yeni " : !ü.Yeni ? "silinmiş " : "") + ü.Adı().Ürün;
        if (fark.EksikFöy) metin += QString("eksik %1").arg(fark.EksikFöy);
        return metin.join(", ");
    }
};

TEST_F(ArşivTesti, AğacınSırasındaHepsiniAlırVeEksiğiSöyler) {
    const Başlık arşiv = Arşivle();
    EXPECT_EQ(arşiv.No, 1);
    EXPECT_EQ(arşiv.FöySayısı, 3);
    EXPECT_EQ(Föyler(arşiv), "Avize+ Lamba+ Sehpa+");
    std::optional<OkunanFöy> föy;
    ASSERT_TRUE(FöyüOku(Bağ(), arşiv, 1, föy).Tamam() && föy);
    EXPECT_TRUE(föy->Sağlam);
    EXPECT_EQ(föy->Föy.Satırlar.size(), 2u) << "letter case makes no other product";
    EXPECT_EQ(föy->Föy.Satırlar[1].Miktar, "0,33333 Kutu");
    EXPECT_EQ(föy->Föy.Satırlar[1].MiktarMetni, "0,33 Kutu");
    std::vector<FöyBaşlığı> liste;
    ASSERT_TRUE(FöyListesiniOku(Bağ(), arşiv.No, liste).Tamam());
    EXPECT_EQ(liste[1].Dikkat, OkunamayanMiktar | ToplamSıfır);
    EXPECT_TRUE(FöyEksik(liste[1].Dikkat));
    EXPECT_EQ(liste[2].Dikkat, MalzemesiYok);
    EXPECT_EQ(Arşivle({"ışık", "LAMBA"}).FöySayısı, 1);
    EXPECT_EQ(Arşivle({"MASA", ""}).FöySayısı, 1);
    // Deleting takes an archive whole, and no other.
    ASSERT_TRUE(ArşiviSil(Bağ(), 1).Tamam());
    EXPECT_EQ(Oku("SELECT ArsivNo FROM ArsivTablosu ORDER BY ArsivNo ASC"), "2; 3");
    EXPECT_EQ(Oku("SELECT DISTINCT ArsivNo FROM ArsivFoyTablosu ORDER BY ArsivNo ASC"), "2; 3");
    EXPECT_EQ(Oku("SELECT Count(*) FROM ArsivSatirTablosu"), "1");
}

// A text that no column holds ends in a mark, on the sheet and in the archive's list.
TEST_F(ArşivTesti, SığmayanMetinSessizceKesilmez) {
    KullanımEkle("MASA", "Sehpa", "Çam", "1000000 " + QString(247, 'b'), "1");
    const Başlık arşiv = Arşivle({"MASA", "Sehpa"});
    std::optional<OkunanFöy> föy;
    ASSERT_TRUE(FöyüOku(Bağ(), arşiv, 1, föy).Tamam() && föy);
    EXPECT_TRUE(föy->Föy.Satırlar[0].MiktarMetni.endsWith(QChar(u'…')));
    EXPECT_TRUE(föy->Föy.Dikkat & MetinKısaltıldı);
    EXPECT_TRUE(föy->Sağlam);
    EXPECT_EQ(föy->Föy.Toplam, Para::OnBindeBirden(10'000'000'000));
}

TEST_F(ArşivTesti, DeğiştirilenBulunur) {
    const Başlık arşiv = Arşivle();
    const std::pair<const char*, const char*> değişiklikler[] = {
        {"UPDATE ArsivSatirTablosu SET Fiyat= '0,3334' WHERE MalzemeAdi= 'Vida' AND FoyNo= '1'",
         "UPDATE ArsivSatirTablosu SET Fiyat= '0,3333' WHERE MalzemeAdi= 'Vida' AND FoyNo= '1'"},
        {"UPDATE ArsivSatirTablosu SET MalzemeAdi= 'ÇAM' WHERE SatirNo= '1' AND FoyNo= '1'",
         "UPDATE ArsivSatirTablosu SET MalzemeAdi= 'Çam' WHERE SatirNo= '1' AND FoyNo= '1'"},
        {"UPDATE ArsivFoyTablosu SET ToplamMetni= '1,00' WHERE FoyNo= '1'", nullptr},
    };
    for (const auto& [boz, düzelt] : değişiklikler) {
        Çalıştır(boz);
        EXPECT_EQ(Föyler(arşiv), "Avize- Lamba+ Sehpa+") << boz;
        EXPECT_EQ(Farklar(arşiv), "!Avize, Lamba, Sehpa") << boz;
        if (düzelt) Çalıştır(düzelt);
    }
    // A row and a sheet that are gone; the heading, which all sheets know.
    Çalıştır("DELETE FROM ArsivSatirTablosu WHERE FoyNo= '2'");
    EXPECT_EQ(Föyler(arşiv), "Avize- Lamba- Sehpa+");
    Çalıştır("DELETE FROM ArsivFoyTablosu WHERE FoyNo= '2'");
    EXPECT_EQ(Farklar(arşiv), "!Avize, yeni Lamba, Sehpa, eksik 1");
    Çalıştır("UPDATE ArsivTablosu SET ArsivGunu= '2026-01-01' WHERE ArsivNo= '1'");
    std::vector<Başlık> arşivler;
    ASSERT_TRUE(ArşivleriOku(Bağ(), arşivler).Tamam());
    EXPECT_EQ(Föyler(arşivler.front()), "Avize- Sehpa-");
}

// Nothing is left behind, whether the tables were there before or not.
TEST_F(ArşivTesti, YarımKalanİzBırakmaz) {
    for (const bool tablolarVar : {false, true}) {
        if (tablolarVar) Arşivle();
        const QList<QStringList> önce = Veri().HerSatır();
        for (const std::int64_t kaçıncı : {0, 2, 3}) {
            Başlık yeni{0, "2026-11-23"};
            const İşSonucu sonuç = ::Arşivle(Bağ(), yeni, [&](std::int64_t okunan) { return okunan < kaçıncı; });
            EXPECT_EQ(sonuç.Son, İşSonu::Vazgeçildi);
            EXPECT_EQ(Veri().HerSatır(), önce) << tablolarVar << kaçıncı;
        }
        Başlık boş{0, "2026-11-23", "", {"YOK", "Yok"}};
        EXPECT_TRUE(::Arşivle(Bağ(), boş).Tamam());
        EXPECT_EQ(boş.FöySayısı, 0);
        EXPECT_EQ(Veri().HerSatır(), önce);
    }
    // A row of an archive that is not there yet stands in the way of the last sheet but one.
    Çalıştır(
        "INSERT INTO ArsivSatirTablosu (ArsivNo, FoyNo, SatirNo, MalzemeAdi, MiktarMetni, FiyatMetni, TutarMetni, "
        "Miktar, "
        "Fiyat, Sayildi) VALUES ('2', '2', '1', 'x', '', '', '', '', '0', '1')");
    const QList<QStringList> önce = Veri().HerSatır();
    Başlık yeni{0, "2026-11-23"};
    EXPECT_EQ(::Arşivle(Bağ(), yeni).Son, İşSonu::Olmadı);
    EXPECT_EQ(Veri().HerSatır(), önce);
    // A full disk, seen at the commit at the latest.
    {
        const DoluDisk dolu;
        Başlık tek{0, "2026-11-23", "", {"MASA", ""}};  // which nothing else stands in the way of
        EXPECT_EQ(::Arşivle(Bağ(), tek).Son, İşSonu::Olmadı);
    }
    EXPECT_EQ(Veri().HerSatır(), önce);
    // A process that dies in the middle.
    m_veri.reset();
    const pid_t çocuk = fork();
    if (çocuk == 0) {
        TestVerisi veri(VeriDosyası());
        Başlık kendisi{0, "2026-11-23"};
        static_cast<void>(::Arşivle(veri.Bağlantı(), kendisi, [](std::int64_t okunan) {
            if (okunan == 3) _exit(0);
            return true;
        }));
        _exit(1);
    }
    int durum = 0;
    ASSERT_EQ(waitpid(çocuk, &durum, 0), çocuk);
    EXPECT_EQ(durum, 0);
    EXPECT_EQ(Veri().HerSatır(), önce);
}

TEST_F(ArşivTesti, GünlerAdaGöreKarşılaştırılır) {
    const Başlık ilk = Arşivle();
    EXPECT_EQ(Farklar(ilk), "Avize, Lamba, Sehpa");
    Çalıştır("UPDATE UrunTablosu SET UrunAdi= 'Kandil' WHERE UrunGrubu= 'IŞIK' AND UrunAdi= 'Avize'");
    Çalıştır("UPDATE UrunMalzemeTablosu SET UrunAdi= 'Kandil' WHERE UrunGrubu= 'IŞIK' AND UrunAdi= 'Avize'");
    Çalıştır("UPDATE UrunTablosu SET UrunAdi= 'LAMBA' WHERE UrunAdi= 'Lamba'");
    Çalıştır("DELETE FROM UrunTablosu WHERE UrunAdi= 'Sehpa'");
    EXPECT_EQ(Farklar(ilk), "yeni Kandil, LAMBA, silinmiş Avize, silinmiş Sehpa");
    // Two scopes: only what both take in counts.
    const Başlık ikinci = Arşivle({"IŞIK", ""}, "2026-11-24");
    EXPECT_EQ(Farklar(ilk, ikinci), "yeni Kandil, LAMBA, silinmiş Avize");
    EXPECT_EQ(Farklar(Arşivle({"ışık", "lamba"})), "LAMBA");
    // Under its former name.
    Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '200,25' WHERE KullanilanMalzemeAdi= 'Çam'");
    std::vector<FöyYeri> eskiler;
    ASSERT_TRUE(FöyYerleriniOku(Bağ(), ilk, eskiler).Tamam());
    std::optional<ÜrünFarkı> fark;
    ASSERT_TRUE(FöyleriKarşılaştır(Bağ(), eskiler[0], {{}, 0, "IŞIK", "Kandil"}, fark).Tamam() && fark);
    ASSERT_EQ(fark->Ayrım.Kalemler.size(), 1u);
    EXPECT_EQ(fark->Ayrım.Kalemler[0].Tür, FarkTürü::Fiyat);
    EXPECT_EQ(fark->Ayrım.Kalemler[0].Tutar, TutarFarkı(fark->YeniToplam, fark->EskiToplam));
    std::vector<ArşivToplamı> toplamlar;
    ASSERT_TRUE(ÜrününToplamları(Bağ(), {"IŞIK", "avize"}, toplamlar).Tamam());
    ASSERT_EQ(toplamlar.size(), 1u);
    EXPECT_EQ(toplamlar[0].Toplam, fark->EskiToplam);
}

}  // namespace

#include <csignal>

#include "AccessUreteci.h"
#include "MotorTesti.h"

TEST_F(MotorTesti, AccessDosyasınaBağlanıncaOnuAlır) {
    const AccessÜreteci örnek;
    örnek.Yaz(Yol("a.vtb"));
    // A crash's journal of the file that lay there before must not be played back into this one.
    {
        TestVerisi önceki(m_dosya);
        önceki.ElleOnayla();
        önceki.Çalıştır(MalzemeEkle("Çıta", "1"));
        DosyaYaz(Yol("a.vtb-journal"), DosyaOku(m_dosya + "-journal"));
        ASSERT_GT(DosyaOku(Yol("a.vtb-journal")).size(), 500U);
    }
    // A host program that waits for no children of its own.
    const auto önceki = std::signal(SIGCHLD, SIG_IGN);
    TestVerisi bağ;
    EXPECT_EQ(bağ.Bağlan(Tanım(Yol("a.vtb"))).Kod, 0);
    std::signal(SIGCHLD, önceki);
    EXPECT_EQ(bağ.Tek("SELECT Count(UrunAdi) AS KayitSayisi FROM UrunMalzemeTablosu"), "6");
    EXPECT_EQ(DosyaOku(Yol("a.vtb.access")), örnek.Baytlar());

    // Looking at the header takes no lock away: a second connection of the same process ends, the first keeps writing.
    bağ.ElleOnayla();
    bağ.Çalıştır(MalzemeEkle("Çıta", "1"));
    EXPECT_EQ(TestVerisi().Bağlan(Tanım(Yol("a.vtb"))).Kod, 0);
    EXPECT_TRUE(AyrıcalıksızSüreçte(
        [this] { return TestVerisi(Yol("a.vtb")).Dene(MalzemeEkle("Öbürü", "1")).Durum == "S1T00"; }));
    bağ.Onayla();

    DosyaYaz(Yol("kesik.vtb"), örnek.Baytlar().substr(0, 32 * 4096));
    const std::vector<std::string> önce = Klasördekiler();
    const TestSonucu kesik = TestVerisi().Bağlan(Tanım(Yol("kesik.vtb")));
    EXPECT_EQ(kesik.Durum, "08001");
    EXPECT_NE(kesik.Mesaj.find("Access dosyası bozuk"), std::string::npos) << kesik.Mesaj;
    EXPECT_EQ(Klasördekiler(), önce);
}

TEST_F(MotorTesti, AccessDosyasındanSıkıştırmakKaynağıOlduğuGibiBırakır) {
    AccessÜreteci dosya;
    dosya.SatırlarıKoy("MalzemeTablosu", {{AccessÜreteci::Metin(u"Çıta"), std::nullopt}});
    dosya.Yaz(Yol("eski.ydk"));
    std::vector<std::string> önce = Klasördekiler();
    EXPECT_TRUE(Sıkıştır(Yol("eski.ydk"), Yol("yeni.vtb"), "yanlış"));
    EXPECT_EQ(Klasördekiler(), önce);
    EXPECT_EQ(DosyaOku(Yol("eski.ydk")), dosya.Baytlar());
    const std::optional<std::string> hata = Sıkıştır(Yol("eski.ydk"), m_dosya);
    EXPECT_FALSE(hata) << *hata;
    EXPECT_EQ(DosyaOku(Yol("eski.ydk")), dosya.Baytlar());
    TestVerisi bağ(m_dosya);
    EXPECT_EQ(bağ.Oku(HerMalzeme), (Satırlar{{QStringLiteral("Çıta"), QStringLiteral("0")}}));
    önce.push_back("Varnek.vtb.access.txt");
    std::sort(önce.begin(), önce.end());
    EXPECT_EQ(Klasördekiler(), önce);
}

#include "Ariza.h"

#include "MotorTesti.h"

// What was confirmed is there and what was refused is not, wherever the disk fails.

namespace {

const std::string HepsiniSil = "DELETE FROM MalzemeTablosu WHERE MalzemeFiyati= '7'";

}  // namespace

// A transaction that SQLite undid in its middle must not go on as if nothing had happened.
TEST_F(MotorTesti, YarıdaGeriAlınanHareket) {
    constexpr int satır = 39;
    {
        TestVerisi bağ(m_dosya);
        KullanılanEkle(bağ, 200);
    }
    int reddedilen = 0;
    bool vurdu = true;
    for (int n = 1; vurdu; ++n) {
        TestVerisi bağ(m_dosya);
        SQLSetConnectOption(bağ.Tanıtıcı(), SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
        Arıza::Başlat(Arıza::Tür::Yazma, n, false);
        std::size_t yazılan = 0;
        for (int i = 0; i < satır; ++i) {
            const TestSonucu sonuç = bağ.Dene(MalzemeEkle(std::to_string(i) + Tekrar("x", 240), "7"));
            yazılan += sonuç.Kod == SQL_SUCCESS;
            reddedilen += sonuç.Durum == "40001";
        }
        const bool onaylandı = SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_COMMIT) == SQL_SUCCESS;
        vurdu = Arıza::Bitir();
        if (!onaylandı) {
            const bool açık = bağ.Dene(HepsiniSil).Durum == "40001";
            EXPECT_TRUE(açık) << "a statement before the rollback, fault " << n;
            EXPECT_EQ(SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_COMMIT), SQL_ERROR) << n;
            EXPECT_EQ(SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_ROLLBACK), SQL_SUCCESS) << n;
        }
        ASSERT_EQ(bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu").size(), onaylandı ? yazılan : 0) << n;
        bağ.Çalıştır(HepsiniSil);
        ASSERT_EQ(SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_COMMIT), SQL_SUCCESS) << n;
    }
    EXPECT_GT(reddedilen, 0) << "no fault fell between two statements";
}

// The change is valid by then, so its message must not deny it.
TEST_F(MotorTesti, KlasörEşitlenemezse) {
    TestVerisi bağ(m_dosya);
    Arıza::Başlat(Arıza::Tür::KlasörEşitleme, 1, false);
    const TestSonucu sonuç = bağ.Dene(MalzemeEkle("a", "1"));
    EXPECT_TRUE(Arıza::Bitir());
    EXPECT_EQ(sonuç.Kod, SQL_ERROR);
    EXPECT_EQ(sonuç.Mesaj.find("değişmedi"), std::string::npos) << sonuç.Mesaj;
    EXPECT_EQ(TestVerisi(m_dosya).Oku(HerMalzeme).size(), 1u);
}

#include "DoluDisk.h"
#include "MotorTesti.h"

// A transaction that SQLite undid in its middle must not go on as if nothing had happened: what was confirmed is there
// and what was refused is not, wherever the disk fails.
TEST_F(MotorTesti, YarıdaGeriAlınanHareket) {
    constexpr qsizetype satır = 39;
    const std::string hepsiniSil = "DELETE FROM MalzemeTablosu WHERE MalzemeFiyati= '7'";
    {
        TestVerisi bağ(m_dosya);
        KullanılanEkle(bağ, 200);
    }
    int reddedilen = 0;
    qsizetype yazılan = 0;
    for (rlim_t boy = 600; yazılan < satır; boy += 1000) {
        TestVerisi bağ(m_dosya);
        SQLSetConnectOption(bağ.Tanıtıcı(), SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
        yazılan = 0;
        bool onaylandı = false;
        {
            const DoluDisk dolu(boy);
            for (int i = 0; i < satır; ++i) {
                const TestSonucu sonuç = bağ.Dene(MalzemeEkle(std::to_string(i) + Tekrar("x", 240), "7"));
                yazılan += sonuç.Kod == SQL_SUCCESS;
                reddedilen += sonuç.Durum == "40001";
            }
            onaylandı = SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_COMMIT) == SQL_SUCCESS;
        }
        if (!onaylandı) {
            yazılan = 0;
            EXPECT_EQ(bağ.Dene(hepsiniSil).Durum, "40001") << "a statement before the rollback, " << boy;
            EXPECT_EQ(SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_COMMIT), SQL_ERROR) << boy;
            EXPECT_EQ(SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_ROLLBACK), SQL_SUCCESS) << boy;
        }
        ASSERT_EQ(bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu").size(), yazılan) << boy;
        bağ.Çalıştır(hepsiniSil);
        ASSERT_EQ(SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_COMMIT), SQL_SUCCESS) << boy;
    }
    EXPECT_GT(reddedilen, 0) << "no fault fell between two statements";
}

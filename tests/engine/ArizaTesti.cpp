#include "Ariza.h"

#include "MotorTesti.h"

// What was confirmed is there and what was refused is not, wherever disk or memory fail.

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

// Memory that is gone for one moment or for good, at any call into the driver: a failure, never an end of the program.
TEST_F(MotorTesti, BellekBiterse) {
    const QString tanım = BağlantıMetni(TestMetni(m_dosya));
    const std::string ekle = MalzemeEkle("a", "7");
    const std::string bozuk = "SELECT X FROM MalzemeTablosu WHERE A= '" + Tekrar("ş", 200) + "'";
    for (const bool sürekli : {false, true}) {
        bool vurdu = true;
        for (int n = 1; vurdu; ++n) {
            OdbcBağlantısı bağ;
            ASSERT_TRUE(bağ.OrtamAç() == SQL_SUCCESS && bağ.BağlantıAç() == SQL_SUCCESS);
            Arıza::Başlat(Arıza::Tür::Bellek, n, sürekli);
            const SQLRETURN kod = bağ.Bağlan(tanım);
            vurdu = Arıza::Bitir();
            EXPECT_TRUE(vurdu || SQL_SUCCEEDED(kod));
        }
        TestVerisi bağ(m_dosya);
        vurdu = true;
        for (int n = 1; vurdu; ++n) {
            Arıza::Başlat(Arıza::Tür::Bellek, n, sürekli);
            bool eklendi = false;
            for (const std::string* sql : {&ekle, &bozuk}) {
                SQLHSTMT deyim = nullptr;
                if (!SQL_SUCCEEDED(SQLAllocStmt(bağ.Tanıtıcı(), &deyim))) continue;
                auto* metin = reinterpret_cast<SQLCHAR*>(const_cast<char*>(sql->c_str()));
                eklendi = SQLExecDirect(deyim, metin, SQL_NTS) == SQL_SUCCESS || eklendi;
                SQLCHAR durum[6] = "";
                SQLError(nullptr, nullptr, deyim, durum, nullptr, nullptr, 0, nullptr);
                SQLFreeStmt(deyim, SQL_DROP);
            }
            vurdu = Arıza::Bitir();
            ASSERT_EQ(bağ.Oku(HerMalzeme).size(), eklendi ? 1u : 0u) << n;
            bağ.Çalıştır(HepsiniSil);
        }
    }
}

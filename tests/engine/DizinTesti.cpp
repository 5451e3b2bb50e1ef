#include "MotorTesti.h"
#include "Veritabani.h"

// How SQLite carries out each of the program's statements in a file of the data-file tool: straight to the rows by an
// index, in the order asked for without sorting.
TEST_F(MotorTesti, HerDeyimDizindenYürür) {
    const std::string ürün = "WHERE UrunGrubu= 'G' AND UrunAdi= 'U'";
    const struct {
        std::string Sql;
        std::string Plan;
    } durumlar[] = {
        {"SELECT DISTINCT UrunGrubu FROM UrunTablosu ORDER BY UrunGrubu ASC",
         "SCAN UrunTablosu USING COVERING INDEX UrunSirasi"},
        {HerMalzeme, "SCAN MalzemeTablosu USING INDEX MalzemeSirasi"},
        {"UPDATE MalzemeTablosu SET MalzemeFiyati= '1' WHERE MalzemeAdi= 'M'",
         "SEARCH MalzemeTablosu USING INDEX MalzemeSirasi (MalzemeAdi=?)"},
        {"SELECT IscilikYuzdesi FROM UrunTablosu " + ürün,
         "SEARCH UrunTablosu USING INDEX UrunSirasi (UrunGrubu=? AND UrunAdi=?)"},
        {"SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi FROM UrunMalzemeTablosu " + ürün +
             " ORDER BY KullanilanMalzemeAdi ASC",
         "SEARCH UrunMalzemeTablosu USING INDEX UrununMalzemeleri (UrunGrubu=? AND UrunAdi=?)"},
        {"SELECT KullanilanMalzemeAdi FROM UrunMalzemeTablosu WHERE KullanimTarihi = #3/7/2004# ORDER BY UrunAdi ASC",
         "SEARCH UrunMalzemeTablosu USING INDEX GununHareketleri (KullanimTarihi=?)"},
        {"UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '1' WHERE KullanilanMalzemeAdi= 'M'",
         "SEARCH UrunMalzemeTablosu USING INDEX MalzemeninUrunleri (KullanilanMalzemeAdi=?)"},
    };
    Motor::Veritabanı veri(m_dosya, Parola);
    const Motor::AçıkDosya dosya = Motor::VeriDosyasıAç(m_dosya, Parola);
    for (const auto& durum : durumlar) {
        Motor::SqliteDeyimi açıkla(dosya.Vt.get(), "EXPLAIN QUERY PLAN " + veri.Çevir(durum.Sql).Sql);
        std::string plan;
        while (açıkla.Adım()) plan += std::string(açıkla.Metin(3)) + ";";
        EXPECT_EQ(plan, durum.Plan + ";") << durum.Sql;
    }
}

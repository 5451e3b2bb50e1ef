#include "MotorTesti.h"

// The program's statements, word for word, in the order of a working day.
TEST_F(MotorTesti, ProgramınDeyimleri) {
    Bağ bağ(m_dosya);
    const auto yap = [&](const std::string& sql) {
        const Sonuç sonuç = bağ.Çalıştır(sql);
        EXPECT_EQ(sonuç.Kod, SQL_SUCCESS) << sql << ": " << sonuç.Mesaj;
    };
    const std::string koşul = "WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası'";
    const std::string malzemeler =
        "SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu " +
        koşul + " ORDER BY KullanilanMalzemeAdi ASC";

    EXPECT_EQ(bağ.Tek("SELECT Count(UrunAdi) AS KayitSayisi FROM UrunTablosu"), "0");
    yap("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('MASA', 'Çalışma Masası')");
    yap("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('DOLAP', 'Gardırop')");
    yap(MalzemeEkle("Çam Kereste", "1.250,50"));
    yap(MalzemeEkle("Vida", "0,1255"));
    EXPECT_EQ(bağ.Oku("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"),
              (Satırlar{{"DOLAP", "Gardırop"}, {"MASA", "Çalışma Masası"}}));
    EXPECT_EQ(bağ.Oku("SELECT DISTINCT UrunGrubu FROM UrunTablosu ORDER BY UrunGrubu ASC"),
              (Satırlar{{"DOLAP"}, {"MASA"}}));
    EXPECT_EQ(bağ.Oku("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'VİDA'"),
              (Satırlar{{"Vida", "0.1255"}}));
    const std::string yüzdeler =
        "SELECT IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu " + koşul;
    EXPECT_EQ(bağ.Oku(yüzdeler), (Satırlar{{"0", "0", "0", "0"}}));
    yap("UPDATE UrunTablosu SET IscilikYuzdesi= '12,5', KarYuzdesi= '20', DigerVarnekYuzdesi= '-3,25', "
        "VadeFarkiYuzdesi= '0,1' " +
        koşul);
    EXPECT_EQ(bağ.Oku(yüzdeler), (Satırlar{{"12.5", "20", "-3.25", "0.1"}}));

    yap("INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
        "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#3/7/2004#, 'MASA', 'Çalışma Masası', 'Vida', "
        "'20 Adet', '0,1255')");
    yap("INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
        "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#3/7/2004#, 'MASA', 'Çalışma Masası', "
        "'Çam Kereste', '2,50 Metre', '1.250,50')");
    EXPECT_EQ(bağ.Oku(malzemeler), (Satırlar{{"2,50 Metre", "Çam Kereste", "1250.5"}, {"20 Adet", "Vida", "0.1255"}}));
    yap("UPDATE UrunMalzemeTablosu SET KullanimTarihi= #12/31/2004#, UrunGrubu= 'MASA', UrunAdi= 'Çalışma Masası', "
        "KullanilanMalzemeAdi= 'Vida', KullanilanMalzemeMiktari= '24 Adet', KullanilanMalzemeFiyati= '0,13' "
        "WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası' AND KullanilanMalzemeAdi= 'Vida'");
    EXPECT_EQ(bağ.Oku("SELECT KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, UrunAdi FROM "
                      "UrunMalzemeTablosu WHERE KullanimTarihi = #12/31/2004# ORDER BY UrunAdi ASC"),
              (Satırlar{{"Vida", "24 Adet", "0.13", "Çalışma Masası"}}));
    EXPECT_EQ(bağ.Tek("SELECT KullanimTarihi FROM UrunMalzemeTablosu WHERE KullanilanMalzemeAdi= 'Çam Kereste'"),
              "2004-03-07 00:00:00");

    yap("UPDATE MalzemeTablosu SET MalzemeFiyati= '2' WHERE MalzemeAdi= 'Vida'");
    yap("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '2' WHERE KullanilanMalzemeAdi= 'Vida'");
    EXPECT_EQ(bağ.Oku(malzemeler).at(1).at(2), "2");
    yap("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA' AND UrunAdi='Çalışma Masası' AND "
        "KullanilanMalzemeAdi= 'Çam Kereste'");
    EXPECT_EQ(bağ.Oku(malzemeler).size(), 1u);
    yap("UPDATE UrunTablosu SET UrunGrubu= 'Dolap' WHERE UrunGrubu= 'MASA'");
    yap("UPDATE UrunMalzemeTablosu SET UrunGrubu= 'Dolap' WHERE UrunGrubu= 'MASA'");
    yap("UPDATE UrunTablosu SET UrunAdi= 'Gardırop' WHERE UrunAdi= 'Çalışma Masası' AND UrunGrubu= 'Dolap'");
    // Merged groups: the same product twice, and one group in two spellings, which DISTINCT takes for one.
    EXPECT_EQ(bağ.Oku("SELECT UrunAdi, UrunGrubu FROM UrunTablosu WHERE UrunGrubu= 'DOLAP' AND UrunAdi= 'GARDIROP'"),
              (Satırlar{{"Gardırop", "Dolap"}, {"Gardırop", "DOLAP"}}));
    EXPECT_EQ(bağ.Oku("SELECT DISTINCT UrunGrubu FROM UrunTablosu ORDER BY UrunGrubu ASC").size(), 1u);
    yap("DELETE FROM UrunTablosu WHERE UrunGrubu= 'dolap'");
    EXPECT_EQ(bağ.Tek("SELECT Count(UrunAdi) AS KayitSayisi FROM UrunTablosu"), "0");

    // Nothing to change is no failure and no information either.
    yap("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'yok'");
    yap("UPDATE MalzemeTablosu SET MalzemeFiyati= '1' WHERE MalzemeAdi= 'yok'");
}

TEST_F(MotorTesti, TürkçeSıraVeEşitlik) {
    const std::vector<std::string> sıralı = {"Ahşap", "Âlem", "Cam",   "Çam", "Gaz", "Ğaz",  "Isı",
                                             "ışık",  "İpek", "izole", "Kır", "Kir", "Oluk", "Ölçü",
                                             "Su",    "Şu",   "Ut",    "Üt",  "Zar"};
    Bağ bağ(m_dosya);
    for (std::size_t i = 0; i < sıralı.size(); ++i)
        EXPECT_EQ(bağ.Çalıştır(MalzemeEkle(sıralı[i * 7 % sıralı.size()], "1")).Kod, SQL_SUCCESS);
    std::vector<std::string> okunan;
    for (const auto& satır : bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu ORDER BY MalzemeAdi ASC"))
        okunan.push_back(satır[0]);
    EXPECT_EQ(okunan, sıralı);
    const auto bulunan = [&](const std::string& ad) {
        return bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeAdi= '" + ad + "'").size();
    };
    for (const char* aynı : {"IŞIK", "ısı", "ipek", "İZOLE", "KIR", "KİR", "ğAZ", "ÖLÇÜ"})
        EXPECT_EQ(bulunan(aynı), 1u) << aynı;
    for (const char* ayrı : {"IPEK", "işik", "Olcu", "Kır "}) EXPECT_EQ(bulunan(ayrı), 0u) << ayrı;

    const Sonuç ikinci = bağ.Çalıştır(MalzemeEkle("KİR", "2"));
    EXPECT_EQ(ikinci.Kod, SQL_ERROR);
    EXPECT_EQ(ikinci.Durum, "23000");
    EXPECT_EQ(bağ.Tek("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'kir'"), "1");
}

// Each refused statement says why and changes nothing.
TEST_F(MotorTesti, ReddedilenHiçbirŞeyiDeğiştirmez) {
    Bağ bağ(m_dosya);
    ASSERT_EQ(bağ.Çalıştır(MalzemeEkle("a", "1,5")).Kod, SQL_SUCCESS);
    ASSERT_EQ(bağ.Çalıştır("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('a', 'a')").Kod, SQL_SUCCESS);
    KullanılanEkle(bağ, 2);
    const auto hepsi = [&] {
        return std::tuple(bağ.Oku("SELECT * FROM MalzemeTablosu"), bağ.Oku("SELECT * FROM UrunTablosu"),
                          bağ.Oku("SELECT * FROM UrunMalzemeTablosu"));
    };
    const auto önce = hepsi();
    const std::string sil = "DELETE FROM MalzemeTablosu WHERE MalzemeAdi= '";
    const std::string fiyat = "UPDATE MalzemeTablosu SET MalzemeFiyati= '";
    const struct {
        std::string Sql;
        std::string Durum;
        std::string Mesaj;  // its beginning
    } durumlar[] = {
        {sil + "a' OR '1'='1'", "37000", "Deyim anlaşılamadı"},
        {sil + "x' OR 'a'='a'", "37000", "Deyim anlaşılamadı"},
        {sil + "a''", "37000", "Deyim anlaşılamadı"},
        {sil + "a'; DELETE FROM UrunTablosu WHERE UrunAdi= 'a'", "37000", "Deyim anlaşılamadı"},
        {sil + "a", "37000", "Deyim anlaşılamadı"},
        {fiyat + "12.5' WHERE MalzemeAdi= 'a'", "22005", "Data type mismatch"},
        {fiyat + "' WHERE MalzemeAdi= 'a'", "22005", "Data type mismatch"},
        {fiyat + "bin' WHERE MalzemeAdi= 'a'", "22005", "Data type mismatch"},
        {fiyat + "922.337.203.685.477,5808' WHERE MalzemeAdi= 'a'", "22003", "Sayı çok büyük"},
        {fiyat + "1' WHERE MalzemeFiyati= '1.5'", "22005", "Data type mismatch"},
        {"UPDATE MalzemeTablosu SET MalzemeFiyati= #3/7/2004# WHERE MalzemeAdi= 'a'", "22005", "Data type mismatch"},
        {"UPDATE MalzemeTablosu SET MalzemeAdi= 5 WHERE MalzemeAdi= 'a'", "22005", "Data type mismatch"},
        {"UPDATE UrunMalzemeTablosu SET KullanimTarihi= '7.3.2004' WHERE UrunGrubu= 'Masa'", "22005", "Data type"},
        {"UPDATE UrunMalzemeTablosu SET KullanimTarihi= #2/29/2003# WHERE UrunGrubu= 'Masa'", "22008",
         "Tarih geçersiz"},
        {"UPDATE UrunTablosu SET KarYuzdesi= '" + Tekrar("9", 400) + "' WHERE UrunAdi= 'a'", "22003", "Sayı çok"},
        {MalzemeEkle("A", "1"), "23000", "Aynı değer"},
        {"INSERT INTO MalzemeTablosu (MalzemeAdi) VALUES ('b')", "23000", "Boş bırakılamayan"},
        {"INSERT INTO MalzemeTablosu (MalzemeAdi, MALZEMEADI) VALUES ('b', 'c')", "37000", "MalzemeAdi sütunu"},
        {"SELECT X FROM MalzemeTablosu", "S0022", "MalzemeTablosu tablosunda X"},
        {"SELECT X FROM Y", "S0002", "Y adında"},
        {"SELECT * FROM sqlite_schema", "S0002", "sqlite_schema adında"},
        {"CREATE TABLE urunTablosu (A TEXT)", "S0001", "urunTablosu adında"},
    };
    for (const auto& durum : durumlar) {
        const Sonuç sonuç = bağ.Çalıştır(durum.Sql);
        EXPECT_EQ(sonuç.Kod, SQL_ERROR) << durum.Sql;
        EXPECT_EQ(sonuç.Durum, durum.Durum) << durum.Sql << sonuç.Mesaj;
        EXPECT_EQ(sonuç.Mesaj.compare(0, durum.Mesaj.size(), durum.Mesaj), 0) << sonuç.Mesaj;
    }
    EXPECT_EQ(hepsi(), önce);
}

TEST_F(MotorTesti, MetinUzunluğu) {
    Bağ bağ(m_dosya);
    // 255 characters of two, three and (as two UTF-16 units) four bytes fit, one more is refused, never cut.
    for (const std::string& ad : {Tekrar("ğ", 255), Tekrar("€", 255), "x" + Tekrar("\U0001F600", 127)}) {
        ASSERT_EQ(bağ.Çalıştır(MalzemeEkle(ad, "1")).Kod, SQL_SUCCESS);
        EXPECT_EQ(bağ.Tek("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeAdi= '" + ad + "'"), ad);
        const Sonuç uzun = bağ.Çalıştır(MalzemeEkle("y" + ad, "1"));
        EXPECT_EQ(uzun.Durum, "22001");
        const Sonuç uzat =
            bağ.Çalıştır("UPDATE MalzemeTablosu SET MalzemeAdi= '" + ad + "y' WHERE MalzemeAdi= '" + ad + "'");
        EXPECT_EQ(uzat.Durum, "22001");
        EXPECT_EQ(bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeAdi= 'y" + ad + "'").size(), 0u);
    }
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 3u);
}

TEST_F(MotorTesti, SayılarTamOlarakGeriGelir) {
    Bağ bağ(m_dosya);
    for (const auto& [yazılan, okunan] : {std::pair("-922.337.203.685.477,5808", "-922337203685477.5808"),
                                          {"922337203685477,5807", "922337203685477.5807"},
                                          {"0,0001", "0.0001"},
                                          {"1.250,50", "1250.5"},
                                          {"7", "7"},
                                          {"2,00025", "2.0002"}}) {
        ASSERT_EQ(bağ.Çalıştır(MalzemeEkle(yazılan, yazılan)).Kod, SQL_SUCCESS) << yazılan;
        EXPECT_EQ(bağ.Tek(std::string("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= '") + yazılan + "'"),
                  okunan);
        EXPECT_EQ(bağ.Tek(std::string("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeFiyati= '") + yazılan + "'"),
                  yazılan);
    }
    EXPECT_EQ(bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeFiyati= 1250.5").size(), 1u);
    ASSERT_EQ(
        bağ.Çalıştır("CREATE TABLE Deneme (Ad TEXT(3), Oran DOUBLE DEFAULT -2.5 NOT NULL, Fiyat CURRENCY DEFAULT 1.25, "
                     "Gun DATETIME)")
            .Kod,
        SQL_SUCCESS);
    ASSERT_EQ(bağ.Çalıştır("INSERT INTO Deneme (Ad) VALUES ('')").Kod, SQL_SUCCESS);
    EXPECT_EQ(bağ.Oku("SELECT * FROM Deneme"), (Satırlar{{"", "-2.5", "1.25", "<NULL>"}}));
    for (const auto& [yazılan, okunan] : {std::pair("0,1", "0.1"),
                                          {"123456789,987654321", "123456789.98765433"},
                                          {"100000000000000000000", "100000000000000000000"},
                                          {"0,000001", "0.000001"}}) {
        ASSERT_EQ(bağ.Çalıştır(std::string("UPDATE Deneme SET Oran= '") + yazılan + "' WHERE Ad= ''").Kod, SQL_SUCCESS);
        EXPECT_EQ(bağ.Tek("SELECT Oran FROM Deneme"), okunan);
    }
}

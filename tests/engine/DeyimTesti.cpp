#include "MotorTesti.h"

TEST_F(MotorTesti, TürkçeSıraVeEşitlik) {
    TestVerisi bağ(m_dosya);
    for (const char* ad : {"Zar", "Çam", "ışık", "izole", "Cam", "İpek", "Isı", "Kir", "Kır", "Ğaz"})
        bağ.Çalıştır(MalzemeEkle(ad, "1"));
    QStringList okunan;
    for (const auto& satır : bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu ORDER BY MalzemeAdi ASC")) okunan += satır;
    EXPECT_EQ(okunan, QStringList({"Cam", "Çam", "Ğaz", "Isı", "ışık", "İpek", "izole", "Kır", "Kir", "Zar"}));
    const auto bulunan = [&](const std::string& ad) {
        return bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeAdi= '" + ad + "'").size();
    };
    for (const char* aynı : {"IŞIK", "ısı", "ipek", "İZOLE", "KIR", "KİR", "ğAZ"}) EXPECT_EQ(bulunan(aynı), 1u) << aynı;
    for (const char* ayrı : {"IPEK", "işik", "Gaz", "Kır "}) EXPECT_EQ(bulunan(ayrı), 0u) << ayrı;

    EXPECT_EQ(bağ.Dene(MalzemeEkle("KİR", "2")).Durum, "23000");
    EXPECT_EQ(bağ.Tek("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'kir'"), "1");
    for (const char* grup : {"MASA", "masa"})
        bağ.Çalıştır(std::string("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('") + grup + "', '" + grup +
                     "x')");
    EXPECT_EQ(bağ.Oku("SELECT DISTINCT UrunGrubu FROM UrunTablosu ORDER BY UrunGrubu ASC").size(), 1u);
}

// Each refused statement says why and changes nothing.
TEST_F(MotorTesti, ReddedilenHiçbirŞeyiDeğiştirmez) {
    TestVerisi bağ(m_dosya);
    bağ.Çalıştır(MalzemeEkle("a", "1,5"));
    bağ.Çalıştır("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('a', 'a')");
    KullanılanEkle(bağ, 2);
    const auto hepsi = [&] {
        return std::tuple(bağ.Oku("SELECT * FROM MalzemeTablosu"), bağ.Oku("SELECT * FROM UrunTablosu"),
                          bağ.Oku("SELECT * FROM UrunMalzemeTablosu"));
    };
    const auto önce = hepsi();
    const std::string fiyat = "UPDATE MalzemeTablosu SET MalzemeFiyati= '";
    const struct {
        std::string Sql;
        std::string Durum;
        std::string Mesaj;  // its beginning
    } durumlar[] = {
        {"DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'a'; DELETE FROM UrunTablosu WHERE UrunAdi= 'a'", "37000",
         "Deyim anlaşılamadı"},
        {fiyat + "12.5' WHERE MalzemeAdi= 'a'", "22005", "Data type mismatch"},
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
        {"CREATE INDEX urunSirasi ON UrunTablosu (KarYuzdesi)", "S0011", "urunSirasi adında"},
        {"CREATE TABLE T (A TEXT, A TEXT)", "S1000", "Deyim bu veri dosyasında çalıştırılamadı"},
    };
    for (const auto& durum : durumlar) {
        const TestSonucu sonuç = bağ.Dene(durum.Sql);
        EXPECT_EQ(sonuç.Kod, SQL_ERROR) << durum.Sql;
        EXPECT_EQ(sonuç.Durum, durum.Durum) << durum.Sql << sonuç.Mesaj;
        EXPECT_EQ(sonuç.Mesaj.compare(0, durum.Mesaj.size(), durum.Mesaj), 0) << sonuç.Mesaj;
    }
    EXPECT_EQ(hepsi(), önce);
}

TEST_F(MotorTesti, MetinUzunluğu) {
    TestVerisi bağ(m_dosya);
    // 255 characters of two, three and (as two UTF-16 units) four bytes fit, one more is refused, never cut.
    for (const std::string& ad : {Tekrar("ğ", 255), Tekrar("€", 255), "x" + Tekrar("\U0001F600", 127)}) {
        bağ.Çalıştır(MalzemeEkle(ad, "1"));
        EXPECT_EQ(bağ.Tek("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeAdi= '" + ad + "'"), ad);
        for (const std::string& uzun : {MalzemeEkle("y" + ad, "1"), "UPDATE MalzemeTablosu SET MalzemeAdi= '" + ad +
                                                                        "y' WHERE MalzemeAdi= '" + ad + "'"})
            EXPECT_EQ(bağ.Dene(uzun).Durum, "22001");
    }
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 3u);
}

TEST_F(MotorTesti, SayılarTamOlarakGeriGelir) {
    TestVerisi bağ(m_dosya);
    for (const auto& [yazılan, okunan] : {std::pair("-922.337.203.685.477,5808", "-922337203685477.5808"),
                                          {"922337203685477,5807", "922337203685477.5807"},
                                          {"1.250,50", "1250.5"},
                                          {"2,00025", "2.0002"}}) {
        bağ.Çalıştır(MalzemeEkle(yazılan, yazılan));
        EXPECT_EQ(bağ.Tek(std::string("SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= '") + yazılan + "'"),
                  okunan);
        EXPECT_EQ(bağ.Tek(std::string("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeFiyati= '") + yazılan + "'"),
                  yazılan);
    }
    EXPECT_EQ(bağ.Oku("SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeFiyati= 1250.5").size(), 1u);
    bağ.Çalıştır(
        "CREATE TABLE Deneme (Ad TEXT(3), Oran DOUBLE DEFAULT -2.5 NOT NULL, Fiyat CURRENCY DEFAULT 1.25, "
        "Gun DATETIME)");
    bağ.Çalıştır("INSERT INTO Deneme (Ad) VALUES ('')");
    EXPECT_EQ(bağ.Oku("SELECT * FROM Deneme"), (Satırlar{{"", "-2.5", "1.25", "<NULL>"}}));
}

// Many changes of one text in a transaction: a refused one in between leaves no trace, nor do other tables.
TEST_F(MotorTesti, AynıMetinliDeğişikliklerKarışmaz) {
    TestVerisi bağ(m_dosya);
    bağ.ElleOnayla();
    bağ.Çalıştır(MalzemeEkle("a", "1"));
    EXPECT_EQ(bağ.Dene(MalzemeEkle("A", "2")).Durum, "23000");
    bağ.Çalıştır(MalzemeEkle("b", "3"));
    bağ.Çalıştır("CREATE TABLE Deneme (Ad TEXT(3))");
    bağ.Çalıştır(MalzemeEkle("c", "4"));
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 3u) << "reading in between";
    bağ.Çalıştır(MalzemeEkle("d", "5"));
    bağ.Onayla();
    TestVerisi(m_dosya).Çalıştır("CREATE UNIQUE INDEX Fiyatlar ON MalzemeTablosu (MalzemeFiyati)");
    bağ.ElleOnayla();
    EXPECT_EQ(bağ.Dene(MalzemeEkle("e", "5")).Durum, "23000") << "what another client made holds";
    bağ.Çalıştır(MalzemeEkle("e", "6"));
    bağ.Onayla();
    EXPECT_EQ(bağ.Oku(HerMalzeme), (Satırlar{{"a", "1"}, {"b", "3"}, {"c", "4"}, {"d", "5"}, {"e", "6"}}));
}

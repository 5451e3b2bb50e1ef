#include <gtest/gtest.h>

#include "Deyim.h"
#include "Hata.h"

using namespace Motor;

namespace {

std::string RetDurumu(const std::string& metin) {
    try {
        Çözümle(metin);
    } catch (const Hata& hata) {
        EXPECT_LE(hata.Mesaj().size(), Hata::AzamiMesaj);
        return std::string(hata.Durum());
    }
    return "accepted";
}

}  // namespace

TEST(DilbilgisiTesti, Seçim) {
    const auto seç = std::get<SeçDeyimi>(Çözümle(
        "select  Miktar,Ad FROM T\n where A= 'İ ; #1' AND B=#3/7/2004#\tand C = -12.50 order BY Ad ASC, B desc"));
    EXPECT_EQ(seç.Sütunlar, (std::vector<std::string>{"Miktar", "Ad"}));
    EXPECT_EQ(seç.Tablo, "T");
    ASSERT_EQ(seç.Koşullar.size(), 3u);
    EXPECT_EQ(std::get<MetinYazımı>(seç.Koşullar[0].Değer).Metin, "İ ; #1");
    EXPECT_EQ(std::get<TarihYazımı>(seç.Koşullar[1].Değer).Tarih, 20040307);
    EXPECT_EQ(std::get<SayıYazımı>(seç.Koşullar[2].Değer).Metin, "-12.50");
    ASSERT_EQ(seç.Sıralar.size(), 2u);
    EXPECT_FALSE(seç.Sıralar[0].Azalan);
    EXPECT_TRUE(seç.Sıralar[1].Azalan);

    const auto say = std::get<SeçDeyimi>(Çözümle("SELECT Count(UrunAdi) AS KayitSayisi FROM UrunTablosu"));
    EXPECT_TRUE(say.Say);
    EXPECT_EQ(say.SayımAdı, "KayitSayisi");
    EXPECT_EQ(std::get<SeçDeyimi>(Çözümle("SELECT Count FROM T")).Sütunlar.front(), "Count");
}

TEST(DilbilgisiTesti, Reddedilenler) {
    const std::pair<const char*, std::vector<const char*>> durumlar[] = {
        // a statement after the first, quotes, conditions, shapes that are not understood
        {"37000",
         {"DELETE FROM T WHERE A= 'x'; DELETE FROM T WHERE A= 'y'",
          "SELECT A FROM T;",
          "SELECT A FROM T -- 'x'",
          "SELECT A FROM T WHERE A= 'x' /* y */",
          "DELETE FROM T WHERE A= 'x",
          "DELETE FROM T WHERE A= ''''",
          "DELETE FROM T WHERE A= 'a' OR '1'='1'",
          "DELETE FROM T WHERE A= 'a' AND '1'='1'",
          "DELETE FROM T WHERE A= 'a' 'b'",
          "DELETE FROM T WHERE A= \"a\"",
          "DELETE FROM T WHERE A= 'a\xFF'",
          "DELETE FROM T",
          "UPDATE T SET A= 'x'",
          "DELETE FROM T WHERE A<> 'x'",
          "DELETE FROM T WHERE A= B",
          "DELETE FROM T WHERE A= ('x')",
          "DELETE FROM T WHERE NOT A= 'x'",
          "DELETE FROM T WHERE A LIKE '%'",
          "DELETE FROM T WHERE A= NULL",
          "SELECT A FROM T WHERE B= #3/7/2004",
          "",
          "DROP TABLE T",
          "PRAGMA user_version",
          "SELECT A FROM T, U",
          "SELECT A FROM T UNION SELECT A FROM T",
          "SELECT A, Count(B) FROM T",
          "SELECT DISTINCT Count(B) FROM T",
          "SELECT A FROM \"Varnek#Parola\"",
          "INSERT INTO T (A) VALUES (1.2.3)",
          "INSERT INTO T (A) VALUES ('x'), ('y')",
          "INSERT INTO T VALUES ('x')",
          "CREATE TABLE T (A TEXT(256))",
          "CREATE TABLE T (A BLOB)",
          "CREATE TABLE T (A TEXT DEFAULT 'x')"}},
        {"22008",
         {"SELECT A FROM T WHERE B= #2/30/2004#", "SELECT A FROM T WHERE B= #13/1/2004#",
          "SELECT A FROM T WHERE B= #7.3.2004#", "SELECT A FROM T WHERE B= #3/7/04#",
          "SELECT A FROM T WHERE B= #3/7/20040#", "SELECT A FROM T WHERE B= #3/-7/2004#",
          "SELECT A FROM T WHERE B= # 3/7/2004#"}},
        {"21S01", {"INSERT INTO T (A, B) VALUES ('x')"}},
    };
    for (const auto& [durum, metinler] : durumlar)
        for (const char* metin : metinler) EXPECT_EQ(RetDurumu(metin), durum) << metin;
    EXPECT_EQ(RetDurumu(std::string("SELECT A FROM T WHERE A= 'x\0y'", 30)), "37000");
}

// The message names the place, counted in characters.
TEST(DilbilgisiTesti, HatanınYeri) {
    try {
        Çözümle("DELETE FROM T WHERE A= 'ışık' OR B= 'x'");
        FAIL();
    } catch (const Hata& hata) {
        EXPECT_EQ(hata.Mesaj(), "Deyim anlaşılamadı: 31. karakterde deyimin sonu bekleniyordu.");
    }
}

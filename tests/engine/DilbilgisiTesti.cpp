#include <gtest/gtest.h>

#include "Deyim.h"
#include "Hata.h"

using namespace Motor;

namespace {

Hata Ret(const std::string& metin) {
    try {
        Çözümle(metin);
    } catch (const Hata& hata) {
        return hata;
    }
    return {"accepted", "accepted"};
}

std::string RetMesajı(const std::string& metin) {
    return std::string(Ret(metin).Mesaj());
}

}  // namespace

TEST(DilbilgisiTesti, Seçim) {
    const auto seç = std::get<SeçDeyimi>(Çözümle(
        "select  Miktar,Ad FROM T\n where A= 'İ ; #1' AND B=#3/7/2004#\tand C = -12.50 order BY Ad ASC, B desc"));
    EXPECT_EQ(seç.Sütunlar, (std::vector<std::string>{"Miktar", "Ad"}));
    EXPECT_EQ(seç.Tablo, "T");
    ASSERT_TRUE(seç.Koşullar.size() == 3 && seç.Sıralar.size() == 2);
    EXPECT_EQ(std::get<MetinYazımı>(seç.Koşullar[0].Değer).Metin, "İ ; #1");
    EXPECT_EQ(std::get<TarihYazımı>(seç.Koşullar[1].Değer).Tarih, 20040307);
    EXPECT_EQ(std::get<SayıYazımı>(seç.Koşullar[2].Değer).Metin, "-12.50");
    EXPECT_TRUE(!seç.Sıralar[0].Azalan && seç.Sıralar[1].Azalan);
    EXPECT_EQ(std::get<SeçDeyimi>(Çözümle("SELECT Count FROM T")).Sütunlar.front(), "Count");
}

TEST(DilbilgisiTesti, Reddedilenler) {
    const std::pair<const char*, std::vector<const char*>> durumlar[] = {
        {"37000",
         {"DELETE FROM T WHERE A= 'a' OR '1'='1'", "DELETE FROM T WHERE A= 'a\xFF'", "DELETE FROM T",
          "UPDATE T SET A= 'x'", "DELETE FROM T WHERE A<> 'x'", "DELETE FROM T WHERE A= B",
          "SELECT A FROM T WHERE B= #3/7/2004", "DROP TABLE T", "SELECT A, Count(B) FROM T",
          "SELECT DISTINCT Count(B) FROM T", "SELECT A FROM \"Varnek#Parola\"", "INSERT INTO T (A) VALUES (1.2.3)",
          "INSERT INTO T VALUES ('x')", "CREATE TABLE T (A TEXT(256))", "CREATE TABLE T (A BLOB)",
          "CREATE TABLE T (A TEXT DEFAULT 'x')"}},
        {"22008",
         {"SELECT A FROM T WHERE B= #2/30/2004#", "SELECT A FROM T WHERE B= #7.3.2004#",
          "SELECT A FROM T WHERE B= #3/7/04#"}},
        {"21S01", {"INSERT INTO T (A, B) VALUES ('x')"}},
    };
    for (const auto& [durum, metinler] : durumlar)
        for (const char* metin : metinler) EXPECT_EQ(Ret(metin).Durum(), durum) << metin;
    EXPECT_EQ(Ret(std::string("SELECT A FROM T WHERE A= 'x\0y'", 30)).Durum(), "37000");
}

// The message names the place, counted in characters; a statement that a name with an apostrophe broke is never seen by
// its user, who is told of the apostrophe.
TEST(DilbilgisiTesti, HatanınYeri) {
    EXPECT_EQ(RetMesajı("DELETE FROM T WHERE A= 'ışık' OR B= 'x'"),
              "Deyim anlaşılamadı: 31. karakterde deyimin sonu bekleniyordu.");
    for (const char* metin : {"DELETE FROM T WHERE A= 'x';", "INSERT INTO T (A) VALUES ('x'"})
        EXPECT_NE(RetMesajı(metin).find("karakterde"), std::string::npos) << metin;
    for (const std::string ad : {"O'Brien", "'x", "x'", "5' x 6'", "'", "''", "a' b 'c", "a'#b", "12'-14'"})
        for (const std::string& metin : {"INSERT INTO T (A, B) VALUES ('" + ad + "', '5')",
                                         "SELECT A FROM T WHERE A= '" + ad + "' ORDER BY A ASC"})
            EXPECT_NE(RetMesajı(metin).find("kesme işareti"), std::string::npos) << metin << RetMesajı(metin);
}

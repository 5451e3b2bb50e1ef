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
        return hata.Durum();
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
    const struct {
        const char* Metin;
        const char* Durum;
    } durumlar[] = {
        // a statement after the first, and whatever else follows
        {"DELETE FROM T WHERE A= 'x'; DELETE FROM T WHERE A= 'y'", "37000"},
        {"SELECT A FROM T;", "37000"},
        {"SELECT A FROM T -- 'x'", "37000"},
        {"SELECT A FROM T WHERE A= 'x' /* y */", "37000"},
        // quotes
        {"DELETE FROM T WHERE A= 'x", "37000"},
        {"DELETE FROM T WHERE A= ''''", "37000"},
        {"DELETE FROM T WHERE A= 'a' OR '1'='1'", "37000"},
        {"DELETE FROM T WHERE A= 'a' AND '1'='1'", "37000"},
        {"DELETE FROM T WHERE A= 'a' 'b'", "37000"},
        {"DELETE FROM T WHERE A= \"a\"", "37000"},
        {"DELETE FROM T WHERE A= 'a\xFF'", "37000"},
        // conditions
        {"DELETE FROM T", "37000"},
        {"UPDATE T SET A= 'x'", "37000"},
        {"DELETE FROM T WHERE A<> 'x'", "37000"},
        {"DELETE FROM T WHERE A= B", "37000"},
        {"DELETE FROM T WHERE A= ('x')", "37000"},
        {"DELETE FROM T WHERE NOT A= 'x'", "37000"},
        {"DELETE FROM T WHERE A LIKE '%'", "37000"},
        {"DELETE FROM T WHERE A= NULL", "37000"},
        // dates
        {"SELECT A FROM T WHERE B= #2/30/2004#", "22008"},
        {"SELECT A FROM T WHERE B= #13/1/2004#", "22008"},
        {"SELECT A FROM T WHERE B= #7.3.2004#", "22008"},
        {"SELECT A FROM T WHERE B= #3/7/04#", "22008"},
        {"SELECT A FROM T WHERE B= #3/7/20040#", "22008"},
        {"SELECT A FROM T WHERE B= #3/-7/2004#", "22008"},
        {"SELECT A FROM T WHERE B= # 3/7/2004#", "22008"},
        {"SELECT A FROM T WHERE B= #3/7/2004", "37000"},
        // other statements and shapes
        {"", "37000"},
        {"DROP TABLE T", "37000"},
        {"PRAGMA user_version", "37000"},
        {"SELECT A FROM T, U", "37000"},
        {"SELECT A FROM T UNION SELECT A FROM T", "37000"},
        {"SELECT A, Count(B) FROM T", "37000"},
        {"SELECT DISTINCT Count(B) FROM T", "37000"},
        {"SELECT A FROM \"Varnek#Parola\"", "37000"},
        {"INSERT INTO T (A, B) VALUES ('x')", "21S01"},
        {"INSERT INTO T (A) VALUES (1.2.3)", "37000"},
        {"INSERT INTO T (A) VALUES ('x'), ('y')", "37000"},
        {"INSERT INTO T VALUES ('x')", "37000"},
        {"CREATE TABLE T (A TEXT(256))", "37000"},
        {"CREATE TABLE T (A BLOB)", "37000"},
        {"CREATE TABLE T (A TEXT DEFAULT 'x')", "37000"},
    };
    for (const auto& durum : durumlar) EXPECT_EQ(RetDurumu(durum.Metin), durum.Durum) << durum.Metin;
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

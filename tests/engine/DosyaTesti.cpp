#include <sqlite3.h>
#include <sys/stat.h>

#include <chrono>

#include "MotorTesti.h"

namespace {

// Another program with the file open.
struct YabancıBağlantı {
    explicit YabancıBağlantı(const std::string& yol, bool sıralı = false) {
        EXPECT_EQ(sqlite3_open(yol.c_str(), &Vt), SQLITE_OK);
        const auto sıra = [](void*, int a, const void*, int b, const void*) { return a - b; };
        if (sıralı) sqlite3_create_collation(Vt, "TURKCE", SQLITE_UTF8, nullptr, sıra);
    }
    ~YabancıBağlantı() { sqlite3_close(Vt); }
    void Çalıştır(const char* sql) {
        EXPECT_EQ(sqlite3_exec(Vt, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(Vt);
    }
    sqlite3* Vt = nullptr;
};

struct stat Bilgi(const std::string& yol) {
    struct stat bilgi {};
    stat(yol.c_str(), &bilgi);
    return bilgi;
}

mode_t İzinler(const std::string& yol) {
    return Bilgi(yol).st_mode & 07777;
}

TestSonucu BağlanmayıDene(const std::string& yol, const std::string& parola = Parola) {
    TestVerisi bağ;
    return bağ.Bağlan(Tanım(yol, parola));
}

bool İçinde(const std::string& metin, const std::string& parça) {
    return metin.find(parça) != std::string::npos;
}

}  // namespace

TEST_F(MotorTesti, BağlanmakDosyaYaratmazVeParolaİster) {
    const TestSonucu yok = BağlanmayıDene(Yol("yok.vtb"));
    EXPECT_EQ(yok.Durum, "08001");
    EXPECT_TRUE(İçinde(yok.Mesaj, "bulunamadı")) << yok.Mesaj;
    EXPECT_EQ(BağlanmayıDene(m_klasör).Durum, "08001");
    for (const std::string& parola : {std::string(), "k" + Parola.substr(1), Parola + "1"})
        EXPECT_EQ(BağlanmayıDene(m_dosya, parola).Durum, "28000") << parola;

    DosyaYaz(Yol("bos.vtb"), "");
    DosyaYaz(Yol("metin.vtb"), Tekrar("bu bir veri dosyası değil\n", 500));
    YabancıBağlantı(Yol("sqlite.vtb")).Çalıştır("CREATE TABLE T (A)");
    for (const char* ad : {"bos.vtb", "metin.vtb", "sqlite.vtb"}) {
        const std::string önce = DosyaOku(Yol(ad));
        const TestSonucu sonuç = BağlanmayıDene(Yol(ad));
        EXPECT_EQ(sonuç.Durum, "08001") << ad;
        EXPECT_EQ(sonuç.Yerel, SQLITE_NOTADB) << ad;
        EXPECT_TRUE(İçinde(sonuç.Mesaj, "veri dosyası değil")) << sonuç.Mesaj;
        EXPECT_EQ(DosyaOku(Yol(ad)), önce);
    }
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "bos.vtb", "metin.vtb", "sqlite.vtb"}));
    EXPECT_EQ(İzinler(m_dosya), 0600u);
    std::string içerik = DosyaOku(m_dosya);
    EXPECT_TRUE(Oluştur(m_dosya)) << "what is there stays";
    EXPECT_EQ(DosyaOku(m_dosya), içerik);
    içerik[63] = 99;
    DosyaYaz(m_dosya, içerik);
    EXPECT_TRUE(İçinde(BağlanmayıDene(m_dosya).Mesaj, "başka bir sürümü"));
}

// With the right header and the right password a file may still hold what would run along with the program's
// statements.
TEST_F(MotorTesti, YabancıÖğeliDosyaAçılmaz) {
    const struct {
        const char* Sql;
        int Yerel;
    } durumlar[] = {
        {"CREATE TRIGGER T AFTER UPDATE ON MalzemeTablosu BEGIN DELETE FROM UrunTablosu; END", SQLITE_AUTH},
        {"CREATE VIEW V AS SELECT * FROM MalzemeTablosu", SQLITE_AUTH},
        {"CREATE VIRTUAL TABLE V USING fts5(A)", SQLITE_AUTH},
        {"CREATE TABLE \"G\" (\"A\" CURRENCY, \"B\" CURRENCY AS (A + 1))", SQLITE_AUTH},
        {"CREATE TABLE \"G\" (\"A\" CURRENCY CHECK (A > 1))", SQLITE_AUTH},
        {"CREATE TABLE \"G\" (\"A\" CURRENCY DEFAULT (random()))", SQLITE_AUTH},
        {"CREATE TABLE \"G\"\"; x\" (\"A\" CURRENCY)", SQLITE_AUTH},
        {"CREATE INDEX \"D\" ON \"UrunTablosu\" (abs(KarYuzdesi))", SQLITE_AUTH},
        {"CREATE INDEX \"D\" ON \"UrunTablosu\" (\"KarYuzdesi\") WHERE KarYuzdesi > 1", SQLITE_AUTH},
        {"DROP TABLE \"Varnek#Parola\"", SQLITE_CORRUPT},
        {"DELETE FROM \"Varnek#Parola\"", SQLITE_CORRUPT},
        {"UPDATE \"Varnek#Parola\" SET Tuz = 5", SQLITE_CORRUPT},
        {"UPDATE \"Varnek#Parola\" SET Tekrar = 9223372036854775807", SQLITE_CORRUPT},
        {"INSERT INTO \"Varnek#Parola\" SELECT * FROM \"Varnek#Parola\"", SQLITE_CORRUPT},
    };
    for (const auto& durum : durumlar) {
        const std::string yol = Yol("yabancı.vtb");
        std::filesystem::copy_file(m_dosya, yol, std::filesystem::copy_options::overwrite_existing);
        YabancıBağlantı(yol, true).Çalıştır(durum.Sql);
        const TestSonucu sonuç = BağlanmayıDene(yol);
        EXPECT_EQ(sonuç.Durum, "08001") << durum.Sql;
        EXPECT_EQ(sonuç.Yerel, durum.Yerel) << durum.Sql << sonuç.Mesaj;
        EXPECT_TRUE(Sıkıştır(yol, Yol("a.ydk"))) << durum.Sql;
    }
    // A value of another kind than its column's never comes out as a number.
    YabancıBağlantı(m_dosya, true).Çalıştır("INSERT INTO MalzemeTablosu VALUES ('a', 12.5)");
    TestVerisi bağ(m_dosya);
    Deyim deyim(bağ);
    EXPECT_EQ(deyim.Çalıştır(HerMalzeme), SQL_SUCCESS);
    EXPECT_EQ(SQLFetch(deyim.Tanıtıcı()), SQL_SUCCESS);
    char tampon[64];
    SQLLEN uzunluk = 0;
    EXPECT_EQ(SQLGetData(deyim.Tanıtıcı(), 2, SQL_C_CHAR, tampon, sizeof tampon, &uzunluk), SQL_ERROR);
}

TEST_F(MotorTesti, KilitliDosya) {
    TestVerisi bağ(m_dosya);
    YabancıBağlantı yabancı(m_dosya);
    const auto kilitli = [](const TestSonucu& sonuç) {
        EXPECT_EQ(sonuç.Durum, "S1T00") << sonuç.Mesaj;
        EXPECT_TRUE(İçinde(sonuç.Mesaj, "kullanılıyor")) << sonuç.Mesaj;
    };
    yabancı.Çalıştır("BEGIN EXCLUSIVE");
    const auto başlangıç = std::chrono::steady_clock::now();
    kilitli(bağ.Dene(MalzemeEkle("a", "1")));
    const auto bekleme = std::chrono::steady_clock::now() - başlangıç;
    EXPECT_TRUE(bekleme > std::chrono::milliseconds(1500) && bekleme < std::chrono::seconds(10));
    kilitli(BağlanmayıDene(m_dosya));
    yabancı.Çalıştır("COMMIT");

    // A reader elsewhere does not disturb reading; writing gives up, and nothing of it is left.
    yabancı.Çalıştır("BEGIN; SELECT * FROM MalzemeTablosu");
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 0u);
    kilitli(bağ.Dene(MalzemeEkle("a", "1")));
    yabancı.Çalıştır("COMMIT");
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 0u);
    bağ.Çalıştır(MalzemeEkle("a", "1"));
}

TEST_F(MotorTesti, Sıkıştırma) {
    TestVerisi bağ(m_dosya);
    KullanılanEkle(bağ, 2000);
    bağ.Çalıştır(MalzemeEkle("Işık", "1,5"));
    std::filesystem::create_directory(Yol("Vtb Yedekleri"));
    const std::string yedek = Yol("Vtb Yedekleri/%25.ydk");
    const std::string yedekSözü = Yol("Vtb%20Yedekleri/%2525.ydk");
    ASSERT_EQ(Sıkıştır(m_dosya, yedekSözü), std::nullopt);
    EXPECT_EQ(TestVerisi(yedek).HerSatır(), bağ.HerSatır());
    EXPECT_EQ(TestVerisi(yedek).Dene(MalzemeEkle("ışık", "1")).Durum, "23000");
    // Emptied rows give their room back, an older copy is replaced, and what a crash left beside it does no harm.
    DosyaYaz(yedek + "-journal", Tekrar("kalıntı", 1000));
    bağ.Çalıştır("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'Masa'");
    const auto eskiBoy = std::filesystem::file_size(yedek);
    ASSERT_EQ(Sıkıştır(m_dosya, yedekSözü), std::nullopt);
    EXPECT_LT(std::filesystem::file_size(yedek), eskiBoy / 4);
    EXPECT_EQ(TestVerisi(yedek).HerSatır(), bağ.HerSatır());
    EXPECT_EQ(İzinler(yedek), 0600u);

    const std::string önce = DosyaOku(yedek);
    EXPECT_TRUE(Sıkıştır(m_dosya, yedekSözü, "yanlış"));
    EXPECT_TRUE(Sıkıştır(Yol("yok.vtb"), yedekSözü));
    EXPECT_TRUE(Sıkıştır(m_dosya, Yol("yok/a.ydk")));
    EXPECT_TRUE(Sıkıştır(m_dosya, yedekSözü + " fazla"));
    // Damage that only a look through the whole finds: a row that its index does not know.
    std::string bozuk = DosyaOku(m_dosya);
    DosyaYaz(Yol("bozuk.vtb"), bozuk.replace(bozuk.find("Işık"), 1, "J"));
    EXPECT_TRUE(İçinde(Sıkıştır(Yol("bozuk.vtb"), yedekSözü).value_or(""), "bozulmuş"));
    EXPECT_EQ(DosyaOku(yedek), önce);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Yol("Vtb Yedekleri")), {}), 1);
}

// Both paths lead to one file: it is compacted within itself, under the hands of other clients.
TEST_F(MotorTesti, YerindeSıkıştırma) {
    TestVerisi bağ(m_dosya);
    KullanılanEkle(bağ, 2000);
    bağ.Çalıştır("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'Masa'");
    bağ.Çalıştır(MalzemeEkle("Işık", "1,5"));
    std::filesystem::create_directories(Yol("a/b"));
    std::filesystem::create_directory_symlink(Yol("a/b"), Yol("bağ"));
    std::filesystem::create_hard_link(m_dosya, Yol("a/sabit.vtb"));
    ASSERT_EQ(chmod(m_dosya.c_str(), 0640), 0);
    const auto eskiZaman = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
    std::filesystem::last_write_time(m_dosya, eskiZaman);
    const auto düğüm = Bilgi(m_dosya).st_ino;
    const auto boy = std::filesystem::file_size(m_dosya);

    YabancıBağlantı yabancı(m_dosya);
    yabancı.Çalıştır("BEGIN IMMEDIATE");
    const std::string önce = DosyaOku(m_dosya);
    EXPECT_TRUE(İçinde(Sıkıştır(m_dosya, m_dosya).value_or(""), "kullanılıyor"));
    EXPECT_EQ(DosyaOku(m_dosya), önce);
    yabancı.Çalıştır("COMMIT");

    // "bağ/.." is a/, as the system takes it.
    ASSERT_EQ(Sıkıştır(m_dosya, Yol("bağ/../sabit.vtb")), std::nullopt);
    EXPECT_LT(std::filesystem::file_size(m_dosya), boy / 4);
    EXPECT_EQ(Bilgi(m_dosya).st_ino, düğüm);
    EXPECT_EQ(İzinler(m_dosya), 0640u);
    EXPECT_GT(std::filesystem::last_write_time(m_dosya), eskiZaman + std::chrono::hours(47));
    bağ.Çalıştır(MalzemeEkle("İpek", "2"));
    EXPECT_EQ(TestVerisi(m_dosya).Oku(HerMalzeme), (Satırlar{{"Işık", "1.5"}, {"İpek", "2"}}));
}

// Another file in the data file's place: a client is told once, and goes on with it where nothing can be lost.
TEST_F(MotorTesti, YerineBaşkaDosyaKonursa) {
    const auto değiştir = [&] {
        ASSERT_EQ(Sıkıştır(m_dosya, Yol("yeni")), std::nullopt);
        std::filesystem::rename(Yol("yeni"), m_dosya);
    };
    const auto değişmiş = [](const TestSonucu& sonuç) { return İçinde(sonuç.Mesaj, "yerine başka bir dosya konmuş"); };
    TestVerisi bağ(m_dosya);
    KullanılanEkle(bağ, 500);
    değiştir();
    EXPECT_TRUE(değişmiş(bağ.Dene(MalzemeEkle("a", "1"))));
    EXPECT_TRUE(TestVerisi(m_dosya).Oku(HerMalzeme).empty());
    bağ.Çalıştır(MalzemeEkle("a", "1"));
    EXPECT_EQ(TestVerisi(m_dosya).Oku(HerMalzeme).size(), 1u);
    {
        Deyim deyim(bağ);
        deyim.Çalıştır("SELECT * FROM UrunMalzemeTablosu");
        ASSERT_EQ(SQLFetch(deyim.Tanıtıcı()), SQL_SUCCESS);
        değiştir();
        EXPECT_TRUE(değişmiş(bağ.Dene(MalzemeEkle("b", "1"))));
        EXPECT_EQ(SQLFetch(deyim.Tanıtıcı()), SQL_SUCCESS);
    }
    bağ.Çalıştır(MalzemeEkle("b", "1"));
    EXPECT_EQ(TestVerisi(m_dosya).Oku(HerMalzeme).size(), 2u);
}

// What lies under the names that the engine uses beside its files.
TEST_F(MotorTesti, KomşuAdlardaBaşkaŞeyler) {
    // The file in the making is another name of a file that matters; the backup is a link.
    std::filesystem::create_directory(Yol("yedek"));
    std::filesystem::create_symlink("yedek/asıl.ydk", Yol("a.ydk"));
    DosyaYaz(Yol("değerli"), "değerli");
    std::filesystem::create_hard_link(Yol("değerli"), Yol("yedek/asıl.ydk.yeni"));
    ASSERT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt);
    EXPECT_EQ(DosyaOku(Yol("değerli")), "değerli");
    EXPECT_TRUE(std::filesystem::is_symlink(Yol("a.ydk")));
    EXPECT_TRUE(std::filesystem::is_regular_file(Yol("yedek/asıl.ydk")));
    EXPECT_FALSE(std::filesystem::exists(Yol("yedek/asıl.ydk.yeni")));

    // A journal that says nothing goes, as does what a crash left; a writer's own stays.
    DosyaYaz(m_dosya + "-journal", std::string(512, '\0'));
    DosyaYaz(m_dosya + ".yeni", "kalıntı");
    {
        YabancıBağlantı yabancı(m_dosya);
        yabancı.Çalıştır("BEGIN IMMEDIATE");
        TestVerisi bağ(m_dosya);
        EXPECT_TRUE(std::filesystem::exists(m_dosya + "-journal"));
    }
    TestVerisi bağ(m_dosya);
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "a.ydk", "değerli", "yedek"}));
    ASSERT_EQ(mkfifo((m_dosya + "-journal").c_str(), 0600), 0);
    EXPECT_TRUE(İçinde(BağlanmayıDene(m_dosya).Mesaj, "Varnek.vtb-journal"));
}

TEST_F(MotorTesti, SaltOkunurDosya) {
    ASSERT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt);
    for (const std::string& yol : {m_dosya, Yol("a.ydk")}) ASSERT_EQ(chmod(yol.c_str(), 0444), 0);
    EXPECT_TRUE(AyrıcalıksızSüreçte([&] {
        TestVerisi bağ;
        const TestSonucu sonuç = bağ.Bağlan(Tanım(m_dosya));
        return sonuç.Kod == SQL_SUCCESS && bağ.Oku(HerMalzeme).empty() &&
               İçinde(bağ.Dene(MalzemeEkle("a", "1")).Mesaj, "salt okunur") &&
               İçinde(Sıkıştır(m_dosya, m_dosya).value_or(""), "salt okunur") &&
               İçinde(Sıkıştır(m_dosya, Yol("a.ydk")).value_or(""), "salt okunur");
    }));
    EXPECT_EQ(İzinler(m_dosya), 0444u);
    EXPECT_EQ(İzinler(Yol("a.ydk")), 0444u);
}

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>

#include "MotorTesti.h"

namespace {

// Another program with the file open.
struct YabancıBağlantı {
    explicit YabancıBağlantı(const std::string& yol) { EXPECT_EQ(sqlite3_open(yol.c_str(), &Vt), SQLITE_OK); }
    ~YabancıBağlantı() { sqlite3_close(Vt); }
    void Çalıştır(const char* sql) {
        EXPECT_EQ(sqlite3_exec(Vt, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(Vt);
    }
    sqlite3* Vt = nullptr;
};

mode_t İzinler(const std::string& yol) {
    struct stat bilgi {};
    stat(yol.c_str(), &bilgi);
    return bilgi.st_mode & 07777;
}

bool İçinde(const std::string& metin, const std::string& parça) {
    return metin.find(parça) != std::string::npos;
}

}  // namespace

TEST_F(MotorTesti, BağlanmakDosyaYaratmazVeParolaİster) {
    const auto bağlan = [](const std::string& tanım) {
        Bağ bağ;
        return bağ.Bağlan(tanım);
    };
    const Sonuç yok = bağlan(Tanım(Yol("yok.vtb")));
    EXPECT_EQ(yok.Durum, "08001");
    EXPECT_TRUE(İçinde(yok.Mesaj, "bulunamadı")) << yok.Mesaj;
    EXPECT_EQ(bağlan(Tanım(m_klasör)).Durum, "08001");
    for (const char* parola : {"", "kumsaldaki", "Kumsaldaki1"})
        EXPECT_EQ(bağlan(Tanım(m_dosya, parola)).Durum, "28000") << parola;

    DosyaYaz(Yol("bos.vtb"), "");
    DosyaYaz(Yol("metin.vtb"), Tekrar("bu bir veri dosyası değil\n", 500));
    YabancıBağlantı(Yol("sqlite.vtb")).Çalıştır("CREATE TABLE T (A)");
    for (const char* ad : {"bos.vtb", "metin.vtb", "sqlite.vtb"}) {
        const std::string önce = DosyaOku(Yol(ad));
        const Sonuç sonuç = bağlan(Tanım(Yol(ad)));
        EXPECT_EQ(sonuç.Durum, "08001") << ad;
        EXPECT_TRUE(İçinde(sonuç.Mesaj, "veri dosyası değil")) << sonuç.Mesaj;
        EXPECT_EQ(DosyaOku(Yol(ad)), önce);
    }
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "bos.vtb", "metin.vtb", "sqlite.vtb"}));
    EXPECT_EQ(İzinler(m_dosya), 0600u);
}

TEST_F(MotorTesti, KilitliDosya) {
    Bağ bağ(m_dosya);
    YabancıBağlantı yabancı(m_dosya);
    const auto süre = [](const Sonuç& sonuç, std::chrono::steady_clock::time_point başlangıç) {
        EXPECT_EQ(sonuç.Kod, SQL_ERROR);
        EXPECT_EQ(sonuç.Durum, "S1T00") << sonuç.Mesaj;
        EXPECT_TRUE(İçinde(sonuç.Mesaj, "kullanılıyor")) << sonuç.Mesaj;
        return std::chrono::steady_clock::now() - başlangıç;
    };
    yabancı.Çalıştır("BEGIN EXCLUSIVE");
    auto başlangıç = std::chrono::steady_clock::now();
    const auto bekleme = süre(bağ.Çalıştır(MalzemeEkle("a", "1")), başlangıç);
    EXPECT_GT(bekleme, std::chrono::milliseconds(1500));
    EXPECT_LT(bekleme, std::chrono::seconds(10));
    süre(bağ.Çalıştır(HerMalzeme), başlangıç);
    Bağ ikinci;
    süre(ikinci.Bağlan(Tanım(m_dosya)), başlangıç);
    yabancı.Çalıştır("COMMIT");

    // A reader elsewhere does not disturb reading; writing gives up, and nothing of it is left.
    yabancı.Çalıştır("BEGIN; SELECT * FROM MalzemeTablosu");
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 0u);
    süre(bağ.Çalıştır(MalzemeEkle("a", "1")), başlangıç);
    yabancı.Çalıştır("COMMIT");
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 0u);
    EXPECT_EQ(bağ.Çalıştır(MalzemeEkle("a", "1")).Kod, SQL_SUCCESS);
}

TEST_F(MotorTesti, BozukDosya) {
    {
        Bağ bağ(m_dosya);
        KullanılanEkle(bağ, 3000);
    }
    ASSERT_EQ(Sıkıştır(m_dosya, Yol("yedek.ydk")), std::nullopt);
    const std::string yedek = DosyaOku(Yol("yedek.ydk"));
    std::string bozuk = DosyaOku(m_dosya);
    for (std::size_t yer = 12 * 4096; yer < bozuk.size() - 4096; yer += 4096) bozuk.replace(yer, 256, Tekrar("?", 256));
    DosyaYaz(m_dosya, bozuk);
    {
        Bağ bağ(m_dosya);
        const Sonuç sonuç =
            bağ.Çalıştır("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '1' WHERE UrunGrubu= 'Masa'");
        EXPECT_EQ(sonuç.Kod, SQL_ERROR);
        EXPECT_EQ(sonuç.Durum, "S1000");
        EXPECT_TRUE(İçinde(sonuç.Mesaj, "bozulmuş")) << sonuç.Mesaj;
    }
    EXPECT_EQ(DosyaOku(m_dosya), bozuk);
    // A damaged file never replaces a good backup.
    const std::optional<std::string> hata = Sıkıştır(m_dosya, Yol("yedek.ydk"));
    ASSERT_TRUE(hata);
    EXPECT_TRUE(İçinde(*hata, "bozulmuş")) << *hata;
    EXPECT_EQ(DosyaOku(Yol("yedek.ydk")), yedek);

    DosyaYaz(m_dosya, bozuk.substr(0, bozuk.size() / 2));
    EXPECT_TRUE(Sıkıştır(m_dosya, Yol("yedek.ydk")));
    EXPECT_EQ(DosyaOku(Yol("yedek.ydk")), yedek);
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "yedek.ydk"}));
}

TEST_F(MotorTesti, Oluşturma) {
    const std::string içerik = DosyaOku(m_dosya);
    EXPECT_TRUE(VeriDosyasıOluştur(m_dosya));
    EXPECT_EQ(DosyaOku(m_dosya), içerik);
    EXPECT_TRUE(VeriDosyasıOluştur(Yol("yok/a.vtb")));

    // What crashes left: a file in the making with its journal, and the journal of a file that is gone.
    const std::string yeni = Yol("boşluklu ad %20.vtb");
    for (const char* ek : {".yeni", ".yeni-journal", "-journal"}) DosyaYaz(yeni + ek, "kalıntı");
    EXPECT_EQ(VeriDosyasıOluştur(yeni), std::nullopt);
    EXPECT_EQ(İzinler(yeni), 0600u);
    Bağ bağ(yeni);
    EXPECT_EQ(bağ.Çalıştır("CREATE TABLE T (A TEXT)").Kod, SQL_SUCCESS);
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "boşluklu ad %20.vtb"}));
}

TEST_F(MotorTesti, Sıkıştırma) {
    Bağ bağ(m_dosya);
    KullanılanEkle(bağ, 2000);
    ASSERT_EQ(bağ.Çalıştır(MalzemeEkle("Işık", "1,5")).Kod, SQL_SUCCESS);
    const std::string oku = "SELECT * FROM UrunMalzemeTablosu";
    std::filesystem::create_directory(Yol("Vtb Yedekleri"));
    const std::string yedek = Yol("Vtb Yedekleri/%25.ydk");
    const std::string yedekSözü = Yol("Vtb%20Yedekleri/%2525.ydk");
    ASSERT_EQ(Sıkıştır(m_dosya, yedekSözü), std::nullopt);
    {
        Bağ kopya(yedek);
        EXPECT_EQ(kopya.Oku(oku), bağ.Oku(oku));
        EXPECT_EQ(kopya.Oku(HerMalzeme), bağ.Oku(HerMalzeme));
        EXPECT_EQ(kopya.Çalıştır(MalzemeEkle("ışık", "1")).Durum, "23000");
    }
    // Emptied rows give their room back, an older copy is replaced, and what a crash left beside it does no harm.
    ASSERT_EQ(bağ.Çalıştır("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'Masa'").Kod, SQL_SUCCESS);
    const auto eskiBoy = std::filesystem::file_size(yedek);
    for (const char* ek : {".yeni", ".yeni-journal", "-journal"}) DosyaYaz(yedek + ek, Tekrar("kalıntı", 1000));
    ASSERT_EQ(Sıkıştır(m_dosya, yedekSözü), std::nullopt);
    EXPECT_LT(std::filesystem::file_size(yedek), eskiBoy / 4);
    EXPECT_EQ(Bağ(yedek).Oku(oku).size(), 0u);
    EXPECT_EQ(İzinler(yedek), 0600u);

    const std::string önce = DosyaOku(yedek);
    EXPECT_TRUE(Sıkıştır(m_dosya, yedekSözü, "yanlış"));
    EXPECT_TRUE(Sıkıştır(Yol("yok.vtb"), yedekSözü));
    EXPECT_TRUE(Sıkıştır(m_dosya, m_dosya));
    EXPECT_TRUE(Sıkıştır(m_dosya, Yol("yok/a.ydk")));
    EXPECT_TRUE(Sıkıştır(m_dosya, yedekSözü + " fazla"));
    EXPECT_EQ(DosyaOku(yedek), önce);
    EXPECT_EQ(bağ.Oku(HerMalzeme).size(), 1u);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Yol("Vtb Yedekleri")), {}), 1);
}

// The target's half transaction is undone before its journal goes, so that being cut off leaves the old content whole.
TEST_F(MotorTesti, HedefinYarımKalanHareketi) {
    ASSERT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt);
    const std::string eski = DosyaOku(Yol("a.ydk"));
    const auto yarımHareket = [&] {
        Bağ bağ(Yol("a.ydk"));
        SQLSetConnectOption(bağ.Bağlantı, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
        for (int i = 0;; ++i) bağ.Çalıştır(MalzemeEkle(std::to_string(i) + Tekrar("x", 200), "1"));
    };
    // The file grows only when SQLite's cache spills, which leaves a journal that must be played back.
    ÖldürülenSüreçte(yarımHareket, [&] {
        while (DosyaOku(Yol("a.ydk")) == eski) usleep(1000);
    });
    ASSERT_TRUE(std::filesystem::exists(Yol("a.ydk-journal")));
    EXPECT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt);
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "a.ydk"}));
    EXPECT_EQ(Bağ(Yol("a.ydk")).Oku(HerMalzeme).size(), 0u);
}

TEST_F(MotorTesti, DiskDolu) {
    {
        Bağ bağ(m_dosya);
        KullanılanEkle(bağ, 500);
    }
    const std::string önce = DosyaOku(m_dosya);
    const auto boy = static_cast<std::size_t>(std::filesystem::file_size(m_dosya));
    const std::string oku = "SELECT * FROM UrunMalzemeTablosu";
    EXPECT_TRUE(DoluDisktekiSüreçte(boy, [&] {
        Bağ bağ(m_dosya);
        // Room within the file may take the first rows; the statement that needs more is refused, reading goes on.
        for (int i = 0; i < 1000; ++i) {
            const Sonuç sonuç = bağ.Çalıştır(MalzemeEkle(std::to_string(i) + Tekrar("x", 200), "1"));
            if (sonuç.Kod == SQL_SUCCESS) continue;
            return sonuç.Durum == "S1000" && İçinde(sonuç.Mesaj, "disk") &&
                   bağ.Oku(HerMalzeme).size() == static_cast<std::size_t>(i) && bağ.Oku(oku).size() == 500;
        }
        return false;
    }));
    EXPECT_EQ(Bağ(m_dosya).Oku(oku).size(), 500u);

    const std::size_t sıkışıkBoy = 2 * 4096;
    ASSERT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt);
    const std::string yedek = DosyaOku(Yol("a.ydk"));
    EXPECT_TRUE(DoluDisktekiSüreçte(sıkışıkBoy, [&] {
        return Sıkıştır(m_dosya, Yol("a.ydk")).has_value() && VeriDosyasıOluştur(Yol("b.vtb")).has_value() == false;
    }));
    EXPECT_TRUE(DoluDisktekiSüreçte(4096, [&] { return VeriDosyasıOluştur(Yol("c.vtb")).has_value(); }));
    EXPECT_EQ(DosyaOku(Yol("a.ydk")), yedek);
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "a.ydk", "b.vtb"}));
}

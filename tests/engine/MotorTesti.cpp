#include "MotorTesti.h"

#include <odbcinst.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sstream>

#include "VeriBaglantisi.h"
#include "VeriDosyasi.h"

namespace {

SQLCHAR* Metin(const std::string& metin) {
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(metin.c_str()));
}

Sonuç SonucuAl(SQLRETURN kod, SQLHDBC bağlantı, SQLHSTMT deyim) {
    Sonuç sonuç{kod, {}, {}, 0};
    if (kod == SQL_SUCCESS) return sonuç;
    SQLCHAR durum[6] = "";
    SQLCHAR mesaj[512] = "";
    SQLINTEGER yerel = 0;
    SQLError(SQL_NULL_HENV, bağlantı, deyim, durum, &yerel, mesaj, sizeof mesaj, nullptr);
    sonuç.Yerel = yerel;
    sonuç.Durum = reinterpret_cast<char*>(durum);
    sonuç.Mesaj = reinterpret_cast<char*>(mesaj);
    return sonuç;
}

std::string SütunOku(SQLHSTMT deyim, SQLUSMALLINT sütun) {
    char tampon[2048] = "";
    SQLLEN uzunluk = 0;
    EXPECT_EQ(SQLGetData(deyim, sütun, SQL_C_CHAR, tampon, sizeof tampon, &uzunluk), SQL_SUCCESS);
    return uzunluk == SQL_NULL_DATA ? "<NULL>" : std::string(tampon, static_cast<std::size_t>(uzunluk));
}

}  // namespace

std::string Tanım(const std::string& yol, const std::string& parola) {
    return std::string("DRIVER={") + Sürücü + "};DBQ=" + yol + ";UID=Admin;PWD=" + parola;
}

Bağ::Bağ() {
    SQLAllocEnv(&Ortam);
    SQLAllocConnect(Ortam, &Bağlantı);
}

Bağ::Bağ(const std::string& yol) : Bağ() {
    const Sonuç sonuç = Bağlan(Tanım(yol));
    EXPECT_EQ(sonuç.Kod, SQL_SUCCESS) << sonuç.Mesaj;
}

Bağ::~Bağ() {
    SQLDisconnect(Bağlantı);
    SQLFreeConnect(Bağlantı);
    SQLFreeEnv(Ortam);
}

SQLRETURN Bağ::Dene(const std::string& tanım) {
    SQLCHAR boş[1];
    return SQLDriverConnect(Bağlantı, nullptr, Metin(tanım), static_cast<SQLSMALLINT>(tanım.size()), boş, 0, nullptr,
                            SQL_DRIVER_COMPLETE);
}

Sonuç Bağ::Bağlan(const std::string& tanım) {
    return SonucuAl(Dene(tanım), Bağlantı, nullptr);
}

Sonuç Bağ::Çalıştır(const std::string& sql) {
    Deyim deyim(Bağlantı);
    return SonucuAl(deyim.Çalıştır(sql), nullptr, deyim.Tanıtıcı);
}

Sonuç Bağ::İlkTanı(SQLHSTMT deyim) {
    return SonucuAl(SQL_ERROR, nullptr, deyim);
}

Satırlar Bağ::Oku(const std::string& sql) {
    Satırlar satırlar;
    Deyim deyim(Bağlantı);
    const Sonuç sonuç = SonucuAl(deyim.Çalıştır(sql), nullptr, deyim.Tanıtıcı);
    EXPECT_EQ(sonuç.Kod, SQL_SUCCESS) << sql << ": " << sonuç.Mesaj;
    SQLSMALLINT sütunSayısı = 0;
    SQLNumResultCols(deyim.Tanıtıcı, &sütunSayısı);
    SQLRETURN kod = SQL_ERROR;
    while (sonuç.Kod == SQL_SUCCESS && (kod = SQLFetch(deyim.Tanıtıcı)) == SQL_SUCCESS) {
        auto& satır = satırlar.emplace_back();
        for (SQLSMALLINT i = 1; i <= sütunSayısı; ++i)
            satır.push_back(SütunOku(deyim.Tanıtıcı, static_cast<SQLUSMALLINT>(i)));
    }
    EXPECT_EQ(kod, SQL_NO_DATA) << sql;
    return satırlar;
}

std::string Bağ::Tek(const std::string& sql) {
    const Satırlar satırlar = Oku(sql);
    return satırlar.size() == 1 && satırlar[0].size() == 1 ? satırlar[0][0] : "<not one value>";
}

SQLRETURN Deyim::Çalıştır(const std::string& sql) {
    return SQLExecDirect(Tanıtıcı, Metin(sql), static_cast<SQLINTEGER>(sql.size()));
}

std::optional<std::string> KaynakAyarla(WORD istek, const std::vector<std::string>& çiftler) {
    std::string liste;
    for (const std::string& çift : çiftler) liste += çift + '\0';
    liste += '\0';
    if (SQLConfigDataSource(nullptr, istek, Sürücü, liste.c_str())) return std::nullopt;
    // The installer's own record comes first, the driver's reason behind it.
    std::string mesajlar;
    for (WORD sıra = 1; sıra <= 8; ++sıra) {
        char mesaj[512] = "";
        DWORD kod = 0;
        if (SQLInstallerError(sıra, &kod, mesaj, sizeof mesaj, nullptr) != SQL_SUCCESS) break;
        mesajlar += mesaj;
    }
    return mesajlar;
}

std::optional<std::string> VeriDosyasıOluştur(const std::string& yol) {
    return KaynakAyarla(ODBC_ADD_DSN, {std::string("PWD=") + Parola, "CREATE_DB=" + yol});
}

std::optional<std::string> Sıkıştır(const std::string& kaynak, const std::string& hedef, const std::string& parola) {
    return KaynakAyarla(ODBC_ADD_DSN, {"UID=Admin", "PWD=" + parola, "COMPACT_DB=" + kaynak + " " + hedef});
}

void ÖldürülenSüreçte(const std::function<void()>& iş, const std::function<void()>& bekle) {
    const pid_t çocuk = fork();
    if (çocuk == 0) {
        iş();
        _exit(0);
    }
    bekle();
    kill(çocuk, SIGKILL);
    waitpid(çocuk, nullptr, 0);
}

bool AyrıcalıksızSüreçte(const std::function<bool()>& iş) {
    const pid_t çocuk = fork();
    if (çocuk == 0) {
        __user_cap_header_struct başlık{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct hiçbiri[2]{};
        _exit(syscall(SYS_capset, &başlık, hiçbiri) == 0 && iş() ? 0 : 1);
    }
    int durum = 0;
    waitpid(çocuk, &durum, 0);
    return WIFEXITED(durum) && WEXITSTATUS(durum) == 0;
}

std::string Tekrar(const std::string& metin, int kez) {
    std::string sonuç;
    for (int i = 0; i < kez; ++i) sonuç += metin;
    return sonuç;
}

std::string DosyaOku(const std::string& yol) {
    std::ostringstream içerik;
    içerik << std::ifstream(yol, std::ios::binary).rdbuf();
    return içerik.str();
}

void DosyaYaz(const std::string& yol, const std::string& içerik) {
    std::ofstream(yol, std::ios::binary) << içerik;
}

MotorTesti::MotorTesti() {
    m_klasör = (std::filesystem::temp_directory_path() / "motor.XXXXXX").string();
    EXPECT_NE(mkdtemp(m_klasör.data()), nullptr);
    m_dosya = Yol("Varnek.vtb");
    VeriDosyasıYap(QString::fromStdString(m_dosya), [](VeriBağlantısı&) {});
}

MotorTesti::~MotorTesti() {
    std::filesystem::remove_all(m_klasör);
}

std::vector<std::string> MotorTesti::Klasördekiler() const {
    std::vector<std::string> adlar;
    for (const auto& dosya : std::filesystem::directory_iterator(m_klasör))
        adlar.push_back(dosya.path().filename().string());
    std::sort(adlar.begin(), adlar.end());
    return adlar;
}

void MotorTesti::KullanılanEkle(Bağ& bağ, int sayı) {
    SQLSetConnectOption(bağ.Bağlantı, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
    for (int i = 0; i < sayı; ++i) {
        const Sonuç sonuç = bağ.Çalıştır(
            "INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
            "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#3/7/2004#, 'Masa', 'Yemek Masası', 'Kereste', "
            "'" +
            std::to_string(i) + " Adet', '0')");
        ASSERT_EQ(sonuç.Kod, SQL_SUCCESS) << sonuç.Mesaj;
    }
    EXPECT_EQ(SQLSetConnectOption(bağ.Bağlantı, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_ON), SQL_SUCCESS);
}

std::string MalzemeEkle(const std::string& ad, const std::string& fiyat) {
    return "INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('" + ad + "', '" + fiyat + "')";
}

#pragma once

#include <gtest/gtest.h>
#include <sql.h>
#include <sqlext.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Everything here goes through the real driver manager.

inline constexpr const char* Sürücü = "Microsoft Access Driver (*.mdb)";
inline constexpr const char* Parola = "Kumsaldaki";

using Satırlar = std::vector<std::vector<std::string>>;

// The return code of a call and, unless it is SQL_SUCCESS, the first diagnostic.
struct Sonuç {
    SQLRETURN Kod = SQL_SUCCESS;
    std::string Durum;
    std::string Mesaj;
    int Yerel = 0;
};

std::string Tanım(const std::string& yol, const std::string& parola = Parola);

// One connection; closed by the destructor.
class Bağ {
  public:
    Bağ();
    explicit Bağ(const std::string& yol);  // fails the test when it cannot connect
    ~Bağ();
    Bağ(const Bağ&) = delete;
    Bağ& operator=(const Bağ&) = delete;

    SQLRETURN Dene(const std::string& tanım);  // takes no memory of its own
    Sonuç Bağlan(const std::string& tanım);
    Sonuç Çalıştır(const std::string& sql);
    static Sonuç İlkTanı(SQLHSTMT deyim);  // of a statement that failed
    Satırlar Oku(const std::string& sql);  // NULL reads "<NULL>"; a failure fails the test
    std::string Tek(const std::string& sql);

    SQLHENV Ortam = nullptr;
    SQLHDBC Bağlantı = nullptr;
};

// A statement handle, dropped by the destructor.
struct Deyim {
    explicit Deyim(SQLHDBC bağlantı) { SQLAllocStmt(bağlantı, &Tanıtıcı); }
    ~Deyim() { SQLFreeStmt(Tanıtıcı, SQL_DROP); }
    SQLRETURN Çalıştır(const std::string& sql);
    SQLHSTMT Tanıtıcı = nullptr;
};

// SQLConfigDataSource with this attribute list (pairs); the installer's message when it fails.
std::optional<std::string> KaynakAyarla(WORD istek, const std::vector<std::string>& çiftler);
std::optional<std::string> VeriDosyasıOluştur(const std::string& yol);
std::optional<std::string> Sıkıştır(const std::string& kaynak, const std::string& hedef,
                                    const std::string& parola = Parola);

// Runs `iş` in a child process and kills it (SIGKILL) once `bekle` has come back here.
void ÖldürülenSüreçte(const std::function<void()>& iş, const std::function<void()>& bekle);

// Runs `iş` in a child process that file modes bind, the superuser's too; true when `iş` gave true.
bool AyrıcalıksızSüreçte(const std::function<bool()>& iş);

std::string Tekrar(const std::string& metin, int kez);
std::string DosyaOku(const std::string& yol);
void DosyaYaz(const std::string& yol, const std::string& içerik);

// A fresh folder with a data file as the data-file tool makes it.
class MotorTesti : public testing::Test {
  protected:
    MotorTesti();
    ~MotorTesti() override;

    std::string Yol(const std::string& ad) const { return m_klasör + "/" + ad; }
    std::vector<std::string> Klasördekiler() const;

    // Writes `sayı` used materials of one product in one transaction.
    void KullanılanEkle(Bağ& bağ, int sayı);

    std::string m_klasör;
    std::string m_dosya;
};

constexpr const char* HerMalzeme = "SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC";
std::string MalzemeEkle(const std::string& ad, const std::string& fiyat);

#pragma once

#include <gtest/gtest.h>
#include <sql.h>
#include <sqlext.h>

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "OdbcSurucu.h"
#include "TestVerisi.h"

// Everything here goes through the real driver manager. Connecting, running and reading are TestVerisi's; calls with
// strange arguments are made as they are.

inline const std::string Sürücü = SürücüAdı().toStdString();
inline const std::string Parola = VeriDosyasıParolası().toStdString();

using Satırlar = QList<QStringList>;

std::string Tanım(const std::string& yol, const std::string& parola = Parola);

// A statement for calls of its own, dropped by the destructor.
struct Deyim : OdbcDeyimi {
    explicit Deyim(TestVerisi& veri) { Aç(veri.Bağlantı()); }
    SQLRETURN Çalıştır(const TestMetni& sql) { return OdbcDeyimi::Çalıştır(sql); }
};

// SQLConfigDataSource with this attribute list (pairs); the installer's messages when it fails.
std::optional<std::string> KaynakAyarla(Kurulumİsteği istek, std::initializer_list<TestMetni> çiftler);
std::optional<std::string> Oluştur(const std::string& yol);
std::optional<std::string> Sıkıştır(const std::string& kaynak, const std::string& hedef,
                                    const std::string& parola = Parola);

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
    void KullanılanEkle(TestVerisi& bağ, int sayı);

    std::string m_klasör;
    std::string m_dosya;
};

constexpr const char* HerMalzeme = "SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC";
std::string MalzemeEkle(const std::string& ad, const std::string& fiyat);

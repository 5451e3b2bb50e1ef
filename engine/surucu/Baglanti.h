#pragma once

#include "BaglantiMetni.h"
#include "Tani.h"
#include "Veritabani.h"

#include <memory>
#include <vector>

namespace Motor {

// An ODBC environment.
struct Ortam {
    Tanılar Tanı;
};

// What lives on a connection and ends with it at the latest: the driver manager does not give the driver's statements
// back one by one when it disconnects.
class BağlıNesne {
  public:
    virtual ~BağlıNesne() = default;
};

// An ODBC connection.
class Bağlantı {
  public:
    Tanılar Tanı;

    SQLRETURN Bağlan(std::string_view veriKaynağı, std::string_view parola);
    SQLRETURN MetinleBağlan(std::string_view metin, SQLCHAR* çıkış, SQLSMALLINT boy, SQLSMALLINT* uzunluk);
    SQLRETURN Ayrıl();

    void Sahiplen(std::unique_ptr<BağlıNesne> nesne) { m_bağlılar.push_back(std::move(nesne)); }
    void Bırak(const BağlıNesne* nesne) noexcept;

    SQLRETURN HareketiBitir(SQLUSMALLINT tür);
    SQLRETURN AyarYaz(SQLUSMALLINT ayar, SQLULEN değer);
    SQLRETURN AyarOku(SQLUSMALLINT ayar, SQLPOINTER değer);
    SQLRETURN BilgiVer(SQLUSMALLINT bilgi, SQLPOINTER değer, SQLSMALLINT boy, SQLSMALLINT* uzunluk);

    // Throws Hata (S1010) while there is no connection.
    Veritabanı& Veri();

  private:
    void Aç(const Öznitelikler& öznitelikler);

    std::unique_ptr<Veritabanı> m_veri;
    std::vector<std::unique_ptr<BağlıNesne>> m_bağlılar;
    std::string m_veriKaynağı;
    std::string m_yol;
};

}  // namespace Motor

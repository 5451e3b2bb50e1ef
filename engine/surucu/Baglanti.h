#pragma once

#include "BaglantiMetni.h"
#include "Tani.h"
#include "Veritabani.h"

#include <memory>

namespace Motor {

// An ODBC environment.
struct Ortam {
    Tanılar Tanı;
};

// An ODBC connection.
class Bağlantı {
  public:
    Tanılar Tanı;

    SQLRETURN Bağlan(std::string_view veriKaynağı, std::string_view parola);
    SQLRETURN MetinleBağlan(std::string_view metin, SQLCHAR* çıkış, SQLSMALLINT boy, SQLSMALLINT* uzunluk);
    SQLRETURN Ayrıl();

    SQLRETURN HareketiBitir(SQLUSMALLINT tür);
    SQLRETURN AyarYaz(SQLUSMALLINT ayar, SQLULEN değer);
    SQLRETURN AyarOku(SQLUSMALLINT ayar, SQLPOINTER değer);
    SQLRETURN BilgiVer(SQLUSMALLINT bilgi, SQLPOINTER değer, SQLSMALLINT boy, SQLSMALLINT* uzunluk);

    // Throws Hata (S1010) while there is no connection.
    Veritabanı& Veri();

  private:
    void Aç(const Öznitelikler& öznitelikler);

    std::unique_ptr<Veritabanı> m_veri;
    std::string m_veriKaynağı;
    std::string m_yol;
};

}  // namespace Motor

#pragma once

#include "BaglantiMetni.h"
#include "Tani.h"
#include "Veritabani.h"

#include <atomic>
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
class BağlantıNesnesi {
  public:
    Tanılar Tanı;

    SQLRETURN Bağlan(std::string_view veriKaynağı, std::string_view parola);
    SQLRETURN MetinleBağlan(std::string_view metin, SQLCHAR* çıkış, SQLSMALLINT boy, SQLSMALLINT* uzunluk);
    SQLRETURN Ayrıl();

    // Makes an object of this connection; nothing is left behind when that fails.
    template <class Nesne>
    Nesne* Doğur() {
        auto nesne = std::make_unique<Nesne>(*this);
        Nesne* ham = nesne.get();
        m_bağlılar.push_back(std::move(nesne));
        return ham;
    }
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
    std::atomic<bool> m_iptalsiz = false;  // no statement's work
    std::vector<std::unique_ptr<BağlıNesne>> m_bağlılar;
    std::string m_veriKaynağı;
    std::string m_yol;
};

}  // namespace Motor

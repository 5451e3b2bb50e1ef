#pragma once

#include "Hata.h"

#include <sql.h>
#include <sqlext.h>

#include <string>
#include <string_view>
#include <vector>

namespace Motor {

// The diagnostics of one handle, in the order in which they arose.
class Tanılar {
  public:
    void Temizle() noexcept { m_kayıtlar.clear(); }
    void Ekle(Hata hata) noexcept;

    // Hands out the oldest record and takes it off the list: the state (6 bytes), the message cut at a whole character
    // to the buffer, its full length in bytes. SQL_NO_DATA when there is none, 1 when the message was cut.
    SQLRETURN Al(SQLCHAR* durum, SQLINTEGER* yerel, SQLCHAR* mesaj, SQLSMALLINT boy, SQLSMALLINT* uzunluk) noexcept;

  private:
    std::vector<Hata> m_kayıtlar;
};

// Writes a text with its closing NUL into a client's buffer of `boy` bytes, cut at a whole character when it does not
// fit; true when it was cut. Without a buffer nothing is written and nothing counts as cut.
bool MetinKopyala(std::string_view metin, void* tampon, SQLLEN boy) noexcept;

// The same with the text's length in bytes in `uzunluk` (may be null) and a 01004 diagnostic for a cut text.
SQLRETURN MetinVer(Tanılar& tanılar, std::string_view metin, void* tampon, SQLSMALLINT boy, SQLSMALLINT* uzunluk);

// A text argument of an ODBC call: length in bytes or SQL_NTS. A negative other length throws Hata (S1090).
std::string_view MetinAl(const SQLCHAR* metin, SQLINTEGER uzunluk);

// Runs the body of an entry point: the handle's old diagnostics are dropped, whatever it throws becomes a diagnostic.
template <class Nesne, class İş>
SQLRETURN Koru(SQLHANDLE tanıtıcı, İş iş) noexcept {
    auto* nesne = static_cast<Nesne*>(tanıtıcı);
    if (!nesne) return SQL_INVALID_HANDLE;
    nesne->Tanı.Temizle();
    try {
        return iş(*nesne);
    } catch (const Hata& hata) {
        nesne->Tanı.Ekle(hata);
    } catch (const std::bad_alloc&) {
        nesne->Tanı.Ekle(Hata(Durum::BellekYok, "Bellek yetmedi."));
    } catch (const std::exception& hata) {
        nesne->Tanı.Ekle(Hata(Durum::Genel, hata.what()));
    }
    return SQL_ERROR;
}

}  // namespace Motor

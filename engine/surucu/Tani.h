#pragma once

#include "Hata.h"

#include <sql.h>
#include <sqlext.h>

#include <array>
#include <new>
#include <string_view>

namespace Motor {

// The diagnostics of one handle, in the order in which they arose. A call leaves one or two; should one ever leave more
// than there is room for, the first ones count.
class Tanılar {
  public:
    void Temizle() noexcept { m_sayı = 0; }
    void Ekle(const Hata& hata) noexcept;

    // Hands out the oldest record and takes it off the list: the state (6 bytes), the message cut at a whole character
    // to the buffer, its full length in bytes. SQL_NO_DATA when there is none, 1 when the message was cut.
    SQLRETURN Al(SQLCHAR* durum, SQLINTEGER* yerel, SQLCHAR* mesaj, SQLSMALLINT boy, SQLSMALLINT* uzunluk) noexcept;

  private:
    std::array<Hata, 4> m_kayıtlar;
    std::size_t m_sayı = 0;
};

// Writes a text with its closing NUL into a client's buffer of `boy` bytes, cut at a whole character when it does not
// fit; true when it was cut. Without a buffer nothing is written and nothing counts as cut.
bool MetinKopyala(std::string_view metin, void* tampon, SQLLEN boy) noexcept;

// A length for an ODBC output of 16 bits: one that does not fit is given as the largest.
SQLSMALLINT KısaUzunluk(std::size_t uzunluk) noexcept;

// The same with the text's length in bytes in `uzunluk` (may be null) and a 01004 diagnostic for a cut text.
SQLRETURN MetinVer(Tanılar& tanılar, std::string_view metin, void* tampon, SQLSMALLINT boy, SQLSMALLINT* uzunluk);

// A text argument of an ODBC call: length in bytes or SQL_NTS. A negative other length throws Hata (S1090).
std::string_view MetinAl(const SQLCHAR* metin, SQLINTEGER uzunluk);

inline constexpr std::string_view BeklenmeyenHata = "Beklenmeyen bir hata oluştu; işlem yapılmadı.";

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
    } catch (...) {  // a library's own text would be English
        nesne->Tanı.Ekle(Hata(Durum::Genel, BeklenmeyenHata));
    }
    return SQL_ERROR;
}

}  // namespace Motor

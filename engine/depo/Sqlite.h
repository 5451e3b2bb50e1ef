#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace Motor {

using Değer = std::variant<std::int64_t, double, std::string>;

struct SqliteKapatıcı {
    void operator()(sqlite3* vt) const noexcept { sqlite3_close_v2(vt); }
};
using SqliteBağlantısı = std::unique_ptr<sqlite3, SqliteKapatıcı>;

// How long a statement waits for another program's lock, in milliseconds.
inline constexpr int KilitBekleme = 2000;

// Opens an existing file (never creates one) with the engine's settings: every transaction on disk before it is
// confirmed, Turkish order known, two seconds of patience with a locked file, nothing in the file trusted. Nothing is
// read from the file yet. `yol` is a real path (GerçekYol). Throws Hata.
SqliteBağlantısı SqliteAç(const std::string& yol);

// The same for reading alone: nothing beside the file is looked at either. Nobody may write to it meanwhile.
SqliteBağlantısı SqliteOkumayaAç(const std::string& yol);

// For putting a damaged file's schema right: it opens whatever state the schema is in, and lets it be written.
SqliteBağlantısı SqliteOnarmayaAç(const std::string& yol);

// A name of the file as SQL takes it.
std::string Tırnakla(std::string_view ad);

// Turns SQLite's result code into a diagnostic for the user; damage has the native code SQLITE_CORRUPT or
// SQLITE_NOTADB.
[[noreturn]] void SqliteHatasıFırlat(int kod);

// Runs SQL that gives no rows.
void SqliteYürüt(sqlite3* vt, const char* sql);

// One prepared statement. Every failure throws Hata.
class SqliteDeyimi {
  public:
    SqliteDeyimi(sqlite3* vt, std::string_view sql);

    void Bağla(int sıra, const Değer& değer);  // from 1
    void BağlaBayt(int sıra, std::string_view baytlar);
    void BağlaDeğer(int sıra, const sqlite3_value* değer);  // of another statement's row

    // The next row; at the end false, and the file's lock is given back.
    bool Adım() {
        const int sonuç = sqlite3_step(m_deyim.get());
        return sonuç == SQLITE_ROW || Bitti(sonuç);
    }

    // Ends the rows before their end.
    void Bırak() { sqlite3_reset(m_deyim.get()); }

    // A value of the current row, for the sqlite3_value_... functions, which cost less than their sqlite3_column_...
    // counterparts and are as good here, where no second thread can be in the connection.
    sqlite3_value* SütunDeğeri(int sütun) const { return sqlite3_column_value(m_deyim.get(), sütun); }

    std::int64_t TamSayı(int sütun) const { return sqlite3_column_int64(m_deyim.get(), sütun); }
    std::string_view Metin(int sütun) const {
        const auto* metin = reinterpret_cast<const char*>(sqlite3_column_text(m_deyim.get(), sütun));
        return {metin, static_cast<std::size_t>(sqlite3_column_bytes(m_deyim.get(), sütun))};
    }
    std::string_view Bayt(int sütun) const;

  private:
    bool Bitti(int sonuç);

    struct Bitirici {
        void operator()(sqlite3_stmt* deyim) const noexcept { sqlite3_finalize(deyim); }
    };
    std::unique_ptr<sqlite3_stmt, Bitirici> m_deyim;
};

}  // namespace Motor

#include "Sqlite.h"

#include "Hata.h"
#include "TurkceSira.h"

namespace Motor {

namespace {

constexpr int KilitBekleme = 2000;  // milliseconds

int TürkçeSıra(void*, int aBoyu, const void* a, int bBoyu, const void* b) {
    return Türkçe::Karşılaştır(std::string_view(static_cast<const char*>(a), static_cast<std::size_t>(aBoyu)),
                               std::string_view(static_cast<const char*>(b), static_cast<std::size_t>(bBoyu)));
}

// The part of a diagnostic that SQLite's primary result code decides.
Hata TemelHata(int kod, sqlite3* vt) {
    switch (kod & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return {Durum::ZamanAşımı,
                    "Veri dosyası şu anda başka bir program tarafından kullanılıyor; biraz sonra tekrar deneyin.", kod};
        case SQLITE_FULL:
            return {Durum::Genel, "Diskte yer kalmadığı için kayıt yapılamadı; veri dosyası değişmedi.", kod};
        case SQLITE_IOERR:
            return {Durum::Genel,
                    "Veri dosyası okunamıyor ya da yazılamıyor; disk dolu veya arızalı olabilir. Dosya değişmedi.",
                    kod};
        case SQLITE_CORRUPT:
            return {Durum::Genel, "Veri dosyası bozulmuş; işlem yapılmadı. Lütfen yedeğinizi geri yükleyin.", kod};
        case SQLITE_NOTADB:
            return {Durum::Bağlanamadı, "Bu dosya bir veri dosyası değil ya da bozulmuş.", kod};
        case SQLITE_READONLY:
            return {Durum::Genel, "Veri dosyasına yazma izni yok.", kod};
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
        case SQLITE_AUTH:
            return {Durum::Bağlanamadı,
                    "Veri dosyası ya da günlüğü açılamıyor; dosyanın ve klasörünün izinlerini denetleyin.", kod};
        case SQLITE_CONSTRAINT:
            if (kod == SQLITE_CONSTRAINT_NOTNULL)
                return {Durum::Kısıt, "Boş bırakılamayan bir sütuna değer verilmemiş; kayıt yapılmadı.", kod};
            return {Durum::Kısıt, "Aynı değer tabloda zaten var; kayıt yapılmadı.", kod};
        case SQLITE_NOMEM:
            return {Durum::BellekYok, "Bellek yetmedi.", kod};
        default:
            return {Durum::Genel, std::string("Deyim çalıştırılamadı: ") + (vt ? sqlite3_errmsg(vt) : ""), kod};
    }
}

}  // namespace

void SqliteHatasıFırlat(sqlite3* vt, int kod) {
    throw TemelHata(kod, vt);
}

SqliteBağlantısı SqliteAç(const std::string& yol) {
    sqlite3* ham = nullptr;
    // The driver manager lets one call at a time into a connection, so SQLite's own locks are not needed.
    constexpr int bayraklar = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    const int sonuç = sqlite3_open_v2(yol.c_str(), &ham, bayraklar, nullptr);
    SqliteBağlantısı vt(ham);
    if (sonuç != SQLITE_OK) SqliteHatasıFırlat(ham, sonuç);
    sqlite3_busy_timeout(ham, KilitBekleme);
    sqlite3_create_collation_v2(ham, "TURKCE", SQLITE_UTF8, nullptr, TürkçeSıra, nullptr);
    sqlite3_db_config(ham, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(ham, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    // EXTRA also syncs the folder after the journal is deleted, without which a power cut could bring the journal back
    // and undo a confirmed statement.
    SqliteYürüt(ham, "PRAGMA synchronous=EXTRA; PRAGMA temp_store=MEMORY; PRAGMA cell_size_check=ON");
    return vt;
}

void SqliteYürüt(sqlite3* vt, const char* sql) {
    const int sonuç = sqlite3_exec(vt, sql, nullptr, nullptr, nullptr);
    if (sonuç != SQLITE_OK) SqliteHatasıFırlat(vt, sonuç);
}

SqliteDeyimi::SqliteDeyimi(sqlite3* vt, std::string_view sql) {
    sqlite3_stmt* ham = nullptr;
    const int sonuç = sqlite3_prepare_v2(vt, sql.data(), static_cast<int>(sql.size()), &ham, nullptr);
    m_deyim.reset(ham);
    if (sonuç != SQLITE_OK) SqliteHatasıFırlat(vt, sonuç);
}

void SqliteDeyimi::Bağla(int sıra, const Değer& değer) {
    int sonuç = SQLITE_OK;
    if (const auto* tamSayı = std::get_if<std::int64_t>(&değer)) {
        sonuç = sqlite3_bind_int64(m_deyim.get(), sıra, *tamSayı);
    } else if (const auto* ondalık = std::get_if<double>(&değer)) {
        sonuç = sqlite3_bind_double(m_deyim.get(), sıra, *ondalık);
    } else {
        const auto& metin = std::get<std::string>(değer);
        sonuç = sqlite3_bind_text64(m_deyim.get(), sıra, metin.data(), metin.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    if (sonuç != SQLITE_OK) SqliteHatasıFırlat(sqlite3_db_handle(m_deyim.get()), sonuç);
}

void SqliteDeyimi::BağlaBayt(int sıra, std::string_view baytlar) {
    const int sonuç = sqlite3_bind_blob64(m_deyim.get(), sıra, baytlar.data(), baytlar.size(), SQLITE_TRANSIENT);
    if (sonuç != SQLITE_OK) SqliteHatasıFırlat(sqlite3_db_handle(m_deyim.get()), sonuç);
}

std::string_view SqliteDeyimi::Bayt(int sütun) const {
    const auto* baytlar = static_cast<const char*>(sqlite3_column_blob(m_deyim.get(), sütun));
    return {baytlar, static_cast<std::size_t>(sqlite3_column_bytes(m_deyim.get(), sütun))};
}

bool SqliteDeyimi::Bitti(int sonuç) {
    sqlite3* vt = sqlite3_db_handle(m_deyim.get());
    if (sonuç == SQLITE_DONE) {
        sonuç = sqlite3_reset(m_deyim.get());
        if (sonuç == SQLITE_OK) return false;
    }
    const Hata hata = TemelHata(sonuç, vt);
    sqlite3_reset(m_deyim.get());
    throw hata;
}

}  // namespace Motor

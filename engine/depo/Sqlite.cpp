#include "Sqlite.h"

#include "Hata.h"
#include "TurkceSira.h"

namespace Motor {

namespace {

constexpr std::size_t GünlükEki = std::string_view("-journal").size();

int TürkçeSıra(void*, int aBoyu, const void* a, int bBoyu, const void* b) {
    return Türkçe::Karşılaştır(std::string_view(static_cast<const char*>(a), static_cast<std::size_t>(aBoyu)),
                               std::string_view(static_cast<const char*>(b), static_cast<std::size_t>(bBoyu)));
}

struct Tanım {
    int Kod;  // primary, or extended where the exact cause has a text of its own
    std::string_view Durum;
    std::string_view Mesaj;
};

// SQLite's own texts are English and may quote bytes of the file, so none of them is passed on.
constexpr Tanım Tanımlar[] = {
    {SQLITE_BUSY, Durum::ZamanAşımı,
     "Veri dosyası şu anda başka bir program tarafından kullanılıyor; biraz sonra tekrar deneyin."},
    {SQLITE_LOCKED, Durum::ZamanAşımı,
     "Veri dosyası şu anda başka bir program tarafından kullanılıyor; biraz sonra tekrar deneyin."},
    {SQLITE_FULL, Durum::Genel, "Diskte yer kalmadığı için kayıt yapılamadı; veri dosyası değişmedi."},
    // The journal is gone by then, which is what makes the change valid: only its lasting is in doubt.
    {SQLITE_IOERR_DIR_FSYNC, Durum::Genel,
     "Değişiklik veri dosyasına yazıldı ama diskin onu kalıcı olarak sakladığı doğrulanamadı; kaydı ve diski "
     "denetleyin."},
    {SQLITE_IOERR, Durum::Genel,
     "Veri dosyası okunamıyor ya da yazılamıyor; disk dolu veya arızalı olabilir. Dosya değişmedi."},
    {SQLITE_CORRUPT, Durum::Genel, "Veri dosyası bozulmuş; işlem yapılmadı. Lütfen yedeğinizi geri yükleyin."},
    {SQLITE_NOTADB, Durum::Bağlanamadı, "Bu dosya bir veri dosyası değil ya da bozulmuş."},
    {SQLITE_READONLY_DBMOVED, Durum::Genel,
     "Veri dosyası değiştirilmiş: yerine başka bir dosya konmuş. Bağlantıyı kapatıp yeniden açın."},
    {SQLITE_READONLY_DIRECTORY, Durum::Genel, "Veri dosyasının klasörüne yazma izni yok; kayıt yapılmadı."},
    {SQLITE_READONLY_ROLLBACK, Durum::Genel,
     "Veri dosyasında yarım kalmış bir kayıt var; dosya salt okunur olduğu için geri alınamıyor."},
    {SQLITE_READONLY, Durum::Genel, "Veri dosyası salt okunur; kayıt yapılamaz. Dosyanın yazma iznini denetleyin."},
    {SQLITE_CANTOPEN, Durum::Bağlanamadı,
     "Veri dosyası ya da günlüğü açılamıyor; dosyanın ve klasörünün izinlerini denetleyin."},
    {SQLITE_PERM, Durum::Bağlanamadı,
     "Veri dosyası ya da günlüğü açılamıyor; dosyanın ve klasörünün izinlerini denetleyin."},
    {SQLITE_CONSTRAINT_NOTNULL, Durum::Kısıt, "Boş bırakılamayan bir sütuna değer verilmemiş; kayıt yapılmadı."},
    {SQLITE_CONSTRAINT, Durum::Kısıt, "Aynı değer tabloda zaten var; kayıt yapılmadı."},
    {SQLITE_NOMEM, Durum::BellekYok, "Bellek yetmedi."},
    {SQLITE_INTERRUPT, Durum::İptal, "İşlem iptal edildi."},
    {SQLITE_ABORT, Durum::GeriAlındı, "Onaylanmamış değişiklikler geri alındığı için okuma kesildi."},
    {SQLITE_SCHEMA, Durum::Genel, "Tabloların yapısı bu sırada değişti; tekrar deneyin."},
    {SQLITE_TOOBIG, Durum::Genel, "Deyim ya da bir değer çok uzun; işlem yapılmadı."},
    {SQLITE_ERROR, Durum::Genel,
     "Deyim bu veri dosyasında çalıştırılamadı; tablo, sütun ve dizin adlarını ve sayılarını denetleyin."},
};

Hata TemelHata(int kod) noexcept {
    const int ana = kod & 0xFF;
    // Clients tell damage by these two numbers, whatever its finer kind.
    const int yerel = ana == SQLITE_CORRUPT || ana == SQLITE_NOTADB ? ana : kod;
    for (const Tanım& tanım : Tanımlar)
        if (tanım.Kod == kod || tanım.Kod == ana) return {tanım.Durum, tanım.Mesaj, yerel};
    return {Durum::Genel, "Veri dosyasında işlem yapılamadı.", yerel};
}

void Denetle(int sonuç) {
    if (sonuç != SQLITE_OK) SqliteHatasıFırlat(sonuç);
}

}  // namespace

void SqliteHatasıFırlat(int kod) {
    throw TemelHata(kod);
}

namespace {

// As far as the file is not asked about yet.
SqliteBağlantısı BaşlıksızAç(const std::string& yol, const std::string& ad, int biçim) {
    // SQLite's own limit, whose breach it would report as a matter of permissions.
    const auto enUzun = static_cast<std::size_t>(sqlite3_vfs_find(nullptr)->mxPathname);
    if (yol.size() + GünlükEki > enUzun)
        throw Hata(Durum::Bağlanamadı, "Veri dosyasının yolu çok uzun: en çok " + std::to_string(enUzun - GünlükEki) +
                                           " bayt olabilir. Dosyayı daha kısa adlı bir klasöre koyun.");
    sqlite3* ham = nullptr;
    // The driver manager lets one call at a time into a connection, so SQLite's own locks are not needed.
    const int bayraklar = biçim | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    const int sonuç = sqlite3_open_v2(ad.c_str(), &ham, bayraklar, nullptr);
    SqliteBağlantısı vt(ham);
    Denetle(sonuç);
    Denetle(sqlite3_busy_timeout(ham, KilitBekleme));
    Denetle(sqlite3_create_collation_v2(ham, "TURKCE", SQLITE_UTF8, nullptr, TürkçeSıra, nullptr));
    Denetle(sqlite3_db_config(ham, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr));
    return vt;
}

SqliteBağlantısı Aç(const std::string& yol, const std::string& ad, int biçim) {
    SqliteBağlantısı vt = BaşlıksızAç(yol, ad, biçim);
    Denetle(sqlite3_db_config(vt.get(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr));
    // EXTRA also syncs the folder after the journal is deleted, without which a power cut could bring the journal back
    // and undo a confirmed statement.
    SqliteYürüt(vt.get(), "PRAGMA synchronous=EXTRA; PRAGMA temp_store=MEMORY; PRAGMA cell_size_check=ON");
    return vt;
}

}  // namespace

SqliteBağlantısı SqliteAç(const std::string& yol) {
    return Aç(yol, yol, SQLITE_OPEN_READWRITE);
}

SqliteBağlantısı SqliteOnarmayaAç(const std::string& yol) {
    SqliteBağlantısı vt = BaşlıksızAç(yol, yol, SQLITE_OPEN_READWRITE);
    SqliteYürüt(vt.get(), "PRAGMA writable_schema=ON");
    return vt;
}

SqliteBağlantısı SqliteOkumayaAç(const std::string& yol) {
    constexpr std::string_view onaltılık = "0123456789ABCDEF";
    std::string adres = "file:";
    for (const char harf : yol) {
        const auto bayt = static_cast<unsigned char>(harf);
        if (harf == '%' || harf == '?' || harf == '#')
            (adres += '%').append({onaltılık[bayt >> 4], onaltılık[bayt & 15]});
        else
            adres += harf;
    }
    return Aç(yol, adres + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

std::string Tırnakla(std::string_view ad) {
    std::string tırnaklı = "\"";
    for (const char harf : ad) tırnaklı += harf == '"' ? std::string_view("\"\"") : std::string_view(&harf, 1);
    return tırnaklı + '"';
}

void SqliteYürüt(sqlite3* vt, const char* sql) {
    Denetle(sqlite3_exec(vt, sql, nullptr, nullptr, nullptr));
}

SqliteDeyimi::SqliteDeyimi(sqlite3* vt, std::string_view sql) {
    sqlite3_stmt* ham = nullptr;
    const int sonuç = sqlite3_prepare_v2(vt, sql.data(), static_cast<int>(sql.size()), &ham, nullptr);
    m_deyim.reset(ham);
    Denetle(sonuç);
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
    Denetle(sonuç);
}

void SqliteDeyimi::BağlaBayt(int sıra, std::string_view baytlar) {
    Denetle(sqlite3_bind_blob64(m_deyim.get(), sıra, baytlar.data(), baytlar.size(), SQLITE_TRANSIENT));
}

void SqliteDeyimi::BağlaDeğer(int sıra, const sqlite3_value* değer) {
    Denetle(sqlite3_bind_value(m_deyim.get(), sıra, değer));
}

std::string_view SqliteDeyimi::Bayt(int sütun) const {
    const auto* baytlar = static_cast<const char*>(sqlite3_column_blob(m_deyim.get(), sütun));
    return {baytlar, static_cast<std::size_t>(sqlite3_column_bytes(m_deyim.get(), sütun))};
}

bool SqliteDeyimi::Bitti(int sonuç) {
    if (sonuç == SQLITE_DONE) {
        sonuç = sqlite3_reset(m_deyim.get());
        if (sonuç == SQLITE_OK) return false;
    }
    sqlite3_reset(m_deyim.get());
    SqliteHatasıFırlat(sonuç);
}

}  // namespace Motor

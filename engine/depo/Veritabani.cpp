#include "Veritabani.h"

#include "DosyaIslemleri.h"
#include "ErisimdenAlma.h"
#include "Hata.h"

#include <filesystem>
#include <new>
#include <utility>

namespace Motor {

namespace {

std::int64_t PragmaOku(sqlite3* vt, const char* sql) {
    SqliteDeyimi oku(vt, sql);
    return oku.Adım() ? oku.TamSayı(0) : 0;
}

// What a crash before the journal's first sync leaves: a journal that says nothing, which SQLite neither plays back nor
// clears. Holding the write lock after a read, it is nobody's. A client that is writing just now keeps its own.
void BoşGünlüğüSil(sqlite3* vt, const std::string& yol) {
    if (!Dosya::GünlükVar(yol) || sqlite3_db_readonly(vt, "main") == 1) return;
    sqlite3_busy_timeout(vt, 0);
    if (sqlite3_exec(vt, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == SQLITE_OK) {
        Dosya::Sil(yol + "-journal");
        SqliteYürüt(vt, "ROLLBACK");
    }
    sqlite3_busy_timeout(vt, KilitBekleme);
}

}  // namespace

AçıkDosya DosyayıTanı(SqliteBağlantısı vt, std::string_view parola) {
    if (PragmaOku(vt.get(), "PRAGMA application_id") != DosyaKimliği) SqliteHatasıFırlat(SQLITE_NOTADB);
    if (PragmaOku(vt.get(), "PRAGMA user_version") != DosyaSürümü)
        throw Hata(Durum::Bağlanamadı, "Veri dosyasını programın başka bir sürümü yazmış; bu sürüm onu okuyamıyor.");
    DosyaŞeması şema(vt.get());
    if (!şema.ParolaTablosuVar()) ParolaBilgisiBozuk();
    if (!ParolaDoğru(vt.get(), parola)) throw Hata(Durum::YetkiYok, "Veri dosyasının parolası yanlış.");
    return {std::move(vt), std::move(şema)};
}

AçıkDosya VeriDosyasıAç(const std::string& verilen, std::string_view parola) {
    if (!Dosya::OlağanDosyaVar(verilen)) throw Hata(Durum::Bağlanamadı, "Veri dosyası bulunamadı: " + verilen);
    const std::string yol = GerçekYol(verilen);
    if (ErişimDosyası(yol)) ErişimdenAl(yol);
    GünlükleriDenetle(yol);
    AçıkDosya dosya = DosyayıTanı(SqliteAç(yol), parola);
    // What cannot be cleared is in nobody's way; the next one to make such a file is told.
    static_cast<void>(Dosya::GeçiciDosya::KalıntıyıSil(yol));
    BoşGünlüğüSil(dosya.Vt.get(), yol);
    return dosya;
}

std::optional<std::string_view> Sorgu::Metin(std::size_t sütun, DeğerTamponu tampon) const {
    sqlite3_value* değer = m_deyim.SütunDeğeri(static_cast<int>(sütun));
    const int tür = sqlite3_value_type(değer);
    if (tür == SQLITE_NULL) return std::nullopt;
    // A value of another kind than its column was not written by the engine; turned into a number it would be a wrong
    // one.
    const auto türüGerek = [tür](int gerekli) {
        if (tür != gerekli) SqliteHatasıFırlat(SQLITE_CORRUPT);
    };
    switch (m_sütunlar[sütun].Tür) {
        case SütunTürü::Metin: {
            türüGerek(SQLITE_TEXT);
            const auto* metin = reinterpret_cast<const char*>(sqlite3_value_text(değer));
            if (!metin) throw std::bad_alloc();
            return std::string_view(metin, static_cast<std::size_t>(sqlite3_value_bytes(değer)));
        }
        case SütunTürü::Para:
            türüGerek(SQLITE_INTEGER);
            return ParaYaz(sqlite3_value_int64(değer), tampon);
        case SütunTürü::Ondalık:
            if (tür != SQLITE_INTEGER) türüGerek(SQLITE_FLOAT);
            return OndalıkYaz(sqlite3_value_double(değer), tampon);
        case SütunTürü::Tarih:
            türüGerek(SQLITE_INTEGER);
            return TarihYaz(sqlite3_value_int64(değer), tampon);
        case SütunTürü::TamSayı:
            break;
    }
    return TamSayıYaz(sqlite3_value_int64(değer), tampon);
}

Veritabanı::Veritabanı(const std::string& yol, std::string_view parola)
    : m_yol(std::filesystem::absolute(yol).string()), m_parola(parola) {
    Bağlan();
}

void Veritabanı::Bağlan() {
    constexpr int adım = 1000;  // instructions of SQLite between two looks at the flag
    AçıkDosya dosya = VeriDosyasıAç(m_yol, m_parola);
    m_vt = std::move(dosya.Vt);
    m_şema = std::move(dosya.Şema);
    const auto iptalEdildi = [](void* nesne) -> int {
        const std::atomic<bool>* bayrak = static_cast<Veritabanı*>(nesne)->m_nöbetçi.load();
        return bayrak && bayrak->load() ? 1 : 0;
    };
    sqlite3_progress_handler(m_vt.get(), adım, iptalEdildi, this);
}

bool Veritabanı::Taşındı() const {
    int taşındı = 0;
    sqlite3_file_control(m_vt.get(), "main", SQLITE_FCNTL_HAS_MOVED, &taşındı);
    return taşındı != 0;
}

// After a change: a file that went from its place meanwhile took the change with it.
void Veritabanı::YerindeMi() {
    if (!Taşındı()) return;
    m_taşındığıSöylendi = true;
    throw Hata(Durum::Genel,
               "Bu sırada veri dosyasının yerine başka bir dosya konmuş; değişikliğin yeni dosyada olup olmadığını "
               "denetleyin.",
               SQLITE_READONLY_DBMOVED);
}

bool Veritabanı::OkumaSürüyor() const {
    for (sqlite3_stmt* deyim = sqlite3_next_stmt(m_vt.get(), nullptr); deyim;
         deyim = sqlite3_next_stmt(m_vt.get(), deyim))
        if (sqlite3_stmt_busy(deyim)) return true;
    return false;
}

void Veritabanı::Hazırlan() {
    if (KendiliğindenGeriAlındı())
        throw Hata(Durum::GeriAlındı,
                   "Bir hata yüzünden onaylanmamış değişikliklerin tümü geri alındı; önce geri alma (ROLLBACK) "
                   "istenmeli.");
    if (HareketAçık() || !Taşındı()) return;
    const bool söylendi = std::exchange(m_taşındığıSöylendi, true);
    if (m_elleOnay || OkumaSürüyor()) SqliteHatasıFırlat(SQLITE_READONLY_DBMOVED);
    try {
        Bağlan();
    } catch (const Hata& hata) {
        throw Hata(hata.Durum(), "Veri dosyası değiştirilmiş. " + std::string(hata.Mesaj()), hata.Yerel());
    }
    m_taşındığıSöylendi = false;
    if (söylendi) return;
    // What the client knows is of the other file, so this statement may not mean what it was written for.
    throw Hata(
        Durum::Genel,
        "Veri dosyası değiştirilmiş: bu sırada yerine başka bir dosya konmuş (bir yedek geri yüklenmiş olabilir). "
        "İşlem yapılmadı; gördükleriniz eski dosyanın verileri, bundan sonraki işlemler yeni dosyada yapılır.",
        SQLITE_READONLY_DBMOVED);
}

const DosyaŞeması& Veritabanı::ŞemayıAl() {
    if (!m_şema) m_şema.emplace(m_vt.get());
    return *m_şema;
}

const TabloTanımı* Veritabanı::Tablo(std::string_view ad) {
    if (const TabloTanımı* bulunan = ŞemayıAl().Bul(ad)) return bulunan;
    m_şema.reset();  // another connection may have created it meanwhile
    return ŞemayıAl().Bul(ad);
}

bool Veritabanı::DizinVar(std::string_view ad) {
    return ŞemayıAl().DizinVar(ad);
}

SqliteKomutu Veritabanı::Çevir(std::string_view deyim) {
    return Motor::Çevir(Çözümle(deyim), *this);
}

SqliteDeyimi Veritabanı::Hazırla(const SqliteKomutu& komut) {
    SqliteDeyimi deyim(m_vt.get(), komut.Sql);
    DeğerleriBağla(deyim, komut);
    return deyim;
}

void Veritabanı::DeğerleriBağla(SqliteDeyimi& deyim, const SqliteKomutu& komut) {
    for (std::size_t i = 0; i < komut.Değerler.size(); ++i) deyim.Bağla(static_cast<int>(i) + 1, komut.Değerler[i]);
}

Sorgu Veritabanı::Sorgula(const SqliteKomutu& komut) {
    return {Hazırla(komut), komut.Sütunlar};
}

// Runs a change to its end; says so when a failure undid the whole transaction.
void Veritabanı::Yürüt(SqliteDeyimi& deyim) {
    try {
        deyim.Adım();
    } catch (const Hata& hata) {
        if (!KendiliğindenGeriAlındı()) throw;
        throw Hata(hata.Durum(), std::string(hata.Mesaj()) + " Onaylanmamış değişikliklerin tümü geri alındı.",
                   hata.Yerel());
    }
}

std::int64_t Veritabanı::Uygula(const SqliteKomutu& komut) {
    std::optional<SonDeyim> deyim = std::exchange(m_son, std::nullopt);  // kept by success alone
    if (deyim && deyim->Sql == komut.Sql)
        DeğerleriBağla(deyim->Deyim, komut);
    else
        deyim.emplace(SonDeyim{komut.Sql, Hazırla(komut)});
    if (m_elleOnay && !HareketAçık()) {
        SqliteYürüt(m_vt.get(), "BEGIN");
        m_hareket = true;
    }
    const std::int64_t önceki = sqlite3_total_changes64(m_vt.get());
    Yürüt(deyim->Deyim);
    if (komut.Tür == SqliteKomutu::Sınıf::Tanım)
        m_şema.reset();
    else if (HareketAçık())
        m_son = std::move(deyim);
    if (!HareketAçık()) YerindeMi();
    return komut.Tür == SqliteKomutu::Sınıf::Tanım ? 0 : sqlite3_total_changes64(m_vt.get()) - önceki;
}

void Veritabanı::ElleOnayla(bool açık) {
    if (!açık) Onayla();
    m_elleOnay = açık;
}

void Veritabanı::Onayla() {
    if (KendiliğindenGeriAlındı()) Hazırlan();
    m_son.reset();
    if (!HareketAçık()) return;
    if (Taşındı()) {
        m_taşındığıSöylendi = true;
        SqliteHatasıFırlat(SQLITE_READONLY_DBMOVED);
    }
    SqliteDeyimi onayla(m_vt.get(), "COMMIT");
    Yürüt(onayla);
    m_hareket = false;
    YerindeMi();
}

void Veritabanı::GeriAl() {
    m_son.reset();
    m_şema.reset();
    if (HareketAçık()) SqliteYürüt(m_vt.get(), "ROLLBACK");
    m_hareket = false;
}

}  // namespace Motor

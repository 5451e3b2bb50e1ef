#pragma once

#include "Ceviri.h"
#include "DegerMetni.h"
#include "DosyaSemasi.h"
#include "Parola.h"
#include "Sqlite.h"

#include <atomic>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

namespace Motor {

// A file that the engine wrote carries these in its header.
inline constexpr int DosyaKimliği = 0x56524E4B;  // "VRNK"
inline constexpr int DosyaSürümü = 1;

// An open data file with what its schema holds.
struct AçıkDosya {
    SqliteBağlantısı Vt;
    DosyaŞeması Şema;
};

// Opens an existing data file (one of Access is taken over first), checks that it is one, that it holds nothing foreign
// and that the password is right, and clears what crashes left beside it. Throws Hata (08001, 28000 and what SQLite
// reports; native SQLITE_CORRUPT or SQLITE_NOTADB for a damaged one).
AçıkDosya VeriDosyasıAç(const std::string& yol, std::string_view parola);

// The same checks of a file that is open already; nothing is cleared.
AçıkDosya DosyayıTanı(SqliteBağlantısı vt, std::string_view parola);

// The rows of a running query.
class Sorgu {
  public:
    Sorgu(SqliteDeyimi deyim, std::vector<SütunTanımı> sütunlar)
        : m_deyim(std::move(deyim)), m_sütunlar(std::move(sütunlar)) {}

    bool Adım() { return m_deyim.Adım(); }
    const std::vector<SütunTanımı>& Sütunlar() const { return m_sütunlar; }

    // A column of the current row as text, nothing for NULL. It lies in `tampon` or in SQLite's memory and is good
    // until the next step.
    std::optional<std::string_view> Metin(std::size_t sütun, DeğerTamponu tampon) const;

  private:
    SqliteDeyimi m_deyim;
    std::vector<SütunTanımı> m_sütunlar;
};

// A connection to a data file. One statement is one transaction, on disk before the call returns, unless manual commit
// is on.
//
// Where another file was put in the data file's place meanwhile (a backup was restored), the client is told once:
// its next statement or commit is refused with this reason (S1000). Those after it go to the new file if nothing can be
// lost: no manual commit, no open transaction, no open query. Otherwise they are refused as well, and the client
// decides.
//
// Where SQLite itself undid the open transaction (disk full, read error, no memory), every statement and the commit are
// refused (40001) until the client rolls back: what it has not noticed must not look like a whole.
class Veritabanı : private Şema {
  public:
    Veritabanı(const std::string& yol, std::string_view parola);
    Veritabanı(const Veritabanı&) = delete;
    Veritabanı& operator=(const Veritabanı&) = delete;

    // Before every statement, when its own earlier query is closed.
    void Hazırlan();

    SqliteKomutu Çevir(std::string_view deyim);

    // Starts a query; the first row is not fetched yet.
    Sorgu Sorgula(const SqliteKomutu& komut);

    // Runs a change or a definition; the number of rows changed.
    std::int64_t Uygula(const SqliteKomutu& komut);

    // Manual commit: the first statement opens a transaction that lasts until it is committed or rolled back. Turning
    // it off commits.
    void ElleOnayla(bool açık);
    bool ElleOnaylanıyor() const { return m_elleOnay; }
    bool HareketAçık() const { return sqlite3_get_autocommit(m_vt.get()) == 0; }
    void Onayla();
    void GeriAl();

    // Tells this data file and its copies from all others; 16 hex digits.
    std::string Damga() const { return DosyaDamgası(m_vt.get()); }

    bool SaltOkunur() const { return sqlite3_db_readonly(m_vt.get(), "main") == 1; }

    // Who is at work on the connection: it gives a flag that ends its work (S1008) when it is set from another thread.
    // False while someone else is.
    bool NöbetAl(std::atomic<bool>& iptal) noexcept {
        std::atomic<bool>* kimse = nullptr;
        return m_nöbetçi.compare_exchange_strong(kimse, &iptal, std::memory_order_acquire);
    }
    void NöbetBırak() noexcept { m_nöbetçi.store(nullptr, std::memory_order_release); }

  private:
    const TabloTanımı* Tablo(std::string_view ad) override;
    bool DizinVar(std::string_view ad) override;
    const DosyaŞeması& ŞemayıAl();
    SqliteDeyimi Hazırla(const SqliteKomutu& komut);
    static void DeğerleriBağla(SqliteDeyimi& deyim, const SqliteKomutu& komut);
    void Yürüt(SqliteDeyimi& deyim);

    void Bağlan();
    bool Taşındı() const;
    void YerindeMi();
    bool OkumaSürüyor() const;
    bool KendiliğindenGeriAlındı() const { return m_hareket && !HareketAçık(); }

    std::atomic<std::atomic<bool>*> m_nöbetçi = nullptr;
    std::string m_yol;
    std::string m_parola;
    SqliteBağlantısı m_vt;
    std::optional<DosyaŞeması> m_şema;  // none: to be read again
    // The open transaction's last change: who writes many rows sends the same text with other values.
    struct SonDeyim {
        std::string Sql;
        SqliteDeyimi Deyim;
    };
    std::optional<SonDeyim> m_son;
    bool m_taşındığıSöylendi = false;  // the client knows that there is another file in its place
    bool m_elleOnay = false;
    bool m_hareket = false;  // begun, and neither committed nor rolled back by the client
};

// At work on the connection for as long as it lives. The driver manager lets one call at a time into a connection,
// except for the moment in which SQLCancel closes an idle cursor, which is waited for.
class Nöbet {
  public:
    Nöbet(Veritabanı& veri, std::atomic<bool>& iptal) noexcept : m_veri(veri) {
        while (!m_veri.NöbetAl(iptal)) std::this_thread::yield();
    }
    ~Nöbet() { m_veri.NöbetBırak(); }
    Nöbet(const Nöbet&) = delete;
    Nöbet& operator=(const Nöbet&) = delete;

  private:
    Veritabanı& m_veri;
};

}  // namespace Motor

#pragma once

#include "Ceviri.h"
#include "DegerMetni.h"
#include "Katalog.h"
#include "Sqlite.h"

#include <optional>
#include <string>
#include <string_view>

namespace Motor {

// A file that the engine wrote carries these in its header.
inline constexpr int DosyaKimliği = 0x56524E4B;  // "VRNK"
inline constexpr int DosyaSürümü = 1;

// Opens an existing data file and checks that it is one and that the password is right. Throws Hata (08001, 28000 and
// what SQLite reports).
SqliteBağlantısı VeriDosyasıAç(const std::string& yol, std::string_view parola);

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

// An open data file. One statement is one transaction, on disk before the call returns, unless manual commit is on.
class Veritabanı {
  public:
    Veritabanı(const std::string& yol, std::string_view parola);

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

    void Kes() { sqlite3_interrupt(m_vt.get()); }

  private:
    const TabloTanımı* TabloBul(std::string_view tablo);
    SqliteDeyimi Hazırla(const SqliteKomutu& komut);

    SqliteBağlantısı m_vt;
    std::optional<Katalog> m_katalog;  // none: to be read again
    bool m_elleOnay = false;
};

}  // namespace Motor

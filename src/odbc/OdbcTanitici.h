#pragma once

#include <QList>
#include <QString>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "OdbcSonucu.h"

// The ODBC handles, each owned by a type that frees it on every path. Plain numbers are ODBC return codes (0 =
// success). A connection and what belongs to it are used by one thread at a time.

class OdbcSatırı;

// Environment and connection together: they live and die as one.
class OdbcBağlantısı {
  public:
    OdbcBağlantısı() = default;
    OdbcBağlantısı(const OdbcBağlantısı&) = delete;
    OdbcBağlantısı& operator=(const OdbcBağlantısı&) = delete;
    ~OdbcBağlantısı() { Kapat(); }

    // The three steps to an open connection, and all of them at once.
    std::int16_t OrtamAç();
    std::int16_t BağlantıAç();
    std::int16_t Bağlan(const QString& bağlantıMetni);
    OdbcSonucu Aç(const QString& bağlantıMetni);

    // Disconnects and frees what there is; a transaction that is under way is rolled back.
    void Kapat();

    // Runs a statement that gives no rows.
    OdbcSonucu Çalıştır(const QString& sql);

    // Runs a query and hands its rows over one by one, in their order; nothing is kept. False from `satır` ends the
    // reading, which is no failure. A failure says that rows are missing; those that came before it were handed over.
    OdbcSonucu Oku(const QString& sql, const std::function<bool(OdbcSatırı&)>& satır);

    // Whether the data file has a table of this name.
    OdbcSonucu TabloVar(const QString& ad, bool& var);

    // Takes every pending error off the connection, in the order in which the driver keeps them.
    QList<OdbcHatası> HatalarınıAl() const;

    void* Tanıtıcı() const { return m_bağlantı; }

  private:
    friend class OdbcHareketi;
    OdbcSonucu Sonuç(std::int16_t kod) const;

    void* m_ortam = nullptr;
    void* m_bağlantı = nullptr;
    bool m_bağlı = false;
    bool m_hareket = false;  // a transaction is under way
};

// One statement of a connection, which has to outlive it.
class OdbcDeyimi {
  public:
    OdbcDeyimi() = default;
    OdbcDeyimi(const OdbcDeyimi&) = delete;
    OdbcDeyimi& operator=(const OdbcDeyimi&) = delete;
    ~OdbcDeyimi() { Bırak(); }

    std::int16_t Aç(const OdbcBağlantısı& bağlantı);
    std::int16_t Çalıştır(const QString& sql);
    std::int16_t TablolarıBul(const QString& ad);  // a row for each table of this name
    std::int16_t Getir();                          // the next row; 100 at their end

    int SütunSayısı() const;
    std::int64_t EtkilenenSatır() const;  // -1 when the driver does not tell

    // A column (from 1) of the row at hand: UTF-8, good until the next call; NULL is nothing, as a text it is "". A
    // value of more than 1023 bytes, which no column of a data file holds, is cut and gives 1.
    std::int16_t Oku(int sütun, std::optional<std::string_view>& değer);
    std::int16_t Oku(int sütun, QString& metin);

    void Bırak();

    // Takes every pending error off the statement; they are gone once it is dropped.
    QList<OdbcHatası> HatalarınıAl() const;

    void* Tanıtıcı() const { return m_deyim; }

  private:
    void* m_deyim = nullptr;
    std::array<char, 1024> m_tampon;
};

// The row at hand of OdbcBağlantısı::Oku. A column that cannot be read whole ends the rows as a failure.
class OdbcSatırı {
  public:
    explicit OdbcSatırı(OdbcDeyimi& deyim) : m_deyim(deyim), m_sütunSayısı(deyim.SütunSayısı()) {}

    int SütunSayısı() const { return m_sütunSayısı; }
    std::optional<std::string_view> Baytlar(int sütun);  // as OdbcDeyimi::Oku gives them
    QString Metin(int sütun);
    std::int16_t Kod() const { return m_kod; }  // of the first failure

  private:
    OdbcDeyimi& m_deyim;
    int m_sütunSayısı;
    std::int16_t m_kod = 0;
};

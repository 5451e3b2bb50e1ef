#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "OdbcSonucu.h"

// The ODBC handles, each owned by a type that frees it on every path. Plain numbers are ODBC return codes (0 =
// success). A connection and what belongs to it are used by one thread at a time.

class OdbcSatırı;

enum class OdbcSütunTürü { Metin, Para, Ondalık, Tarih };
struct OdbcSütunu {
    QString Ad;
    OdbcSütunTürü Tür = OdbcSütunTürü::Metin;
};

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
    // reading, which is no failure. A failure says that rows are missing; those that came before it were handed over. A
    // row with a value of more than 1023 bytes, which no column of a data file holds, is such a failure (1).
    OdbcSonucu Oku(const QString& sql, const std::function<bool(OdbcSatırı&)>& satır);

    // Whether the data file has a table of this name.
    OdbcSonucu TabloVar(const QString& ad, bool& var);

    // The names of all tables of the data file, and a table's columns in their order.
    OdbcSonucu Tablolar(QStringList& adlar);
    OdbcSonucu Sütunlar(const QString& tablo, QList<OdbcSütunu>& sütunlar);
    // How many statements that change something this program has run, over all its connections.
    static std::uint64_t Değişiklikler();

    // Takes every pending error off the connection, in the order in which the driver keeps them.
    QList<OdbcHatası> HatalarınıAl() const;

    void* Tanıtıcı() const { return m_bağlantı; }

    // Which connecting this is, over all connections of the program, from 1; 0: not connected. What is remembered of a
    // data file is good as long as it stays the same.
    std::uint64_t Açılış() const { return m_açılış; }

  private:
    friend class OdbcHareketi;
    OdbcSonucu Sonuç(std::int16_t kod) const;

    void* m_ortam = nullptr;
    void* m_bağlantı = nullptr;
    bool m_bağlı = false;
    std::uint64_t m_açılış = 0;
    bool m_hareket = false;  // a transaction is under way
};

// One statement of a connection, which has to outlive it.
class OdbcDeyimi {
  public:
    static constexpr std::size_t TamponBoyu = 1024;

    OdbcDeyimi() = default;
    OdbcDeyimi(const OdbcDeyimi&) = delete;
    OdbcDeyimi& operator=(const OdbcDeyimi&) = delete;
    ~OdbcDeyimi() { Bırak(); }

    std::int16_t Aç(const OdbcBağlantısı& bağlantı);
    std::int16_t Çalıştır(const QString& sql);
    std::int16_t TablolarıBul(const QString& ad);  // a row for each table of this name; "%": for each table
    std::int16_t Getir();                          // the next row; 100 at their end

    int SütunSayısı() const;
    std::int16_t SütunuTanı(int sütun, OdbcSütunu& tanım);  // from 1
    std::int64_t EtkilenenSatır() const;                    // -1 when the driver does not tell

    // A column (from 1) of the row at hand: UTF-8, good until the next call; NULL is nothing, as a text it is "". A
    // value of more than 1023 bytes, which no column of a data file holds, is cut and gives 1.
    std::int16_t Oku(int sütun, std::optional<std::string_view>& değer) { return Oku(sütun, m_tampon, değer); }
    std::int16_t Oku(int sütun, QString& metin);

    // The same into the caller's memory, which bounds the value.
    std::int16_t Oku(int sütun, std::span<char> tampon, std::optional<std::string_view>& değer);

    // From the next row on the column lies in `tampon`, closed by a NUL, and its bytes' number, negative for NULL, in
    // `uzunluk`. Getir gives 1 where one was cut.
    std::int16_t Bağla(int sütun, std::span<char> tampon, std::intptr_t& uzunluk);

    void Bırak();

    // Takes every pending error off the statement; they are gone once it is dropped.
    QList<OdbcHatası> HatalarınıAl() const;

    void* Tanıtıcı() const { return m_deyim; }

  private:
    void* m_deyim = nullptr;
    std::array<char, TamponBoyu> m_tampon;
};

// The row at hand of OdbcBağlantısı::Oku. A column that cannot be read whole ends the rows as a failure. A column that
// was read once is bound: the next rows bring it along, which costs far less than a call for each value; one that
// nobody reads costs nothing. So the row is to live until the statement's last fetch.
class OdbcSatırı {
  public:
    explicit OdbcSatırı(OdbcDeyimi& deyim)
        : m_deyim(deyim), m_sütunlar(static_cast<std::size_t>(deyim.SütunSayısı())) {}
    OdbcSatırı(const OdbcSatırı&) = delete;
    OdbcSatırı& operator=(const OdbcSatırı&) = delete;

    int SütunSayısı() const { return static_cast<int>(m_sütunlar.size()); }

    // As OdbcDeyimi::Oku gives them, but good until the next row.
    std::optional<std::string_view> Baytlar(int sütun) {
        const auto yer = static_cast<std::size_t>(sütun) - 1;
        if (yer >= m_sütunlar.size() || !m_sütunlar[yer].Bağlı) return İlkKez(sütun);
        const Sütun& okunan = m_sütunlar[yer];
        if (okunan.Uzunluk < 0) return std::nullopt;
        return std::string_view(okunan.Tampon.data(), static_cast<std::size_t>(okunan.Uzunluk));
    }
    QString Metin(int sütun);
    std::int16_t Kod() const { return m_kod; }  // of the first failure

  private:
    struct Sütun {
        bool Bağlı = false;
        std::intptr_t Uzunluk = 0;
        std::array<char, OdbcDeyimi::TamponBoyu> Tampon;
    };
    std::optional<std::string_view> İlkKez(int sütun);

    OdbcDeyimi& m_deyim;
    std::vector<Sütun> m_sütunlar;
    std::int16_t m_kod = 0;
};

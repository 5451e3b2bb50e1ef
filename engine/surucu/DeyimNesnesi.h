#pragma once

#include "BaglantiNesnesi.h"

#include <atomic>
#include <optional>
#include <vector>

namespace Motor {

// An ODBC statement: at most one running query or one finished change.
class DeyimNesnesi : public BağlıNesne {
  public:
    explicit DeyimNesnesi(BağlantıNesnesi& bağlantı) : m_bağlantı(bağlantı), m_veri(bağlantı.Veri()) {}

    Tanılar Tanı;

    SQLRETURN Hazırla(std::string_view metin);
    SQLRETURN HazırıÇalıştır();
    SQLRETURN Çalıştır(std::string_view metin);
    SQLRETURN TablolarıListele(std::string_view tablo, std::string_view türler);
    SQLRETURN SütunlarıListele(std::string_view tablo, std::string_view sütun);
    SQLRETURN Kapat(SQLUSMALLINT seçenek);

    // From any thread: ends what this statement is doing (S1008). Where it does nothing, its cursor is closed: at once
    // in the thread that executed it, else at its next use. Other statements of the connection go on.
    void Kes() noexcept;

    void Bırak() noexcept;  // ends the object

    // The next row, into the bound columns' buffers too.
    SQLRETURN Getir();

    // From the next row on the column (from 1) lies in `tampon` and `uzunluk`, as VeriAl would give it; no `tampon`:
    // it is bound no more. Bindings last until they are taken off, whatever is executed.
    SQLRETURN Bağla(SQLUSMALLINT sütun, SQLSMALLINT hedefTürü, SQLPOINTER tampon, SQLLEN boy, SQLLEN* uzunluk);

    // A column of the current row (from 1) as text; repeated calls for one column hand out the rest of a text that did
    // not fit, always whole characters. `uzunluk` receives the bytes that were left before the call.
    SQLRETURN VeriAl(SQLUSMALLINT sütun, SQLSMALLINT hedefTürü, SQLPOINTER tampon, SQLLEN boy, SQLLEN* uzunluk);

    SQLRETURN SütunSayısı(SQLSMALLINT* sayı);
    SQLRETURN EtkilenenSatır(SQLLEN* sayı);
    SQLRETURN SütunuAnlat(SQLUSMALLINT sütun, SQLCHAR* ad, SQLSMALLINT boy, SQLSMALLINT* adUzunluğu, SQLSMALLINT* tür,
                          SQLULEN* genişlik, SQLSMALLINT* ondalık, SQLSMALLINT* boşOlur);
    SQLRETURN SütunÖzelliği(SQLUSMALLINT sütun, SQLUSMALLINT özellik, SQLPOINTER metin, SQLSMALLINT boy,
                            SQLSMALLINT* uzunluk, SQLLEN* sayı);
    SQLRETURN AyarYaz(SQLUSMALLINT ayar, SQLULEN değer);
    SQLRETURN AyarOku(SQLUSMALLINT ayar, SQLPOINTER değer);

  private:
    const SütunTanımı& Sütun(SQLUSMALLINT sıra) const;
    void YenidenBaşla();
    SQLRETURN Başlat(SqliteKomutu komut);
    void İmleciKapat() noexcept;
    SQLRETURN BağlılarıDoldur();
    void MetinOlarakOkunur(SQLUSMALLINT sütun, SQLSMALLINT hedefTürü) const;
    SQLRETURN ParçaVer(std::string_view metin, SQLPOINTER tampon, SQLLEN boy, SQLLEN* uzunluk);

    struct BağlıSütun {
        SQLUSMALLINT Sıra;
        SQLSMALLINT Tür;
        SQLPOINTER Tampon;
        SQLLEN Boy;
        SQLLEN* Uzunluk;
    };

    BağlantıNesnesi& m_bağlantı;
    Veritabanı& m_veri;
    std::atomic<bool> m_iptal = false;
    std::atomic<std::thread::id> m_iplik;  // that executed it
    std::optional<SqliteKomutu> m_komut;   // prepared or running
    std::optional<Sorgu> m_sorgu;          // open cursor
    std::vector<BağlıSütun> m_bağlılar;
    bool m_bağlılarUygun = false;  // all of them to the running query
    std::int64_t m_etkilenen = -1;
    bool m_ilkSatırBekliyor = false;  // fetched while executing, so that errors show there
    bool m_satırda = false;
    bool m_bitti = false;
    SQLUSMALLINT m_okunanSütun = 0;  // of the running piecewise read, 0 for none
    std::size_t m_okunanBayt = 0;
};

}  // namespace Motor

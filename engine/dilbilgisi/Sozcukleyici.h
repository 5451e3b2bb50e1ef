#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Motor {

enum class SözcükTürü { Ad, Metin, Sayı, Tarih, İşaret, Son };

struct Sözcük {
    SözcükTürü Tür = SözcükTürü::Son;
    std::string_view Metin;  // of a text literal: without its quotes
    std::int64_t Tarih = 0;  // yyyymmdd of a date literal
    std::size_t Yer = 0;     // byte offset in the statement
};

// Cuts a statement into words. The text must outlive the words.
class Sözcükleyici {
  public:
    explicit Sözcükleyici(std::string_view metin) : m_metin(metin) {}

    // The next word; Son at the end. Throws Hata (37000, 22008) for an unterminated literal, a quote straight after a
    // closing quote, a bad date, a character that no statement has, and bytes that are no UTF-8.
    Sözcük Sonraki();

    // Whether a name of a table, a column or an index may hold this byte.
    static bool AdHarfi(char harf) noexcept;

    // "N. karakterde" for a byte offset, counted in characters from 1.
    static std::size_t KarakterSırası(std::string_view metin, std::size_t yer) noexcept;

    // A statement is put together around names, so the one that breaks it is a name with an apostrophe; its user never
    // sees the statement.
    [[noreturn]] static void KesmeİşaretiHatası();

  private:
    Sözcük Oku(SözcükTürü tür, std::size_t son);
    Sözcük MetinOku();
    Sözcük TarihOku();
    Sözcük SayıOku();
    bool Rakam(std::size_t yer) const;

    std::string_view m_metin;
    std::size_t m_yer = 0;
};

}  // namespace Motor

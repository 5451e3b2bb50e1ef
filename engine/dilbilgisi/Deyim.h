#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The statements that the engine understands, after parsing and before anything is known of the tables.
namespace Motor {

struct MetinYazımı {
    std::string Metin;  // well-formed UTF-8
};
struct SayıYazımı {
    std::string Metin;  // sign, digits, at most one point
};
struct TarihYazımı {
    std::int64_t Tarih;  // yyyymmdd, a day of the calendar
};
using Yazım = std::variant<MetinYazımı, SayıYazımı, TarihYazımı>;

struct Eşitlik {  // a condition column = literal, or an assignment
    std::string Sütun;
    Yazım Değer;
};

struct Sıralama {
    std::string Sütun;
    bool Azalan = false;
};

struct SeçDeyimi {
    bool Ayrık = false;                 // DISTINCT
    bool Say = false;                   // Count(...): one column, or every row when Sütunlar is empty
    std::string SayımAdı;               // its alias
    std::vector<std::string> Sütunlar;  // empty without Say: every column
    std::string Tablo;
    std::vector<Eşitlik> Koşullar;
    std::vector<Sıralama> Sıralar;
};

struct EkleDeyimi {
    std::string Tablo;
    std::vector<Eşitlik> Değerler;
};

struct GüncelleDeyimi {
    std::string Tablo;
    std::vector<Eşitlik> Atamalar;
    std::vector<Eşitlik> Koşullar;  // never empty
};

struct SilDeyimi {
    std::string Tablo;
    std::vector<Eşitlik> Koşullar;  // never empty
};

enum class BildirilenTür { Metin, Para, Ondalık, Tarih };

struct SütunBildirimi {
    std::string Ad;
    BildirilenTür Tür;
    int Uzunluk = 0;         // of a text column, 1 to 255
    std::string Varsayılan;  // number literal, empty for none
    bool BoşOlamaz = false;
};

struct TabloOluşturDeyimi {
    std::string Tablo;
    std::vector<SütunBildirimi> Sütunlar;
};

struct DizinOluşturDeyimi {
    bool Tekil = false;
    std::string Dizin;
    std::string Tablo;
    std::vector<Sıralama> Sütunlar;
};

using Deyim = std::variant<SeçDeyimi, EkleDeyimi, GüncelleDeyimi, SilDeyimi, TabloOluşturDeyimi, DizinOluşturDeyimi>;

// Parses one statement:
//   SELECT [DISTINCT] * | column, ... | Count(column | *) [AS name] FROM table
//          [WHERE column = literal AND ...] [ORDER BY column [ASC | DESC], ...]
//   INSERT INTO table (column, ...) VALUES (literal, ...)
//   UPDATE table SET column = literal, ... WHERE column = literal AND ...
//   DELETE FROM table WHERE column = literal AND ...
//   CREATE TABLE table (column TEXT[(n)] | CURRENCY | DOUBLE | DATETIME [DEFAULT number] [NOT NULL], ...)
//   CREATE [UNIQUE] INDEX name ON table (column [ASC | DESC], ...)
// Keywords and names are ASCII and know no case. A literal is 'text', a number with a decimal point, or #m/d/yyyy#; a
// text cannot contain its quote, nothing may follow the statement, and it has at most a million bytes. Throws Hata
// (37000, 22008) otherwise.
Deyim Çözümle(std::string_view metin);

}  // namespace Motor

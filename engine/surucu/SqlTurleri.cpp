#include "SqlTurleri.h"

namespace Motor {

namespace {

std::string KalıpYap(std::string_view ad) {
    return ad.empty() ? "%" : std::string(ad);
}

// Type code, name, precision, length, scale, radix and nullability of a column, from its declaration.
constexpr const char* SütunlarSql =
    "SELECT NULL, NULL, m.name, s.name, t.kod, t.ad,"
    " CASE t.kod WHEN 12 THEN CAST(substr(s.type, 6) AS INTEGER) ELSE t.genislik END,"
    " CASE t.kod WHEN 12 THEN CAST(substr(s.type, 6) AS INTEGER) ELSE t.uzunluk END,"
    " t.ondalik, t.taban, s.\"notnull\"=0, NULL"
    " FROM sqlite_schema m, pragma_table_info(m.name) s,"
    " (SELECT 12 kod, 'TEXT' ad, 0 genislik, 0 uzunluk, NULL ondalik, NULL taban"
    "  UNION ALL SELECT 3, 'CURRENCY', 19, 21, 4, 10 UNION ALL SELECT 8, 'DOUBLE', 15, 8, NULL, 10"
    "  UNION ALL SELECT 11, 'DATETIME', 19, 16, 0, NULL) t"
    " WHERE m.type='table' AND m.name<>?1 AND m.name LIKE ?2 AND s.name LIKE ?3"
    " AND t.ad=CASE WHEN s.type LIKE 'TEXT%' THEN 'TEXT' ELSE s.type END ORDER BY m.name, s.cid";

constexpr const char* TablolarSql =
    "SELECT NULL, NULL, name, 'TABLE', NULL FROM sqlite_schema"
    " WHERE type='table' AND name<>?1 AND name LIKE ?2 AND ?3 ORDER BY name";

}  // namespace

SqlTürü SqlTürüAl(const SütunTanımı& sütun) {
    switch (sütun.Tür) {
        case SütunTürü::Metin:
            return {SQL_VARCHAR, "TEXT", sütun.Uzunluk, 0, sütun.Uzunluk};
        case SütunTürü::Para:
            return {SQL_DECIMAL, "CURRENCY", 19, 4, 21};
        case SütunTürü::Ondalık:
            return {SQL_DOUBLE, "DOUBLE", 15, 0, 22};
        case SütunTürü::Tarih:
            return {SQL_TIMESTAMP, "DATETIME", 19, 0, 19};
        case SütunTürü::TamSayı:
            break;
    }
    return {SQL_INTEGER, "INTEGER", 10, 0, 11};
}

SqliteKomutu TablolarKomutu(std::string_view tablo, std::string_view türler) {
    const bool tablolar = türler.empty() || türler == "%" || türler.find("TABLE") != std::string_view::npos;
    SqliteKomutu komut;
    komut.Sql = TablolarSql;
    komut.Değerler = {std::string(DosyaŞeması::GizliTablo), KalıpYap(tablo), std::int64_t{tablolar}};
    komut.Sütunlar = {{"TABLE_QUALIFIER", SütunTürü::Metin, 128, false},
                      {"TABLE_OWNER", SütunTürü::Metin, 128, false},
                      {"TABLE_NAME", SütunTürü::Metin, 128, false},
                      {"TABLE_TYPE", SütunTürü::Metin, 128, false},
                      {"REMARKS", SütunTürü::Metin, 254, false}};
    return komut;
}

SqliteKomutu SütunlarKomutu(std::string_view tablo, std::string_view sütun) {
    SqliteKomutu komut;
    komut.Sql = SütunlarSql;
    komut.Değerler = {std::string(DosyaŞeması::GizliTablo), KalıpYap(tablo), KalıpYap(sütun)};
    komut.Sütunlar = {{"TABLE_QUALIFIER", SütunTürü::Metin, 128, false}, {"TABLE_OWNER", SütunTürü::Metin, 128, false},
                      {"TABLE_NAME", SütunTürü::Metin, 128, false},      {"COLUMN_NAME", SütunTürü::Metin, 128, true},
                      {"DATA_TYPE", SütunTürü::TamSayı, 0, true},        {"TYPE_NAME", SütunTürü::Metin, 128, true},
                      {"PRECISION", SütunTürü::TamSayı, 0, false},       {"LENGTH", SütunTürü::TamSayı, 0, false},
                      {"SCALE", SütunTürü::TamSayı, 0, false},           {"RADIX", SütunTürü::TamSayı, 0, false},
                      {"NULLABLE", SütunTürü::TamSayı, 0, true},         {"REMARKS", SütunTürü::Metin, 254, false}};
    return komut;
}

}  // namespace Motor

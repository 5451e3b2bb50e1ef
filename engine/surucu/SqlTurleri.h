#pragma once

#include "Ceviri.h"

#include <sql.h>
#include <sqlext.h>

#include <string_view>

namespace Motor {

// A column type as ODBC describes it.
struct SqlTürü {
    SQLSMALLINT Kod;
    std::string_view Ad;
    SQLLEN Genişlik;      // precision
    SQLSMALLINT Ondalık;  // scale
    SQLLEN GösterimBoyu;  // characters
};
SqlTürü SqlTürüAl(const SütunTanımı& sütun);

// The lists of tables and columns as queries with the columns that SQLTables and SQLColumns give. Names may hold
// the wildcards % and _; an empty name stands for all.
SqliteKomutu TablolarKomutu(std::string_view tablo, std::string_view türler);
SqliteKomutu SütunlarKomutu(std::string_view tablo, std::string_view sütun);

}  // namespace Motor

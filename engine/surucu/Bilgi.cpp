#include "BaglantiNesnesi.h"

#include <array>
#include <cstring>

namespace Motor {

namespace {

constexpr SQLUSMALLINT DAMGA_BİLGİSİ = 1000;  // the driver's own: the data file's mark

struct SayısalBilgi {
    SQLUSMALLINT Bilgi;
    bool Kısa;  // a 16-bit value, otherwise 32 bits
    SQLUINTEGER Değer;
};

constexpr SayısalBilgi SayısalBilgiler[] = {
    {SQL_ACTIVE_CONNECTIONS, true, 0},
    {SQL_ACTIVE_STATEMENTS, true, 0},
    {SQL_ODBC_API_CONFORMANCE, true, SQL_OAC_LEVEL1},
    {SQL_ODBC_SQL_CONFORMANCE, true, SQL_OSC_MINIMUM},
    {SQL_ODBC_SAG_CLI_CONFORMANCE, true, SQL_OSCC_NOT_COMPLIANT},
    {SQL_CURSOR_COMMIT_BEHAVIOR, true, SQL_CB_PRESERVE},
    {SQL_CURSOR_ROLLBACK_BEHAVIOR, true, SQL_CB_CLOSE},
    {SQL_TXN_CAPABLE, true, SQL_TC_ALL},
    {SQL_IDENTIFIER_CASE, true, SQL_IC_MIXED},
    {SQL_QUOTED_IDENTIFIER_CASE, true, SQL_IC_MIXED},
    {SQL_CORRELATION_NAME, true, SQL_CN_NONE},
    {SQL_NON_NULLABLE_COLUMNS, true, SQL_NNC_NON_NULL},
    {SQL_NULL_COLLATION, true, SQL_NC_LOW},
    {SQL_GROUP_BY, true, SQL_GB_NOT_SUPPORTED},
    {SQL_CONCAT_NULL_BEHAVIOR, true, SQL_CB_NULL},
    {SQL_FILE_USAGE, true, SQL_FILE_QUALIFIER},
    {SQL_MAX_COLUMN_NAME_LEN, true, 64},
    {SQL_MAX_TABLE_NAME_LEN, true, 64},
    {SQL_MAX_CURSOR_NAME_LEN, true, 0},
    {SQL_MAX_OWNER_NAME_LEN, true, 0},
    {SQL_MAX_QUALIFIER_NAME_LEN, true, 0},
    {SQL_MAX_PROCEDURE_NAME_LEN, true, 0},
    {SQL_MAX_TABLES_IN_SELECT, true, 1},
    {SQL_MAX_USER_NAME_LEN, true, 0},
    {SQL_GETDATA_EXTENSIONS, false, SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER | SQL_GD_BOUND},
    {SQL_FETCH_DIRECTION, false, SQL_FD_FETCH_NEXT},
    {SQL_SCROLL_OPTIONS, false, SQL_SO_FORWARD_ONLY},
    {SQL_SCROLL_CONCURRENCY, false, SQL_SCCO_READ_ONLY},
    {SQL_DEFAULT_TXN_ISOLATION, false, SQL_TXN_SERIALIZABLE},
    {SQL_TXN_ISOLATION_OPTION, false, SQL_TXN_SERIALIZABLE},
    {SQL_BOOKMARK_PERSISTENCE, false, 0},
    {SQL_STATIC_SENSITIVITY, false, 0},
    {SQL_LOCK_TYPES, false, 0},
    {SQL_POS_OPERATIONS, false, 0},
    {SQL_POSITIONED_STATEMENTS, false, 0},
    {SQL_OWNER_USAGE, false, 0},
    {SQL_QUALIFIER_USAGE, false, 0},
    {SQL_ALTER_TABLE, false, 0},
    {SQL_SUBQUERIES, false, 0},
    {SQL_UNION, false, 0},
    {SQL_STRING_FUNCTIONS, false, 0},
    {SQL_NUMERIC_FUNCTIONS, false, 0},
    {SQL_TIMEDATE_FUNCTIONS, false, 0},
    {SQL_SYSTEM_FUNCTIONS, false, 0},
    {SQL_CONVERT_FUNCTIONS, false, 0},
};

struct MetinBilgisi {
    SQLUSMALLINT Bilgi;
    std::string_view Değer;
};

// The version as ODBC writes it: ##.##.####
constexpr std::array Sürüm = [] {
    std::array metin{'0', '0', '.', '0', '0', '.', '0', '0', '0', '0'};
    const auto yaz = [&metin](std::size_t son, int sayı) {
        for (; sayı > 0; sayı /= 10) metin[son--] = static_cast<char>('0' + sayı % 10);
    };
    yaz(1, VARNEK_ANA);
    yaz(4, VARNEK_IKINCIL);
    yaz(9, VARNEK_DUZELTME);
    return metin;
}();

constexpr MetinBilgisi MetinBilgileri[] = {
    {SQL_DRIVER_NAME, "libvarnek-motor.so"},
    {SQL_DRIVER_VER, {Sürüm.data(), Sürüm.size()}},
    {SQL_DRIVER_ODBC_VER, "02.50"},
    {SQL_DBMS_NAME, "Varnek"},
    {SQL_DBMS_VER, {Sürüm.data(), Sürüm.size()}},
    {SQL_ACCESSIBLE_TABLES, "Y"},
    {SQL_ACCESSIBLE_PROCEDURES, "N"},
    {SQL_COLUMN_ALIAS, "Y"},
    {SQL_EXPRESSIONS_IN_ORDERBY, "N"},
    {SQL_ORDER_BY_COLUMNS_IN_SELECT, "N"},
    {SQL_IDENTIFIER_QUOTE_CHAR, " "},
    {SQL_SEARCH_PATTERN_ESCAPE, ""},
    {SQL_SPECIAL_CHARACTERS, ""},
    {SQL_KEYWORDS, ""},
    {SQL_LIKE_ESCAPE_CLAUSE, "N"},
    {SQL_MULT_RESULT_SETS, "N"},
    {SQL_MULTIPLE_ACTIVE_TXN, "Y"},
    {SQL_NEED_LONG_DATA_LEN, "N"},
    {SQL_ODBC_SQL_OPT_IEF, "N"},
    {SQL_OUTER_JOINS, "N"},
    {SQL_OWNER_TERM, ""},
    {SQL_PROCEDURE_TERM, ""},
    {SQL_PROCEDURES, "N"},
    {SQL_QUALIFIER_TERM, ""},
    {SQL_QUALIFIER_NAME_SEPARATOR, ""},
    {SQL_ROW_UPDATES, "N"},
    {SQL_TABLE_TERM, "TABLE"},
    {SQL_SERVER_NAME, ""},
    {SQL_USER_NAME, "Admin"},
};

}  // namespace

SQLRETURN BağlantıNesnesi::BilgiVer(SQLUSMALLINT bilgi, SQLPOINTER değer, SQLSMALLINT boy, SQLSMALLINT* uzunluk) {
    for (const SayısalBilgi& sayısal : SayısalBilgiler) {
        if (sayısal.Bilgi != bilgi) continue;
        const auto kısa = static_cast<SQLUSMALLINT>(sayısal.Değer);
        const SQLSMALLINT bayt = sayısal.Kısa ? sizeof kısa : sizeof sayısal.Değer;
        if (değer) std::memcpy(değer, sayısal.Kısa ? static_cast<const void*>(&kısa) : &sayısal.Değer, bayt);
        if (uzunluk) *uzunluk = bayt;
        return SQL_SUCCESS;
    }
    for (const MetinBilgisi& metin : MetinBilgileri)
        if (metin.Bilgi == bilgi) return MetinVer(Tanı, metin.Değer, değer, boy, uzunluk);
    switch (bilgi) {
        case SQL_DATA_SOURCE_READ_ONLY:
            return MetinVer(Tanı, m_veri && m_veri->SaltOkunur() ? "Y" : "N", değer, boy, uzunluk);
        case SQL_DATA_SOURCE_NAME:
            return MetinVer(Tanı, m_veriKaynağı, değer, boy, uzunluk);
        case SQL_DATABASE_NAME:
            return MetinVer(Tanı, m_yol, değer, boy, uzunluk);
        case DAMGA_BİLGİSİ:
            return MetinVer(Tanı, m_veri ? m_veri->Damga() : std::string(), değer, boy, uzunluk);
        default:
            throw Hata("S1096", "Bu bilgi türü desteklenmiyor.");
    }
}

}  // namespace Motor

// The ODBC entry points of a statement: each unpacks its arguments and calls one method.
#include "DeyimNesnesi.h"

using namespace Motor;

extern "C" {

SQLRETURN SQL_API SQLAllocStmt(SQLHDBC bağlantı, SQLHSTMT* deyim) {
    return Koru<BağlantıNesnesi>(bağlantı, [&](BağlantıNesnesi& nesne) {
        *deyim = nullptr;
        *deyim = nesne.Doğur<DeyimNesnesi>();
        return SQL_SUCCESS;
    });
}

SQLRETURN SQL_API SQLFreeStmt(SQLHSTMT deyim, SQLUSMALLINT seçenek) {
    if (seçenek != SQL_DROP)
        return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) { return nesne.Kapat(seçenek); });
    if (!deyim) return SQL_INVALID_HANDLE;
    static_cast<DeyimNesnesi*>(deyim)->Bırak();
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLPrepare(SQLHSTMT deyim, SQLCHAR* metin, SQLINTEGER boy) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) { return nesne.Hazırla(MetinAl(metin, boy)); });
}

SQLRETURN SQL_API SQLExecute(SQLHSTMT deyim) {
    return Koru<DeyimNesnesi>(deyim, [](DeyimNesnesi& nesne) { return nesne.HazırıÇalıştır(); });
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT deyim, SQLCHAR* metin, SQLINTEGER boy) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) { return nesne.Çalıştır(MetinAl(metin, boy)); });
}

SQLRETURN SQL_API SQLTables(SQLHSTMT deyim, SQLCHAR*, SQLSMALLINT, SQLCHAR*, SQLSMALLINT, SQLCHAR* tablo,
                            SQLSMALLINT tabloBoyu, SQLCHAR* türler, SQLSMALLINT türlerBoyu) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) {
        return nesne.TablolarıListele(MetinAl(tablo, tabloBoyu), MetinAl(türler, türlerBoyu));
    });
}

SQLRETURN SQL_API SQLColumns(SQLHSTMT deyim, SQLCHAR*, SQLSMALLINT, SQLCHAR*, SQLSMALLINT, SQLCHAR* tablo,
                             SQLSMALLINT tabloBoyu, SQLCHAR* sütun, SQLSMALLINT sütunBoyu) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) {
        return nesne.SütunlarıListele(MetinAl(tablo, tabloBoyu), MetinAl(sütun, sütunBoyu));
    });
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT deyim) {
    return Koru<DeyimNesnesi>(deyim, [](DeyimNesnesi& nesne) { return nesne.Getir(); });
}

SQLRETURN SQL_API SQLBindCol(SQLHSTMT deyim, SQLUSMALLINT sütun, SQLSMALLINT tür, SQLPOINTER tampon, SQLLEN boy,
                             SQLLEN* uzunluk) {
    return Koru<DeyimNesnesi>(deyim,
                              [&](DeyimNesnesi& nesne) { return nesne.Bağla(sütun, tür, tampon, boy, uzunluk); });
}

SQLRETURN SQL_API SQLGetData(SQLHSTMT deyim, SQLUSMALLINT sütun, SQLSMALLINT tür, SQLPOINTER tampon, SQLLEN boy,
                             SQLLEN* uzunluk) {
    return Koru<DeyimNesnesi>(deyim,
                              [&](DeyimNesnesi& nesne) { return nesne.VeriAl(sütun, tür, tampon, boy, uzunluk); });
}

SQLRETURN SQL_API SQLMoreResults(SQLHSTMT deyim) {
    return Koru<DeyimNesnesi>(deyim, [](DeyimNesnesi&) { return SQL_NO_DATA; });
}

// May be called while the statement is at work in another thread, so its diagnostics are left alone.
SQLRETURN SQL_API SQLCancel(SQLHSTMT deyim) {
    if (!deyim) return SQL_INVALID_HANDLE;
    static_cast<DeyimNesnesi*>(deyim)->Kes();
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT deyim, SQLSMALLINT* sayı) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) { return nesne.SütunSayısı(sayı); });
}

SQLRETURN SQL_API SQLRowCount(SQLHSTMT deyim, SQLLEN* sayı) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) { return nesne.EtkilenenSatır(sayı); });
}

SQLRETURN SQL_API SQLDescribeCol(SQLHSTMT deyim, SQLUSMALLINT sütun, SQLCHAR* ad, SQLSMALLINT boy,
                                 SQLSMALLINT* adUzunluğu, SQLSMALLINT* tür, SQLULEN* genişlik, SQLSMALLINT* ondalık,
                                 SQLSMALLINT* boşOlur) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) {
        return nesne.SütunuAnlat(sütun, ad, boy, adUzunluğu, tür, genişlik, ondalık, boşOlur);
    });
}

SQLRETURN SQL_API SQLColAttributes(SQLHSTMT deyim, SQLUSMALLINT sütun, SQLUSMALLINT özellik, SQLPOINTER metin,
                                   SQLSMALLINT boy, SQLSMALLINT* uzunluk, SQLLEN* sayı) {
    return Koru<DeyimNesnesi>(
        deyim, [&](DeyimNesnesi& nesne) { return nesne.SütunÖzelliği(sütun, özellik, metin, boy, uzunluk, sayı); });
}

SQLRETURN SQL_API SQLSetStmtOption(SQLHSTMT deyim, SQLUSMALLINT ayar, SQLULEN değer) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) { return nesne.AyarYaz(ayar, değer); });
}

SQLRETURN SQL_API SQLGetStmtOption(SQLHSTMT deyim, SQLUSMALLINT ayar, SQLPOINTER değer) {
    return Koru<DeyimNesnesi>(deyim, [&](DeyimNesnesi& nesne) { return nesne.AyarOku(ayar, değer); });
}

// The most particular handle given decides; reading diagnostics leaves the others in place.
SQLRETURN SQL_API SQLError(SQLHENV ortam, SQLHDBC bağlantı, SQLHSTMT deyim, SQLCHAR* durum, SQLINTEGER* yerel,
                           SQLCHAR* mesaj, SQLSMALLINT boy, SQLSMALLINT* uzunluk) {
    if (deyim) return static_cast<DeyimNesnesi*>(deyim)->Tanı.Al(durum, yerel, mesaj, boy, uzunluk);
    if (bağlantı) return static_cast<BağlantıNesnesi*>(bağlantı)->Tanı.Al(durum, yerel, mesaj, boy, uzunluk);
    if (ortam) return static_cast<Ortam*>(ortam)->Tanı.Al(durum, yerel, mesaj, boy, uzunluk);
    return SQL_INVALID_HANDLE;
}

}  // extern "C"

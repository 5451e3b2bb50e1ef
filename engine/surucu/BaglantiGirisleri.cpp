// The ODBC entry points of environment and connection: each unpacks its arguments and calls one method.
#include "BaglantiNesnesi.h"

using namespace Motor;

extern "C" {

SQLRETURN SQL_API SQLAllocEnv(SQLHENV* ortam) {
    if (!ortam) return SQL_ERROR;
    *ortam = new (std::nothrow) Ortam;
    return *ortam ? SQL_SUCCESS : SQL_ERROR;
}

SQLRETURN SQL_API SQLFreeEnv(SQLHENV ortam) {
    if (!ortam) return SQL_INVALID_HANDLE;
    delete static_cast<Ortam*>(ortam);
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLAllocConnect(SQLHENV ortam, SQLHDBC* bağlantı) {
    return Koru<Ortam>(ortam, [&](Ortam&) {
        *bağlantı = nullptr;
        *bağlantı = new BağlantıNesnesi;
        return SQL_SUCCESS;
    });
}

SQLRETURN SQL_API SQLFreeConnect(SQLHDBC bağlantı) {
    if (!bağlantı) return SQL_INVALID_HANDLE;
    delete static_cast<BağlantıNesnesi*>(bağlantı);
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLConnect(SQLHDBC bağlantı, SQLCHAR* kaynak, SQLSMALLINT kaynakBoyu, SQLCHAR*, SQLSMALLINT,
                             SQLCHAR* parola, SQLSMALLINT parolaBoyu) {
    return Koru<BağlantıNesnesi>(bağlantı, [&](BağlantıNesnesi& nesne) {
        return nesne.Bağlan(MetinAl(kaynak, kaynakBoyu), MetinAl(parola, parolaBoyu));
    });
}

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC bağlantı, SQLHWND, SQLCHAR* metin, SQLSMALLINT metinBoyu, SQLCHAR* çıkış,
                                   SQLSMALLINT çıkışBoyu, SQLSMALLINT* uzunluk, SQLUSMALLINT) {
    return Koru<BağlantıNesnesi>(bağlantı, [&](BağlantıNesnesi& nesne) {
        return nesne.MetinleBağlan(MetinAl(metin, metinBoyu), çıkış, çıkışBoyu, uzunluk);
    });
}

SQLRETURN SQL_API SQLDisconnect(SQLHDBC bağlantı) {
    return Koru<BağlantıNesnesi>(bağlantı, [](BağlantıNesnesi& nesne) { return nesne.Ayrıl(); });
}

SQLRETURN SQL_API SQLTransact(SQLHENV, SQLHDBC bağlantı, SQLUSMALLINT tür) {
    return Koru<BağlantıNesnesi>(bağlantı, [&](BağlantıNesnesi& nesne) { return nesne.HareketiBitir(tür); });
}

SQLRETURN SQL_API SQLSetConnectOption(SQLHDBC bağlantı, SQLUSMALLINT ayar, SQLULEN değer) {
    return Koru<BağlantıNesnesi>(bağlantı, [&](BağlantıNesnesi& nesne) { return nesne.AyarYaz(ayar, değer); });
}

SQLRETURN SQL_API SQLGetConnectOption(SQLHDBC bağlantı, SQLUSMALLINT ayar, SQLPOINTER değer) {
    return Koru<BağlantıNesnesi>(bağlantı, [&](BağlantıNesnesi& nesne) { return nesne.AyarOku(ayar, değer); });
}

SQLRETURN SQL_API SQLGetInfo(SQLHDBC bağlantı, SQLUSMALLINT bilgi, SQLPOINTER değer, SQLSMALLINT boy,
                             SQLSMALLINT* uzunluk) {
    return Koru<BağlantıNesnesi>(bağlantı,
                                 [&](BağlantıNesnesi& nesne) { return nesne.BilgiVer(bilgi, değer, boy, uzunluk); });
}

}  // extern "C"

#include "DeyimNesnesi.h"

#include "SqlTurleri.h"

#include <cstring>

namespace Motor {

const SütunTanımı& DeyimNesnesi::Sütun(SQLUSMALLINT sıra) const {
    if (!m_komut || sıra < 1 || sıra > m_komut->Sütunlar.size())
        throw Hata(Durum::SütunNumarası, "Sonuçta " + std::to_string(sıra) + " numaralı bir sütun yok.");
    return m_komut->Sütunlar[sıra - 1u];
}

SQLRETURN DeyimNesnesi::SütunuAnlat(SQLUSMALLINT sıra, SQLCHAR* ad, SQLSMALLINT boy, SQLSMALLINT* adUzunluğu,
                                    SQLSMALLINT* tür, SQLULEN* genişlik, SQLSMALLINT* ondalık, SQLSMALLINT* boşOlur) {
    const SütunTanımı& sütun = Sütun(sıra);
    const SqlTürü sqlTürü = SqlTürüAl(sütun);
    if (tür) *tür = sqlTürü.Kod;
    if (genişlik) *genişlik = static_cast<SQLULEN>(sqlTürü.Genişlik);
    if (ondalık) *ondalık = sqlTürü.Ondalık;
    if (boşOlur) *boşOlur = sütun.BoşOlamaz ? SQL_NO_NULLS : SQL_NULLABLE;
    return MetinVer(Tanı, sütun.Ad, ad, boy, adUzunluğu);
}

SQLRETURN DeyimNesnesi::SütunÖzelliği(SQLUSMALLINT sıra, SQLUSMALLINT özellik, SQLPOINTER metin, SQLSMALLINT boy,
                                      SQLSMALLINT* uzunluk, SQLLEN* sayı) {
    const auto sayıVer = [sayı](SQLLEN değer) {
        if (sayı) *sayı = değer;
        return SQL_SUCCESS;
    };
    if (özellik == SQL_COLUMN_COUNT) return sayıVer(m_komut ? static_cast<SQLLEN>(m_komut->Sütunlar.size()) : 0);
    const SütunTanımı& sütun = Sütun(sıra);
    const SqlTürü tür = SqlTürüAl(sütun);
    const bool metinSütunu = sütun.Tür == SütunTürü::Metin;
    switch (özellik) {
        case SQL_COLUMN_NAME:
        case SQL_COLUMN_LABEL:
            return MetinVer(Tanı, sütun.Ad, metin, boy, uzunluk);
        case SQL_COLUMN_TYPE_NAME:
            return MetinVer(Tanı, tür.Ad, metin, boy, uzunluk);
        case SQL_COLUMN_TABLE_NAME:
        case SQL_COLUMN_OWNER_NAME:
        case SQL_COLUMN_QUALIFIER_NAME:
            return MetinVer(Tanı, "", metin, boy, uzunluk);
        case SQL_COLUMN_TYPE:
            return sayıVer(tür.Kod);
        case SQL_COLUMN_DISPLAY_SIZE:
            return sayıVer(tür.GösterimBoyu);
        case SQL_COLUMN_LENGTH:
        case SQL_COLUMN_PRECISION:
            return sayıVer(tür.Genişlik);
        case SQL_COLUMN_SCALE:
            return sayıVer(tür.Ondalık);
        case SQL_COLUMN_NULLABLE:
            return sayıVer(sütun.BoşOlamaz ? SQL_NO_NULLS : SQL_NULLABLE);
        case SQL_COLUMN_UNSIGNED:
            return sayıVer(metinSütunu || sütun.Tür == SütunTürü::Tarih);
        case SQL_COLUMN_MONEY:
            return sayıVer(sütun.Tür == SütunTürü::Para);
        case SQL_COLUMN_CASE_SENSITIVE:
        case SQL_COLUMN_AUTO_INCREMENT:
            return sayıVer(SQL_FALSE);
        case SQL_COLUMN_UPDATABLE:
            return sayıVer(SQL_ATTR_READONLY);
        case SQL_COLUMN_SEARCHABLE:
            return sayıVer(SQL_ALL_EXCEPT_LIKE);
        default:
            throw Hata(Durum::Desteklenmiyor, "Bu sütun özelliği desteklenmiyor.");
    }
}

namespace {

struct DeyimAyarı {
    SQLUSMALLINT Ayar;
    SQLULEN Değer;  // the only one there is
};

constexpr DeyimAyarı DeyimAyarları[] = {
    {SQL_QUERY_TIMEOUT, 0},
    {SQL_MAX_ROWS, 0},
    {SQL_MAX_LENGTH, 0},
    {SQL_NOSCAN, SQL_NOSCAN_ON},
    {SQL_ASYNC_ENABLE, SQL_ASYNC_ENABLE_OFF},
    {SQL_CURSOR_TYPE, SQL_CURSOR_FORWARD_ONLY},
    {SQL_CONCURRENCY, SQL_CONCUR_READ_ONLY},
    {SQL_ROWSET_SIZE, 1},
    {SQL_USE_BOOKMARKS, SQL_UB_OFF},
    {SQL_RETRIEVE_DATA, SQL_RD_ON},
};

}  // namespace

SQLRETURN DeyimNesnesi::AyarYaz(SQLUSMALLINT ayar, SQLULEN değer) {
    for (const DeyimAyarı& bilinen : DeyimAyarları) {
        if (bilinen.Ayar != ayar) continue;
        if (bilinen.Değer == değer) return SQL_SUCCESS;
        Tanı.Ekle(Hata("01S02", "Bu ayarın değeri değiştirilemez; öncekiyle devam ediliyor."));
        return SQL_SUCCESS_WITH_INFO;
    }
    throw Hata(Durum::Desteklenmiyor, "Bu deyim ayarı desteklenmiyor.");
}

SQLRETURN DeyimNesnesi::AyarOku(SQLUSMALLINT ayar, SQLPOINTER değer) {
    if (!değer) throw Hata(Durum::BoşGösterge, "Değer için yer verilmemiş.");
    for (const DeyimAyarı& bilinen : DeyimAyarları) {
        if (bilinen.Ayar != ayar) continue;
        const auto sayı = static_cast<SQLUINTEGER>(bilinen.Değer);
        std::memcpy(değer, &sayı, sizeof sayı);
        return SQL_SUCCESS;
    }
    throw Hata(Durum::Desteklenmiyor, "Bu deyim ayarı desteklenmiyor.");
}

}  // namespace Motor

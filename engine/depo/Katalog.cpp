#include "Katalog.h"

#include "Hata.h"
#include "Utf8.h"

#include <charconv>

namespace Motor {

namespace {

SütunTanımı SütunOku(const SqliteDeyimi& satır) {
    SütunTanımı sütun;
    sütun.Ad = satır.Metin(1);
    const std::string_view tür = satır.Metin(2);
    if (tür == "CURRENCY")
        sütun.Tür = SütunTürü::Para;
    else if (tür == "DOUBLE")
        sütun.Tür = SütunTürü::Ondalık;
    else if (tür == "DATETIME")
        sütun.Tür = SütunTürü::Tarih;
    else if (tür.starts_with("TEXT("))
        std::from_chars(tür.data() + 5, tür.data() + tür.size(), sütun.Uzunluk);
    sütun.BoşOlamaz = satır.TamSayı(3) != 0;
    return sütun;
}

}  // namespace

const SütunTanımı& TabloTanımı::Sütun(std::string_view ad) const {
    for (const SütunTanımı& sütun : Sütunlar)
        if (AsciiEşit(sütun.Ad, ad)) return sütun;
    throw Hata(Durum::SütunYok, Ad + " tablosunda " + std::string(ad.substr(0, 64)) + " adında bir sütun yok.");
}

Katalog::Katalog(sqlite3* vt) {
    SqliteDeyimi tablolar(vt, "SELECT name FROM sqlite_schema WHERE type='table' AND name<>?1 ORDER BY name");
    tablolar.Bağla(1, std::string(GizliTablo));
    while (tablolar.Adım()) {
        TabloTanımı tablo;
        tablo.Ad = tablolar.Metin(0);
        SqliteDeyimi sütunlar(vt, "SELECT * FROM pragma_table_info(?1)");
        sütunlar.Bağla(1, tablo.Ad);
        while (sütunlar.Adım()) tablo.Sütunlar.push_back(SütunOku(sütunlar));
        m_tablolar.push_back(std::move(tablo));
    }
}

const TabloTanımı* Katalog::Bul(std::string_view tablo) const {
    for (const TabloTanımı& aday : m_tablolar)
        if (AsciiEşit(aday.Ad, tablo)) return &aday;
    return nullptr;
}

}  // namespace Motor

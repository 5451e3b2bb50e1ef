#include "DosyaSemasi.h"

#include "Hata.h"
#include "SaklananTanim.h"
#include "Utf8.h"

namespace Motor {

const SütunTanımı& TabloTanımı::Sütun(std::string_view ad) const {
    for (const SütunTanımı& sütun : Sütunlar)
        if (AsciiEşit(sütun.Ad, ad)) return sütun;
    throw Hata(Durum::SütunYok, Ad + " tablosunda " + std::string(ad.substr(0, 64)) + " adında bir sütun yok.");
}

DosyaŞeması::DosyaŞeması(sqlite3* vt) {
    SqliteDeyimi şema(vt, "SELECT type, name, tbl_name, sql FROM sqlite_schema");
    while (şema.Adım()) {
        const std::string_view tür = şema.Metin(0);
        const std::string_view ad = şema.Metin(1);
        const std::string_view sql = şema.Metin(3);
        if (tür == "table" && ad == GizliTablo && sql == GizliTabloSql) {
            m_parolaTablosuVar = true;
            continue;
        }
        std::optional<TabloTanımı> tablo = tür == "table" ? SaklananTabloyuOku(sql) : std::nullopt;
        if (tablo && tablo->Ad == ad) {
            m_tablolar.push_back(std::move(*tablo));
            continue;
        }
        if (tür != "index" || !SaklananDizinMi(sql, ad, şema.Metin(2)))
            throw Hata(Durum::Bağlanamadı,
                       "Veri dosyasında bu programın yazmadığı bir öğe var; dosya güvenli olmadığı için açılmadı.",
                       SQLITE_AUTH);
        m_dizinler.emplace_back(ad);
    }
}

const TabloTanımı* DosyaŞeması::Bul(std::string_view tablo) const {
    for (const TabloTanımı& aday : m_tablolar)
        if (AsciiEşit(aday.Ad, tablo)) return &aday;
    return nullptr;
}

bool DosyaŞeması::DizinVar(std::string_view dizin) const {
    for (const std::string& aday : m_dizinler)
        if (AsciiEşit(aday, dizin)) return true;
    return false;
}

}  // namespace Motor

#include "Veritabani.h"

#include "DosyaIslemleri.h"
#include "Hata.h"
#include "Parola.h"

#include <new>

namespace Motor {

namespace {

std::int64_t PragmaOku(sqlite3* vt, const char* sql) {
    SqliteDeyimi oku(vt, sql);
    return oku.Adım() ? oku.TamSayı(0) : 0;
}

}  // namespace

SqliteBağlantısı VeriDosyasıAç(const std::string& yol, std::string_view parola) {
    if (!OlağanDosyaVar(yol)) throw Hata(Durum::Bağlanamadı, "Veri dosyası bulunamadı: " + yol);
    SqliteBağlantısı vt = SqliteAç(TamYol(yol));
    if (PragmaOku(vt.get(), "PRAGMA application_id") != DosyaKimliği)
        throw Hata(Durum::Bağlanamadı, "Bu dosya bir veri dosyası değil ya da bozulmuş.");
    if (PragmaOku(vt.get(), "PRAGMA user_version") != DosyaSürümü)
        throw Hata(Durum::Bağlanamadı, "Veri dosyasını programın başka bir sürümü yazmış; bu sürüm onu okuyamıyor.");
    if (!ParolaDoğru(vt.get(), parola)) throw Hata(Durum::YetkiYok, "Veri dosyasının parolası yanlış.");
    return vt;
}

std::optional<std::string_view> Sorgu::Metin(std::size_t sütun, DeğerTamponu tampon) const {
    sqlite3_value* değer = m_deyim.SütunDeğeri(static_cast<int>(sütun));
    if (sqlite3_value_type(değer) == SQLITE_NULL) return std::nullopt;
    switch (m_sütunlar[sütun].Tür) {
        case SütunTürü::Metin: {
            const auto* metin = reinterpret_cast<const char*>(sqlite3_value_text(değer));
            if (!metin) throw std::bad_alloc();
            return std::string_view(metin, static_cast<std::size_t>(sqlite3_value_bytes(değer)));
        }
        case SütunTürü::Para:
            return ParaYaz(sqlite3_value_int64(değer), tampon);
        case SütunTürü::Ondalık:
            return OndalıkYaz(sqlite3_value_double(değer), tampon);
        case SütunTürü::Tarih:
            return TarihYaz(sqlite3_value_int64(değer), tampon);
        case SütunTürü::TamSayı:
            break;
    }
    return TamSayıYaz(sqlite3_value_int64(değer), tampon);
}

Veritabanı::Veritabanı(const std::string& yol, std::string_view parola) : m_vt(VeriDosyasıAç(yol, parola)) {
    m_katalog.emplace(m_vt.get());
}

const TabloTanımı* Veritabanı::TabloBul(std::string_view tablo) {
    const TabloTanımı* bulunan = m_katalog ? m_katalog->Bul(tablo) : nullptr;
    if (bulunan) return bulunan;
    m_katalog.emplace(m_vt.get());  // another connection may have created it meanwhile
    return m_katalog->Bul(tablo);
}

SqliteKomutu Veritabanı::Çevir(std::string_view deyim) {
    return Motor::Çevir(Çözümle(deyim), [this](std::string_view tablo) { return TabloBul(tablo); });
}

SqliteDeyimi Veritabanı::Hazırla(const SqliteKomutu& komut) {
    SqliteDeyimi deyim(m_vt.get(), komut.Sql);
    for (std::size_t i = 0; i < komut.Değerler.size(); ++i) deyim.Bağla(static_cast<int>(i) + 1, komut.Değerler[i]);
    return deyim;
}

Sorgu Veritabanı::Sorgula(const SqliteKomutu& komut) {
    return {Hazırla(komut), komut.Sütunlar};
}

std::int64_t Veritabanı::Uygula(const SqliteKomutu& komut) {
    SqliteDeyimi deyim = Hazırla(komut);
    if (m_elleOnay && !HareketAçık()) SqliteYürüt(m_vt.get(), "BEGIN");
    const std::int64_t önceki = sqlite3_total_changes64(m_vt.get());
    deyim.Adım();
    if (komut.Tür != SqliteKomutu::Sınıf::Tanım) return sqlite3_total_changes64(m_vt.get()) - önceki;
    m_katalog.reset();
    return 0;
}

void Veritabanı::ElleOnayla(bool açık) {
    if (!açık) Onayla();
    m_elleOnay = açık;
}

void Veritabanı::Onayla() {
    if (HareketAçık()) SqliteYürüt(m_vt.get(), "COMMIT");
}

void Veritabanı::GeriAl() {
    m_katalog.reset();
    if (HareketAçık()) SqliteYürüt(m_vt.get(), "ROLLBACK");
}

}  // namespace Motor

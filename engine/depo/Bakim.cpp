#include "Bakim.h"

#include "DosyaIslemleri.h"
#include "Hata.h"
#include "Parola.h"
#include "Veritabani.h"

namespace Motor {

namespace {

void BütünlüğüDenetle(sqlite3* vt) {
    SqliteDeyimi denetle(vt, "PRAGMA integrity_check(1)");
    const bool sağlam = denetle.Adım() && denetle.Metin(0) == "ok";
    if (!sağlam) SqliteHatasıFırlat(vt, SQLITE_CORRUPT);
}

// A journal beside the target belongs to the target's present content and must never meet the new one. If it is a
// crash's, SQLite undoes the half transaction first: should this run be cut off before the new file is in place, the
// old target is still whole.
void HedefinGünlüğünüBitir(const std::string& hedef) {
    if (!GünlükVar(hedef)) return;
    if (OlağanDosyaVar(hedef)) {
        try {
            const SqliteBağlantısı vt = SqliteAç(hedef);
            SqliteYürüt(vt.get(), "BEGIN IMMEDIATE; COMMIT");
        } catch (const Hata& hata) {
            if ((hata.Yerel() & 0xFF) == SQLITE_BUSY) throw;  // in use; anything else: no data file worth saving
        }
    }
    GünlükleriSil(hedef);
}

}  // namespace

void VeriDosyasıOluştur(const std::string& yol, std::string_view parola) {
    const std::string hedef = TamYol(yol);
    if (YolVar(hedef)) throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " + yol);
    GeçiciDosya geçici(hedef);
    {
        const SqliteBağlantısı vt = SqliteAç(geçici.Yol());
        SqliteYürüt(vt.get(), "PRAGMA journal_mode=MEMORY; BEGIN");
        SqliteYürüt(vt.get(), ("PRAGMA application_id=" + std::to_string(DosyaKimliği)).c_str());
        SqliteYürüt(vt.get(), ("PRAGMA user_version=" + std::to_string(DosyaSürümü)).c_str());
        ParolayıYaz(vt.get(), parola);
        SqliteYürüt(vt.get(), "COMMIT");
    }
    if (!YolVar(hedef)) GünlükleriSil(hedef);  // left by a file that is gone
    geçici.Yerleştir(GeçiciDosya::Yerleştirme::Yeni);
}

void VeriDosyasıSıkıştır(const std::string& kaynak, const std::string& hedefYolu, std::string_view parola) {
    const std::string hedef = TamYol(hedefYolu);
    if (AynıDosya(kaynak, hedef)) throw Hata(Durum::Genel, "Bir veri dosyası kendi üzerine sıkıştırılamaz.");
    const SqliteBağlantısı vt = VeriDosyasıAç(kaynak, parola);
    BütünlüğüDenetle(vt.get());
    GeçiciDosya geçici(hedef);
    SqliteDeyimi sıkıştır(vt.get(), "VACUUM INTO ?1");
    sıkıştır.Bağla(1, geçici.Yol());
    sıkıştır.Adım();
    HedefinGünlüğünüBitir(hedef);
    geçici.Yerleştir(GeçiciDosya::Yerleştirme::Değiştir);
}

}  // namespace Motor

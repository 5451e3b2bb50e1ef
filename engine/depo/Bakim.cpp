#include "Bakim.h"

#include "DosyaIslemleri.h"
#include "Hata.h"
#include "Parola.h"
#include "Veritabani.h"

namespace Motor {

void BütünlüğüDenetle(sqlite3* vt) {
    SqliteDeyimi denetle(vt, "PRAGMA integrity_check(1)");
    const bool sağlam = denetle.Adım() && denetle.Metin(0) == "ok";
    if (!sağlam) SqliteHatasıFırlat(SQLITE_CORRUPT);
}

namespace {

// A journal beside the target belongs to the target's present content and must never meet the new one. If it is a
// crash's, SQLite undoes the half transaction first: should this run be cut off before the new file is in place, the
// old target is still whole.
void HedefinGünlüğünüBitir(const std::string& hedef) {
    if (!Dosya::GünlükVar(hedef)) return;
    GünlükleriDenetle(hedef);
    if (Dosya::OlağanDosyaVar(hedef)) {
        try {
            const SqliteBağlantısı vt = SqliteAç(hedef);
            SqliteYürüt(vt.get(), "BEGIN IMMEDIATE; COMMIT");
        } catch (const Hata& hata) {
            if ((hata.Yerel() & 0xFF) == SQLITE_BUSY) throw;  // in use; anything else: no data file worth saving
        }
    }
    // Should the new name reach the disk and the end of the old journal not, the journal would meet the new content.
    if (!Dosya::GünlükleriSil(hedef) || !Dosya::KlasörüEşitle(hedef)) SqliteHatasıFırlat(SQLITE_IOERR);
}

// Compacts within the file: one transaction of SQLite, so that other clients stay connected and a crash is undone. The
// rows pass through temporary files, as they may be more than the memory takes.
void YerindeSıkıştır(sqlite3* vt) {
    SqliteYürüt(vt, "PRAGMA temp_store=FILE");
    SqliteYürüt(vt, "VACUUM");
}

}  // namespace

void VeriDosyasıOluştur(const std::string& yol, std::string_view parola) {
    if (Dosya::YolVar(yol)) throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " + yol);
    const std::string hedef = GerçekYol(yol);
    GeçiciDosya geçici(hedef);
    {
        const SqliteBağlantısı vt = SqliteAç(geçici.Yol());
        SqliteYürüt(vt.get(), "PRAGMA journal_mode=MEMORY; BEGIN");
        SqliteYürüt(vt.get(), ("PRAGMA application_id=" + std::to_string(DosyaKimliği)).c_str());
        SqliteYürüt(vt.get(), ("PRAGMA user_version=" + std::to_string(DosyaSürümü)).c_str());
        ParolayıYaz(vt.get(), parola);
        SqliteYürüt(vt.get(), "COMMIT");
    }
    if (!Dosya::YolVar(hedef)) HedefinGünlüğünüBitir(hedef);  // left by a file that is gone
    geçici.Yerleştir(Dosya::Yerleştirme::Yeni);
}

void VeriDosyasıSıkıştır(const std::string& kaynak, const std::string& hedefYolu, std::string_view parola) {
    const AçıkDosya dosya = VeriDosyasıAç(kaynak, parola);
    sqlite3* vt = dosya.Vt.get();
    BütünlüğüDenetle(vt);
    if (Dosya::AynıDosya(kaynak, hedefYolu)) return YerindeSıkıştır(vt);
    const std::string hedef = GerçekYol(hedefYolu);
    if (Dosya::YolVar(hedef) && !Dosya::Yazılabilir(hedef))
        throw Hata(Durum::Genel, "Hedef dosya salt okunur; üzerine yazılmadı: " + hedefYolu);
    GeçiciDosya geçici(hedef);
    SqliteDeyimi sıkıştır(vt, "VACUUM INTO ?1");
    sıkıştır.Bağla(1, geçici.Yol());
    sıkıştır.Adım();
    HedefinGünlüğünüBitir(hedef);
    geçici.Yerleştir(Dosya::Yerleştirme::Değiştir);
}

}  // namespace Motor

#include "Bakim.h"

#include "DosyaIslemleri.h"
#include "ErisimdenAlma.h"
#include "Hata.h"
#include "Parola.h"
#include "Veritabani.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace Motor {

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

// A folder beside the target, for a file on the way there.
class AraKlasör {
  public:
    explicit AraKlasör(const std::string& hedef) : m_yol(hedef + ".aliniyor-XXXXXX") {
        if (!mkdtemp(m_yol.data()))
            throw Hata(Durum::Genel, "Hedef klasöre yazılamıyor; yazma iznini ve diski denetleyin: " + hedef, errno);
    }
    ~AraKlasör() {
        std::error_code önemsiz;
        std::filesystem::remove_all(m_yol, önemsiz);
    }
    AraKlasör(const AraKlasör&) = delete;
    AraKlasör& operator=(const AraKlasör&) = delete;
    std::string Dosya() const { return m_yol + "/Yeni.vtb"; }
    std::string Liste() const { return m_yol + "/Yeni.txt"; }

  private:
    std::string m_yol;
};

// Puts the list of what could not be stored as it stood beside the target; its path, "" when there is none.
std::string ListeyiKoy(const std::string& liste, const std::string& hedef) {
    if (!Dosya::OlağanDosyaVar(liste)) return {};
    for (int sıra = 1;; ++sıra) {
        const std::string ad = hedef + ".access" + (sıra == 1 ? "" : "-" + std::to_string(sıra)) + ".txt";
        const Dosya::Sonuç sonuç = Dosya::Taşı(liste, ad, Dosya::Yerleştirme::Yeni);
        if (sonuç.Yapıldı()) return ad;
        if (sonuç.Ne != Dosya::Sonuç::Tür::Var)
            throw Hata(Durum::Genel, "Dosya yazılamadı; klasörün yazma iznini ve diski denetleyin: " + ad, sonuç.Neden);
    }
}

}  // namespace

void BütünlüğüDenetle(sqlite3* vt) {
    SqliteDeyimi denetle(vt, "PRAGMA integrity_check(1)");
    const bool sağlam = denetle.Adım() && denetle.Metin(0) == "ok";
    if (!sağlam) SqliteHatasıFırlat(SQLITE_CORRUPT);
}

void DurdurulurYap(sqlite3* vt, const std::string& dur) {
    constexpr int adım = 100000;  // instructions of SQLite between two looks
    if (dur.empty()) return;
    const auto durdu = [](void* yol) -> int { return access(static_cast<const char*>(yol), F_OK) == 0 ? 1 : 0; };
    sqlite3_progress_handler(vt, adım, durdu, const_cast<char*>(dur.c_str()));
}

// A check looks each row up in each index. Without memory for them the pages would be read again and again.
void BellekVer(sqlite3* vt) {
    SqliteYürüt(vt, "PRAGMA cache_size=-131072");  // at most so many KiB
}

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

void VeriDosyasıSıkıştır(const std::string& kaynak, const std::string& hedefYolu, std::string_view parola,
                         const std::string& dur) {
    if (ErişimDosyası(kaynak) && !Dosya::AynıDosya(kaynak, hedefYolu)) {
        const std::string hedef = GerçekYol(hedefYolu);
        const AraKlasör ara(hedef);
        ErişimdenAl(GerçekYol(kaynak), ara.Dosya(), ara.Liste(), dur);
        const std::string liste = ListeyiKoy(ara.Liste(), hedef);
        try {
            return VeriDosyasıSıkıştır(ara.Dosya(), hedef, parola, dur);
        } catch (...) {
            if (!liste.empty()) Dosya::Sil(liste);
            throw;
        }
    }
    const AçıkDosya dosya = VeriDosyasıAç(kaynak, parola);
    sqlite3* vt = dosya.Vt.get();
    DurdurulurYap(vt, dur);
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

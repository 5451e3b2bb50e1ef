#include "Yedekleme.h"

#include <exception>
#include <thread>

#include "Bakim.h"
#include "DosyaIslemleri.h"
#include "Hata.h"
#include "Parola.h"
#include "Veritabani.h"

namespace Motor {

namespace {

void OkuyarakDenetle(const std::string& yol, std::string_view parola, const std::string& dur) {
    const AçıkDosya dosya = DosyayıTanı(SqliteOkumayaAç(yol), parola);
    BellekVer(dosya.Vt.get());
    DurdurulurYap(dosya.Vt.get(), dur);
    BütünlüğüDenetle(dosya.Vt.get());
}

// The check of a file while another connection copies it: both take long, and neither waits for the other.
class ArkadaDenetim {
  public:
    explicit ArkadaDenetim(sqlite3* vt) : m_vt(vt), m_işçi([this] { Denetle(); }) {}
    ~ArkadaDenetim() {
        if (!m_işçi.joinable()) return;
        sqlite3_interrupt(m_vt);  // the copy has failed: nobody asks any more
        m_işçi.join();
    }
    ArkadaDenetim(const ArkadaDenetim&) = delete;
    ArkadaDenetim& operator=(const ArkadaDenetim&) = delete;

    // Throws what the check found.
    void Bekle() {
        m_işçi.join();
        if (m_hata) std::rethrow_exception(m_hata);
    }

  private:
    void Denetle() {
        try {
            BütünlüğüDenetle(m_vt);
        } catch (...) {
            m_hata = std::current_exception();
        }
    }

    sqlite3* m_vt;
    std::exception_ptr m_hata;
    std::thread m_işçi;  // the last to be made
};

// A file too damaged to be locked is in no client's transaction either.
SqliteBağlantısı HedefiKilitle(const std::string& hedef) {
    if (!Dosya::OlağanDosyaVar(hedef)) return {};
    GünlükleriDenetle(hedef);
    try {
        SqliteBağlantısı vt = SqliteAç(hedef);
        SqliteYürüt(vt.get(), "BEGIN EXCLUSIVE");
        return vt;
    } catch (const Hata& hata) {
        const int ana = hata.Yerel() & 0xFF;
        if (ana != SQLITE_CORRUPT && ana != SQLITE_NOTADB) throw;
    }
    return {};
}

}  // namespace

void VeriDosyasıDenetle(const std::string& verilen, std::string_view parola, const std::string& dur) {
    if (!Dosya::OlağanDosyaVar(verilen)) throw Hata(Durum::Bağlanamadı, "Veri dosyası bulunamadı: " + verilen);
    const std::string yol = GerçekYol(verilen);
    if (Dosya::GünlükVar(yol)) SqliteHatasıFırlat(SQLITE_READONLY_ROLLBACK);
    OkuyarakDenetle(yol, parola, dur);
}

void VeriDosyasıYedekle(const std::string& kaynak, const std::string& hedefYolu, std::string_view parola,
                        const std::string& dur) {
    if (Dosya::YolVar(hedefYolu))
        throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " + hedefYolu);
    const AçıkDosya denetlenen = VeriDosyasıAç(kaynak, parola);
    BellekVer(denetlenen.Vt.get());
    DurdurulurYap(denetlenen.Vt.get(), dur);
    // Nobody writes from here on, so that what is checked is what is copied.
    SqliteYürüt(denetlenen.Vt.get(), "BEGIN; SELECT Count(*) FROM sqlite_schema");
    const AçıkDosya dosya = VeriDosyasıAç(kaynak, parola);
    DurdurulurYap(dosya.Vt.get(), dur);
    ArkadaDenetim denetim(denetlenen.Vt.get());
    GeçiciDosya geçici(GerçekYol(hedefYolu));
    {
        SqliteDeyimi sıkıştır(dosya.Vt.get(), "VACUUM INTO ?1");
        sıkıştır.Bağla(1, geçici.Yol());
        sıkıştır.Adım();
    }
    OkuyarakDenetle(geçici.Yol(), parola, dur);
    denetim.Bekle();
    geçici.Yerleştir(Dosya::Yerleştirme::Yeni);
}

void VeriDosyasıGeriYükle(const std::string& kaynak, const std::string& hedefYolu, std::string_view parola) {
    const AçıkDosya yedek = VeriDosyasıAç(kaynak, parola);
    BellekVer(yedek.Vt.get());
    BütünlüğüDenetle(yedek.Vt.get());
    const std::string hedef = GerçekYol(hedefYolu);
    if (Dosya::AynıDosya(kaynak, hedef)) throw Hata(Durum::Genel, "Yedek ile veri dosyası aynı dosya.");
    if (Dosya::YolVar(hedef) && !Dosya::Yazılabilir(hedef))
        throw Hata(Durum::Genel, "Veri dosyası salt okunur; üzerine yazılmadı: " + hedefYolu);
    const SqliteBağlantısı kilit = HedefiKilitle(hedef);
    GeçiciDosya geçici(hedef);
    geçici.Doldur(GerçekYol(kaynak));
    // A journal of the old content must never meet the new one.
    if (!Dosya::GünlükleriSil(hedef) || !Dosya::KlasörüEşitle(hedef)) SqliteHatasıFırlat(SQLITE_IOERR);
    geçici.Yerleştir(Dosya::Yerleştirme::Değiştir);
}

void VeriDosyasıDamgala(const std::string& yol, std::string_view parola) {
    const AçıkDosya dosya = VeriDosyasıAç(yol, parola);
    SqliteYürüt(dosya.Vt.get(), "BEGIN IMMEDIATE");
    ParolayıYenile(dosya.Vt.get(), parola);
    SqliteYürüt(dosya.Vt.get(), "COMMIT");
}

}  // namespace Motor

#include "Onarim.h"

#include "Bakim.h"
#include "DosyaIslemleri.h"
#include "Hata.h"
#include "Parola.h"
#include "TabloKurtarma.h"
#include "Veritabani.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

namespace Motor {

namespace {

namespace fs = std::filesystem;

// Gone with all that lies in it.
class GeçiciKlasör {
  public:
    GeçiciKlasör() {
        std::error_code hata;
        m_yol = (fs::temp_directory_path(hata) / "varnek-onarim-XXXXXX").string();
        if (hata || !mkdtemp(m_yol.data())) throw Hata(Durum::Genel, "Geçici klasör oluşturulamadı.");
    }
    ~GeçiciKlasör() {
        std::error_code önemsiz;
        fs::remove_all(m_yol, önemsiz);
    }
    GeçiciKlasör(const GeçiciKlasör&) = delete;
    GeçiciKlasör& operator=(const GeçiciKlasör&) = delete;
    std::string Dosya() const { return m_yol + "/Onarilan.vtb"; }

  private:
    std::string m_yol;
};

// Byte by byte; blocks that the disk does not give become zeros.
void Kopyala(const std::string& kaynak, const std::string& hedef) {
    constexpr std::streamsize blok = 4096;
    std::error_code hata;
    const auto boy = static_cast<std::streamoff>(fs::file_size(kaynak, hata));
    std::ifstream oku(kaynak, std::ios::binary);
    std::ofstream yaz(hedef, std::ios::binary);
    if (hata || !oku || !yaz) throw Hata(Durum::Bağlanamadı, "Veri dosyası okunamıyor: " + kaynak);
    std::array<char, blok> tampon;
    for (std::streamoff yer = 0; yer < boy; yer += blok) {
        const auto parça = std::min<std::streamsize>(blok, boy - yer);
        tampon.fill(0);
        if (!oku.read(tampon.data(), parça)) {
            oku.clear();
            oku.seekg(yer + parça);
        }
        yaz.write(tampon.data(), parça);
    }
    if (!yaz.flush()) throw Hata(Durum::Genel, "Diskte yer kalmadığı için dosya kopyalanamadı.");
}

// A file that was cut short still says how many pages it had, and would not be opened at all: what is missing is put
// there, empty. A number that no file has is put right.
void SayfaSayısınıDüzelt(const std::string& yol) {
    constexpr std::size_t sayfaBoyuYeri = 16;
    constexpr std::size_t sayfaSayısıYeri = 28;
    constexpr std::uint64_t azamiBoy = std::uint64_t{1} << 38;  // takes no room on the disk
    std::fstream dosya(yol, std::ios::binary | std::ios::in | std::ios::out);
    std::array<unsigned char, 100> baş{};
    if (!dosya.read(reinterpret_cast<char*>(baş.data()), baş.size())) return;
    std::uint64_t sayfa = baş[sayfaBoyuYeri] << 8 | baş[sayfaBoyuYeri + 1];
    if (sayfa == 1) sayfa = 65536;
    if (sayfa < 512) return;
    const std::uint64_t var = (fs::file_size(yol) + sayfa - 1) / sayfa;
    std::uint64_t yazan = 0;
    for (std::size_t i = 0; i < 4; ++i) yazan = yazan << 8 | baş[sayfaSayısıYeri + i];
    if (yazan <= var) return;
    std::error_code sığmadı;
    if (yazan * sayfa <= azamiBoy) {
        dosya.close();
        fs::resize_file(yol, yazan * sayfa, sığmadı);
        if (!sığmadı) return;
        dosya.open(yol, std::ios::binary | std::ios::in | std::ios::out);
    }
    dosya.seekp(sayfaSayısıYeri);
    for (int kaydır = 24; kaydır >= 0; kaydır -= 8) dosya.put(static_cast<char>(var >> kaydır & 0xFF));
}

AçıkDosya HasarlıyıAç(const std::string& yol) {
    SqliteBağlantısı vt = SqliteAç(yol);
    SqliteDeyimi kimlik(vt.get(), "PRAGMA application_id");
    if (!kimlik.Adım() || kimlik.TamSayı(0) != DosyaKimliği) SqliteHatasıFırlat(SQLITE_NOTADB);
    SqliteDeyimi sürüm(vt.get(), "PRAGMA user_version");
    if (!sürüm.Adım() || sürüm.TamSayı(0) != DosyaSürümü)
        throw Hata(Durum::Bağlanamadı, "Veri dosyasını programın başka bir sürümü yazmış; bu sürüm onu okuyamıyor.");
    DosyaŞeması şema(vt.get());
    return {std::move(vt), std::move(şema)};
}

class Onarım {
  public:
    Onarım(const std::string& kaynak, const std::string& hedef)
        : m_dosya(KopyayıAç(kaynak)), m_hedef(SqliteAç(hedef)) {}

    void Yürüt(std::string_view parola) {
        SqliteYürüt(m_hedef.get(), "PRAGMA journal_mode=MEMORY; BEGIN");
        SqliteYürüt(m_hedef.get(), ("PRAGMA application_id=" + std::to_string(DosyaKimliği)).c_str());
        SqliteYürüt(m_hedef.get(), ("PRAGMA user_version=" + std::to_string(DosyaSürümü)).c_str());
        ParolayıAktar(parola);
        TablolarıAktar();
        DizinleriKur();
        SqliteYürüt(m_hedef.get(), "COMMIT");
        if (m_kurtarılan == 0 && !m_rapor.empty())
            throw Hata(Durum::Genel, "Veri dosyası bozulmuş; hiçbir satırı okunamadı.", SQLITE_CORRUPT);
        BütünlüğüDenetle(m_hedef.get());
    }

    const std::string& Rapor() const { return m_rapor; }

  private:
    // With its journal, if that can be played back.
    AçıkDosya KopyayıAç(const std::string& kaynak) {
        const std::string kopya = m_klasör.Dosya();
        const std::string günlük = kopya + "-journal";
        Kopyala(kaynak, kopya);
        SayfaSayısınıDüzelt(kopya);
        m_sınır = static_cast<std::int64_t>(fs::file_size(kaynak)) / 8 + 1'000'000;
        if (!Dosya::OlağanDosyaVar(kaynak + "-journal")) return HasarlıyıAç(kopya);
        Kopyala(kaynak + "-journal", günlük);
        try {
            return HasarlıyıAç(kopya);
        } catch (const Hata&) {
            Dosya::Sil(günlük);
            Kopyala(kaynak, kopya);
            SayfaSayısınıDüzelt(kopya);
            m_rapor += "Günlük okunamadı; yarım kalmış bir kayıt geri alınmamış olabilir.\n";
            return HasarlıyıAç(kopya);
        }
    }

    // The same words of the same file; a password that cannot be read any more is taken from who asks.
    void ParolayıAktar(std::string_view parola) {
        bool doğru = false;
        try {
            doğru = m_dosya.Şema.ParolaTablosuVar() && ParolaDoğru(m_dosya.Vt.get(), parola);
        } catch (const Hata& hata) {
            if (hata.Yerel() != SQLITE_CORRUPT) throw;
            m_rapor += "Parola bilgisi okunamadı; verilen parola ile yeniden yazıldı.\n";
            return ParolayıYaz(m_hedef.get(), parola);
        }
        if (!doğru) throw Hata(Durum::YetkiYok, "Veri dosyasının parolası yanlış.");
        SqliteYürüt(m_hedef.get(), std::string(DosyaŞeması::GizliTabloSql).c_str());
        const std::string ad = Tırnakla(DosyaŞeması::GizliTablo);
        SqliteDeyimi oku(m_dosya.Vt.get(), "SELECT Tuz, Tekrar, Ozet FROM " + ad);
        SqliteDeyimi yaz(m_hedef.get(), "INSERT INTO " + ad + " VALUES (?1, ?2, ?3)");
        oku.Adım();
        for (int i = 0; i < 3; ++i) yaz.BağlaDeğer(i + 1, oku.SütunDeğeri(i));
        yaz.Adım();
    }

    void TablolarıAktar() {
        SqliteDeyimi tablolar(m_dosya.Vt.get(),
                              "SELECT name, sql FROM sqlite_schema WHERE type='table' ORDER BY rowid");
        while (tablolar.Adım()) {
            const std::string ad(tablolar.Metin(0));
            const TabloTanımı* tablo = m_dosya.Şema.Bul(ad);
            if (!tablo) continue;
            SqliteYürüt(m_hedef.get(), std::string(tablolar.Metin(1)).c_str());
            TabloKurtarma kurtarma(m_dosya.Vt.get(), m_hedef.get(), *tablo, m_sınır);
            kurtarma.Yürü();
            m_kurtarılan += kurtarma.Kurtarılan();
            for (const SatırAralığı& aralık : kurtarma.Kayıplar()) KaybıYaz(*tablo, aralık, kurtarma.Sınır());
        }
    }

    void KaybıYaz(const TabloTanımı& tablo, SatırAralığı aralık, std::int64_t sınır) {
        const std::string ilk = tablo.Ad + ": " + std::to_string(aralık.Alt + 1);
        const std::int64_t sayı = aralık.Üst - aralık.Alt - 1;
        if (aralık.Üst == sınır)
            m_rapor += ilk + " ve sonraki satırlar okunamadı";
        else if (sayı == 1)
            m_rapor += ilk + ". satır okunamadı";
        else
            m_rapor += ilk + " - " + std::to_string(aralık.Üst - 1) + " arası satırlar okunamadı (en çok " +
                       std::to_string(sayı) + " satır)";
        m_rapor += "\n";
        AdlarıYaz(tablo, aralık);
    }

    // What an index still knows of the lost rows: their first columns.
    void AdlarıYaz(const TabloTanımı& tablo, SatırAralığı aralık) {
        SqliteDeyimi dizinler(m_dosya.Vt.get(),
                              "SELECT name, sql FROM sqlite_schema WHERE type='index' AND tbl_name=?1 "
                              "ORDER BY length(sql) DESC");
        dizinler.Bağla(1, tablo.Ad);
        while (dizinler.Adım())
            if (DizindenYaz(tablo, std::string(dizinler.Metin(0)), Sütunlar(dizinler.Metin(1)), aralık)) return;
    }

    bool DizindenYaz(const TabloTanımı& tablo, const std::string& dizin, const std::string& sütunlar,
                     SatırAralığı aralık) {
        std::string satırlar;
        try {
            SqliteDeyimi oku(m_dosya.Vt.get(), "SELECT rowid, " + sütunlar + " FROM " + Tırnakla(tablo.Ad) +
                                                   " INDEXED BY " + Tırnakla(dizin) + " ORDER BY " + sütunlar);
            const auto sayı = std::count(sütunlar.begin(), sütunlar.end(), ',') + 1;
            while (oku.Adım()) {
                const std::int64_t no = oku.TamSayı(0);
                if (no <= aralık.Alt || no >= aralık.Üst) continue;
                satırlar += "  " + tablo.Ad + " " + std::to_string(no) + ": ";
                for (int i = 1; i <= sayı; ++i) satırlar.append(i > 1 ? " / " : "").append(oku.Metin(i));
                satırlar += "\n";
            }
        } catch (const Hata&) {
            return false;  // damaged as well
        }
        m_rapor += satırlar;
        return true;
    }

    // The columns in an index's declaration, without their directions.
    static std::string Sütunlar(std::string_view sql) {
        std::string sütunlar(sql.substr(sql.rfind('(') + 1));
        sütunlar.resize(sütunlar.rfind(')'));
        for (std::size_t yer; (yer = sütunlar.find(" DESC")) != std::string::npos;) sütunlar.erase(yer, 5);
        return sütunlar;
    }

    void DizinleriKur() {
        SqliteDeyimi dizinler(m_dosya.Vt.get(),
                              "SELECT name, tbl_name, sql FROM sqlite_schema WHERE type='index' ORDER BY rowid");
        while (dizinler.Adım()) {
            const std::string sql(dizinler.Metin(2));
            try {
                SqliteYürüt(m_hedef.get(), sql.c_str());
            } catch (const Hata& hata) {
                if ((hata.Yerel() & 0xFF) != SQLITE_CONSTRAINT) throw;
                ÇiftleriÇıkar(std::string(dizinler.Metin(1)), Sütunlar(sql));
                SqliteYürüt(m_hedef.get(), sql.c_str());
            }
        }
    }

    // Damage can make two rows bear one name that may stand once: the first stays.
    void ÇiftleriÇıkar(const std::string& tablo, const std::string& sütunlar) {
        const std::string ad = Tırnakla(tablo);
        SqliteDeyimi sil(m_hedef.get(), "DELETE FROM " + ad + " WHERE rowid NOT IN (SELECT min(rowid) FROM " + ad +
                                            " GROUP BY " + sütunlar + ") RETURNING rowid");
        while (sil.Adım())
            m_rapor +=
                tablo + ": " + std::to_string(sil.TamSayı(0)) + ". satırın adı başka bir satırda da var; alınmadı\n";
    }

    GeçiciKlasör m_klasör;
    std::string m_rapor;
    std::int64_t m_sınır = 0;
    std::int64_t m_kurtarılan = 0;
    AçıkDosya m_dosya;
    SqliteBağlantısı m_hedef;
};

void RaporuYaz(const std::string& yol, const std::string& metin) {
    if (yol.empty()) return;
    std::ofstream dosya(yol, std::ios::binary);
    dosya << metin;
    if (!dosya.flush()) throw Hata(Durum::Genel, "Rapor yazılamadı: " + yol);
}

}  // namespace

void VeriDosyasıOnar(const std::string& kaynak, const std::string& hedefYolu, std::string_view parola,
                     const std::string& rapor) {
    if (!Dosya::OlağanDosyaVar(kaynak)) throw Hata(Durum::Bağlanamadı, "Veri dosyası bulunamadı: " + kaynak);
    if (Dosya::YolVar(hedefYolu))
        throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " + hedefYolu);
    const std::string hedef = GerçekYol(hedefYolu);
    if (Dosya::GünlükVar(hedef))
        throw Hata(Durum::Genel, "Yeni dosyanın adında eski bir günlük var; onu kaldırın ya da başka bir ad verin.");
    GeçiciDosya geçici(hedef);
    {
        Onarım onarım(GerçekYol(kaynak), geçici.Yol());
        onarım.Yürüt(parola);
        RaporuYaz(rapor, onarım.Rapor());
    }
    geçici.Yerleştir(Dosya::Yerleştirme::Yeni);
}

}  // namespace Motor

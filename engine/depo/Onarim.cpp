#include "Onarim.h"

#include "Bakim.h"
#include "DosyaIslemleri.h"
#include "Hata.h"
#include "KayipAdlari.h"
#include "OnarimKopyasi.h"
#include "Parola.h"
#include "TabloKurtarma.h"
#include "Veritabani.h"

#include <filesystem>
#include <fstream>
#include <optional>

namespace Motor {

namespace {

// The declarations in a file that holds every table its client knows.
std::vector<ŞemaÖğesi> Bilinenler(const std::string& yol, std::string_view parola) {
    if (yol.empty()) return {};
    return ŞemayıOku(VeriDosyasıAç(yol, parola).Vt.get()).Öğeler;
}

// Whether a check of the engine's finds nothing in a table, or in the whole file ("").
bool Sağlam(sqlite3* vt, const std::string& tablo) {
    try {
        SqliteDeyimi denetle(vt, "PRAGMA integrity_check(" + (tablo.empty() ? "1" : Tırnakla(tablo)) + ")");
        return denetle.Adım() && denetle.Metin(0) == "ok";
    } catch (const Hata& hata) {
        if (!Hasar(hata)) throw;
        return false;
    }
}

class Onarım {
  public:
    Onarım(const Onarımİsteği& istek, const std::string& kaynak, const std::string& hedef)
        : m_istek(istek), m_hedef(SqliteAç(hedef)) {
        KopyayıAç(kaynak);
        for (sqlite3* vt : {m_dosya->Vt.get(), m_hedef.get()}) DurdurulurYap(vt, istek.Dur);
        BellekVer(m_dosya->Vt.get());
        // Locked once: each of the many looks into what cannot be read would take and give back the lock.
        SqliteYürüt(m_dosya->Vt.get(), "BEGIN; SELECT 1 FROM sqlite_schema");
    }

    void Yürüt() {
        SqliteYürüt(m_hedef.get(), "PRAGMA journal_mode=MEMORY; BEGIN");
        SqliteYürüt(m_hedef.get(), ("PRAGMA application_id=" + std::to_string(DosyaKimliği)).c_str());
        SqliteYürüt(m_hedef.get(), ("PRAGMA user_version=" + std::to_string(DosyaSürümü)).c_str());
        ParolayıAktar();
        m_sağlam = !m_şema->Değişti() && Sağlam(m_dosya->Vt.get(), {});
        for (const ŞemaÖğesi& öğe : m_şema->Öğeler())
            if (!öğe.Dizin() && öğe.Ad != DosyaŞeması::GizliTablo) TabloyuAktar(öğe);
        if (!m_sağlam && m_rapor.empty())
            m_rapor =
                "Dosya bütünlük denetiminden geçmedi; bozukluğun hangi tabloda olduğu bulunamadı, alınanların "
                "eksiksiz olduğu doğrulanamıyor\n";
        DizinleriKur();
        SqliteYürüt(m_hedef.get(), "COMMIT");
        if (m_kurtarılan == 0 && !m_rapor.empty())
            throw Hata(Durum::Genel, "Veri dosyası bozulmuş; hiçbir satırı okunamadı.", SQLITE_CORRUPT);
        BütünlüğüDenetle(m_hedef.get());
    }

    const std::string& Rapor() const { return m_rapor; }

  private:
    // With its journal, if that can be played back.
    void KopyayıAç(const std::string& kaynak) {
        const std::vector<ŞemaÖğesi> bilinenler = Bilinenler(m_istek.Bildirimler, m_istek.Parola);
        const bool günlükle = Dosya::OlağanDosyaVar(kaynak + "-journal");
        m_sınır = static_cast<std::int64_t>(std::filesystem::file_size(kaynak)) / 8 + 1'000'000;
        m_kopya.Al(kaynak, günlükle, m_istek.Dur);
        try {
            m_şema.emplace(m_kopya.Dosya(), bilinenler);
        } catch (const Hata&) {
            if (!günlükle) throw;
            m_kopya.Al(kaynak, false, m_istek.Dur);
            m_rapor += "Günlük okunamadı; yarım kalmış bir kayıt geri alınmamış olabilir.\n";
            m_şema.emplace(m_kopya.Dosya(), bilinenler);
        }
        m_rapor += m_şema->Rapor();
        SqliteBağlantısı vt = SqliteAç(m_kopya.Dosya());
        DosyaŞeması şema(vt.get());
        m_dosya.emplace(AçıkDosya{std::move(vt), std::move(şema)});
    }

    // The same words of the same file; a password that cannot be read any more is taken from who asks.
    void ParolayıAktar() {
        bool doğru = false;
        try {
            if (!m_dosya->Şema.ParolaTablosuVar()) ParolaBilgisiBozuk();
            doğru = ParolaDoğru(m_dosya->Vt.get(), m_istek.Parola);
        } catch (const Hata& hata) {
            if (hata.Yerel() != SQLITE_CORRUPT) throw;
            m_rapor += "Parola bilgisi okunamadı; verilen parola ile yeniden yazıldı.\n";
            return ParolayıYaz(m_hedef.get(), m_istek.Parola);
        }
        if (!doğru) throw Hata(Durum::YetkiYok, "Veri dosyasının parolası yanlış.");
        SqliteYürüt(m_hedef.get(), std::string(DosyaŞeması::GizliTabloSql).c_str());
        const std::string ad = Tırnakla(DosyaŞeması::GizliTablo);
        SqliteDeyimi oku(m_dosya->Vt.get(), "SELECT Tuz, Tekrar, Ozet FROM " + ad);
        SqliteDeyimi yaz(m_hedef.get(), "INSERT INTO " + ad + " VALUES (?1, ?2, ?3)");
        oku.Adım();
        for (int i = 0; i < 3; ++i) yaz.BağlaDeğer(i + 1, oku.SütunDeğeri(i));
        yaz.Adım();
    }

    void TabloyuAktar(const ŞemaÖğesi& öğe) {
        SqliteYürüt(m_hedef.get(), öğe.Sql.c_str());
        const TabloTanımı* tablo = m_dosya->Şema.Bul(öğe.Ad);
        if (!tablo) return;  // only its declaration is known
        TabloKurtarma kurtarma(m_dosya->Vt.get(), m_hedef.get(), *tablo, m_sınır);
        kurtarma.Yürü();
        m_kurtarılan += kurtarma.Kurtarılan();
        const std::vector<SatırAralığı> kayıplar = kurtarma.Kayıplar();
        const bool kuşkulu = !m_sağlam && !Sağlam(m_dosya->Vt.get(), öğe.Ad);
        if (kayıplar.empty() && !kuşkulu) return;
        // A page can be missing without a sign in its table's rows; the indexes know what is not there.
        KayıpAdları adlar(m_dosya->Vt.get(), m_hedef.get(), *tablo, m_şema->Öğeler());
        for (const SatırAralığı& aralık : kayıplar) KaybıYaz(öğe.Ad, aralık, kurtarma.Sınır(), adlar.Al(aralık));
        if (adlar.Sayı() > 0)
            m_rapor +=
                öğe.Ad + ": dizinlerin bildiği " + std::to_string(adlar.Sayı()) + " satır okunamadı\n" + adlar.Hepsi();
        if (kuşkulu)
            m_rapor +=
                öğe.Ad + ": bütünlük denetiminden geçmedi; alınanların eksiksiz ve doğru olduğu doğrulanamıyor\n";
    }

    void KaybıYaz(const std::string& tablo, SatırAralığı aralık, std::int64_t sınır, const std::string& adlar) {
        const std::string ilk = tablo + ": " + std::to_string(aralık.Alt + 1);
        const std::int64_t sayı = aralık.Üst - aralık.Alt - 1;
        if (aralık.Üst == sınır)
            m_rapor += ilk + " ve sonraki satırlar okunamadı";
        else if (sayı == 1)
            m_rapor += ilk + ". satır okunamadı";
        else
            m_rapor += ilk + " - " + std::to_string(aralık.Üst - 1) + " arası satırlar okunamadı (en çok " +
                       std::to_string(sayı) + " satır)";
        m_rapor += "\n" + adlar;
    }

    void DizinleriKur() {
        for (const ŞemaÖğesi& dizin : m_şema->Öğeler()) {
            if (!dizin.Dizin()) continue;
            try {
                SqliteYürüt(m_hedef.get(), dizin.Sql.c_str());
            } catch (const Hata& hata) {
                if ((hata.Yerel() & 0xFF) != SQLITE_CONSTRAINT) throw;
                ÇiftleriÇıkar(dizin.Tablo, DizinSütunları(dizin.Sql));
                SqliteYürüt(m_hedef.get(), dizin.Sql.c_str());
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

    const Onarımİsteği& m_istek;
    OnarımKopyası m_kopya;
    std::string m_rapor;
    std::int64_t m_sınır = 0;
    std::int64_t m_kurtarılan = 0;
    bool m_sağlam = false;
    std::optional<ŞemaKurtarma> m_şema;
    std::optional<AçıkDosya> m_dosya;
    SqliteBağlantısı m_hedef;
};

void RaporuYaz(const std::string& yol, const std::string& metin) {
    if (yol.empty()) return;
    std::ofstream dosya(yol, std::ios::binary);
    dosya << metin;
    if (!dosya.flush()) throw Hata(Durum::Genel, "Rapor yazılamadı: " + yol);
}

}  // namespace

void VeriDosyasıOnar(const Onarımİsteği& istek) {
    if (!Dosya::OlağanDosyaVar(istek.Kaynak))
        throw Hata(Durum::Bağlanamadı, "Veri dosyası bulunamadı: " + istek.Kaynak);
    if (Dosya::YolVar(istek.Hedef))
        throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " + istek.Hedef);
    const std::string hedef = GerçekYol(istek.Hedef);
    if (Dosya::GünlükVar(hedef))
        throw Hata(Durum::Genel, "Yeni dosyanın adında eski bir günlük var; onu kaldırın ya da başka bir ad verin.");
    GeçiciDosya geçici(hedef);
    {
        Onarım onarım(istek, GerçekYol(istek.Kaynak), geçici.Yol());
        onarım.Yürüt();
        RaporuYaz(istek.Rapor, onarım.Rapor());
    }
    geçici.Yerleştir(Dosya::Yerleştirme::Yeni);
}

}  // namespace Motor

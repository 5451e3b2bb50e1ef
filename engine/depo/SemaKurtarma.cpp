#include "SemaKurtarma.h"

#include "DosyaSemasi.h"
#include "Hata.h"
#include "SaklananTanim.h"
#include "SayfaTarama.h"
#include "Utf8.h"
#include "Veritabani.h"

#include <algorithm>
#include <set>

namespace Motor {

namespace {

std::string Yazı(const SqliteDeyimi& deyim, int sütun) {
    const std::string_view metin = deyim.Metin(sütun);
    return metin.data() ? std::string(metin) : std::string();
}

// In one direction up to what cannot be read; false there. `son`: the last row.
bool Yürü(sqlite3* vt, const char* yön, std::int64_t sınır, std::int64_t& son, OkunanŞema& şema) {
    SqliteDeyimi oku(vt, std::string("SELECT rowid, type, name, tbl_name, rootpage, sql FROM sqlite_schema "
                                     "WHERE rowid>?1 ORDER BY rowid") +
                             yön);
    oku.Bağla(1, sınır);
    try {
        for (bool ilk = true; oku.Adım(); ilk = false) {
            const std::int64_t no = oku.TamSayı(0);
            if (!ilk && (*yön ? no >= son : no <= son)) return false;
            son = no;
            şema.Öğeler.push_back({Yazı(oku, 1), Yazı(oku, 2), Yazı(oku, 3), oku.TamSayı(4), Yazı(oku, 5)});
        }
    } catch (const Hata& hata) {
        if (hata.Yerel() != SQLITE_CORRUPT && (hata.Yerel() & 0xFF) != SQLITE_IOERR) throw;
        return false;
    }
    return true;
}

// Whether it is what the engine writes.
bool Kendininki(const ŞemaÖğesi& öğe) {
    if (öğe.Ad == DosyaŞeması::GizliTablo) return öğe.Sql == DosyaŞeması::GizliTabloSql;
    if (öğe.Dizin()) return SaklananDizinMi(öğe.Sql, öğe.Ad, öğe.Tablo);
    const std::optional<TabloTanımı> tablo = SaklananTabloyuOku(öğe.Sql);
    return öğe.Tür == "table" && tablo && tablo->Ad == öğe.Ad;
}

// Whether somebody may have put it there as it stands; otherwise it lies where something else was.
bool YabancıOlabilir(const ŞemaÖğesi& öğe) {
    return öğe.Sql.starts_with("CREATE ") &&
           (öğe.Tür == "table" || öğe.Dizin() || öğe.Tür == "view" || öğe.Tür == "trigger");
}

}  // namespace

OkunanŞema ŞemayıOku(sqlite3* vt) {
    OkunanŞema şema;
    std::int64_t son = 0;
    if (Yürü(vt, "", 0, son, şema)) return şema;
    şema.Tam = false;
    const auto baştan = static_cast<std::ptrdiff_t>(şema.Öğeler.size());
    std::int64_t ilk = 0;
    Yürü(vt, " DESC", son, ilk, şema);
    std::reverse(şema.Öğeler.begin() + baştan, şema.Öğeler.end());
    return şema;
}

ŞemaKurtarma::ŞemaKurtarma(std::string kopya, std::vector<ŞemaÖğesi> bilinenler)
    : m_kopya(std::move(kopya)), m_bilinenler(std::move(bilinenler)) {
    OkunanŞema okunan;
    {
        const SqliteBağlantısı vt = SqliteOnarmayaAç(m_kopya);
        SqliteDeyimi kimlik(vt.get(), "PRAGMA application_id");
        if (!kimlik.Adım() || kimlik.TamSayı(0) != DosyaKimliği) SqliteHatasıFırlat(SQLITE_NOTADB);
        SqliteDeyimi sürüm(vt.get(), "PRAGMA user_version");
        if (!sürüm.Adım() || sürüm.TamSayı(0) != DosyaSürümü)
            throw Hata(Durum::Bağlanamadı,
                       "Veri dosyasını programın başka bir sürümü yazmış; bu sürüm onu okuyamıyor.");
        okunan = ŞemayıOku(vt.get());
    }
    m_değişti = m_eksikOlabilir = !okunan.Tam;
    for (const ŞemaÖğesi& öğe : okunan.Öğeler) Tanı(öğe);
    KökleriDenetle();
    if (m_eksikOlabilir) EksikleriBul();
    if (m_değişti) Yaz();
}

bool ŞemaKurtarma::Var(std::string_view ad) const {
    return std::any_of(m_öğeler.begin(), m_öğeler.end(), [&](const ŞemaÖğesi& öğe) { return öğe.Ad == ad; });
}

// By its declaration or by its name. A declaration of the same length that reads otherwise is a damaged one; another
// may be older.
const ŞemaÖğesi* ŞemaKurtarma::Bilinen(const ŞemaÖğesi& okunan) const {
    for (const ŞemaÖğesi& aday : m_bilinenler)
        if (aday.Sql == okunan.Sql) return &aday;
    for (const ŞemaÖğesi& aday : m_bilinenler) {
        if (aday.Ad == okunan.Ad && (aday.Sql.size() == okunan.Sql.size() || !Kendininki(okunan))) return &aday;
    }
    return nullptr;
}

void ŞemaKurtarma::Tanı(const ŞemaÖğesi& okunan) {
    const ŞemaÖğesi* bilinen = Bilinen(okunan);
    ŞemaÖğesi öğe = bilinen ? *bilinen : okunan;
    öğe.Kök = okunan.Kök;
    const bool tanındı = okunan.Kök > 0 && (bilinen || Kendininki(okunan));
    if (!tanındı || Var(öğe.Ad)) {
        m_rapor += Utf8Geçerli(okunan.Ad) && !okunan.Ad.empty() ? okunan.Ad : std::string("(adı okunamayan öğe)");
        m_rapor += ": bu programın yazdığı bir tablo ya da dizin değil; alınmadı\n";
        m_değişti = true;
        m_eksikOlabilir |= !YabancıOlabilir(okunan) || Var(öğe.Ad);
        return;
    }
    if (öğe.Sql != okunan.Sql || öğe.Ad != okunan.Ad || öğe.Tür != okunan.Tür || öğe.Tablo != okunan.Tablo) {
        m_rapor += öğe.Ad + ": bildirimi bozulmuş; programın kendi bildirimiyle okundu\n";
        m_değişti = true;
    }
    m_öğeler.push_back(std::move(öğe));
}

// SQLite would not open a file in which one place is given twice, or lies beyond the end.
void ŞemaKurtarma::KökleriDenetle() {
    const auto sayfalar = static_cast<std::int64_t>(SayfaTarama(m_kopya).SayfaSayısı());
    std::set<std::int64_t> kökler;
    for (ŞemaÖğesi& öğe : m_öğeler) {
        if (öğe.Kök <= sayfalar && öğe.Kök > 1 && kökler.insert(öğe.Kök).second) continue;
        öğe.Kök = 0;
        m_değişti = true;
        if (öğe.Dizin() || öğe.Ad == DosyaŞeması::GizliTablo) continue;
        m_rapor += öğe.Ad + ": yeri bozulmuş; satırları okunamadı\n";
    }
}

// Tables of which the schema says nothing any more are known by their rows. What is not found was perhaps there.
void ŞemaKurtarma::EksikleriBul() {
    std::vector<const ŞemaÖğesi*> aranan;
    std::vector<TabloTanımı> tanımlar;
    for (const ŞemaÖğesi& bilinen : m_bilinenler) {
        std::optional<TabloTanımı> tanım =
            bilinen.Dizin() || Var(bilinen.Ad) ? std::nullopt : SaklananTabloyuOku(bilinen.Sql);
        if (!tanım) continue;
        aranan.push_back(&bilinen);
        tanımlar.push_back(std::move(*tanım));
    }
    std::vector<std::int64_t> dolu;
    for (const ŞemaÖğesi& öğe : m_öğeler) dolu.push_back(öğe.Kök);
    const std::vector<std::int64_t> kökler = SayfaTarama(m_kopya).KökleriBul(tanımlar, dolu);
    for (std::size_t i = 0; i < aranan.size(); ++i) {
        ŞemaÖğesi öğe = *aranan[i];
        öğe.Kök = kökler[i];
        m_rapor += öğe.Ad + (öğe.Kök > 0 ? ": dosyadaki yeri satırlarından bulundu; başka satırı da olabilir\n"
                                         : ": bulunamadı; dosyada varsa bütün satırları kayıp\n");
        m_öğeler.push_back(std::move(öğe));
    }
    for (const ŞemaÖğesi& bilinen : m_bilinenler) {
        if (!bilinen.Dizin() || !Var(bilinen.Tablo) || Var(bilinen.Ad)) continue;
        m_öğeler.push_back(bilinen);
        m_öğeler.back().Kök = 0;
    }
    m_değişti = true;
}

void ŞemaKurtarma::Yaz() {
    SayfaTarama(m_kopya).ŞemayıBoşalt();
    const SqliteBağlantısı vt = SqliteOnarmayaAç(m_kopya);
    SqliteYürüt(vt.get(), "PRAGMA journal_mode=MEMORY; BEGIN");
    SqliteDeyimi ekle(vt.get(),
                      "INSERT INTO sqlite_schema (type, name, tbl_name, rootpage, sql) VALUES (?1, ?2, ?3, ?4, ?5)");
    const auto yaz = [&ekle](const ŞemaÖğesi& öğe) {
        ekle.Bağla(1, öğe.Tür);
        ekle.Bağla(2, öğe.Ad);
        ekle.Bağla(3, öğe.Tablo);
        ekle.Bağla(4, öğe.Kök);
        ekle.Bağla(5, öğe.Sql);
        ekle.Adım();
    };
    // An index that comes before its table would be damage.
    std::set<std::string> tablolar;
    for (const ŞemaÖğesi& öğe : m_öğeler) {
        if (öğe.Dizin() || öğe.Kök == 0) continue;
        tablolar.insert(öğe.Ad);
        yaz(öğe);
    }
    for (const ŞemaÖğesi& öğe : m_öğeler)
        if (öğe.Dizin() && öğe.Kök != 0 && tablolar.contains(öğe.Tablo)) yaz(öğe);
    SqliteYürüt(vt.get(), "COMMIT");
}

}  // namespace Motor

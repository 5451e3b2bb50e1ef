#include "TabloKurtarma.h"

#include "DegerMetni.h"
#include "Hata.h"
#include "Utf8.h"

#include <algorithm>
#include <limits>

namespace Motor {

namespace {

constexpr std::int64_t EnKüçük = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t EnBüyük = std::numeric_limits<std::int64_t>::max();
constexpr int AzamiDeneme = 200'000;  // looks into what cannot be read; then the rest of it counts as lost

std::string SütunAdları(const TabloTanımı& tablo) {
    std::string adlar = "rowid";
    for (const SütunTanımı& sütun : tablo.Sütunlar) adlar += ", " + Tırnakla(sütun.Ad);
    return adlar;
}

std::string SeçimSql(const TabloTanımı& tablo, std::string_view yön) {
    return "SELECT " + SütunAdları(tablo) + " FROM " + Tırnakla(tablo.Ad) +
           " NOT INDEXED WHERE rowid>?1 AND rowid<?2 ORDER BY rowid" + std::string(yön);
}

std::string EklemeSql(const TabloTanımı& tablo) {
    std::string sql = "INSERT INTO " + Tırnakla(tablo.Ad) + " (" + SütunAdları(tablo) + ") VALUES (?1";
    for (std::size_t i = 0; i < tablo.Sütunlar.size(); ++i) sql += ", ?" + std::to_string(i + 2);
    return sql + ")";
}

bool MetinGeçerli(sqlite3_value* değer, int uzunluk) {
    const auto* baytlar = reinterpret_cast<const char*>(sqlite3_value_text(değer));
    if (!baytlar) return false;
    const std::string_view metin(baytlar, static_cast<std::size_t>(sqlite3_value_bytes(değer)));
    return Utf8Geçerli(metin) && metin.find('\0') == std::string_view::npos &&
           Utf16Uzunluğu(metin) <= static_cast<std::size_t>(uzunluk);
}

}  // namespace

bool DeğerGeçerli(const SütunTanımı& sütun, sqlite3_value* değer) {
    const int tür = sqlite3_value_type(değer);
    if (tür == SQLITE_NULL) return !sütun.BoşOlamaz;
    switch (sütun.Tür) {
        case SütunTürü::Metin:
            return tür == SQLITE_TEXT && MetinGeçerli(değer, sütun.Uzunluk);
        case SütunTürü::Ondalık:
            return tür == SQLITE_FLOAT || tür == SQLITE_INTEGER;
        case SütunTürü::Tarih:
            return tür == SQLITE_INTEGER && TarihGeçerli(sqlite3_value_int64(değer));
        case SütunTürü::Para:
        case SütunTürü::TamSayı:
            break;
    }
    return tür == SQLITE_INTEGER;
}

bool Hasar(const Hata& hata) {
    const int kod = hata.Yerel() & 0xFF;
    return kod == SQLITE_CORRUPT || kod == SQLITE_NOTADB || kod == SQLITE_IOERR;
}

TabloKurtarma::TabloKurtarma(sqlite3* kaynak, sqlite3* hedef, const TabloTanımı& tablo, std::int64_t sınır)
    : m_tablo(tablo),
      m_sınır(sınır),
      m_ileri(kaynak, SeçimSql(tablo, "")),
      m_geri(kaynak, SeçimSql(tablo, " DESC")),
      m_ekle(hedef, EklemeSql(tablo)),
      m_alınanlar(hedef, "SELECT rowid FROM " + Tırnakla(tablo.Ad) + " WHERE rowid>?1 AND rowid<?2 ORDER BY rowid") {}

bool TabloKurtarma::Geçerli(const SqliteDeyimi& deyim) const {
    for (std::size_t i = 0; i < m_tablo.Sütunlar.size(); ++i)
        if (!DeğerGeçerli(m_tablo.Sütunlar[i], deyim.SütunDeğeri(static_cast<int>(i) + 1))) return false;
    return true;
}

void TabloKurtarma::Al(SqliteDeyimi& deyim, std::int64_t no) {
    if (!Geçerli(deyim)) {
        m_kayıplar.push_back({no - 1, no + 1});
        return;
    }
    m_ekle.Bağla(1, no);
    for (std::size_t i = 0; i < m_tablo.Sütunlar.size(); ++i)
        m_ekle.BağlaDeğer(static_cast<int>(i) + 2, deyim.SütunDeğeri(static_cast<int>(i) + 1));
    m_ekle.Adım();
    ++m_kurtarılan;
}

// Numbers that do not go on in order are those of a page that does not belong there.
TabloKurtarma::Okunan TabloKurtarma::Oku(SqliteDeyimi& deyim, SatırAralığı aralık, bool geri) {
    Okunan okunan{geri ? aralık.Üst : aralık.Alt, false};
    deyim.Bağla(1, aralık.Alt);
    deyim.Bağla(2, aralık.Üst);
    for (;;) {
        try {
            if (!deyim.Adım()) break;
        } catch (const Hata& hata) {
            if (!Hasar(hata)) throw;
            return okunan;
        }
        const std::int64_t no = deyim.TamSayı(0);
        const bool sırada = geri ? no < okunan.Son && no > aralık.Alt : no > okunan.Son && no < aralık.Üst;
        if (!sırada) {
            deyim.Bırak();
            m_sırasız = true;
            return okunan;
        }
        Al(deyim, no);
        okunan.Son = no;
    }
    okunan.Tamam = true;
    return okunan;
}

// From the middle to both ends; what stays unread is to be looked into further.
void TabloKurtarma::Böl(std::vector<SatırAralığı>& bilinmeyenler, SatırAralığı aralık) {
    const std::int64_t orta = aralık.Alt + (aralık.Üst - aralık.Alt) / 2;
    const auto bırak = [&](SatırAralığı kalan) {
        if (kalan.Üst - kalan.Alt < 2) return;
        const bool tek = kalan.Üst - kalan.Alt == 2 && aralık.Üst - aralık.Alt == 2;
        (tek ? m_kayıplar : bilinmeyenler).push_back(kalan);
        if (!tek)
            std::push_heap(bilinmeyenler.begin(), bilinmeyenler.end(),
                           [](const SatırAralığı& a, const SatırAralığı& b) { return a.Üst - a.Alt < b.Üst - b.Alt; });
    };
    const Okunan ileri = Oku(m_ileri, {orta - 1, aralık.Üst}, false);
    if (!ileri.Tamam) bırak({ileri.Son, aralık.Üst});
    const Okunan geri = Oku(m_geri, {aralık.Alt, orta}, true);
    if (!geri.Tamam) bırak({aralık.Alt, geri.Son});
}

void TabloKurtarma::Yürü() {
    const Okunan baştan = Oku(m_ileri, {EnKüçük, EnBüyük}, false);
    if (baştan.Tamam) return;
    const Okunan sondan = Oku(m_geri, {baştan.Son, EnBüyük}, true);
    // What could not be passed forwards was not there backwards: a page bears the numbers of another place.
    m_sırasız |= sondan.Tamam;
    const std::int64_t alt = std::max<std::int64_t>(baştan.Son, 0);
    m_sınır = std::max(m_sınır, alt + 2);
    const SatırAralığı bilinmeyen{alt, sondan.Son == EnBüyük ? m_sınır : sondan.Son};
    Ara(bilinmeyen);
    if (m_sırasız) AlınmayanlarıEkle(bilinmeyen);
}

void TabloKurtarma::Ara(SatırAralığı bilinmeyen) {
    std::vector<SatırAralığı> bilinmeyenler{bilinmeyen};
    for (int deneme = 0; !bilinmeyenler.empty() && deneme < AzamiDeneme; ++deneme) {
        std::pop_heap(bilinmeyenler.begin(), bilinmeyenler.end(),
                      [](const SatırAralığı& a, const SatırAralığı& b) { return a.Üst - a.Alt < b.Üst - b.Alt; });
        const SatırAralığı aralık = bilinmeyenler.back();
        bilinmeyenler.pop_back();
        if (aralık.Üst - aralık.Alt > 1) Böl(bilinmeyenler, aralık);
    }
    m_kayıplar.insert(m_kayıplar.end(), bilinmeyenler.begin(), bilinmeyenler.end());
}

// Where pages lie in the wrong place nothing tells a row that is lost from a number that never was.
void TabloKurtarma::AlınmayanlarıEkle(SatırAralığı aralık) {
    m_alınanlar.Bağla(1, aralık.Alt);
    m_alınanlar.Bağla(2, aralık.Üst);
    std::int64_t önceki = aralık.Alt;
    const auto ekle = [&](std::int64_t sonraki) {
        if (sonraki - önceki > 1) m_kayıplar.push_back({önceki, sonraki});
        önceki = sonraki;
    };
    while (m_alınanlar.Adım()) ekle(m_alınanlar.TamSayı(0));
    ekle(aralık.Üst);
}

std::vector<SatırAralığı> TabloKurtarma::Kayıplar() const {
    std::vector<SatırAralığı> sıralı = m_kayıplar;
    std::sort(sıralı.begin(), sıralı.end(), [](const SatırAralığı& a, const SatırAralığı& b) { return a.Alt < b.Alt; });
    std::vector<SatırAralığı> birleşik;
    for (const SatırAralığı& aralık : sıralı) {
        if (!birleşik.empty() && aralık.Alt < birleşik.back().Üst)
            birleşik.back().Üst = std::max(birleşik.back().Üst, aralık.Üst);
        else
            birleşik.push_back(aralık);
    }
    return birleşik;
}

}  // namespace Motor

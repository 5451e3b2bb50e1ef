#include "KayipAdlari.h"

#include "Hata.h"

#include <algorithm>

namespace Motor {

KayıpAdları::KayıpAdları(sqlite3* kaynak, sqlite3* hedef, const TabloTanımı& tablo,
                         const std::vector<ŞemaÖğesi>& öğeler)
    : m_tablo(tablo), m_alındıMı(hedef, "SELECT 1 FROM " + Tırnakla(tablo.Ad) + " WHERE rowid=?1") {
    std::vector<const ŞemaÖğesi*> dizinler;
    for (const ŞemaÖğesi& öğe : öğeler)
        if (öğe.Dizin() && öğe.Kök > 0 && öğe.Tablo == tablo.Ad) dizinler.push_back(&öğe);
    // The one that holds the most of a row comes first.
    std::stable_sort(dizinler.begin(), dizinler.end(),
                     [](const ŞemaÖğesi* a, const ŞemaÖğesi* b) { return a->Sql.size() > b->Sql.size(); });
    for (const ŞemaÖğesi* dizin : dizinler) DizindenOku(kaynak, *dizin);
}

void KayıpAdları::DizindenOku(sqlite3* kaynak, const ŞemaÖğesi& dizin) {
    const std::string sütunlar = DizinSütunları(dizin.Sql);
    m_sütunlar.clear();
    std::string ters;
    for (std::size_t yer = 0; yer < sütunlar.size();) {
        const std::size_t son = std::min(sütunlar.find(", ", yer), sütunlar.size());
        const std::string ad = sütunlar.substr(yer, son - yer);
        m_sütunlar.push_back(&m_tablo.Sütun(ad.substr(1, ad.size() - 2)));
        ters += (ters.empty() ? "" : ", ") + ad + " DESC";
        yer = son + 2;
    }
    const std::string sql = "SELECT rowid, " + sütunlar + " FROM " + Tırnakla(m_tablo.Ad) + " INDEXED BY " +
                            Tırnakla(dizin.Ad) + " ORDER BY ";
    if (!Oku(kaynak, sql + sütunlar)) Oku(kaynak, sql + ters);
}

// Up to what cannot be read; false there.
bool KayıpAdları::Oku(sqlite3* kaynak, const std::string& sql) {
    try {
        SqliteDeyimi oku(kaynak, sql);
        while (oku.Adım()) Ekle(oku);
    } catch (const Hata& hata) {
        if (!Hasar(hata)) throw;
        return false;
    }
    return true;
}

void KayıpAdları::Ekle(const SqliteDeyimi& deyim) {
    const std::int64_t no = deyim.TamSayı(0);
    if (no < 1 || m_kayıplar.contains(no)) return;
    std::string adı;
    for (std::size_t i = 0; i < m_sütunlar.size(); ++i) {
        const int sütun = static_cast<int>(i) + 1;
        if (!DeğerGeçerli(*m_sütunlar[i], deyim.SütunDeğeri(sütun))) return;  // not of this table
        adı.append(i > 0 ? " / " : "").append(deyim.Metin(sütun));
    }
    m_alındıMı.Bağla(1, no);
    const bool alındı = m_alındıMı.Adım();
    m_alındıMı.Bırak();
    if (!alındı) m_kayıplar.emplace(no, std::move(adı));
}

std::string KayıpAdları::Satır(std::int64_t no, const std::string& adı) const {
    return "  " + m_tablo.Ad + " " + std::to_string(no) + ": " + adı + "\n";
}

std::string KayıpAdları::Al(SatırAralığı aralık) {
    std::string satırlar;
    auto sıradaki = m_kayıplar.upper_bound(aralık.Alt);
    while (sıradaki != m_kayıplar.end() && sıradaki->first < aralık.Üst) {
        satırlar += Satır(sıradaki->first, sıradaki->second);
        sıradaki = m_kayıplar.erase(sıradaki);
    }
    return satırlar;
}

std::string KayıpAdları::Hepsi() const {
    std::string satırlar;
    for (const auto& [no, adı] : m_kayıplar) satırlar += Satır(no, adı);
    return satırlar;
}

std::string DizinSütunları(std::string_view sql) {
    std::string sütunlar(sql.substr(sql.rfind('(') + 1));
    sütunlar.resize(sütunlar.rfind(')'));
    for (std::size_t yer; (yer = sütunlar.find(" DESC")) != std::string::npos;) sütunlar.erase(yer, 5);
    return sütunlar;
}

}  // namespace Motor

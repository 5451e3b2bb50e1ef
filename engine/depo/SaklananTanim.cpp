#include "SaklananTanim.h"

#include "Sozcukleyici.h"

#include <algorithm>
#include <charconv>

namespace Motor {

namespace {

bool RakamMı(char harf) {
    return harf >= '0' && harf <= '9';
}

// Takes one piece after the other off the front; a piece that is not there leaves the text as it is.
class Okuyucu {
  public:
    explicit Okuyucu(std::string_view metin) : m_kalan(metin) {}

    bool Bitti() const { return m_kalan.empty(); }

    bool Al(std::string_view parça) {
        if (!m_kalan.starts_with(parça)) return false;
        m_kalan.remove_prefix(parça.size());
        return true;
    }

    // A quoted name, which consists of what a statement can spell.
    bool AdAl(std::string& ad) {
        const std::size_t son = m_kalan.find('"', 1);
        if (!m_kalan.starts_with('"') || son == std::string_view::npos || son == 1) return false;
        ad = m_kalan.substr(1, son - 1);
        m_kalan.remove_prefix(son + 1);
        return std::all_of(ad.begin(), ad.end(), Sözcükleyici::AdHarfi);
    }

    bool SayıAl(int& sayı) {
        const auto sonuç = std::from_chars(m_kalan.data(), m_kalan.data() + m_kalan.size(), sayı);
        if (sonuç.ec != std::errc()) return false;
        m_kalan.remove_prefix(static_cast<std::size_t>(sonuç.ptr - m_kalan.data()));
        return true;
    }

    bool RakamlarıAl() {
        const auto son = std::find_if_not(m_kalan.begin(), m_kalan.end(), RakamMı);
        const bool var = son != m_kalan.begin();
        m_kalan.remove_prefix(static_cast<std::size_t>(son - m_kalan.begin()));
        return var;
    }

  private:
    std::string_view m_kalan;
};

bool TürüAl(Okuyucu& metin, SütunTanımı& sütun) {
    if (metin.Al(" TEXT("))
        return metin.SayıAl(sütun.Uzunluk) && sütun.Uzunluk >= 1 && sütun.Uzunluk <= 255 &&
               metin.Al(") COLLATE TURKCE");
    if (metin.Al(" CURRENCY"))
        sütun.Tür = SütunTürü::Para;
    else if (metin.Al(" DOUBLE"))
        sütun.Tür = SütunTürü::Ondalık;
    else if (metin.Al(" DATETIME"))
        sütun.Tür = SütunTürü::Tarih;
    else
        return false;
    return true;
}

bool VarsayılanıAl(Okuyucu& metin) {
    if (!metin.Al(" DEFAULT (")) return true;
    metin.Al("-");
    const bool tam = metin.RakamlarıAl();
    const bool kesir = metin.Al(".") && metin.RakamlarıAl();
    return (tam || kesir) && metin.Al(")");
}

bool SütunAl(Okuyucu& metin, SütunTanımı& sütun) {
    if (!metin.AdAl(sütun.Ad) || !TürüAl(metin, sütun) || !VarsayılanıAl(metin)) return false;
    sütun.BoşOlamaz = metin.Al(" NOT NULL");
    return true;
}

}  // namespace

std::optional<TabloTanımı> SaklananTabloyuOku(std::string_view sql) {
    Okuyucu metin(sql);
    TabloTanımı tablo;
    if (!metin.Al("CREATE TABLE ") || !metin.AdAl(tablo.Ad) || !metin.Al(" (")) return std::nullopt;
    do
        if (!SütunAl(metin, tablo.Sütunlar.emplace_back())) return std::nullopt;
    while (metin.Al(", "));
    if (!metin.Al(")") || !metin.Bitti()) return std::nullopt;
    return tablo;
}

bool SaklananDizinMi(std::string_view sql, std::string_view dizin, std::string_view tablo) {
    Okuyucu metin(sql);
    std::string ad;
    if (!metin.Al("CREATE ")) return false;
    metin.Al("UNIQUE ");
    if (!metin.Al("INDEX ") || !metin.AdAl(ad) || ad != dizin) return false;
    if (!metin.Al(" ON ") || !metin.AdAl(ad) || ad != tablo || !metin.Al(" (")) return false;
    do {
        if (!metin.AdAl(ad)) return false;
        metin.Al(" DESC");
    } while (metin.Al(", "));
    return metin.Al(")") && metin.Bitti();
}

}  // namespace Motor

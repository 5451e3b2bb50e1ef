#include "AdDizini.h"

#include <cstring>

#include "TurkceSira.h"

namespace {

constexpr std::size_t İLK_BOY = 64;

std::uint32_t ÖzetBul(std::string_view grup, std::string_view ad) {
    return static_cast<std::uint32_t>(Türkçe::Özet(ad, grup.empty() ? 0 : Türkçe::Özet(grup)));
}

}  // namespace

AdDizini::Kayıt AdDizini::KaydıAl(std::uint32_t yer) const {
    Kayıt kayıt;
    std::memcpy(&kayıt, m_kayıtlar.data() + yer, sizeof kayıt);
    return kayıt;
}

bool AdDizini::Aynı(std::uint32_t kayıt, const Aranan& aranan) const {
    const auto eşit = [](std::string_view a, std::string_view b) { return a == b || Türkçe::Karşılaştır(a, b) == 0; };
    const Kayıt bulunan = KaydıAl(kayıt);
    const std::string_view adlar = std::string_view(m_kayıtlar).substr(kayıt + sizeof bulunan);
    return eşit(adlar.substr(bulunan.GrupBoyu, bulunan.AdBoyu), aranan.Ad) &&
           eşit(adlar.substr(0, bulunan.GrupBoyu), aranan.Grup);
}

// The place of the names, or the free one where they belong.
std::size_t AdDizini::Bak(const Aranan& aranan) const {
    const std::size_t maske = m_yerler.size() - 1;
    std::size_t yer = aranan.Özet & maske;
    while (m_yerler[yer].Kayıt != YOK && (m_yerler[yer].Özet != aranan.Özet || !Aynı(m_yerler[yer].Kayıt, aranan)))
        yer = (yer + 1) & maske;
    return yer;
}

AdDizini::Aranan AdDizini::Ara(std::string_view grup, std::string_view ad) const {
    const Aranan aranan{ÖzetBul(grup, ad), grup, ad};
    if (!m_yerler.empty()) __builtin_prefetch(&m_yerler[aranan.Özet & (m_yerler.size() - 1)]);
    return aranan;
}

std::uint32_t AdDizini::Bul(const Aranan& aranan) const {
    if (m_yerler.empty()) return YOK;
    const Yer& yer = m_yerler[Bak(aranan)];
    return yer.Kayıt == YOK ? YOK : KaydıAl(yer.Kayıt).Sayı;
}

std::uint32_t AdDizini::BulYaDaEkle(std::string_view grup, std::string_view ad, std::uint32_t yeni) {
    if (2 * (m_dolu + 1) > m_yerler.size()) Büyü();
    const Aranan aranan = Ara(grup, ad);
    Yer& yer = m_yerler[Bak(aranan)];
    if (yer.Kayıt != YOK) return KaydıAl(yer.Kayıt).Sayı;
    yer = {aranan.Özet, static_cast<std::uint32_t>(m_kayıtlar.size())};
    const Kayıt kayıt{yeni, static_cast<std::uint32_t>(grup.size()), static_cast<std::uint32_t>(ad.size())};
    m_kayıtlar.append(reinterpret_cast<const char*>(&kayıt), sizeof kayıt).append(grup).append(ad);
    ++m_dolu;
    return yeni;
}

void AdDizini::Büyü() {
    std::vector<Yer> eskiler(m_yerler.empty() ? İLK_BOY : 2 * m_yerler.size());
    eskiler.swap(m_yerler);
    const std::size_t maske = m_yerler.size() - 1;
    for (const Yer& eski : eskiler) {
        if (eski.Kayıt == YOK) continue;
        std::size_t yer = eski.Özet & maske;
        while (m_yerler[yer].Kayıt != YOK) yer = (yer + 1) & maske;
        m_yerler[yer] = eski;
    }
}

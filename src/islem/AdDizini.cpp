#include "AdDizini.h"

#include "TurkceSira.h"

namespace {

constexpr std::size_t İLK_BOY = 64;

std::uint64_t ÖzetBul(std::string_view grup, std::string_view ad) {
    return Türkçe::Özet(ad, Türkçe::Özet(grup));
}

}  // namespace

bool AdDizini::Aynı(const Yer& yer, std::string_view grup, std::string_view ad) const {
    const std::string_view adlar(m_adlar);
    const auto eşit = [](std::string_view a, std::string_view b) { return a == b || Türkçe::Karşılaştır(a, b) == 0; };
    return eşit(adlar.substr(yer.Baş + yer.GrupBoyu, yer.AdBoyu), ad) &&
           eşit(adlar.substr(yer.Baş, yer.GrupBoyu), grup);
}

// The place of the names, or the free one where they belong.
std::size_t AdDizini::Bak(std::uint64_t özet, std::string_view grup, std::string_view ad) const {
    const std::size_t maske = m_yerler.size() - 1;
    std::size_t yer = özet & maske;
    while (m_yerler[yer].Dolu && (m_yerler[yer].Özet != özet || !Aynı(m_yerler[yer], grup, ad)))
        yer = (yer + 1) & maske;
    return yer;
}

std::uint32_t AdDizini::Bul(std::string_view grup, std::string_view ad) const {
    if (m_yerler.empty()) return YOK;
    return m_yerler[Bak(ÖzetBul(grup, ad), grup, ad)].Sayı;
}

std::uint32_t AdDizini::BulYaDaEkle(std::string_view grup, std::string_view ad, std::uint32_t yeni) {
    if (2 * (m_dolu + 1) > m_yerler.size()) Büyü();
    const std::uint64_t özet = ÖzetBul(grup, ad);
    Yer& yer = m_yerler[Bak(özet, grup, ad)];
    if (yer.Dolu) return yer.Sayı;
    yer = {özet,
           yeni,
           static_cast<std::uint32_t>(m_adlar.size()),
           static_cast<std::uint32_t>(grup.size()),
           static_cast<std::uint32_t>(ad.size()),
           true};
    m_adlar.append(grup).append(ad);
    ++m_dolu;
    return yeni;
}

void AdDizini::Büyü() {
    std::vector<Yer> eskiler(m_yerler.empty() ? İLK_BOY : 2 * m_yerler.size());
    eskiler.swap(m_yerler);
    const std::size_t maske = m_yerler.size() - 1;
    for (const Yer& eski : eskiler) {
        if (!eski.Dolu) continue;
        std::size_t yer = eski.Özet & maske;
        while (m_yerler[yer].Dolu) yer = (yer + 1) & maske;
        m_yerler[yer] = eski;
    }
}

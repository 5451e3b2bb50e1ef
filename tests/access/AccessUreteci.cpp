#include "AccessUreteci.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

constexpr std::size_t SAYFA = 4096;
constexpr std::size_t SÜTUN_BOYU = 25;
constexpr std::size_t SATIR_SAYISI_YERİ = 12;

std::string Utf16(std::string_view ascii) {
    std::string metin;
    for (const char harf : ascii) metin.append(1, harf).append(1, '\0');
    return metin;
}

}  // namespace

AccessÜreteci::AccessÜreteci() {
    std::ifstream dosya(ORNEK_ACCESS, std::ios::binary);
    m_dosya.assign(std::istreambuf_iterator<char>(dosya), {});
    if (m_dosya.size() < SAYFA) throw std::runtime_error("no sample of Access");
}

int AccessÜreteci::Oku16(std::size_t yer) const {
    return static_cast<unsigned char>(m_dosya.at(yer)) | static_cast<unsigned char>(m_dosya.at(yer + 1)) << 8;
}

std::uint32_t AccessÜreteci::Oku32(std::size_t yer) const {
    return static_cast<std::uint32_t>(Oku16(yer)) | static_cast<std::uint32_t>(Oku16(yer + 2)) << 16;
}

void AccessÜreteci::Yaz16(std::size_t yer, std::size_t sayı) {
    m_dosya.at(yer) = static_cast<char>(sayı);
    m_dosya.at(yer + 1) = static_cast<char>(sayı >> 8);
}

void AccessÜreteci::Yaz32(std::size_t yer, std::size_t sayı) {
    Yaz16(yer, sayı);
    Yaz16(yer + 2, sayı >> 16);
}

// The three tables are told apart by a column that only one has.
AccessÜreteci::Tablo AccessÜreteci::TabloBul(const std::string& ad) const {
    const std::string belirti = Utf16(ad == "UrunTablosu"      ? "KarYuzdesi"
                                      : ad == "MalzemeTablosu" ? "MalzemeFiyati"
                                                               : "KullanimTarihi");
    for (std::size_t sayfa = 0; sayfa < m_dosya.size(); sayfa += SAYFA) {
        if (m_dosya[sayfa] != 2 || m_dosya.substr(sayfa, SAYFA).find(belirti) == std::string::npos) continue;
        Tablo tablo{sayfa, {}};
        const int sayı = Oku16(sayfa + 45);
        std::size_t yer = sayfa + 63 + 12 * Oku32(sayfa + 51);
        std::size_t adYeri = yer + SÜTUN_BOYU * static_cast<std::size_t>(sayı);
        for (int i = 0; i < sayı; ++i, yer += SÜTUN_BOYU) {
            const auto boy = static_cast<std::size_t>(Oku16(adYeri));
            std::string sütunAdı;
            for (std::size_t harf = 0; harf < boy; harf += 2) sütunAdı += m_dosya.at(adYeri + 2 + harf);
            adYeri += 2 + boy;
            tablo.Sütunlar.push_back(
                {sütunAdı, yer, Oku16(yer + 5), (m_dosya.at(yer + 15) & 1) != 0, Oku16(yer + 7), Oku16(yer + 21)});
        }
        std::sort(tablo.Sütunlar.begin(), tablo.Sütunlar.end(),
                  [](const auto& a, const auto& b) { return a.No < b.No; });
        return tablo;
    }
    throw std::runtime_error("no table " + ad);
}

AccessÜreteci::Sütun AccessÜreteci::SütunBul(const std::string& tablo, const std::string& sütun) const {
    for (const Sütun& aday : TabloBul(tablo).Sütunlar)
        if (aday.Ad == sütun) return aday;
    throw std::runtime_error("no column " + sütun);
}

void AccessÜreteci::TürVer(const std::string& tablo, const std::string& sütun, int tür, int boy, int ölçek) {
    const std::size_t yer = SütunBul(tablo, sütun).Yer;
    m_dosya[yer] = static_cast<char>(tür);
    m_dosya[yer + 12] = static_cast<char>(ölçek);
    Yaz16(yer + 23, static_cast<std::size_t>(boy));
}

void AccessÜreteci::DeğişkenYap(const std::string& tablo, const std::string& sütun, int tür) {
    const Sütun bulunan = SütunBul(tablo, sütun);
    m_dosya[bulunan.Yer] = static_cast<char>(tür);
    if (!bulunan.Sabit) return;
    const std::size_t sayfa = TabloBul(tablo).Sayfa;
    m_dosya[bulunan.Yer + 15] = static_cast<char>(m_dosya[bulunan.Yer + 15] & ~1);
    Yaz16(bulunan.Yer + 7, static_cast<std::size_t>(Oku16(sayfa + 43)));
    Yaz16(sayfa + 43, static_cast<std::size_t>(Oku16(sayfa + 43)) + 1);
}

void AccessÜreteci::AdVer(const std::string& ad, const std::string& yeni) {
    const std::string eski = Utf16(ad);
    for (std::size_t yer = m_dosya.find(eski); yer != std::string::npos; yer = m_dosya.find(eski, yer + 1))
        m_dosya.replace(yer, eski.size(), Utf16(yeni));
}

// Number of columns, fixed values, variable values, where they begin (the last first), their number, who is not NULL.
std::string AccessÜreteci::SatırBaytları(const Tablo& tablo, const Satır& satır) {
    std::string baytlar = Ham(static_cast<std::uint16_t>(tablo.Sütunlar.size()));
    std::string maske((tablo.Sütunlar.size() + 7) / 8, '\0');
    std::vector<std::size_t> değişkenler;
    for (std::size_t i = 0; i < satır.size(); ++i) {
        const Sütun& sütun = tablo.Sütunlar[i];
        if (satır[i]) maske[i / 8] = static_cast<char>(maske[i / 8] | 1 << i % 8);
        if (!sütun.Sabit) {
            değişkenler.resize(std::max(değişkenler.size(), static_cast<std::size_t>(sütun.DeğişkenNo) + 1));
            değişkenler[static_cast<std::size_t>(sütun.DeğişkenNo)] = i;
            continue;
        }
        const std::string değer = satır[i].value_or(std::string(8, '\0'));
        const std::size_t yer = 2 + static_cast<std::size_t>(sütun.SabitYeri);
        baytlar.resize(std::max(baytlar.size(), yer + std::max<std::size_t>(değer.size(), 8)));
        baytlar.replace(yer, değer.size(), değer);
    }
    std::string yerler;
    for (const std::size_t i : değişkenler) {
        yerler.insert(0, Ham(static_cast<std::uint16_t>(baytlar.size())));
        baytlar += satır[i].value_or("");
    }
    const std::string son = Ham(static_cast<std::uint16_t>(baytlar.size()));
    return baytlar + son + yerler + Ham(static_cast<std::uint16_t>(değişkenler.size())) + maske;
}

std::size_t AccessÜreteci::SayfaEkle(int tür, std::size_t sahip) {
    const std::size_t sayfa = m_dosya.size();
    m_dosya.resize(sayfa + SAYFA);
    m_dosya[sayfa] = static_cast<char>(tür);
    m_dosya[sayfa + 1] = 1;
    if (sahip != 0) Yaz32(sayfa + 4, sahip);
    return sayfa;
}

void AccessÜreteci::SatırlarıKoy(const std::string& ad, const std::function<std::optional<Satır>()>& sıradaki) {
    const Tablo tablo = TabloBul(ad);
    std::vector<std::size_t> sayfalar;
    std::size_t satırlar = 0;
    std::size_t sayfadaki = 0;
    std::size_t dolu = SAYFA;
    while (const std::optional<Satır> satır = sıradaki()) {
        const std::string baytlar = SatırBaytları(tablo, *satır);
        constexpr std::size_t baş = SATIR_SAYISI_YERİ + 2;
        if (sayfalar.empty() || dolu < baş + (sayfadaki + 1) * 2 + baytlar.size()) {
            sayfalar.push_back(SayfaEkle(1, tablo.Sayfa / SAYFA));
            sayfadaki = 0;
            dolu = SAYFA;
        }
        dolu -= baytlar.size();
        m_dosya.replace(sayfalar.back() + dolu, baytlar.size(), baytlar);
        Yaz16(sayfalar.back() + baş + sayfadaki * 2, dolu);
        Yaz16(sayfalar.back() + SATIR_SAYISI_YERİ, ++sayfadaki);
        Yaz16(sayfalar.back() + 2, dolu - baş - sayfadaki * 2);
        ++satırlar;
    }
    Yaz32(tablo.Sayfa + 16, satırlar);

    // The map of the table's pages: pages of bits, and which pages these are.
    constexpr std::size_t bit = (SAYFA - 4) * 8;
    const std::uint32_t harita = Oku32(tablo.Sayfa + 55);
    const std::size_t haritaSayfası = (harita >> 8) * SAYFA;
    const std::size_t sıra = harita & 0xFF;
    const auto yer = haritaSayfası + static_cast<std::size_t>(Oku16(haritaSayfası + 14 + sıra * 2) & 0x1FFF);
    const std::size_t sonu =
        sıra == 0 ? haritaSayfası + SAYFA
                  : haritaSayfası + static_cast<std::size_t>(Oku16(haritaSayfası + 12 + sıra * 2) & 0x1FFF);
    std::fill(m_dosya.begin() + static_cast<std::ptrdiff_t>(yer), m_dosya.begin() + static_cast<std::ptrdiff_t>(sonu),
              '\0');
    m_dosya[yer] = 1;
    for (const std::size_t sayfa : sayfalar) {
        const std::size_t no = sayfa / SAYFA;
        const std::size_t gösterge = yer + 1 + no / bit * 4;
        if (gösterge + 4 > sonu) throw std::runtime_error("too many pages");
        if (Oku32(gösterge) == 0) {
            const std::size_t yeni = SayfaEkle(5, 0);
            Yaz32(gösterge, yeni / SAYFA);
        }
        char& bayt = m_dosya[Oku32(gösterge) * SAYFA + 4 + no % bit / 8];
        bayt = static_cast<char>(bayt | 1 << no % 8);
    }
}

void AccessÜreteci::SatırlarıKoy(const std::string& tablo, const std::vector<Satır>& satırlar) {
    std::size_t sıra = 0;
    SatırlarıKoy(tablo, [&]() -> std::optional<Satır> {
        if (sıra == satırlar.size()) return std::nullopt;
        return satırlar[sıra++];
    });
}

void AccessÜreteci::Yaz(const std::string& yol) const {
    std::ofstream(yol, std::ios::binary) << m_dosya;
}

std::string AccessÜreteci::Metin(std::u16string_view metin) {
    return {reinterpret_cast<const char*>(metin.data()), metin.size() * 2};
}

std::string AccessÜreteci::SıkışıkMetin(std::string_view latin) {
    return "\xFF\xFE" + std::string(latin);
}

std::string AccessÜreteci::UzunMetin(std::u16string_view metin) {
    const std::string baytlar = Metin(metin);
    return Ham(static_cast<std::uint32_t>(baytlar.size() | 0x80000000U)) + std::string(8, '\0') + baytlar;
}

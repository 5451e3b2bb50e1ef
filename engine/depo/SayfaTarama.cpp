#include "SayfaTarama.h"

#include "DegerMetni.h"
#include "Hata.h"
#include "Utf8.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace Motor {

namespace {

// The file format's numbers (sqlite.org/fileformat2.html).
constexpr std::size_t DosyaBaşı = 100;
constexpr char TabloDüğümü = 0x05;
constexpr char TabloYaprağı = 0x0D;
constexpr std::size_t YaprakBaşı = 8;
constexpr std::size_t DüğümBaşı = 12;

std::uint64_t Sayı(std::string_view baytlar, std::size_t yer, std::size_t boy) {
    std::uint64_t sayı = 0;
    for (std::size_t i = 0; i < boy; ++i) sayı = sayı << 8 | static_cast<unsigned char>(baytlar[yer + i]);
    return sayı;
}

// Takes numbers of one to nine bytes off the front; behind the end they are 0.
struct Akış {
    std::string_view Kalan;
    std::uint64_t Al() {
        std::uint64_t sayı = 0;
        for (int i = 0; i < 9 && !Kalan.empty(); ++i) {
            const auto bayt = static_cast<unsigned char>(Kalan.front());
            Kalan.remove_prefix(1);
            if (i == 8) return sayı << 8 | bayt;
            sayı = sayı << 7 | (bayt & 0x7F);
            if (bayt < 0x80) break;
        }
        return sayı;
    }
};

// Whether a value of this kind, of which the bytes lie at the front, could stand in the column.
bool DeğerUyuyor(const SütunTanımı& sütun, std::uint64_t tür, std::string_view baytlar) {
    constexpr std::uint64_t ondalık = 7;
    constexpr std::uint64_t ilkMetin = 13;
    const bool tamSayı = (tür >= 1 && tür <= 6) || tür == 8 || tür == 9;
    if (tür == 0) return !sütun.BoşOlamaz;
    if (sütun.Tür == SütunTürü::Metin) {
        if (tür < ilkMetin || tür % 2 == 0) return false;
        const std::string_view metin = baytlar.substr(0, (tür - ilkMetin) / 2);
        return metin.size() < (tür - ilkMetin) / 2 ||  // goes on in another page
               (Utf8Geçerli(metin) && Utf16Uzunluğu(metin) <= static_cast<std::size_t>(sütun.Uzunluk));
    }
    if (sütun.Tür == SütunTürü::Ondalık) return tamSayı || tür == ondalık;
    if (sütun.Tür != SütunTürü::Tarih) return tamSayı;
    return tür <= 4 && baytlar.size() >= tür && TarihGeçerli(static_cast<std::int64_t>(Sayı(baytlar, 0, tür)));
}

std::size_t DeğerBoyu(std::uint64_t tür) {
    constexpr std::size_t boylar[] = {0, 1, 2, 3, 4, 6, 8, 8, 0, 0, 0, 0};
    return tür < std::size(boylar) ? boylar[tür] : (tür - 12) / 2;
}

bool SatırUyuyor(std::string_view hücre, const TabloTanımı& tablo) {
    Akış akış{hücre};
    akış.Al();  // its size
    akış.Al();  // its number
    const std::string_view kayıt = akış.Kalan;
    const std::uint64_t başBoyu = akış.Al();
    if (başBoyu > kayıt.size()) return false;
    std::string_view değerler = kayıt.substr(başBoyu);
    akış.Kalan = kayıt.substr(0, başBoyu).substr(std::min<std::size_t>(kayıt.size() - akış.Kalan.size(), başBoyu));
    for (const SütunTanımı& sütun : tablo.Sütunlar) {
        if (akış.Kalan.empty()) return false;
        const std::uint64_t tür = akış.Al();
        if (!DeğerUyuyor(sütun, tür, değerler)) return false;
        değerler.remove_prefix(std::min(DeğerBoyu(tür), değerler.size()));
    }
    return akış.Kalan.empty();
}

}  // namespace

SayfaTarama::SayfaTarama(const std::string& yol) : m_dosya(yol, std::ios::binary | std::ios::in | std::ios::out) {
    constexpr std::size_t boyYeri = 16;
    std::string baş(DosyaBaşı, '\0');
    if (!m_dosya.read(baş.data(), DosyaBaşı)) SqliteHatasıFırlat(SQLITE_NOTADB);
    m_boy = static_cast<std::uint32_t>(Sayı(baş, boyYeri, 2));
    if (m_boy == 1) m_boy = 65536;
    if (m_boy < 512) SqliteHatasıFırlat(SQLITE_NOTADB);
    m_sayı = static_cast<std::uint32_t>(std::filesystem::file_size(yol) / m_boy);
}

std::string SayfaTarama::Oku(std::uint32_t sayfa) {
    std::string içerik(m_boy, '\0');
    m_dosya.clear();
    m_dosya.seekg(static_cast<std::streamoff>(sayfa - 1) * m_boy);
    if (!m_dosya.read(içerik.data(), m_boy)) içerik.assign(m_boy, '\0');
    return içerik;
}

std::vector<std::uint32_t> SayfaTarama::Çocuklar(const std::string& sayfa) const {
    std::vector<std::uint32_t> çocuklar;
    if (sayfa[0] != TabloDüğümü) return çocuklar;
    const auto ekle = [&](std::size_t yer) {
        if (yer + 4 > sayfa.size()) return;
        const auto çocuk = static_cast<std::uint32_t>(Sayı(sayfa, yer, 4));
        if (çocuk > 1 && çocuk <= m_sayı) çocuklar.push_back(çocuk);
    };
    const std::size_t hücreler = Sayı(sayfa, 3, 2);
    for (std::size_t i = 0; i < hücreler && DüğümBaşı + 2 * i + 2 <= sayfa.size(); ++i)
        ekle(Sayı(sayfa, DüğümBaşı + 2 * i, 2));
    ekle(8);
    return çocuklar;
}

// The first leaf below it that has rows; empty: there is none.
std::string SayfaTarama::İlkYaprak(std::uint32_t kök) {
    std::set<std::uint32_t> görülen;
    std::vector<std::uint32_t> sırada{kök};
    while (!sırada.empty()) {
        const std::uint32_t no = sırada.back();
        sırada.pop_back();
        if (!görülen.insert(no).second) continue;
        std::string sayfa = Oku(no);
        if (sayfa[0] == TabloYaprağı && Sayı(sayfa, 3, 2) > 0) return sayfa;
        const std::vector<std::uint32_t> çocuklar = Çocuklar(sayfa);
        sırada.insert(sırada.end(), çocuklar.rbegin(), çocuklar.rend());
    }
    return {};
}

std::size_t SayfaTarama::AltSayfalar(std::uint32_t kök) {
    std::set<std::uint32_t> görülen;
    std::vector<std::uint32_t> sırada{kök};
    while (!sırada.empty()) {
        const std::uint32_t no = sırada.back();
        sırada.pop_back();
        if (!görülen.insert(no).second) continue;
        const std::vector<std::uint32_t> çocuklar = Çocuklar(Oku(no));
        sırada.insert(sırada.end(), çocuklar.begin(), çocuklar.end());
    }
    return görülen.size();
}

// Every row of the leaf.
bool SayfaTarama::Uyuyor(const std::string& yaprak, const TabloTanımı& tablo) const {
    const std::size_t hücreler = Sayı(yaprak, 3, 2);
    for (std::size_t i = 0; i < hücreler; ++i) {
        if (YaprakBaşı + 2 * i + 2 > yaprak.size()) return false;
        const std::size_t yer = Sayı(yaprak, YaprakBaşı + 2 * i, 2);
        if (yer >= yaprak.size() || !SatırUyuyor(std::string_view(yaprak).substr(yer), tablo)) return false;
    }
    return true;
}

std::vector<std::uint32_t> SayfaTarama::Ağaçlar(const std::vector<std::int64_t>& dolu) {
    std::vector<bool> altta(m_sayı + 1);
    std::vector<std::uint32_t> ağaçlar;
    for (std::uint32_t no = 2; no <= m_sayı; ++no) {
        const std::string sayfa = Oku(no);
        for (const std::uint32_t çocuk : Çocuklar(sayfa)) altta[çocuk] = true;
        const bool ağaç = sayfa[0] == TabloDüğümü || sayfa[0] == TabloYaprağı;
        if (ağaç && std::find(dolu.begin(), dolu.end(), no) == dolu.end()) ağaçlar.push_back(no);
    }
    std::erase_if(ağaçlar, [&altta](std::uint32_t no) { return altta[no]; });
    return ağaçlar;
}

std::vector<std::int64_t> SayfaTarama::KökleriBul(const std::vector<TabloTanımı>& tablolar,
                                                  const std::vector<std::int64_t>& dolu) {
    // The more a tree holds, the sooner it is a table's and no piece that is left of one.
    struct Aday {
        std::int64_t Kök;
        std::size_t Boy;
        std::vector<std::size_t> Uyanlar;
    };
    std::vector<Aday> adaylar;
    for (const std::uint32_t no : Ağaçlar(dolu)) {
        const std::string yaprak = İlkYaprak(no);
        if (yaprak.empty()) continue;
        Aday aday{no, AltSayfalar(no), {}};
        for (std::size_t i = 0; i < tablolar.size(); ++i)
            if (Uyuyor(yaprak, tablolar[i])) aday.Uyanlar.push_back(i);
        adaylar.push_back(std::move(aday));
    }
    std::stable_sort(adaylar.begin(), adaylar.end(), [](const Aday& a, const Aday& b) { return a.Boy > b.Boy; });
    std::vector<std::int64_t> kökler(tablolar.size());
    // Those that suit one table alone take it away from the others.
    for (bool bulundu = true; bulundu;) {
        bulundu = false;
        for (Aday& aday : adaylar) {
            std::erase_if(aday.Uyanlar, [&](std::size_t i) { return kökler[i] != 0; });
            if (aday.Uyanlar.size() != 1) continue;
            kökler[aday.Uyanlar.front()] = aday.Kök;
            bulundu = true;
        }
    }
    return kökler;
}

void SayfaTarama::ŞemayıBoşalt() {
    constexpr std::size_t boşSayfalarYeri = 32;
    constexpr std::size_t değişmeYeri = 24;
    constexpr std::size_t sayfaSayısıYeri = 28;
    constexpr std::size_t geçerlilikYeri = 92;
    std::string sayfa = Oku(1);
    const auto yaz = [&](std::size_t yer, std::uint32_t sayı) {
        for (std::size_t i = 0; i < 4; ++i) sayfa[yer + i] = static_cast<char>(sayı >> (24 - 8 * i));
    };
    yaz(boşSayfalarYeri, 0);
    yaz(boşSayfalarYeri + 4, 0);
    yaz(sayfaSayısıYeri, m_sayı);
    sayfa.replace(geçerlilikYeri, 4, sayfa.substr(değişmeYeri, 4));
    std::fill(sayfa.begin() + DosyaBaşı, sayfa.end(), '\0');
    sayfa[DosyaBaşı] = TabloYaprağı;
    sayfa[DosyaBaşı + 5] = static_cast<char>(m_boy >> 8 & 0xFF);  // no row lies before the page's end
    sayfa[DosyaBaşı + 6] = static_cast<char>(m_boy & 0xFF);
    m_dosya.clear();
    m_dosya.seekp(0);
    m_dosya.write(sayfa.data(), m_boy);
    if (!m_dosya.flush()) SqliteHatasıFırlat(SQLITE_IOERR);
}

}  // namespace Motor

#include "Seyreltme.h"

#include <algorithm>
#include <set>
#include <utility>

namespace {

constexpr std::size_t BÜTÜN_KALAN_GÜN = 2;
constexpr std::size_t GÜN = 14;
constexpr std::size_t HAFTA = 8;
constexpr std::size_t AY = 24;
constexpr std::size_t ELLE = 10;

// Periods in the order in which they are met. True for the first copy of each of the first `azami`.
class Dönemler {
  public:
    explicit Dönemler(std::size_t azami) : m_azami(azami) {}
    bool İlki(std::pair<int, int> dönem) { return m_görülen.insert(dönem).second && m_görülen.size() <= m_azami; }
    std::size_t Sayı() const { return m_görülen.size(); }

  private:
    std::size_t m_azami;
    std::set<std::pair<int, int>> m_görülen;
};

class Kalanlar {
  public:
    // From the newest copy on.
    bool Kalır(const KopyaAdı& kopya) {
        if (kopya.Tür != KopyaTürü::Günlük) return ++m_elle <= ELLE;
        const QDate gün = kopya.Değişme.date();
        int yıl = 0;
        const int hafta = gün.weekNumber(&yıl);
        const bool gününSonu = m_günler.İlki({gün.year(), gün.dayOfYear()});
        const bool haftanınSonu = m_haftalar.İlki({yıl, hafta});
        const bool ayınSonu = m_aylar.İlki({gün.year(), gün.month()});
        return m_günler.Sayı() <= BÜTÜN_KALAN_GÜN || gününSonu || haftanınSonu || ayınSonu;
    }

  private:
    Dönemler m_günler{GÜN};
    Dönemler m_haftalar{HAFTA};
    Dönemler m_aylar{AY};
    std::size_t m_elle = 0;
};

}  // namespace

std::vector<Fazlalık> Seyrelt(std::vector<KopyaAdı> kopyalar) {
    std::sort(kopyalar.begin(), kopyalar.end(), [](const KopyaAdı& a, const KopyaAdı& b) { return a.Sıra > b.Sıra; });
    std::vector<Fazlalık> fazlalıklar;
    Kalanlar kalanlar;
    int günlük = 0;
    int elle = 0;
    int ham = 0;  // in a raw one's place any marked one stays
    for (const KopyaAdı& kopya : kopyalar) {
        int& sonKalan = kopya.Tür == KopyaTürü::Günlük ? günlük : kopya.Tür == KopyaTürü::Ham ? ham : elle;
        if (!kalanlar.Kalır(kopya)) {
            fazlalıklar.push_back({kopya.Sıra, sonKalan});
            continue;
        }
        sonKalan = kopya.Sıra;
        if (kopya.Tür == KopyaTürü::Elle || kopya.Tür == KopyaTürü::Önce) ham = kopya.Sıra;
    }
    return fazlalıklar;
}

#include "ArsivFarki.h"

#include <cstdlib>

#include "MalzemeToplami.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"

namespace {

constexpr int SAKLANAN_BASAMAK = 4;

// What the difference needs of a sheet: the old side is kept whole, so it is to be small.
struct Taraf {
    FöyYeri Yer;
    FarkTarafı Girdi;
    Para Toplam;
    unsigned Dikkat = 0;
    bool Bozuk = false;
};

Taraf TarafYap(const ArşivFöyü& föy, FöyYeri yer, bool sağlam) {
    Taraf taraf{std::move(yer), {{}, föy.Oranlar()}, föy.Toplam, föy.Dikkat, !sağlam};
    for (const Deyimler::Arşiv::Satır& satır : föy.Satırlar)
        taraf.Girdi.Malzemeler.push_back({satır.Malzeme, MiktarıAyır(satır.Miktar).Birim.toString(),
                                          satır.Sayıldı ? MiktarSayısı(satır.Miktar) : std::nullopt, satır.Fiyat});
    return taraf;
}

using TarafAlıcı = std::function<İşSonucu(Taraf& taraf)>;

// An archive's sheets, or today's of `kapsam`.
İşSonucu TaraflarıOku(OdbcBağlantısı& bağlantı, const std::optional<Başlık>& arşiv, const Kapsam& kapsam,
                      std::int64_t& sayı, const TarafAlıcı& al, const İlerleme& ilerleme) {
    if (!arşiv)
        return BugünküFöyleriOku(
            bağlantı, kapsam, SAKLANAN_BASAMAK,
            [&](ArşivFöyü& föy) {
                ++sayı;
                Taraf taraf = TarafYap(föy, {{}, föy.No, föy.Grup, föy.Ürün}, true);
                return al(taraf);
            },
            ilerleme);
    return FöyleriOku(
        bağlantı, *arşiv,
        [&](OkunanFöy& okunan) {
            ++sayı;
            const ArşivFöyü& föy = okunan.Föy;
            Taraf taraf = TarafYap(föy, {arşiv, föy.No, föy.Grup, föy.Ürün}, okunan.Sağlam);
            return al(taraf);
        },
        ilerleme);
}

bool İçinde(const Kapsam& kapsam, const FöyYeri& yer) {
    return kapsam.Tümü() ||
           (AynıAdlı(kapsam.Grup, yer.Grup) && (kapsam.Ürün.isEmpty() || AynıAdlı(kapsam.Ürün, yer.Ürün)));
}

ÜrünFarkı TekTaraf(const Taraf& taraf, bool eskisi) {
    ÜrünFarkı fark;
    (eskisi ? fark.Eski : fark.Yeni) = taraf.Yer;
    (eskisi ? fark.EskiToplam : fark.YeniToplam) = taraf.Toplam;
    (eskisi ? fark.EskiDikkat : fark.YeniDikkat) = taraf.Dikkat;
    fark.Bozuk = taraf.Bozuk;
    return fark;
}

ÜrünFarkı İkiTaraf(const Taraf& eski, const Taraf& yeni) {
    ÜrünFarkı fark = TekTaraf(yeni, false);
    fark.Eski = eski.Yer;
    fark.EskiToplam = eski.Toplam;
    fark.EskiDikkat = eski.Dikkat;
    fark.Bozuk |= eski.Bozuk;
    fark.Ayrım = FarkıAyır(eski.Girdi, yeni.Girdi);
    return fark;
}

std::int64_t Eksikler(const std::optional<Başlık>& arşiv, std::int64_t okunan) {
    return arşiv ? std::abs(arşiv->FöySayısı - okunan) : 0;
}

}  // namespace

// An archive writes an apostrophe as ’.
bool AynıAdlı(const QString& a, const QString& b) {
    const auto yazım = [](const QString& ad) { return QString(ad).replace(QLatin1Char('\''), QChar(u'’')); };
    return Türkçe::Aynı(yazım(a), yazım(b));
}

bool AynıÜrün(const FöyYeri& a, const FöyYeri& b) {
    return AynıAdlı(a.Ürün, b.Ürün) && AynıAdlı(a.Grup, b.Grup);
}

namespace {

// The old side in memory, the new one row by row beside it.
class Karşılaştırma {
  public:
    Karşılaştırma(const Kapsam& eski, const Kapsam& yeni, std::vector<ÜrünFarkı>& ürünler)
        : m_eski(eski), m_yeni(yeni), m_ürünler(ürünler) {}

    İşSonucu EskiyiAl(Taraf& taraf) {
        if (!İçinde(m_yeni, taraf.Yer)) return {};
        const auto yer = static_cast<std::uint32_t>(m_eskiler.size());
        m_dizin.BulYaDaEkle(taraf.Yer.Grup.toStdString(), taraf.Yer.Ürün.toStdString(), yer);
        m_eskiler.push_back(std::move(taraf));
        m_eşlendi.push_back(false);
        return {};
    }

    İşSonucu YeniyiAl(const Taraf& taraf) {
        if (!İçinde(m_eski, taraf.Yer)) return {};
        const std::uint32_t yer = m_dizin.Bul(taraf.Yer.Grup.toStdString(), taraf.Yer.Ürün.toStdString());
        m_ürünler.push_back(yer == AdDizini::YOK ? TekTaraf(taraf, false) : İkiTaraf(m_eskiler[yer], taraf));
        m_ürünler.back().Ayrım.Kalemler = {};  // asked for anew where they are looked at
        if (yer != AdDizini::YOK) m_eşlendi[yer] = true;
        return {};
    }

    void Bitir() {
        for (std::size_t i = 0; i < m_eskiler.size(); ++i)
            if (!m_eşlendi[i]) m_ürünler.push_back(TekTaraf(m_eskiler[i], true));
    }

  private:
    const Kapsam& m_eski;
    const Kapsam& m_yeni;
    std::vector<ÜrünFarkı>& m_ürünler;
    std::vector<Taraf> m_eskiler;
    std::vector<bool> m_eşlendi;
    AdDizini m_dizin;
};

}  // namespace

İşSonucu GünleriKarşılaştır(OdbcBağlantısı& bağlantı, const Başlık& eski, const std::optional<Başlık>& yeni,
                            ArşivFarkı& fark, const İlerleme& ilerleme) {
    fark = {};
    ArşivFarkı sonuçtaki;
    Karşılaştırma karşılaştırma(eski.Neyin, yeni ? yeni->Neyin : eski.Neyin, sonuçtaki.Ürünler);
    std::int64_t eskiSayısı = 0;
    std::int64_t yeniSayısı = 0;
    İşSonucu sonuç = TaraflarıOku(
        bağlantı, eski, {}, eskiSayısı, [&](Taraf& taraf) { return karşılaştırma.EskiyiAl(taraf); }, ilerleme);
    if (sonuç.Tamam())
        sonuç = TaraflarıOku(
            bağlantı, yeni, eski.Neyin, yeniSayısı, [&](Taraf& taraf) { return karşılaştırma.YeniyiAl(taraf); },
            ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    karşılaştırma.Bitir();
    sonuçtaki.EksikFöy = Eksikler(eski, eskiSayısı) + Eksikler(yeni, yeniSayısı);
    fark = std::move(sonuçtaki);
    return sonuç;
}

namespace {

İşSonucu TarafıOku(OdbcBağlantısı& bağlantı, const FöyYeri& yer, std::optional<Taraf>& taraf) {
    taraf.reset();
    if (!yer.Arşiv) {
        std::int64_t sayı = 0;
        return TaraflarıOku(bağlantı, {}, {yer.Grup, yer.Ürün}, sayı,
                            [&taraf](Taraf& okunan) -> İşSonucu {
                                taraf = std::move(okunan);
                                return {};
                            },
                            {});
    }
    std::optional<OkunanFöy> föy;
    İşSonucu sonuç = FöyüOku(bağlantı, *yer.Arşiv, yer.No, föy);
    if (sonuç.Tamam() && föy) taraf = TarafYap(föy->Föy, yer, föy->Sağlam);
    return sonuç;
}

}  // namespace

İşSonucu FöyleriKarşılaştır(OdbcBağlantısı& bağlantı, const FöyYeri& eski, const FöyYeri& yeni,
                            std::optional<ÜrünFarkı>& fark) {
    fark.reset();
    std::optional<Taraf> eskisi;
    std::optional<Taraf> yenisi;
    İşSonucu sonuç = TarafıOku(bağlantı, eski, eskisi);
    if (sonuç.Tamam()) sonuç = TarafıOku(bağlantı, yeni, yenisi);
    if (sonuç.Tamam() && eskisi && yenisi) fark = İkiTaraf(*eskisi, *yenisi);
    return sonuç;
}

İşSonucu FöyYerleriniOku(OdbcBağlantısı& bağlantı, const std::optional<Başlık>& arşiv, std::vector<FöyYeri>& yerler) {
    yerler.clear();
    if (arşiv) {
        std::vector<FöyBaşlığı> föyler;
        İşSonucu sonuç = FöyListesiniOku(bağlantı, arşiv->No, föyler);
        for (FöyBaşlığı& föy : föyler) yerler.push_back({arşiv, föy.No, std::move(föy.Grup), std::move(föy.Ürün)});
        return sonuç;
    }
    return İşSonucuYap(bağlantı.Oku(Deyimler::Arşiv::Ürünler({}), [&yerler](OdbcSatırı& satır) {
        FöyYeri yer{{}, 0, satır.Metin(1), satır.Metin(2)};
        if (yerler.empty() || !AynıÜrün(yerler.back(), yer)) yerler.push_back(std::move(yer));
        return true;
    }));
}

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

using TarafAlıcı = std::function<İşSonucu(Taraf taraf)>;

// An archive's sheets, or today's of `kapsam`.
İşSonucu TaraflarıOku(OdbcBağlantısı& bağlantı, const std::optional<Başlık>& arşiv, const Kapsam& kapsam,
                      std::int64_t& sayı, const TarafAlıcı& al, const İlerleme& ilerleme) {
    if (!arşiv)
        return BugünküFöyleriOku(
            bağlantı, kapsam, SAKLANAN_BASAMAK,
            [&](ArşivFöyü& föy) {
                ++sayı;
                return al(TarafYap(föy, {{}, föy.No, föy.Grup, föy.Ürün}, true));
            },
            ilerleme);
    return FöyleriOku(
        bağlantı, *arşiv,
        [&](OkunanFöy& okunan) {
            ++sayı;
            const ArşivFöyü& föy = okunan.Föy;
            return al(TarafYap(föy, {arşiv, föy.No, föy.Grup, föy.Ürün}, okunan.Sağlam));
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

bool AynıAdlı(const QString& a, const QString& b) {
    return Türkçe::Karşılaştır(QStringView(a), QStringView(b)) == 0;
}

bool AynıÜrün(const FöyYeri& a, const FöyYeri& b) {
    return AynıAdlı(a.Ürün, b.Ürün) && AynıAdlı(a.Grup, b.Grup);
}

İşSonucu GünleriKarşılaştır(OdbcBağlantısı& bağlantı, const Başlık& eski, const std::optional<Başlık>& yeni,
                            ArşivFarkı& fark, const İlerleme& ilerleme) {
    fark = {};
    std::vector<Taraf> eskiler;
    std::vector<bool> kullanıldı;
    AdDizini dizin;
    std::int64_t eskiSayısı = 0;
    std::int64_t yeniSayısı = 0;
    const Kapsam yenininki = yeni ? yeni->Neyin : eski.Neyin;
    İşSonucu sonuç = TaraflarıOku(
        bağlantı, eski, {}, eskiSayısı,
        [&](Taraf taraf) -> İşSonucu {
            if (!İçinde(yenininki, taraf.Yer)) return {};
            const auto yer = static_cast<std::uint32_t>(eskiler.size());
            dizin.BulYaDaEkle(taraf.Yer.Grup.toStdString(), taraf.Yer.Ürün.toStdString(), yer);
            eskiler.push_back(std::move(taraf));
            return {};
        },
        ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    kullanıldı.assign(eskiler.size(), false);
    sonuç = TaraflarıOku(
        bağlantı, yeni, eski.Neyin, yeniSayısı,
        [&](Taraf taraf) -> İşSonucu {
            if (!İçinde(eski.Neyin, taraf.Yer)) return {};
            const std::uint32_t yer = dizin.Bul(taraf.Yer.Grup.toStdString(), taraf.Yer.Ürün.toStdString());
            fark.Ürünler.push_back(yer == AdDizini::YOK ? TekTaraf(taraf, false) : İkiTaraf(eskiler[yer], taraf));
            fark.Ürünler.back().Ayrım.Kalemler = {};  // asked for anew where they are looked at
            if (yer != AdDizini::YOK) kullanıldı[yer] = true;
            return {};
        },
        ilerleme);
    if (!sonuç.Tamam()) {
        fark = {};
        return sonuç;
    }
    for (std::size_t i = 0; i < eskiler.size(); ++i)
        if (!kullanıldı[i]) fark.Ürünler.push_back(TekTaraf(eskiler[i], true));
    fark.EksikFöy = Eksikler(eski, eskiSayısı) + Eksikler(yeni, yeniSayısı);
    return sonuç;
}

namespace {

İşSonucu TarafıOku(OdbcBağlantısı& bağlantı, const FöyYeri& yer, std::optional<Taraf>& taraf) {
    taraf.reset();
    if (!yer.Arşiv) {
        std::int64_t sayı = 0;
        return TaraflarıOku(bağlantı, {}, {yer.Grup, yer.Ürün}, sayı,
                            [&taraf](Taraf okunan) -> İşSonucu {
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

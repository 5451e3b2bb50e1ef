#include "YariMamulBaglari.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "Deyimler.h"
#include "FiyatDeyimleri.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"

namespace {

// The stored words are part of the file format.
constexpr const char* TÜRLER[] = {"malzeme", "toplam", "birim"};
constexpr const char* DURUMLAR[] = {"uyuyor", "urun yok", "malzeme yok", "dongu", "malzemesiz", "okunamaz",
                                    "birim",  "miktar",   "sifir",       "buyuk", "yazilamadi"};

template <typename T, std::size_t N>
T Sözcükten(const char* const (&sözcükler)[N], const QString& sözcük, T yoksa) {
    for (std::size_t i = 0; i < N; ++i)
        if (sözcük == QLatin1String(sözcükler[i])) return static_cast<T>(i);
    return yoksa;
}

}  // namespace

bool AynıÜrün(const ÜrünAdı& a, const ÜrünAdı& b) {
    return Türkçe::Aynı(a.Ad, b.Ad) && Türkçe::Aynı(a.Grup, b.Grup);
}

Deyimler::YarıMamul::Bağ Saklanan(const YarıMamulBağı& bağ) {
    return {bağ.Malzeme, bağ.Ürün.Grup, bağ.Ürün.Ad, QString::fromLatin1(TÜRLER[static_cast<int>(bağ.Tür)]),
            DurumSözcüğü(bağ.Durum)};
}

QString DurumSözcüğü(BağDurumu durum) {
    return QString::fromLatin1(DURUMLAR[static_cast<int>(durum)]);
}

bool Yazılabilir(const ÜrünAdı& ürün) {
    return Deyimler::Yazılabilir(ürün.Grup) && Deyimler::Yazılabilir(ürün.Ad);
}

İşSonucu ÜrününMalzemeleri(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, QStringList& malzemeler) {
    malzemeler.clear();
    if (!Yazılabilir(ürün)) return {};
    return İşSonucuYap(bağlantı.Oku(Deyimler::KullanılanMalzemeler(ürün.Grup, ürün.Ad), [&](OdbcSatırı& satır) {
        malzemeler.append(satır.Metin(2));
        return true;
    }));
}

İşSonucu ÜrününOranları(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, std::optional<MaliyetOranları>& oranlar) {
    oranlar.reset();
    if (!Yazılabilir(ürün)) return {};
    return İşSonucuYap(bağlantı.Oku(Deyimler::Yüzdeler(ürün.Grup, ürün.Ad), [&oranlar](OdbcSatırı& satır) {
        const auto oran = [&satır](int sütun) {
            return YüzdeOranı(YüzdeMetni(satır.Metin(sütun), YarıMamulHesabı::BASAMAK));
        };
        oranlar = {oran(1), oran(2), oran(3), oran(4)};
        return false;
    }));
}

İşSonucu ÜrününFiyatınıHesapla(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, TutarTürü tür, YarıMamulFiyatı& fiyat) {
    fiyat = {BağDurumu::ÜrünYok, {}};
    std::optional<MaliyetOranları> oranlar;
    if (const İşSonucu s = ÜrününOranları(bağlantı, ürün, oranlar); !s.Tamam() || !oranlar) return s;
    YarıMamulHesabı hesap;
    const OdbcSonucu satırlar =
        bağlantı.Oku(Deyimler::KullanılanMalzemeler(ürün.Grup, ürün.Ad), [&hesap](OdbcSatırı& satır) {
            const std::string miktar(satır.Baytlar(1).value_or(""));
            hesap.Ekle(MiktarSayısı(std::string_view(miktar)), SaklananPara(satır.Baytlar(3).value_or("")),
                       MiktarBirimi(miktar));
            return true;
        });
    fiyat = hesap.Fiyat(*oranlar, tür);
    return İşSonucuYap(satırlar);
}

QString ZincirMetni(const QString& baş, const QStringList& zincir) {
    return (QStringList{baş} + zincir + QStringList{baş}).join(QStringLiteral(" → "));
}

İşSonucu YarıMamulBağları::Oku(OdbcBağlantısı& bağlantı) {
    *this = {};
    bool var = false;
    const QString tablo = QString::fromLatin1(Deyimler::YarıMamul::TABLO);
    if (const OdbcSonucu s = bağlantı.TabloVar(tablo, var); !s.Başarılı() || !var) return İşSonucuYap(s);
    İşSonucu sonuç = İşSonucuYap(bağlantı.Oku(Deyimler::YarıMamul::Bağlar(), [this](OdbcSatırı& satır) {
        m_bağlar.push_back({satır.Metin(1),
                            {satır.Metin(2), satır.Metin(3)},
                            Sözcükten(TÜRLER, satır.Metin(4), TutarTürü::Malzeme),
                            Sözcükten(DURUMLAR, satır.Metin(5), BağDurumu::Yazılamadı)});
        return true;
    }));
    m_malzemeler.resize(m_bağlar.size());
    for (std::size_t i = 0; i < m_bağlar.size() && sonuç.Tamam(); ++i)
        sonuç = ÜrününMalzemeleri(bağlantı, m_bağlar[i].Ürün, m_malzemeler[i]);
    if (sonuç.Tamam())
        Kur();
    else
        *this = {};
    return sonuç;
}

void YarıMamulBağları::Kur() {
    m_dizin = {};
    m_ürünler = {};
    m_kullanılan = {};
    m_kullananlar.clear();
    m_altlar.assign(m_bağlar.size(), {});
    for (std::uint32_t i = 0; i < m_bağlar.size(); ++i) {
        m_dizin.BulYaDaEkle(m_bağlar[i].Malzeme.toStdString(), i);
        m_ürünler.BulYaDaEkle(m_bağlar[i].Ürün.Grup.toStdString(), m_bağlar[i].Ürün.Ad.toStdString(), i);
    }
    for (std::uint32_t i = 0; i < m_bağlar.size(); ++i) {
        for (const QString& malzeme : m_malzemeler[i]) {
            const auto yeni = static_cast<std::uint32_t>(m_kullananlar.size());
            const std::uint32_t yer = m_kullanılan.BulYaDaEkle(malzeme.toStdString(), yeni);
            if (yer == yeni) m_kullananlar.emplace_back();
            if (m_kullananlar[yer].empty() || m_kullananlar[yer].back() != i) m_kullananlar[yer].push_back(i);
            const std::uint32_t alt = Bul(malzeme);
            if (alt != YOK) m_altlar[i].push_back(alt);
        }
    }
}

void YarıMamulBağları::Çıkar(const std::vector<std::uint32_t>& bağlar) {
    for (auto yer = bağlar.rbegin(); yer != bağlar.rend(); ++yer) {
        m_bağlar.erase(m_bağlar.begin() + *yer);
        m_malzemeler.erase(m_malzemeler.begin() + *yer);
    }
}

std::uint32_t YarıMamulBağları::Bul(const QString& malzeme) const {
    return m_dizin.Bul(malzeme.toStdString());
}

const YarıMamulBağı* YarıMamulBağları::Bağı(const QString& malzeme) const {
    const std::uint32_t yer = Boş() ? YOK : Bul(malzeme);
    return yer == YOK ? nullptr : &m_bağlar[yer];
}

bool YarıMamulBağları::ÜrününBağıVar(const ÜrünAdı& ürün) const {
    return m_ürünler.Bul(ürün.Grup.toStdString(), ürün.Ad.toStdString()) != YOK;
}

std::vector<std::uint32_t> YarıMamulBağları::ÜrününBağları(const ÜrünAdı& ürün) const {
    std::vector<std::uint32_t> yerler;
    for (std::uint32_t i = 0; i < m_bağlar.size(); ++i)
        if (ürün.Ad.isEmpty() ? Türkçe::Aynı(m_bağlar[i].Ürün.Grup, ürün.Grup) : AynıÜrün(m_bağlar[i].Ürün, ürün))
            yerler.push_back(i);
    return yerler;
}

std::vector<std::uint32_t> YarıMamulBağları::Kullananlar(const QString& malzeme) const {
    const std::uint32_t yer = m_kullanılan.Bul(malzeme.toStdString());
    return yer == YOK ? std::vector<std::uint32_t>() : m_kullananlar[yer];
}

// Strongly connected parts come out with those first that depend on no later one. Without recursion: a chain may be
// as long as there are ties.
YarıMamulBağları::Sıra YarıMamulBağları::SırayaKoy() const {
    const std::size_t sayı = m_bağlar.size();
    constexpr std::uint32_t GÖRÜLMEDİ = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> sırası(sayı, GÖRÜLMEDİ), enAlt(sayı, 0), yığın;
    std::vector<bool> yığında(sayı, false);
    struct Adım {
        std::uint32_t Bağ;
        std::size_t Sıradaki = 0;
    };
    Sıra sonuç;
    std::uint32_t sayaç = 0;
    const auto bitir = [&](std::uint32_t bağ) {
        if (enAlt[bağ] != sırası[bağ]) return;
        const auto& altlar = m_altlar[bağ];
        const bool döngü = yığın.back() != bağ || std::find(altlar.begin(), altlar.end(), bağ) != altlar.end();
        auto& hedef = döngü ? sonuç.Döngüdekiler : sonuç.Bağlar;
        for (bool sürüyor = true; sürüyor; yığın.pop_back()) {
            sürüyor = yığın.back() != bağ;
            yığında[yığın.back()] = false;
            hedef.push_back(yığın.back());
        }
    };
    for (std::uint32_t kök = 0; kök < sayı; ++kök) {
        if (sırası[kök] != GÖRÜLMEDİ) continue;
        std::vector<Adım> adımlar;
        const auto gir = [&](std::uint32_t bağ) {
            sırası[bağ] = enAlt[bağ] = sayaç++;
            yığın.push_back(bağ);
            yığında[bağ] = true;
            adımlar.push_back({bağ});
        };
        gir(kök);
        while (!adımlar.empty()) {
            const std::uint32_t bağ = adımlar.back().Bağ;
            if (adımlar.back().Sıradaki < m_altlar[bağ].size()) {
                const std::uint32_t alt = m_altlar[bağ][adımlar.back().Sıradaki++];
                if (sırası[alt] == GÖRÜLMEDİ)
                    gir(alt);
                else if (yığında[alt])
                    enAlt[bağ] = std::min(enAlt[bağ], sırası[alt]);
                continue;
            }
            adımlar.pop_back();
            bitir(bağ);
            if (!adımlar.empty()) enAlt[adımlar.back().Bağ] = std::min(enAlt[adımlar.back().Bağ], enAlt[bağ]);
        }
    }
    return sonuç;
}

QStringList YarıMamulBağları::Zincir(const QStringList& malzemeler, const ÜrünAdı& hedef) const {
    return ZinciriBul(malzemeler, [&](const QString&, std::uint32_t bağ) {
        return bağ != YOK && AynıÜrün(m_bağlar[bağ].Ürün, hedef);
    });
}

QStringList YarıMamulBağları::Zincir(const QStringList& malzemeler, const QString& hedefMalzeme) const {
    return ZinciriBul(malzemeler,
                      [&](const QString& malzeme, std::uint32_t) { return Türkçe::Aynı(malzeme, hedefMalzeme); });
}

// Each tie is looked into once, in breadth, so the chain is a shortest one.
QStringList YarıMamulBağları::ZinciriBul(const QStringList& malzemeler,
                                         const std::function<bool(const QString&, std::uint32_t)>& bulundu) const {
    struct Adım {
        QString Malzeme;
        std::uint32_t Bağ;
        std::size_t Önceki;
    };
    constexpr std::size_t BAŞ = ~std::size_t{0};
    std::vector<Adım> adımlar;
    std::vector<bool> görülen(m_bağlar.size(), false);
    const auto ekle = [&](const QStringList& adlar, std::size_t önceki) {
        for (const QString& malzeme : adlar) adımlar.push_back({malzeme, Boş() ? YOK : Bul(malzeme), önceki});
    };
    ekle(malzemeler, BAŞ);
    for (std::size_t i = 0; i < adımlar.size(); ++i) {
        const std::uint32_t bağ = adımlar[i].Bağ;
        if (bulundu(adımlar[i].Malzeme, bağ)) {
            QStringList zincir;
            for (std::size_t yer = i; yer != BAŞ; yer = adımlar[yer].Önceki) {
                if (yer != i) zincir.prepend(m_bağlar[adımlar[yer].Bağ].Ürün.Ad);
                zincir.insert(0, adımlar[yer].Malzeme);
            }
            return zincir;
        }
        if (bağ == YOK || görülen[bağ]) continue;
        görülen[bağ] = true;
        ekle(m_malzemeler[bağ], i);
    }
    return {};
}

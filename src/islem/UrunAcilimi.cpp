#include "UrunAcilimi.h"

#include <algorithm>
#include <map>

#include "Deyimler.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"
#include "YariMamulYayilimi.h"

namespace {

// The sum that a unit cost is divided by. Nothing: several units, an unreadable quantity, or no sum above 0.
struct ÜrünMiktarı {
    std::optional<double> Toplam;
    QString Birim;
};

ÜrünMiktarı MiktarıTopla(const AçılanÜrün& ürün) {
    ÜrünMiktarı sonuç;
    MalzemeSayımı sayım;
    for (const AçılımSatırı& satır : ürün.Satırlar) {
        const QByteArray metin = satır.MiktarMetni.toUtf8();
        sayım.Ekle(satır.Miktar, Para(), MiktarBirimi({metin.constData(), static_cast<std::size_t>(metin.size())}));
        if (!satır.Miktar) return sonuç;
    }
    if (ürün.Satırlar.empty() || sayım.BirimlerFarklı() || sayım.ToplamMiktar() <= 0) return sonuç;
    return {sayım.ToplamMiktar(), MiktarıAyır(ürün.Satırlar.front().MiktarMetni).Birim.toString()};
}

}  // namespace

İşSonucu ÜrünAçılımı::Oku(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün) {
    m_ürünler.clear();
    m_dizin = {};
    const YarıMamulBağları* bağlar = nullptr;
    İşSonucu sonuç = YarıMamulleriAl(bağlantı, bağlar);
    if (!sonuç.Tamam()) return sonuç;
    std::vector<bool> döngüde(bağlar->Bağlar().size(), false);
    for (const std::uint32_t bağ : bağlar->SırayaKoy().Döngüdekiler) döngüde[bağ] = true;
    m_ürünler.push_back({ürün, {}});
    m_dizin.BulYaDaEkle(ürün.Grup.toStdString(), ürün.Ad.toStdString(), 0);
    for (std::size_t i = 0; i < m_ürünler.size() && sonuç.Tamam(); ++i) sonuç = ÜrünüOku(bağlantı, i, *bağlar, döngüde);
    if (sonuç.Tamam()) OranlarıKoy(*bağlar);
    return sonuç;
}

İşSonucu ÜrünAçılımı::ÜrünüOku(OdbcBağlantısı& bağlantı, std::size_t ürün, const YarıMamulBağları& bağlar,
                               const std::vector<bool>& döngüde) {
    const ÜrünAdı ad = m_ürünler[ürün].Ad;
    if (!Yazılabilir(ad)) return {};
    std::vector<AçılımSatırı> satırlar;
    const OdbcSonucu odbc = bağlantı.Oku(Deyimler::KullanılanMalzemeler(ad.Grup, ad.Ad), [&](OdbcSatırı& okunan) {
        AçılımSatırı satır;
        satır.MiktarMetni = okunan.Metin(1);
        satır.Malzeme = okunan.Metin(2);
        satır.Miktar = MiktarSayısı(QStringView(satır.MiktarMetni));
        satır.Birim = MiktarıAyır(satır.MiktarMetni).Kalan.mid(1).toString();
        satırlar.push_back(std::move(satır));
        return true;
    });
    for (AçılımSatırı& satır : satırlar) {
        const std::uint32_t bağ = bağlar.Boş() ? YarıMamulBağları::YOK : bağlar.Bul(satır.Malzeme);
        if (bağ == YarıMamulBağları::YOK) continue;
        const YarıMamulBağı& b = bağlar.Bağlar()[bağ];
        if (döngüde[bağ] || b.Durum == BağDurumu::ÜrünYok) {
            satır.Durum = döngüde[bağ] ? BağDurumu::Döngüde : b.Durum;
            continue;
        }
        const auto yeni = static_cast<std::uint32_t>(m_ürünler.size());
        satır.Ürün = m_dizin.BulYaDaEkle(b.Ürün.Grup.toStdString(), b.Ürün.Ad.toStdString(), yeni);
        if (satır.Ürün == yeni) m_ürünler.push_back({b.Ürün, {}});
    }
    m_ürünler[ürün].Satırlar = std::move(satırlar);
    return İşSonucuYap(odbc);
}

void ÜrünAçılımı::OranlarıKoy(const YarıMamulBağları& bağlar) {
    std::vector<ÜrünMiktarı> miktarlar;
    for (const AçılanÜrün& ürün : m_ürünler) miktarlar.push_back(MiktarıTopla(ürün));
    for (AçılanÜrün& ürün : m_ürünler) {
        for (AçılımSatırı& satır : ürün.Satırlar) {
            if (satır.Ürün == AçılımSatırı::YOK) continue;
            const ÜrünMiktarı& miktar = miktarlar[satır.Ürün];
            if (m_ürünler[satır.Ürün].Satırlar.empty()) {
                satır.Durum = BağDurumu::MalzemesizÜrün;
                satır.Ürün = AçılımSatırı::YOK;
            } else if (bağlar.Bağı(satır.Malzeme)->Tür == TutarTürü::Birim) {
                if (miktar.Toplam) {
                    satır.Oran = 1 / *miktar.Toplam;
                    satır.FarklıBirim = MiktarıAyır(satır.MiktarMetni).Birim != miktar.Birim;
                } else {
                    satır.Durum = bağlar.Bağı(satır.Malzeme)->Durum;
                    if (satır.Durum == BağDurumu::Uyuyor) satır.Durum = BağDurumu::FarklıBirimler;
                    satır.Ürün = AçılımSatırı::YOK;
                }
            }
        }
    }
}

std::vector<AçılımToplamı> ÜrünAçılımı::Toplamlar(double adet) const {
    // How many rows lead to each product: it is done when all of them are.
    std::vector<std::size_t> bekleyen(m_ürünler.size(), 0);
    std::vector<double> adetler(m_ürünler.size(), 0);
    std::vector<bool> karışık(m_ürünler.size(), false);
    std::vector<bool> eksik(m_ürünler.size(), false);  // a row that leads there has an unreadable quantity
    for (const AçılanÜrün& ürün : m_ürünler)
        for (const AçılımSatırı& satır : ürün.Satırlar)
            if (satır.Ürün != AçılımSatırı::YOK) ++bekleyen[satır.Ürün];
    std::vector<AçılımToplamı> toplamlar;
    AdDizini malzemeler;
    std::map<std::pair<std::uint32_t, QString>, std::size_t> yerler;  // units are one only to the letter
    const auto topla = [&](const AçılımSatırı& satır, double kat, bool farklıBirim, bool yolEksik) {
        const auto sayı = static_cast<std::uint32_t>(toplamlar.size());
        const std::uint32_t malzeme = malzemeler.BulYaDaEkle(satır.Malzeme.toStdString(), sayı);
        const auto [yer, yeni] = yerler.try_emplace({malzeme, satır.Birim}, toplamlar.size());
        if (yeni) toplamlar.push_back({satır.Malzeme, satır.Birim});
        AçılımToplamı& toplam = toplamlar[yer->second];
        toplam.Okunamayan += yolEksik;
        satır.Miktar ? void(toplam.Miktar += kat * *satır.Miktar) : void(++toplam.Okunamayan);
        toplam.FarklıBirim = toplam.FarklıBirim || farklıBirim;
        if (satır.Durum != BağDurumu::Uyuyor) toplam.Durum = satır.Durum;
    };
    std::vector<std::size_t> sıra{0};
    adetler[0] = adet;
    for (std::size_t i = 0; i < sıra.size(); ++i) {
        const std::size_t ürün = sıra[i];
        for (const AçılımSatırı& satır : m_ürünler[ürün].Satırlar) {
            // What cannot be read cannot be exploded either: it is named as it stands.
            if (satır.Ürün == AçılımSatırı::YOK || !satır.Miktar)
                topla(satır, adetler[ürün], karışık[ürün] || satır.FarklıBirim, eksik[ürün]);
            if (satır.Ürün == AçılımSatırı::YOK) continue;
            adetler[satır.Ürün] += adetler[ürün] * satır.Miktar.value_or(0) * satır.Oran;
            karışık[satır.Ürün] = karışık[satır.Ürün] || karışık[ürün] || satır.FarklıBirim;
            eksik[satır.Ürün] = eksik[satır.Ürün] || eksik[ürün] || !satır.Miktar;
            if (--bekleyen[satır.Ürün] == 0) sıra.push_back(satır.Ürün);
        }
    }
    std::stable_sort(toplamlar.begin(), toplamlar.end(), [](const AçılımToplamı& a, const AçılımToplamı& b) {
        return Türkçe::Karşılaştır(QStringView(a.Malzeme), QStringView(b.Malzeme)) < 0;
    });
    return toplamlar;
}

#include "MalzemeKullanimi.h"

#include <algorithm>
#include <numeric>

#include "FiyatDeyimleri.h"
#include "MaliyetHesabi.h"
#include "MalzemeToplami.h"
#include "OdbcTanitici.h"
#include "TurkceMetin.h"
#include "TurkceSira.h"
#include "UrunToplamlari.h"

// Goes through the used rows, which come product by product and in each by material.
class MalzemeKullanımı::Okuyucu {
  public:
    Okuyucu(MalzemeKullanımı& kullanım, const ÜrünKataloğu& ürünler, AdDizini& adlar, int basamak)
        : m_kullanım(kullanım), m_ürünler(ürünler), m_adlar(adlar), m_basamak(basamak) {}

    void Al(OdbcSatırı& okunan) {
        const auto baytlar = [&okunan](int sütun) { return okunan.Baytlar(sütun).value_or(std::string_view()); };
        ÜrünüBul(baytlar(1), baytlar(2));
        Satır satır;
        satır.Ürün = m_ürün;
        satır.Malzeme = MalzemeyiBul(baytlar(3));
        satır.Fiyat = SaklananPara(baytlar(5));
        satır.Miktar = baytlar(4);
        m_sayım.Ekle(MiktarSayısı(baytlar(4)), satır.Fiyat, MiktarBirimi(baytlar(4)));
        std::vector<Satır>& satırlar = m_kullanım.m_satırlar;
        if (!satırlar.empty() && satırlar.back().Ürün == satır.Ürün && satırlar.back().Malzeme == satır.Malzeme)
            satırlar.back().İkiKez = satır.İkiKez = true;
        satırlar.push_back(std::move(satır));
    }

    void ÜrünüBitir() {
        if (!m_var) return;
        const std::optional<Para> gösterilen = GösterilenTutar(m_sayım.Tutar(), m_basamak);
        m_kullanım.m_ürünler[m_ürün].MalzemeMaliyeti = gösterilen.value_or(m_sayım.Tutar());
    }

  private:
    void ÜrünüBul(std::string_view grup, std::string_view ad) {
        if (m_var && grup == m_grup && ad == m_ad) return;
        const bool aynı = m_var && Türkçe::Karşılaştır(grup, std::string_view(m_grup)) == 0 &&
                          Türkçe::Karşılaştır(ad, std::string_view(m_ad)) == 0;
        m_grup = grup;
        m_ad = ad;
        if (aynı) return;  // only letter case differs
        ÜrünüBitir();
        m_var = true;
        m_sayım = {};
        m_ürün = m_ürünler.Dizin.Bul(grup, ad);
        if (m_ürün != AdDizini::YOK) return;
        m_ürün = static_cast<std::uint32_t>(m_kullanım.m_ürünler.size());
        m_kullanım.m_ürünler.push_back({QString::fromStdString(m_grup), QString::fromStdString(m_ad), {}, false});
    }

    std::uint32_t MalzemeyiBul(std::string_view ad) {
        const auto yeni = static_cast<std::uint32_t>(m_kullanım.m_malzemeler.size());
        const std::uint32_t yer = m_adlar.BulYaDaEkle(ad, yeni);
        if (yer == yeni) m_kullanım.m_malzemeler.push_back({Utf8Metni(ad), false});
        return yer;
    }

    MalzemeKullanımı& m_kullanım;
    const ÜrünKataloğu& m_ürünler;
    AdDizini& m_adlar;
    const int m_basamak;
    bool m_var = false;
    std::string m_grup;
    std::string m_ad;
    std::uint32_t m_ürün = 0;
    MalzemeSayımı m_sayım;
};

// `yerler`: the places of the materials, as they were read, in the order of their names.
void MalzemeKullanımı::MalzemelereGöreDiz(const std::vector<std::uint32_t>& yerler) {
    std::vector<std::uint32_t> yeniYer(yerler.size());
    std::vector<Malzeme> malzemeler(yerler.size());
    for (std::uint32_t i = 0; i < yerler.size(); ++i) {
        yeniYer[yerler[i]] = i;
        malzemeler[i] = std::move(m_malzemeler[yerler[i]]);
    }
    m_malzemeler = std::move(malzemeler);
    m_ilkSatır.assign(yerler.size() + 1, 0);
    for (Satır& satır : m_satırlar) {
        satır.Malzeme = yeniYer[satır.Malzeme];
        ++m_ilkSatır[satır.Malzeme + 1];
    }
    std::partial_sum(m_ilkSatır.begin(), m_ilkSatır.end(), m_ilkSatır.begin());
    std::vector<std::size_t> sıradaki = m_ilkSatır;
    std::vector<Satır> dizili(m_satırlar.size());
    for (Satır& satır : m_satırlar) dizili[sıradaki[satır.Malzeme]++] = std::move(satır);
    m_satırlar = std::move(dizili);
}

İşSonucu MalzemeKullanımı::Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme) {
    *this = {};
    m_ilkSatır = {0};
    MalzemeKataloğu katalog;
    ÜrünKataloğu ürünler;
    İşSonucu sonuç = katalog.Oku(bağlantı, ilerleme);
    if (sonuç.Tamam()) sonuç = ürünler.Oku(bağlantı, basamak, ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    for (KatalogMalzemesi& malzeme : katalog.Malzemeler) m_malzemeler.push_back({std::move(malzeme.Ad), true});
    for (KatalogÜrünü& ürün : ürünler.Ürünler)
        m_ürünler.push_back({std::move(ürün.Grup), std::move(ürün.Ad), {}, true});
    Okuyucu okuyucu(*this, ürünler, katalog.Dizin, basamak);
    std::int64_t okunan = 0;
    bool vazgeçildi = false;
    const OdbcSonucu odbc = bağlantı.Oku(Deyimler::SıralıKullanılanlar(), [&](OdbcSatırı& satır) {
        okuyucu.Al(satır);
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return !vazgeçildi;
    });
    sonuç = İşSonucuYap(odbc, vazgeçildi);
    if (!sonuç.Tamam()) {
        *this = {};  // a part of the rows would pass for all of them
        m_ilkSatır = {0};
        return sonuç;
    }
    okuyucu.ÜrünüBitir();
    std::vector<std::uint32_t> yerler(m_malzemeler.size());
    std::iota(yerler.begin(), yerler.end(), 0U);
    std::stable_sort(yerler.begin(), yerler.end(), [this](std::uint32_t a, std::uint32_t b) {
        return Türkçe::Karşılaştır(QStringView(m_malzemeler[a].Ad), QStringView(m_malzemeler[b].Ad)) < 0;
    });
    MalzemelereGöreDiz(yerler);
    return sonuç;
}

std::span<const MalzemeKullanımı::Satır> MalzemeKullanımı::Satırlar(std::size_t malzeme) const {
    return std::span(m_satırlar).subspan(m_ilkSatır[malzeme], m_ilkSatır[malzeme + 1] - m_ilkSatır[malzeme]);
}

#include "MaliyetTablosu.h"

#include <algorithm>
#include <numeric>

#include "FiyatDeyimleri.h"
#include "MaliyetHesabi.h"
#include "MalzemeToplami.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"
#include "UrunToplamlari.h"
#include "YariMamulYayilimi.h"

namespace {

int Sırala(const QString& a, const QString& b) {
    return Türkçe::Karşılaştır(QStringView(a), QStringView(b));
}

// Goes through the used rows, which come product by product.
class Toplayıcı {
  public:
    Toplayıcı(const ÜrünKataloğu& ürünler, const MalzemeKataloğu& malzemeler, int basamak,
              const YarıMamulBağları& bağlar, std::vector<MaliyetTablosuSatırı>& satırlar)
        : m_ürünler(ürünler), m_malzemeler(malzemeler), m_basamak(basamak), m_satırlar(satırlar) {
        for (const YarıMamulBağı& bağ : bağlar.Bağlar()) {
            if (bağ.Durum == BağDurumu::Uyuyor) continue;
            m_izlemeyenler.BulYaDaEkle(bağ.Malzeme.toStdString(), 0);
            m_izlemeyenVar = true;
        }
    }

    void Al(OdbcSatırı& satır) {
        const auto baytlar = [&satır](int sütun) { return satır.Baytlar(sütun).value_or(std::string_view()); };
        ÜrünüBul(baytlar(1), baytlar(2));
        if (m_ürün == AdDizini::YOK) return;
        MaliyetTablosuSatırı& ürün = m_satırlar[m_ürün];
        const std::string_view malzeme = baytlar(3);
        if (ürün.MalzemeSayısı++ > 0 && Türkçe::Karşılaştır(malzeme, m_sonMalzeme) == 0) ürün.Dikkat |= İkiKezYazılmış;
        m_sonMalzeme = malzeme;
        if (m_malzemeler.Dizin.Bul(malzeme) == AdDizini::YOK) ürün.Dikkat |= KatalogDışıMalzeme;
        if (m_izlemeyenVar && m_izlemeyenler.Bul(malzeme) != AdDizini::YOK) ürün.Dikkat |= İzlemeyenBağ;
        const std::optional<double> miktar = MiktarSayısı(baytlar(4));
        const std::optional<Para> fiyat = SaklananPara(baytlar(5));
        if (!miktar) ürün.Dikkat |= OkunamayanMiktar;
        if (fiyat == Para()) ürün.Dikkat |= SıfırFiyat;
        if (!m_sayım.Ekle(miktar, fiyat, MiktarBirimi(baytlar(4))) && miktar) ürün.Dikkat |= TutarTaşıyor;
    }

    // After the last row; products without any row too.
    void Bitir() {
        ÜrünüBitir();
        for (std::size_t i = 0; i < m_satırlar.size(); ++i)
            if (m_satırlar[i].MalzemeSayısı == 0) Hesapla(i, {});
    }

  private:
    void ÜrünüBul(std::string_view grup, std::string_view ad) {
        if (m_var && grup == m_grup && ad == m_ad) return;
        const std::uint32_t yeni = m_ürünler.Dizin.Bul(grup, ad);
        m_grup = grup;
        m_ad = ad;
        m_var = true;
        if (yeni == m_ürün) return;  // only letter case differs
        ÜrünüBitir();
        m_ürün = yeni;
        m_sayım = {};
    }

    void ÜrünüBitir() {
        if (m_ürün != AdDizini::YOK) Hesapla(m_ürün, m_sayım);
    }

    // The main form reckons with what it shows.
    void Hesapla(std::size_t yer, const MalzemeSayımı& sayım) {
        const KatalogÜrünü& ürün = m_ürünler.Ürünler[yer];
        MaliyetTablosuSatırı& satır = m_satırlar[yer];
        const std::optional<Para> malzeme = GösterilenTutar(sayım.Tutar(), m_basamak);
        satır.MalzemeMaliyeti = malzeme.value_or(sayım.Tutar());
        for (std::size_t i = 0; i < satır.Tutarlar.size(); ++i)
            if (ürün.Yüzdeler[i]) satır.Tutarlar[i] = YüzdeTutarı(satır.MalzemeMaliyeti, *ürün.Yüzdeler[i]);
        satır.Toplam = GösterilenToplam(sayım.Tutar(), ürün.Oranlar, m_basamak);
        if (!sayım.BirimlerFarklı()) satır.BirimMaliyet = BirimMaliyet(satır.Toplam, sayım.ToplamMiktar());
        if (!malzeme) satır.Dikkat |= TutarTaşıyor;
        if (satır.MalzemeSayısı == 0) satır.Dikkat |= MalzemesiYok;
        if (satır.MalzemeSayısı > 0 && satır.Toplam <= Para()) satır.Dikkat |= ToplamSıfır;
    }

    const ÜrünKataloğu& m_ürünler;
    const MalzemeKataloğu& m_malzemeler;
    const int m_basamak;
    std::vector<MaliyetTablosuSatırı>& m_satırlar;  // beside the products
    AdDizini m_izlemeyenler;
    bool m_izlemeyenVar = false;
    bool m_var = false;
    std::string m_grup;
    std::string m_ad;
    std::string m_sonMalzeme;
    std::uint32_t m_ürün = AdDizini::YOK;
    MalzemeSayımı m_sayım;
};

// In the tree's order, each with its group's place and its name's place among all names.
void SırayaKoy(std::vector<MaliyetTablosuSatırı>& satırlar) {
    std::stable_sort(satırlar.begin(), satırlar.end(),
                     [](const MaliyetTablosuSatırı& a, const MaliyetTablosuSatırı& b) {
                         const int grup = Sırala(a.Grup, b.Grup);
                         return grup < 0 || (grup == 0 && Sırala(a.Ad, b.Ad) < 0);
                     });
    for (std::size_t i = 1; i < satırlar.size(); ++i)
        satırlar[i].GrupSırası =
            satırlar[i - 1].GrupSırası + (Sırala(satırlar[i - 1].Grup, satırlar[i].Grup) == 0 ? 0 : 1);
    std::vector<std::size_t> adlar(satırlar.size());
    std::iota(adlar.begin(), adlar.end(), std::size_t{0});
    std::sort(adlar.begin(), adlar.end(),
              [&satırlar](std::size_t a, std::size_t b) { return Sırala(satırlar[a].Ad, satırlar[b].Ad) < 0; });
    for (std::size_t i = 1; i < adlar.size(); ++i)
        satırlar[adlar[i]].AdSırası =
            satırlar[adlar[i - 1]].AdSırası + (Sırala(satırlar[adlar[i - 1]].Ad, satırlar[adlar[i]].Ad) == 0 ? 0 : 1);
}

}  // namespace

İşSonucu MaliyetTablosunuOku(OdbcBağlantısı& bağlantı, int basamak, std::vector<MaliyetTablosuSatırı>& satırlar,
                             const İlerleme& ilerleme) {
    satırlar.clear();
    MalzemeKataloğu malzemeler;
    ÜrünKataloğu ürünler;
    İşSonucu sonuç = malzemeler.Oku(bağlantı, ilerleme);
    if (sonuç.Tamam()) sonuç = ürünler.Oku(bağlantı, basamak, ilerleme);
    const YarıMamulBağları* bağlar = nullptr;
    if (sonuç.Tamam()) sonuç = YarıMamulleriAl(bağlantı, bağlar);
    if (!sonuç.Tamam()) return sonuç;
    for (const KatalogÜrünü& ürün : ürünler.Ürünler) {
        MaliyetTablosuSatırı& satır = satırlar.emplace_back();
        satır.Grup = ürün.Grup;
        satır.Ad = ürün.Ad;
        if (ürün.İkiKez) satır.Dikkat |= İkiKezYazılmış;
        satır.YarıMamul = !bağlar->Boş() && bağlar->ÜrününBağıVar({ürün.Grup, ürün.Ad});
    }
    Toplayıcı toplayıcı(ürünler, malzemeler, basamak, *bağlar, satırlar);
    std::int64_t okunan = 0;
    bool vazgeçildi = false;
    const OdbcSonucu odbc = bağlantı.Oku(Deyimler::SıralıKullanılanlar(), [&](OdbcSatırı& satır) {
        toplayıcı.Al(satır);
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return !vazgeçildi;
    });
    sonuç = İşSonucuYap(odbc, vazgeçildi);
    if (!sonuç.Tamam()) {
        satırlar.clear();  // a part of the figures would pass for all of them
        return sonuç;
    }
    toplayıcı.Bitir();
    SırayaKoy(satırlar);
    return sonuç;
}

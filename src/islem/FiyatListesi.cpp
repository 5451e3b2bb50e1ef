#include "FiyatListesi.h"

#include <algorithm>

#include "TurkceMetin.h"

namespace {

constexpr qsizetype EN_UZUN_AD = 254;

std::string Baytları(const QString& metin) {
    return metin.toStdString();
}

// The list's own price, after the discount and for one of the catalogue's units, before its rounding.
std::optional<KesinTutar> KesinFiyat(const ListeSatırı& satır, Para iskonto) {
    auto tutar = KesinTutar::Ondalıktan(satır.Fiyat.Değer);
    if (tutar) tutar = tutar->YüzdeEkle(Para::OnBindeBirden(-iskonto.OnBindeBir()));
    return tutar ? tutar->Böl(satır.Bölen) : std::nullopt;
}

}  // namespace

// Finds the material that a name means: the supplier's tie first, then the very name, then one that only letter case
// and blanks tell from it.
class FiyatListesi::AdEşleyici {
  public:
    AdEşleyici(const MalzemeKataloğu& katalog, const std::vector<Deyimler::Tedarikçi::Bağ>& bağlar)
        : m_katalog(katalog), m_bağlar(bağlar) {
        for (std::uint32_t i = 0; i < bağlar.size(); ++i) m_bağYerleri.BulYaDaEkle(Baytları(bağlar[i].ListeAdı), i);
        m_çoklular.resize(katalog.Malzemeler.size(), false);
        for (std::uint32_t i = 0; i < katalog.Malzemeler.size(); ++i) {
            const std::uint32_t ilk = m_yakınlar.BulYaDaEkle(Baytları(ListeAdı(katalog.Malzemeler[i].Ad)), i);
            if (ilk != i) m_çoklular[ilk] = true;
        }
    }

    void Eşle(ListeSatırı& satır) const {
        const std::string ad = Baytları(satır.Ad);
        const std::uint32_t bağ = m_bağYerleri.Bul(ad);
        satır.Bağlı = bağ != AdDizini::YOK;
        if (satır.Bağlı) {
            satır.Bölen = m_bağlar[bağ].Bölen > Para() ? m_bağlar[bağ].Bölen : satır.Bölen;
            satır.Malzeme = m_katalog.Dizin.Bul(Baytları(m_bağlar[bağ].Malzeme));
            satır.Durum = satır.Malzeme == AdDizini::YOK ? ListeDurumu::BağKopuk : ListeDurumu::Eşleşti;
            return;
        }
        satır.Durum = ListeDurumu::Eşleşti;
        satır.Malzeme = m_katalog.Dizin.Bul(ad);
        if (satır.Malzeme != AdDizini::YOK && m_katalog.Malzemeler[satır.Malzeme].Ad == satır.Ad) return;
        const std::uint32_t yakın = m_yakınlar.Bul(ad);
        satır.Malzeme = yakın;
        if (yakın == AdDizini::YOK)
            satır.Durum = ListeDurumu::Yeni;
        else if (m_çoklular[yakın]) {
            satır.Malzeme = AdDizini::YOK;
            satır.Durum = ListeDurumu::Belirsiz;
        }
    }

  private:
    const MalzemeKataloğu& m_katalog;
    const std::vector<Deyimler::Tedarikçi::Bağ>& m_bağlar;
    AdDizini m_bağYerleri;
    AdDizini m_yakınlar;           // by ListeAdı
    std::vector<bool> m_çoklular;  // beside the catalogue: another material has the same ListeAdı
};

void FiyatListesi::Al(std::vector<ListeSatırı> satırlar) {
    m_satırlar = std::move(satırlar);
}

void FiyatListesi::Eşle(MalzemeKataloğu katalog, const std::vector<Deyimler::Tedarikçi::Bağ>& bağlar, Ondalıkİmi im,
                        const ListeKuralı& kural) {
    m_katalog = std::move(katalog);
    m_kural = kural;
    const AdEşleyici eşleyici(m_katalog, bağlar);
    for (std::size_t i = 0; i < m_satırlar.size(); ++i) {
        ListeSatırı& satır = m_satırlar[i];
        satır.Malzeme = AdDizini::YOK;
        satır.Bağlı = false;
        satır.Bölen = Para::OnBindeBirden(Para::Ölçek);
        satır.Ad = ListeAdı(satır.AdHücresi.Metin);
        if (satır.AdHücresi.Tür == ÇizelgeHücreTürü::Okunamaz)
            satır.Durum = ListeDurumu::AdOkunamaz;
        else if (satır.Ad.isEmpty())
            satır.Durum = ListeDurumu::AdYok;
        else
            eşleyici.Eşle(satır);
        if (satır.Durum == ListeDurumu::Yeni) satır.Ad = TürkçeBaşHarfBüyüt(satır.Ad);
        if (satır.Durum == ListeDurumu::Yeni && satır.Ad.size() > EN_UZUN_AD) satır.Durum = ListeDurumu::AdUzun;
        FiyatıOku(satır, im);
        if (satır.Karar && İşaretlenir(satır.Durum) && satır.KararAdı != MalzemeAdı(i)) satır.Karar.reset();
        satır.İşaretli =
            İşaretlenir(satır.Durum) && satır.Karar.value_or(satır.Durum == ListeDurumu::Eşleşti && !satır.Gizli);
    }
    ÖbekleriKur();
    ÇakışmalarıBul();
}

void FiyatListesi::FiyatıOku(ListeSatırı& satır, Ondalıkİmi im) const {
    satır.Fiyat = FiyatOku(satır.FiyatHücresi, im);
    satır.Eski = satır.Malzeme == AdDizini::YOK ? Para() : m_katalog.Malzemeler[satır.Malzeme].Fiyat;
    satır.Yeni = {};
    if (!İşaretlenir(satır.Durum)) return;
    if (satır.Fiyat.Tür == FiyatTürü::Kuşkulu)
        satır.Durum = ListeDurumu::Kuşkulu;
    else if (satır.Fiyat.Tür != FiyatTürü::Sayı)
        satır.Durum = ListeDurumu::FiyatOkunamaz;
    if (!İşaretlenir(satır.Durum)) return;
    const auto kesin = KesinFiyat(satır, m_kural.İskonto);
    const auto fiyat = kesin ? Yuvarla(*kesin, m_kural.Adım) : std::nullopt;
    if (!fiyat)
        satır.Durum = ListeDurumu::FiyatBüyük;
    else if (*fiyat <= Para())
        satır.Durum = ListeDurumu::FiyatSıfır;
    else
        satır.Yeni = *fiyat;
}

// Rows that lead to one material, or to one new name.
void FiyatListesi::ÖbekleriKur() {
    m_öbekler.assign(m_satırlar.size(), AdDizini::YOK);
    m_öbekSatırları.clear();
    std::vector<std::uint32_t> malzemeninki(m_katalog.Malzemeler.size(), AdDizini::YOK);
    AdDizini yeniler;
    for (std::uint32_t i = 0; i < m_satırlar.size(); ++i) {
        const ListeSatırı& satır = m_satırlar[i];
        if (!İşaretlenir(satır.Durum)) continue;
        const auto sıradaki = static_cast<std::uint32_t>(m_öbekSatırları.size());
        std::uint32_t& yer = m_öbekler[i];
        if (satır.Malzeme == AdDizini::YOK) {
            yer = yeniler.BulYaDaEkle(Baytları(satır.Ad), sıradaki);
        } else {
            std::uint32_t& öbek = malzemeninki[satır.Malzeme];
            if (öbek == AdDizini::YOK) öbek = sıradaki;
            yer = öbek;
        }
        if (yer == sıradaki) m_öbekSatırları.emplace_back();
        m_öbekSatırları[yer].push_back(i);
    }
}

// What the rows say is compared before it is rounded. Nothing is chosen for the user: among different prices the one
// tick stands that he has set.
void FiyatListesi::ÇakışmalarıBul() {
    for (const std::vector<std::uint32_t>& öbek : m_öbekSatırları) {
        if (öbek.size() < 2) continue;
        const auto fiyat = [this](std::uint32_t i) {
            const auto kesin = KesinFiyat(m_satırlar[i], m_kural.İskonto);
            return kesin ? Yuvarla(*kesin, {}) : std::nullopt;
        };
        const auto ilk = fiyat(öbek.front());
        const bool bir = std::all_of(öbek.begin(), öbek.end(), [&](std::uint32_t i) { return fiyat(i) == ilk; });
        // Of equal ones a visible row stands for all.
        const auto görünen = std::find_if(öbek.begin(), öbek.end(), [this](auto i) { return !m_satırlar[i].Gizli; });
        const std::uint32_t duran = görünen == öbek.end() ? öbek.front() : *görünen;
        const auto seçilen =
            std::count_if(öbek.begin(), öbek.end(), [this](auto i) { return m_satırlar[i].Karar.value_or(false); });
        for (const std::uint32_t i : öbek) {
            ListeSatırı& satır = m_satırlar[i];
            if (bir && i == duran) continue;
            satır.Durum = bir ? ListeDurumu::Yinelenen : ListeDurumu::Çakışıyor;
            satır.İşaretli = !bir && seçilen == 1 && satır.Karar.value_or(false);
        }
    }
}

void FiyatListesi::KararVer(std::size_t satır, bool işaretli) {
    ListeSatırı& seçilen = m_satırlar[satır];
    seçilen.İşaretli = işaretli;
    seçilen.Karar = işaretli;
    seçilen.KararAdı = MalzemeAdı(satır);
}

void FiyatListesi::İşaretle(std::size_t satır, bool işaretli) {
    if (!İşaretlenir(m_satırlar[satır].Durum)) return;
    if (işaretli && m_öbekler[satır] != AdDizini::YOK)
        for (const std::uint32_t i : m_öbekSatırları[m_öbekler[satır]])
            if (i != satır && İşaretlenir(m_satırlar[i].Durum)) KararVer(i, false);
    KararVer(satır, işaretli);
}

QString FiyatListesi::MalzemeAdı(std::size_t satır) const {
    const ListeSatırı& s = m_satırlar[satır];
    if (s.Malzeme != AdDizini::YOK) return m_katalog.Malzemeler[s.Malzeme].Ad;
    return s.YeniMi() ? s.Ad : QString();
}

FiyatListesi::Sayılar FiyatListesi::Say() const {
    Sayılar sayılar;
    for (const ListeSatırı& satır : m_satırlar) {
        sayılar.Eşleşen += satır.Durum == ListeDurumu::Eşleşti;
        sayılar.Yeni += satır.Durum == ListeDurumu::Yeni;
        sayılar.Sorunlu += satır.Durum == ListeDurumu::Çakışıyor ||
                           (!İşaretlenir(satır.Durum) && satır.Durum != ListeDurumu::Yinelenen);
        sayılar.İşaretli += satır.İşaretli;
    }
    return sayılar;
}

std::vector<FiyatÖnerisi> FiyatListesi::Öneriler() const {
    std::vector<FiyatÖnerisi> öneriler;
    for (const ListeSatırı& satır : m_satırlar) {
        if (!satır.İşaretli) continue;
        FiyatÖnerisi öneri;
        if (satır.Malzeme == AdDizini::YOK) {
            öneri = {satır.Ad, {}, satır.Yeni};
            öneri.Malzemenin = Varlık::Eklendi;
        } else {
            const KatalogMalzemesi& malzeme = m_katalog.Malzemeler[satır.Malzeme];
            const YeniFiyat yeni = FiyatıBelirle(malzeme.Fiyat, KesinFiyat(satır, m_kural.İskonto), m_kural.Adım);
            öneri = {malzeme.Ad, malzeme.Fiyat, yeni.Fiyat, NedenBul(yeni.Durum)};
            öneri.İşaretli = öneri.Neden == PlanNedeni::Yok;
        }
        öneriler.push_back(std::move(öneri));
    }
    return öneriler;
}

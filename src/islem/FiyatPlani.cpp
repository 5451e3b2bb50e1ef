#include "FiyatPlani.h"

#include <QDate>
#include <algorithm>
#include <limits>
#include <unordered_map>

#include "Deyimler.h"
#include "MalzemeToplami.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"
#include "YariMamulYayilimi.h"

namespace {

std::string_view Baytları(const QByteArray& metin) {
    return {metin.constData(), static_cast<std::size_t>(metin.size())};
}

std::uint64_t SatırÖzeti(const KullanılanSatır& satır) {
    std::uint64_t özet = static_cast<std::uint64_t>(satır.Fiyat.OnBindeBir());
    for (const QString& metin : {satır.Grup, satır.Ürün, satır.Miktar, satır.Tarih})
        özet = Türkçe::Özet(Baytları(metin.toUtf8()), özet);
    return özet;
}

// As the data file compares them.
bool AynıSatır(const KullanılanSatır& a, const KullanılanSatır& b) {
    return a.Fiyat == b.Fiyat && a.Tarih == b.Tarih && Türkçe::Aynı(a.Miktar, b.Miktar) &&
           Türkçe::Aynı(a.Ürün, b.Ürün) && Türkçe::Aynı(a.Grup, b.Grup);
}

}  // namespace

QString TarihYazımı(const QString& saklanan) {
    return Deyimler::Tarih(QDate::fromString(saklanan.left(10), Qt::ISODate));
}

PlanNedeni NedenBul(FiyatDurumu durum) {
    switch (durum) {
        case FiyatDurumu::Değişir:
            return PlanNedeni::Yok;
        case FiyatDurumu::Olağandışı:
            return PlanNedeni::Olağandışı;
        case FiyatDurumu::Değişmiyor:
            return PlanNedeni::Değişmiyor;
        case FiyatDurumu::TersineDöndü:
            return PlanNedeni::TersineDöndü;
        case FiyatDurumu::SıfırYaDaAltı:
            return PlanNedeni::SıfırYaDaAltı;
        case FiyatDurumu::ÇokBüyük:
            break;
    }
    return PlanNedeni::ÇokBüyük;
}

// Goes through the used rows: adds up what every product costs now and keeps what the new prices change.
class FiyatPlanı::Okuyucu {
  public:
    Okuyucu(FiyatPlanı& plan, ÜrünKataloğu& ürünler, const MalzemeKataloğu& malzemeler)
        : m_plan(plan), m_ürünler(ürünler), m_malzemeler(malzemeler), m_sıklar(malzemeler.Malzemeler.size()) {
        for (std::uint32_t i = 0; i < plan.m_malzemeler.size(); ++i) {
            const QByteArray ad = plan.m_malzemeler[i].Malzeme.toUtf8();
            const std::uint32_t yer = malzemeler.Dizin.Bul(Baytları(ad));
            PlanMalzemesi& m = plan.m_malzemeler[i];
            if (m.Malzemenin == Varlık::Eklendi) {
                if (yer != AdDizini::YOK) Bırak(m, PlanNedeni::KatalogdaVar);
                m_eklenenler.BulYaDaEkle(Baytları(ad), i);
                m_eklenenVar = true;
            }
            if (yer != AdDizini::YOK) m_sıklar[yer] = {m.Eski, m.Yeni, 0, i, m.HerSatır && m.Tekler.empty()};
            for (std::size_t t = 0; t < m.Tekler.size(); ++t)
                m_tekler.emplace(SatırÖzeti(m.Tekler[t].Satır), Tek{i, t});
        }
    }

    // After the last row.
    void Bitir() {
        for (const Sık& sık : m_sıklar) {
            if (sık.Satır == 0) continue;
            PlanMalzemesi& malzeme = m_plan.m_malzemeler[sık.Planda];
            malzeme.Dağılım.push_back({malzeme.Eski, sık.Satır, true});
            malzeme.DeğişenSatır += sık.Satır;
        }
        for (PlanMalzemesi& malzeme : m_plan.m_malzemeler) {
            for (const FiyatlıSatırlar& satırlar : malzeme.Dağılım) malzeme.Satır += satırlar.Sayı;
            // Rows that used it before it was added stay as they were then.
            if (malzeme.Malzemenin == Varlık::Silindi && malzeme.Satır > malzeme.DeğişenSatır)
                Bırak(malzeme, PlanNedeni::Kullanılıyor);
        }
    }

    void Al(OdbcSatırı& satır) {
        const AdDizini::Aranan aranan = m_malzemeler.Dizin.Ara(Baytlar(satır, 3));
        const std::uint32_t ürün = ÜrünüBul(satır);
        const std::optional<double> miktar = MiktarSayısı(Baytlar(satır, 4));
        const std::optional<Para> fiyat = SaklananPara(Baytlar(satır, 5));
        const std::optional<Para> tutar = Tutar(miktar, fiyat);
        const std::uint32_t malzeme = m_malzemeler.Dizin.Bul(aranan);
        if (ürün != AdDizini::YOK) ÜrüneEkle(m_ürünler.Ürünler[ürün], tutar, malzeme != AdDizini::YOK);
        const std::uint32_t planda = malzeme == AdDizini::YOK ? malzeme : m_sıklar[malzeme].Planda;
        if (malzeme == AdDizini::YOK && m_eklenenVar && fiyat) EkleneninSatırı(satır, *fiyat);
        std::optional<Para> hedef;
        if (planda != AdDizini::YOK && fiyat)
            hedef = PlanaEkle(satır, m_sıklar[malzeme], {ürün, planda, 0}, miktar, *fiyat, tutar);
        PlanYayılımı& yayılım = m_plan.m_yayılım;
        if (!yayılım.Boş() && yayılım.İlgili(ürün, malzeme))
            yayılım.Ekle({ürün, malzeme, miktar, fiyat, hedef ? planda : AdDizini::YOK, hedef.value_or(Para())},
                         Baytlar(satır, 3), Baytlar(satır, 4));
    }

    std::deque<Satır> Satırlar;  // grows without being moved

  private:
    // What most rows need of their material, close together.
    struct Sık {
        Para Eski;
        Para Yeni;
        std::int64_t Satır = 0;
        std::uint32_t Planda = AdDizini::YOK;
        bool Yalın = false;  // every row with the catalogue's price gets the new one
    };

    static void Bırak(PlanMalzemesi& malzeme, PlanNedeni neden) {
        if (!Uygulanır(malzeme.Neden)) return;
        malzeme.Neden = neden;
        malzeme.İşaretli = false;
    }

    static std::string_view Baytlar(OdbcSatırı& satır, int sütun) {
        return satır.Baytlar(sütun).value_or(std::string_view());
    }

    static std::optional<Para> Tutar(std::optional<double> miktar, std::optional<Para> fiyat) {
        return miktar && fiyat ? MalzemeTutarı(*miktar, *fiyat) : std::nullopt;
    }

    // Neighbouring rows are mostly of one product.
    std::uint32_t ÜrünüBul(OdbcSatırı& satır) {
        const std::string_view grup = Baytlar(satır, 1);
        bool aynı = m_sonVar && grup == m_sonGrup;
        if (!aynı) m_sonGrup = grup;
        const std::string_view ad = Baytlar(satır, 2);
        aynı = aynı && ad == m_sonAd;
        if (!aynı) {
            m_sonAd = ad;
            m_sonÜrün = m_ürünler.Dizin.Bul(m_sonGrup, m_sonAd);
            m_sonVar = true;
        }
        return m_sonÜrün;
    }

    static void ÜrüneEkle(KatalogÜrünü& ürün, std::optional<Para> tutar, bool katalogda) {
        if (!katalogda) ürün.KatalogDışı = true;
        const std::optional<Para> toplam = tutar ? Topla(Para::OnBindeBirden(ürün.Malzeme), *tutar) : std::nullopt;
        if (toplam)
            ürün.Malzeme = toplam->OnBindeBir();
        else
            ürün.Eksik = true;
    }

    // The price that the plan gives the row, if it reaches it.
    std::optional<Para> PlanaEkle(OdbcSatırı& okunan, Sık& sık, Satır satır, std::optional<double> miktar, Para fiyat,
                                  std::optional<Para> tutar) {
        if (fiyat == sık.Eski && sık.Yalın) {
            ++sık.Satır;
            satır.Fark = Ondalığı(Tutar(miktar, sık.Yeni)) - Ondalığı(tutar);
            Satırlar.push_back(satır);
            return sık.Yeni;
        }
        PlanMalzemesi& malzeme = m_plan.m_malzemeler[satır.Malzeme];
        const bool değişir = DağılımaEkle(malzeme, fiyat);
        TekSatır* tek = malzeme.Tekler.empty() ? nullptr : TekiBul(satır.Malzeme, okunan, fiyat);
        if (!değişir && !tek) return std::nullopt;
        ++malzeme.DeğişenSatır;
        if (fiyat != malzeme.Eski) malzeme.Ayrılar.push_back(SatırıAl(okunan, fiyat));
        const Para hedef = tek ? tek->Hedef : malzeme.Yeni;
        satır.Fark = Ondalığı(Tutar(miktar, hedef)) - Ondalığı(tutar);
        Satırlar.push_back(satır);
        return hedef;
    }

    static std::int64_t Ondalığı(std::optional<Para> tutar) { return tutar.value_or(Para()).OnBindeBir(); }

    // A row that uses a material before it is added: it is recorded, so that it does not stand in the way back.
    void EkleneninSatırı(OdbcSatırı& satır, Para fiyat) {
        const std::uint32_t yer = m_eklenenler.Bul(Baytlar(satır, 3));
        if (yer != AdDizini::YOK) m_plan.m_malzemeler[yer].Ayrılar.push_back(SatırıAl(satır, fiyat));
    }

    // Whether rows of this price get the new one.
    static bool DağılımaEkle(PlanMalzemesi& malzeme, Para fiyat) {
        for (FiyatlıSatırlar& satırlar : malzeme.Dağılım) {
            if (satırlar.Fiyat != fiyat) continue;
            ++satırlar.Sayı;
            return satırlar.Değişir;
        }
        const auto& fiyatlar = malzeme.Fiyatlar;
        const bool değişir = malzeme.HerSatır || std::find(fiyatlar.begin(), fiyatlar.end(), fiyat) != fiyatlar.end();
        malzeme.Dağılım.push_back({fiyat, 1, değişir});
        return değişir;
    }

    KullanılanSatır SatırıAl(OdbcSatırı& okunan, Para fiyat) const {
        return {QString::fromStdString(m_sonGrup),
                QString::fromStdString(m_sonAd),
                okunan.Metin(3),
                okunan.Metin(4),
                TarihYazımı(okunan.Metin(6)),
                fiyat};
    }

    // Each recorded row is found once.
    TekSatır* TekiBul(std::uint32_t malzeme, OdbcSatırı& okunan, Para fiyat) {
        const KullanılanSatır satır = SatırıAl(okunan, fiyat);
        auto [yer, son] = m_tekler.equal_range(SatırÖzeti(satır));
        for (; yer != son; ++yer) {
            if (yer->second.Malzeme != malzeme) continue;
            TekSatır& tek = m_plan.m_malzemeler[malzeme].Tekler[yer->second.Sıra];
            if (!AynıSatır(tek.Satır, satır)) continue;
            tek.Bulundu = true;
            m_tekler.erase(yer);
            return &tek;
        }
        return nullptr;
    }

    struct Tek {
        std::uint32_t Malzeme;
        std::size_t Sıra;  // in its Tekler
    };

    FiyatPlanı& m_plan;
    ÜrünKataloğu& m_ürünler;
    const MalzemeKataloğu& m_malzemeler;
    std::vector<Sık> m_sıklar;                             // beside the catalogue's materials
    std::unordered_multimap<std::uint64_t, Tek> m_tekler;  // not found yet
    AdDizini m_eklenenler;                                 // places in the plan
    bool m_eklenenVar = false;
    std::string m_sonGrup;
    std::string m_sonAd;
    std::uint32_t m_sonÜrün = AdDizini::YOK;
    bool m_sonVar = false;
};

İşSonucu FiyatPlanı::Kur(OdbcBağlantısı& bağlantı, FiyatTeklifi teklif, int basamak, const İlerleme& ilerleme) {
    *this = {};
    m_basamak = basamak;
    m_kur = std::move(teklif.Kur);
    m_bağ = std::move(teklif.Bağ);
    m_malzemeler.reserve(teklif.Öneriler.size());
    for (FiyatÖnerisi& öneri : teklif.Öneriler) {
        if (Uygulanır(öneri.Neden) && !Deyimler::Yazılabilir(öneri.Malzeme)) öneri.Neden = PlanNedeni::AdıYazılamaz;
        if (!Uygulanır(öneri.Neden)) öneri.İşaretli = false;
        m_malzemeler.push_back({std::move(öneri)});
    }
    const YarıMamulBağları* bağlar = nullptr;
    İşSonucu sonuç = YarıMamulleriAl(bağlantı, bağlar);
    if (!sonuç.Tamam()) return sonuç;
    BağlılarıBırak(*bağlar);
    MalzemeKataloğu malzemeler;
    sonuç = malzemeler.Oku(bağlantı, ilerleme);
    ÜrünKataloğu ürünler;
    if (sonuç.Tamam()) sonuç = ürünler.Oku(bağlantı, basamak, ilerleme);
    if (sonuç.Tamam()) sonuç = m_yayılım.Kur(bağlantı, malzemeler, ürünler);
    if (!sonuç.Tamam()) return sonuç;

    Okuyucu okuyucu(*this, ürünler, malzemeler);
    std::int64_t okunan = 0;
    bool vazgeçildi = false;
    const OdbcSonucu odbc = bağlantı.Oku(Deyimler::TümKullanılanlar(), [&](OdbcSatırı& satır) {
        okuyucu.Al(satır);
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return !vazgeçildi;
    });
    okuyucu.Bitir();
    m_yayılım.Bitir();
    SatırlarıDiz(okuyucu.Satırlar);
    ÜrünleriKur(ürünler);
    return İşSonucuYap(odbc, vazgeçildi);
}

// By material, so that a tick reaches its rows alone.
void FiyatPlanı::SatırlarıDiz(std::deque<Satır>& satırlar) {
    m_ilkSatır.assign(m_malzemeler.size() + 1, 0);
    for (const Satır& satır : satırlar) ++m_ilkSatır[satır.Malzeme + 1];
    for (std::size_t i = 1; i < m_ilkSatır.size(); ++i) m_ilkSatır[i] += m_ilkSatır[i - 1];
    std::vector<std::size_t> sıradaki = m_ilkSatır;
    m_satırlar.resize(satırlar.size());
    for (const Satır& satır : satırlar) m_satırlar[sıradaki[satır.Malzeme]++] = satır;
    satırlar = {};
}

// The price of a tied material is its product's alone.
void FiyatPlanı::BağlılarıBırak(const YarıMamulBağları& bağlar) {
    for (PlanMalzemesi& malzeme : m_malzemeler) {
        if (!Uygulanır(malzeme.Neden) || malzeme.BağıBekler || !bağlar.Bağı(malzeme.Malzeme)) continue;
        malzeme.Neden = PlanNedeni::YarıMamul;
        malzeme.İşaretli = false;
    }
}

const YarıMamulBağı* FiyatPlanı::Bağ() const {
    if (!m_bağ || m_malzemeler.size() != 1) return nullptr;
    const PlanMalzemesi& malzeme = m_malzemeler.front();
    return malzeme.İşaretli || malzeme.Neden == PlanNedeni::Değişmiyor ? &*m_bağ : nullptr;
}

std::uint32_t FiyatPlanı::ÜrünüKur(KatalogÜrünü& ürün) {
    const Para önce = GösterilenToplam(Para::OnBindeBirden(ürün.Malzeme), ürün.Oranlar, m_basamak);
    m_ürünler.push_back({std::move(ürün.Grup), std::move(ürün.Ad), önce, önce, ürün.Eksik, ürün.KatalogDışı});
    m_hesaplar.push_back({ürün.Oranlar, ürün.Malzeme, ürün.Eksik});
    return static_cast<std::uint32_t>(m_ürünler.size() - 1);
}

// Only the products that a material of the plan reaches are kept.
void FiyatPlanı::ÜrünleriKur(ÜrünKataloğu& katalog) {
    std::vector<std::uint32_t> yerler(katalog.Ürünler.size(), AdDizini::YOK);
    for (Satır& satır : m_satırlar) {
        if (!Uygulanır(m_malzemeler[satır.Malzeme].Neden)) satır.Ürün = AdDizini::YOK;
        if (satır.Ürün == AdDizini::YOK) continue;
        std::uint32_t& yer = yerler[satır.Ürün];
        if (yer == AdDizini::YOK) yer = ÜrünüKur(katalog.Ürünler[satır.Ürün]);
        satır.Ürün = yer;
    }
    m_yayılım.ÜrünleriNumarala([&](std::uint32_t ürün) {
        if (yerler[ürün] == AdDizini::YOK) yerler[ürün] = ÜrünüKur(katalog.Ürünler[ürün]);
        return yerler[ürün];
    });
    m_işaretliler.assign(m_ürünler.size(), 0);
    for (const Satır& satır : m_satırlar) {
        if (satır.Ürün == AdDizini::YOK || !m_malzemeler[satır.Malzeme].İşaretli) continue;
        m_hesaplar[satır.Ürün].Sonra += satır.Fark;
        ++m_işaretliler[satır.Ürün];
    }
    for (std::uint32_t i = 0; i < m_ürünler.size(); ++i) SonrayıHesapla(i);
    YayılımıYenile();
}

void FiyatPlanı::YayılımıYenile() {
    const auto etkiler = m_yayılım.Yenile([this](std::uint32_t malzeme) { return m_malzemeler[malzeme].İşaretli; });
    for (const PlanYayılımı::Etki& etki : etkiler) {
        m_hesaplar[etki.Ürün].Sonra += etki.Fark;
        m_yayılanSatır += etki.İşaret;
        m_işaretliler[etki.Ürün] += static_cast<std::uint32_t>(etki.İşaret);
    }
    for (const PlanYayılımı::Etki& etki : etkiler) SonrayıHesapla(etki.Ürün);
}

void FiyatPlanı::SonrayıHesapla(std::uint32_t ürün) {
    const ÜrünHesabı& hesap = m_hesaplar[ürün];
    PlanÜrünü& satır = m_ürünler[ürün];
    constexpr Geniş sınır = std::numeric_limits<std::int64_t>::max();
    const Geniş malzeme = std::clamp(hesap.Sonra, -sınır, sınır);
    satır.Eksik = hesap.Eksik || malzeme != hesap.Sonra;
    satır.Sonra = m_işaretliler[ürün] == 0 ? satır.Önce
                                           : GösterilenToplam(Para::OnBindeBirden(static_cast<std::int64_t>(malzeme)),
                                                              hesap.Oranlar, m_basamak);
}

void FiyatPlanı::İşaretle(std::uint32_t malzeme, bool işaretli) {
    PlanMalzemesi& satır = m_malzemeler[malzeme];
    if (satır.İşaretli == işaretli || !Uygulanır(satır.Neden)) return;
    std::vector<std::uint32_t> değişenler;
    satır.İşaretli = işaretli;
    for (std::size_t i = m_ilkSatır[malzeme]; i < m_ilkSatır[malzeme + 1]; ++i) {
        const Satır& kullanılan = m_satırlar[i];
        if (kullanılan.Ürün == AdDizini::YOK) continue;
        m_hesaplar[kullanılan.Ürün].Sonra += işaretli ? kullanılan.Fark : -kullanılan.Fark;
        m_işaretliler[kullanılan.Ürün] += işaretli ? 1 : -1;
        değişenler.push_back(kullanılan.Ürün);
    }
    std::sort(değişenler.begin(), değişenler.end());
    değişenler.erase(std::unique(değişenler.begin(), değişenler.end()), değişenler.end());
    for (const std::uint32_t ürün : değişenler) SonrayıHesapla(ürün);
}

PlanÖzeti FiyatPlanı::Özet() const {
    PlanÖzeti özet;
    for (std::size_t i = 0; i < m_malzemeler.size(); ++i) {
        const PlanMalzemesi& malzeme = m_malzemeler[i];
        if (!malzeme.İşaretli) continue;
        ++özet.Malzeme;
        özet.Eklenen += malzeme.Malzemenin == Varlık::Eklendi;
        özet.Silinen += malzeme.Malzemenin == Varlık::Silindi;
        özet.Satır += malzeme.DeğişenSatır;
        if (malzeme.Malzemenin == Varlık::Aynı) özet.AyrıSatır += static_cast<std::int64_t>(malzeme.Ayrılar.size());
        for (std::size_t satır = m_ilkSatır[i]; satır < m_ilkSatır[i + 1]; ++satır)
            özet.ÜrünsüzSatır += m_satırlar[satır].Ürün == AdDizini::YOK;
    }
    özet.YayılanSatır = m_yayılanSatır;
    özet.Ürün = std::count_if(m_işaretliler.begin(), m_işaretliler.end(), [](std::uint32_t sayı) { return sayı > 0; });
    return özet;
}

#include "GetirmePlani.h"

#include <algorithm>

#include "DovizKayitlari.h"
#include "FiyatDeyimleri.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"
#include "YariMamulYayilimi.h"

namespace {

// As the catalogue spells it, or the other one.
QString Yazımı(const QString& ad, const MalzemeKataloğu& katalog, const MalzemeKataloğu& yedek) {
    const std::string aranan = ad.toStdString();
    for (const MalzemeKataloğu* bakılan : {&katalog, &yedek})
        if (const std::uint32_t yer = bakılan->Dizin.Bul(aranan); yer != AdDizini::YOK)
            return bakılan->Malzemeler[yer].Ad;
    return ad;
}

UygulamaSonucu Sonucu(const İşSonucu& s) {
    if (s.Son == İşSonu::Vazgeçildi) return {UygulamaSonu::Vazgeçildi, {}, {}};
    return s.Tamam() ? UygulamaSonucu() : UygulamaSonucu{UygulamaSonu::Olmadı, s.Odbc, {}};
}

}  // namespace

İşSonucu GetirmePlanı::YedektenKur(OdbcBağlantısı& deneme, OdbcBağlantısı& yedek, int basamak,
                                   const İlerleme& ilerleme) {
    *this = {};
    m_deneme = &deneme;
    m_yedek = &yedek;
    m_basamak = basamak;
    KatalogTaraması yedekteki;
    İşSonucu sonuç = yedekteki.Oku(yedek, basamak, ilerleme);
    if (sonuç.Tamam()) sonuç = m_şimdi.Oku(deneme, basamak, ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    FarklarıBul(yedekteki);
    MalzemeleriBul(yedekteki);
    m_yedekMalzemeleri = std::move(yedekteki.Malzemeler);
    return BağlılarıBul();
}

void GetirmePlanı::ÜrünEkle(GetirmeKalemi kalem) {
    m_ürünDizini.BulYaDaEkle(kalem.Grup.toStdString(), kalem.Ad.toStdString(),
                             static_cast<std::uint32_t>(m_kalemler.size()));
    m_kalemler.push_back(std::move(kalem));
    m_değişimler.emplace_back();
    m_öneriler.emplace_back();
}

void GetirmePlanı::FarklarıBul(const KatalogTaraması& yedekteki) {
    AdDizini gruplar;  // as the data spell them
    for (std::uint32_t i = 0; i < m_şimdi.Ürünler.size(); ++i)
        gruplar.BulYaDaEkle(m_şimdi.Ürünler[i].Grup.toStdString(), i);
    for (const TarananÜrün& ürün : yedekteki.Ürünler) {
        const TarananÜrün* şimdiki = m_şimdi.Bul(ürün.Grup, ürün.Ad);
        const bool ikiKez = ürün.İkiKez || (şimdiki && şimdiki->İkiKez);
        if (şimdiki && şimdiki->Aynı(ürün) && !ikiKez) continue;
        const std::uint32_t grup = gruplar.Bul(ürün.Grup.toStdString());
        GetirmeKalemi kalem{.Grup = grup == AdDizini::YOK ? ürün.Grup : m_şimdi.Ürünler[grup].Grup, .Ad = ürün.Ad};
        kalem.Yedekteki = ürün.Toplam;
        if (şimdiki) {
            kalem.Grup = şimdiki->Grup;
            kalem.Ad = şimdiki->Ad;
            kalem.Şimdiki = kalem.Sonraki = şimdiki->Toplam;
        }
        if (ikiKez)
            kalem.Neden = GetirmeNedeni::İkiKez;
        else if (ürün.Yazılamaz || (şimdiki && şimdiki->Yazılamaz))
            kalem.Neden = GetirmeNedeni::AdYazılamaz;
        else if (ürün.Okunamaz || (şimdiki && şimdiki->Okunamaz))
            kalem.Neden = GetirmeNedeni::SatırOkunamaz;
        ÜrünEkle(std::move(kalem));
    }
}

void GetirmePlanı::MalzemeleriBul(const KatalogTaraması& yedekteki) {
    std::vector<KatalogMalzemesi> sıralı = yedekteki.Malzemeler.Malzemeler;
    std::stable_sort(sıralı.begin(), sıralı.end(), [](const KatalogMalzemesi& a, const KatalogMalzemesi& b) {
        return Türkçe::Karşılaştır(QStringView(a.Ad), QStringView(b.Ad)) < 0;
    });
    for (const KatalogMalzemesi& malzeme : sıralı) {
        const std::uint32_t yer = m_şimdi.Malzemeler.Dizin.Bul(malzeme.Ad.toStdString());
        const KatalogMalzemesi* şimdiki = yer == AdDizini::YOK ? nullptr : &m_şimdi.Malzemeler.Malzemeler[yer];
        if (şimdiki && şimdiki->Fiyat == malzeme.Fiyat) continue;
        GetirmeKalemi kalem{.Ürün = false, .Ad = malzeme.Ad};
        kalem.Yedekteki = malzeme.Fiyat;
        FiyatÖnerisi öneri{malzeme.Ad, {}, malzeme.Fiyat};
        öneri.Malzemenin = Varlık::Eklendi;
        if (şimdiki) {
            kalem.Ad = şimdiki->Ad;
            kalem.Şimdiki = kalem.Sonraki = şimdiki->Fiyat;
            öneri = {şimdiki->Ad, şimdiki->Fiyat, malzeme.Fiyat};
        }
        if (!Deyimler::Yazılabilir(malzeme.Ad) || !Deyimler::Yazılabilir(kalem.Ad))
            kalem.Neden = GetirmeNedeni::AdYazılamaz;
        m_malzemeDizini.BulYaDaEkle(malzeme.Ad.toStdString(), static_cast<std::uint32_t>(m_kalemler.size()));
        m_kalemler.push_back(std::move(kalem));
        m_değişimler.emplace_back();
        m_öneriler.push_back(std::move(öneri));
    }
}

// Materials of the catalogue whose price follows something else.
İşSonucu GetirmePlanı::BağlılarıBul() {
    const YarıMamulBağları* bağlar = nullptr;
    std::vector<Deyimler::Döviz::Bağ> dövizBağları;
    İşSonucu sonuç = YarıMamulleriAl(*m_deneme, bağlar);
    if (sonuç.Tamam()) sonuç = DövizBağlarınıOku(*m_deneme, dövizBağları);
    if (!sonuç.Tamam()) return sonuç;
    const auto koy = [this](const QString& malzeme, GetirmeNedeni neden) {
        const std::uint32_t yer = m_malzemeDizini.Bul(malzeme.toStdString());
        if (yer != AdDizini::YOK && Uygulanır(m_kalemler[yer].Neden)) m_kalemler[yer].Neden = neden;
    };
    for (const Deyimler::Döviz::Bağ& bağ : dövizBağları) koy(bağ.Malzeme, GetirmeNedeni::DövizeBağlı);
    for (const YarıMamulBağı& bağ : bağlar->Bağlar()) koy(bağ.Malzeme, GetirmeNedeni::YarıMamul);
    return sonuç;
}

İşSonucu GetirmePlanı::DeğişimiOku(std::size_t kalem) {
    if (m_değişimler[kalem]) return {};
    const ÜrünAdı ürün{m_kalemler[kalem].Grup, m_kalemler[kalem].Ad};
    ÜrünDeğişimi değişim{ürün, {}, {}};
    bool okunamaz = false;
    İşSonucu sonuç = ÜrünHaliniOku(*m_deneme, ürün, değişim.Önce, okunamaz);
    if (okunamaz) m_kalemler[kalem].Neden = GetirmeNedeni::SatırOkunamaz;  // rows that a deleted product left
    if (sonuç.Tamam()) sonuç = ÜrünHaliniOku(*m_yedek, ürün, değişim.Sonra, okunamaz);
    if (!sonuç.Tamam()) return sonuç;
    for (KullanılanSatır& satır : değişim.Sonra.Satırlar) {
        satır.Grup = ürün.Grup;
        satır.Ürün = ürün.Ad;
        satır.Malzeme = Yazımı(satır.Malzeme, m_şimdi.Malzemeler, m_yedekMalzemeleri);
    }
    m_değişimler[kalem] = std::move(değişim);
    return sonuç;
}

İşSonucu GetirmePlanı::ÜrünüOku(std::size_t kalem, ÜrünHali& önce, ÜrünHali& sonra) {
    // A name that no statement can name.
    if (!m_değişimler[kalem] && m_kalemler[kalem].Neden == GetirmeNedeni::AdYazılamaz) return {};
    const İşSonucu sonuç = DeğişimiOku(kalem);
    if (!sonuç.Tamam()) return sonuç;
    önce = m_değişimler[kalem]->Önce;
    sonra = m_değişimler[kalem]->Sonra;
    return sonuç;
}

void GetirmePlanı::İşaretle(std::size_t kalem, bool işaretli) {
    if (Uygulanır(m_kalemler[kalem].Neden)) m_kalemler[kalem].İşaretli = işaretli;
}

// The rows of the ticked products, and what the catalogue lacks for them.
İşSonucu GetirmePlanı::BirlikteGelenler(const İlerleme& ilerleme) {
    for (GetirmeKalemi& kalem : m_kalemler) kalem.Birlikte = false;
    std::int64_t okunan = 0;
    for (std::size_t i = 0; i < m_kalemler.size(); ++i) {
        if (!m_kalemler[i].Ürün || !m_kalemler[i].İşaretli) continue;
        if (const İşSonucu s = DeğişimiOku(i); !s.Tamam()) return s;
        if (!Uygulanır(m_kalemler[i].Neden)) m_kalemler[i].İşaretli = false;
        if (ilerleme && !ilerleme(++okunan)) return İşSonucuYap({}, true);
        if (!m_kalemler[i].İşaretli || !Yedekten()) continue;
        for (const KullanılanSatır& satır : m_değişimler[i]->Sonra.Satırlar) {
            const std::uint32_t yer = m_malzemeDizini.Bul(satır.Malzeme.toStdString());
            if (yer != AdDizini::YOK && m_öneriler[yer].Malzemenin == Varlık::Eklendi &&
                Uygulanır(m_kalemler[yer].Neden))
                m_kalemler[yer].Birlikte = true;
        }
    }
    return {};
}

GetirmeÖzeti GetirmePlanı::Özet() const {
    GetirmeÖzeti özet{.Diğer = m_diğer};
    for (const GetirmeKalemi& kalem : m_kalemler)
        if (Gelir(kalem)) ++(kalem.Ürün ? özet.Ürün : özet.Malzeme);
    return özet;
}

Getirmeİşi GetirmePlanı::İşiYap() const {
    Getirmeİşi iş;
    for (std::size_t i = 0; i < m_kalemler.size(); ++i)
        if (m_kalemler[i].Ürün && m_kalemler[i].İşaretli) iş.Ürünler.push_back(*m_değişimler[i]);
    iş.FiyatÖner = [this](OdbcBağlantısı& bağlantı, FiyatTeklifi& teklif) { return FiyatÖner(bağlantı, teklif); };
    iş.ÖnceÜrünler = m_tür == İşlemTürü::GeriAlma;
    iş.Basamak = m_basamak;
    return iş;
}

// What stands in a file, beside the items.
struct GetirmePlanı::Sonrakiler {
    std::vector<std::optional<Para>> Tutarlar;
    std::int64_t Diğer = 0;
};

İşSonucu GetirmePlanı::SonrakileriOku(OdbcBağlantısı& bağlantı, Sonrakiler& sonrakiler,
                                      const İlerleme& ilerleme) const {
    sonrakiler = {};
    sonrakiler.Tutarlar.resize(m_kalemler.size());
    std::vector<MaliyetTablosuSatırı> ürünler;
    MalzemeKataloğu malzemeler;
    İşSonucu sonuç = MaliyetTablosunuOku(bağlantı, m_basamak, ürünler, ilerleme);
    if (sonuç.Tamam()) sonuç = malzemeler.Oku(bağlantı);
    if (!sonuç.Tamam()) return sonuç;
    for (const MaliyetTablosuSatırı& ürün : ürünler) {
        const std::uint32_t yer = m_ürünDizini.Bul(ürün.Grup.toStdString(), ürün.Ad.toStdString());
        if (yer != AdDizini::YOK) {
            sonrakiler.Tutarlar[yer] = ürün.Toplam;
            continue;
        }
        const TarananÜrün* önceki = m_şimdi.Bul(ürün.Grup, ürün.Ad);
        if (!önceki || önceki->Toplam != ürün.Toplam) ++sonrakiler.Diğer;
    }
    for (std::size_t i = 0; i < m_kalemler.size(); ++i) {
        if (m_kalemler[i].Ürün) continue;
        const std::uint32_t yer = malzemeler.Dizin.Bul(m_kalemler[i].Ad.toStdString());
        if (yer != AdDizini::YOK) sonrakiler.Tutarlar[i] = malzemeler.Malzemeler[yer].Fiyat;
    }
    return sonuç;
}

GetirmeSonucu GetirmePlanı::Dene(const İlerleme& ilerleme) {
    GetirmeSonucu sonuç{Sonucu(BirlikteGelenler(ilerleme))};
    Sonrakiler sonrakiler{std::vector<std::optional<Para>>(m_kalemler.size()), 0};
    const GetirmeÖzeti özet = Özet();
    if (sonuç.Tamam() && özet.Ürün + özet.Malzeme == 0) {
        for (std::size_t i = 0; i < m_kalemler.size(); ++i) sonrakiler.Tutarlar[i] = m_kalemler[i].Şimdiki;
    } else if (sonuç.Tamam()) {
        const auto bak = [&](const GetirmeSonucu&) { return Sonucu(SonrakileriOku(*m_deneme, sonrakiler, ilerleme)); };
        sonuç = Getir(*m_deneme, İşiYap(), {}, {}, bak, ilerleme);
    }
    m_kalanlar = sonuç.Kalanlar;
    m_diğer = sonrakiler.Diğer;
    for (std::size_t i = 0; i < m_kalemler.size(); ++i) {
        GetirmeKalemi& kalem = m_kalemler[i];
        kalem.Sonraki = sonrakiler.Tutarlar[i];
        if (kalem.Ürün || kalem.Neden == GetirmeNedeni::Fiyatta || kalem.Neden == GetirmeNedeni::FiyatEngeli) continue;
        const auto kalan = std::find_if(m_kalanlar.begin(), m_kalanlar.end(),
                                        [&](const KalanFiyat& k) { return Türkçe::Aynı(k.Malzeme, kalem.Ad); });
        kalem.FiyatNedeni = kalan == m_kalanlar.end() ? PlanNedeni::Yok : kalan->Neden;
    }
    return sonuç;
}

GetirmeSonucu GetirmePlanı::Uygula(OdbcBağlantısı& bağlantı, const İşlemBilgisi& bilgi, const QString& zaman,
                                   const İlerleme& ilerleme) const {
    // What comes of it is what was shown, to the last total.
    const auto bak = [&](const GetirmeSonucu& olan) -> UygulamaSonucu {
        Sonrakiler sonrakiler;
        const İşSonucu s = SonrakileriOku(bağlantı, sonrakiler, ilerleme);
        if (!s.Tamam()) return Sonucu(s);
        for (std::size_t i = 0; i < m_kalemler.size(); ++i)
            if (sonrakiler.Tutarlar[i] != m_kalemler[i].Sonraki) return {UygulamaSonu::Değişmiş, {}, m_kalemler[i].Ad};
        if (olan.Kalanlar == m_kalanlar) return {};
        const std::vector<KalanFiyat>& kalanlar = olan.Kalanlar.empty() ? m_kalanlar : olan.Kalanlar;
        return {UygulamaSonu::Değişmiş, {}, kalanlar.front().Malzeme};
    };
    return Getir(bağlantı, İşiYap(), bilgi, zaman, bak, ilerleme);
}

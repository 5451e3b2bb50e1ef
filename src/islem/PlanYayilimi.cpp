#include "PlanYayilimi.h"

#include <algorithm>

#include "TurkceSira.h"
#include "YariMamulYayilimi.h"

İşSonucu PlanYayılımı::Kur(OdbcBağlantısı& bağlantı, const MalzemeKataloğu& malzemeler, const ÜrünKataloğu& ürünler) {
    *this = {};
    const YarıMamulBağları* bağlar = nullptr;
    İşSonucu sonuç = YarıMamulleriAl(bağlantı, bağlar);
    if (!sonuç.Tamam() || bağlar->Boş()) return sonuç;
    m_malzemeninBağı.assign(malzemeler.Malzemeler.size(), YOK);
    m_ürününSatırları.assign(ürünler.Ürünler.size(), YOK);
    m_yayılanlar.resize(bağlar->Bağlar().size());
    m_sıra = bağlar->SırayaKoy().Bağlar;
    for (const YarıMamulBağı& b : bağlar->Bağlar()) {
        Bağ& bağ = m_bağlar.emplace_back();
        bağ.Tür = b.Tür;
        bağ.Ürün = ürünler.Dizin.Bul(b.Ürün.Grup.toStdString(), b.Ürün.Ad.toStdString());
        std::optional<MaliyetOranları> oranlar;
        if (sonuç.Tamam()) sonuç = ÜrününOranları(bağlantı, b.Ürün, oranlar);
        bağ.Oranlar = oranlar.value_or(MaliyetOranları());
        if (bağ.Ürün != YOK) {
            std::uint32_t& yer = m_ürününSatırları[bağ.Ürün];
            if (yer == YOK) {
                yer = static_cast<std::uint32_t>(m_satırlar.size());
                m_satırlar.emplace_back();
            }
            bağ.Satırlar = yer;
        }
        const std::uint32_t malzeme = malzemeler.Dizin.Bul(b.Malzeme.toStdString());
        if (malzeme == YOK) continue;
        bağ.Eski = malzemeler.Malzemeler[malzeme].Fiyat;
        m_malzemeninBağı[malzeme] = static_cast<std::uint32_t>(m_bağlar.size() - 1);
    }
    return sonuç;
}

bool PlanYayılımı::İlgili(std::uint32_t ürün, std::uint32_t malzeme) const {
    return (ürün != YOK && m_ürününSatırları[ürün] != YOK) || (malzeme != YOK && m_malzemeninBağı[malzeme] != YOK);
}

void PlanYayılımı::Ekle(const Satır& satır, std::string_view malzemeAdı, std::string_view miktar) {
    if (satır.Ürün != YOK && m_ürününSatırları[satır.Ürün] != YOK)
        m_satırlar[m_ürününSatırları[satır.Ürün]].push_back(
            {satır, std::string(malzemeAdı), std::string(MiktarBirimi(miktar))});
    if (satır.Malzeme != YOK && satır.Ürün != YOK && m_malzemeninBağı[satır.Malzeme] != YOK)
        m_yayılanlar[m_malzemeninBağı[satır.Malzeme]].push_back(
            {satır.Ürün, satır.Miktar, satır.Fiyat, satır.Plan, satır.Tür});
}

void PlanYayılımı::Bitir() {
    if (Boş()) return;
    // Sums of quantities are floating point and depend on the reading order, which is by name.
    for (std::vector<ÜrünSatırı>& satırlar : m_satırlar)
        std::stable_sort(satırlar.begin(), satırlar.end(), [](const ÜrünSatırı& a, const ÜrünSatırı& b) {
            return Türkçe::Karşılaştır(std::string_view(a.Ad), std::string_view(b.Ad)) < 0;
        });
    // Ties that nothing of the plan reaches stay out.
    std::vector<std::uint32_t> kalanlar;
    std::vector<bool> bağDeğişebilir(m_bağlar.size(), false);
    for (const std::uint32_t yer : m_sıra) {
        const Bağ& bağ = m_bağlar[yer];
        if (!bağ.Eski || bağ.Satırlar == YOK) continue;
        const auto& satırlar = m_satırlar[bağ.Satırlar];
        const bool ulaşır = std::any_of(satırlar.begin(), satırlar.end(), [&](const ÜrünSatırı& satır) {
            const std::uint32_t malzeme = satır.İçerik.Malzeme;
            const std::uint32_t alt = malzeme == YOK ? YOK : m_malzemeninBağı[malzeme];
            return satır.İçerik.Plan != YOK || (alt != YOK && bağDeğişebilir[alt]);
        });
        bağDeğişebilir[yer] = ulaşır;
        if (ulaşır) kalanlar.push_back(yer);
    }
    m_sıra = std::move(kalanlar);
    for (std::size_t i = 0; i < m_yayılanlar.size(); ++i)
        if (!bağDeğişebilir[i]) m_yayılanlar[i] = {};
}

std::vector<std::optional<Para>> PlanYayılımı::Fiyatlar(const std::function<bool(std::uint32_t plan)>& işaretli) const {
    std::vector<std::optional<Para>> yeniler(m_bağlar.size());
    for (const std::uint32_t yer : m_sıra) {
        const Bağ& bağ = m_bağlar[yer];
        YarıMamulHesabı hesap;
        bool değişti = false;
        for (const ÜrünSatırı& satır : m_satırlar[bağ.Satırlar]) {
            const bool ulaşıldı = satır.İçerik.Plan != YOK && işaretli(satır.İçerik.Plan);
            if (satır.İçerik.Tür != SatırTürü::Durur) değişti = değişti || ulaşıldı;
            if (!Var(satır.İçerik.Tür, ulaşıldı)) continue;
            std::optional<Para> fiyat = satır.İçerik.Fiyat;
            const std::uint32_t alt = satır.İçerik.Malzeme == YOK ? YOK : m_malzemeninBağı[satır.İçerik.Malzeme];
            if (alt != YOK && yeniler[alt]) {
                fiyat = yeniler[alt];
                değişti = true;
            } else if (ulaşıldı && satır.İçerik.Tür == SatırTürü::Durur) {
                fiyat = satır.İçerik.Hedef;
                değişti = true;
            }
            hesap.Ekle(satır.İçerik.Miktar, fiyat, satır.Birim);
        }
        if (!değişti) continue;
        const YarıMamulFiyatı yeni = hesap.Fiyat(bağ.Oranlar, bağ.Tür);
        if (yeni.Durum == BağDurumu::Uyuyor && yeni.Fiyat != *bağ.Eski) yeniler[yer] = yeni.Fiyat;
    }
    return yeniler;
}

void PlanYayılımı::ÜrünleriNumarala(const std::function<std::uint32_t(std::uint32_t ürün)>& numara) {
    for (auto& yayılanlar : m_yayılanlar)
        for (Yayılan& satır : yayılanlar) satır.Ürün = numara(satır.Ürün);
}

std::vector<PlanYayılımı::Etki> PlanYayılımı::Yenile(const std::function<bool(std::uint32_t plan)>& işaretli) {
    std::vector<Etki> etkiler;
    if (Boş()) return etkiler;
    const std::vector<std::optional<Para>> yeniler = Fiyatlar(işaretli);
    const auto tutar = [](const Yayılan& satır, std::optional<Para> fiyat) {
        const auto t = satır.Miktar && fiyat ? MalzemeTutarı(*satır.Miktar, *fiyat) : std::nullopt;
        return t.value_or(Para()).OnBindeBir();
    };
    for (std::size_t bağ = 0; bağ < yeniler.size(); ++bağ) {
        for (Yayılan& satır : m_yayılanlar[bağ]) {
            const bool ulaşıldı = satır.Plan != YOK && işaretli(satır.Plan);
            const bool değişir = yeniler[bağ] && Var(satır.Tür, ulaşıldı);
            const std::int64_t fark = değişir ? tutar(satır, yeniler[bağ]) - tutar(satır, satır.Fiyat) : 0;
            if (fark == satır.Fark && satır.Değişti == değişir) continue;
            etkiler.push_back({satır.Ürün, fark - satır.Fark, int{değişir} - int{satır.Değişti}});
            satır.Fark = fark;
            satır.Değişti = değişir;
        }
    }
    std::sort(etkiler.begin(), etkiler.end(), [](const Etki& a, const Etki& b) { return a.Ürün < b.Ürün; });
    std::vector<Etki> toplamlar;
    for (const Etki& etki : etkiler) {
        if (toplamlar.empty() || toplamlar.back().Ürün != etki.Ürün) toplamlar.push_back({etki.Ürün});
        toplamlar.back().Fark += etki.Fark;
        toplamlar.back().İşaret += etki.İşaret;
    }
    return toplamlar;
}

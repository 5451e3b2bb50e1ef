#include "YariMamulHesabi.h"

void YarıMamulHesabı::Ekle(std::optional<double> miktar, std::optional<Para> fiyat, std::string_view birim) {
    m_boş = false;
    m_okunamayan = m_okunamayan || !miktar;
    if (!m_sayım.Ekle(miktar, fiyat, birim)) m_taştı = true;
}

YarıMamulFiyatı YarıMamulHesabı::Fiyat(const MaliyetOranları& oranlar, TutarTürü tür) const {
    if (m_boş) return {BağDurumu::MalzemesizÜrün, {}};
    if (m_okunamayan) return {BağDurumu::OkunamayanMiktar, {}};
    if (m_taştı) return {BağDurumu::ÇokBüyük, {}};
    Para fiyat = m_sayım.Tutar();
    if (tür != TutarTürü::Malzeme) fiyat = GösterilenToplam(m_sayım.Tutar(), oranlar, BASAMAK);
    if (tür == TutarTürü::Birim) {
        if (m_sayım.BirimlerFarklı()) return {BağDurumu::FarklıBirimler, {}};
        const std::optional<double> birim = BirimMaliyet(fiyat, m_sayım.ToplamMiktar());
        if (!birim) return {BağDurumu::MiktarSıfır, {}};
        const std::optional<Para> yuvarlanan = Para::Doubledan(*birim);
        if (!yuvarlanan) return {BağDurumu::ÇokBüyük, {}};
        fiyat = *yuvarlanan;
    }
    if (fiyat <= Para()) return {BağDurumu::SıfırYaDaAltı, {}};
    return {BağDurumu::Uyuyor, fiyat};
}

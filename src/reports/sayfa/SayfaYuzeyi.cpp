#include "SayfaYuzeyi.h"

void SayfaYüzeyi::Yaz(const QString& metin, Yer yer) {
    m_x += MetniKoy(metin, yer);
}

void SayfaYüzeyi::YazVeSatırıBitir(const QString& metin, Yer yer) {
    MetniKoy(metin, yer);
    m_x = 0;
    m_y += SatırYüksekliği();
}

void SayfaYüzeyi::YeniSayfa() {
    SayfaAç();
    ++m_sayfaNo;
    m_x = 0;
    m_y = 0;
}

#include "OlcenYuzey.h"

ÖlçenAygıt::ÖlçenAygıt(const QPageLayout& alan) : Yazar(&Dosya) {
    Dosya.open(QIODevice::WriteOnly);
    Yazar.setPageLayout(alan);
}

ÖlçenYüzey::ÖlçenYüzey(const QPageLayout& alan)
    : ÖlçenAygıt(alan), AygıtYüzeyi(Yazar), m_köşe(alan.paintRect(QPageLayout::Millimeter).topLeft()) {}

double ÖlçenYüzey::MetniKoy(const QString& metin, Yer yer) {
    const double genişlik = AygıtYüzeyi::MetniKoy(metin, yer);
    if (!metin.isEmpty()) Metinler.append({SayfaNo(), m_köşe.x() + X(), m_köşe.y() + Y(), genişlik, metin});
    return genişlik;
}

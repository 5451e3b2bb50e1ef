#include "SayfaDuzeni.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "MetinTablosu.h"

namespace {

constexpr int BaşlıkPuntosu = 14;
constexpr int SatırPuntosu = 11;

// Millimetres
constexpr double ÜstBoşluk = 15;
constexpr double AltBoşluk = 15;
constexpr double SayfaBaşlığıÜstü = 5;
constexpr double SayfaBaşlığıKenarı = 10;
constexpr double SayfaBaşlığıÇizgisi = 10;
constexpr double MetinArası = 2;  // at least this much stays free before the next text...
constexpr double SağPay = 5;      // ...and before the page's right edge

}  // namespace

std::int16_t TamMilimetre(double milimetre) {
    return static_cast<std::int16_t>(std::nearbyint(milimetre));
}

SayfaDüzeni::SayfaDüzeni(SayfaYüzeyi& yüzey, QString raporBaşlığı, QList<SayfaSütunu> sütunlar)
    : m_yüzey(yüzey), m_raporBaşlığı(std::move(raporBaşlığı)), m_sütunlar(std::move(sütunlar)) {}

bool SayfaDüzeni::Başla() {
    if (!m_yüzey.Başla()) return false;
    m_sayfaYüksekliği = TamMilimetre(m_yüzey.Yükseklik());
    m_sayfaGenişliği = TamMilimetre(m_yüzey.Genişlik());
    for (const SayfaSütunu& sütun : std::as_const(m_sütunlar)) {
        m_yerler.append({TamMilimetre(m_sayfaGenişliği / sütun.Bölen), 0});
    }
    BaşlıkYaz();
    SütunBaşlıklarınıYaz();
    return true;
}

void SayfaDüzeni::BaşlıkYaz() {
    m_yüzey.PuntoAyarla(BaşlıkPuntosu);
    m_yüzey.KalınAyarla(true);
    m_yüzey.AltÇizgiAyarla(true);
    m_yüzey.YAyarla(ÜstBoşluk);
    const double genişlik = m_yüzey.MetinGenişliği(m_raporBaşlığı);
    if (genişlik <= m_sayfaGenişliği) {
        m_yüzey.XAyarla((m_sayfaGenişliği - genişlik) / 2);
        m_yüzey.YazVeSatırıBitir(m_raporBaşlığı);
    } else {
        // Narrowed to the width of the running header.
        m_yüzey.XAyarla(SayfaBaşlığıKenarı);
        m_yüzey.YazVeSatırıBitir(m_raporBaşlığı, {m_sayfaGenişliği - 2 * SayfaBaşlığıKenarı, 0});
    }
}

void SayfaDüzeni::SütunBaşlıklarınıYaz() {
    m_yüzey.YAyarla(m_yüzey.Y() + 5);
    m_yüzey.PuntoAyarla(SatırPuntosu);
    const int son = static_cast<int>(m_sütunlar.size()) - 1;
    for (int i = 0; i <= son; ++i) {
        const QString başlık = Metin(m_sütunlar.at(i).Başlık);
        m_yerler[i].SağKenar = m_yerler.at(i).Konum + m_yüzey.MetinGenişliği(başlık);
        m_yüzey.XAyarla(m_yerler.at(i).Konum);
        if (i < son) {
            m_yüzey.Yaz(başlık, {m_yerler.at(i + 1).Konum - MetinArası - m_yerler.at(i).Konum, 0});
        } else {
            m_yüzey.YazVeSatırıBitir(başlık, {m_sayfaGenişliği - SağPay - m_yerler.at(i).Konum, 0});
        }
    }
    m_yüzey.KalınAyarla(false);
    m_yüzey.AltÇizgiAyarla(false);
    m_yüzey.YAyarla(m_yüzey.Y() + 1);
}

bool SayfaDüzeni::SayfaSonunaBak() {
    return SayfaSonunaBak(AltBoşluk);
}

bool SayfaDüzeni::SayfaSonunaBak(double yükseklik) {
    if (m_yüzey.Y() + yükseklik < m_sayfaYüksekliği) return false;
    SayfaBaşlığıYaz();
    return true;
}

void SayfaDüzeni::SayfaBaşlığıYaz() {
    m_yüzey.YeniSayfa();
    const QString sayfaMetni = Metin(884) + QLatin1Char(' ') + QString::number(m_yüzey.SayfaNo());
    const double sayfaMetniSolu = m_sayfaGenişliği - (m_yüzey.MetinGenişliği(sayfaMetni) + SayfaBaşlığıKenarı);
    m_yüzey.YAyarla(SayfaBaşlığıÜstü);
    m_yüzey.XAyarla(SayfaBaşlığıKenarı);
    m_yüzey.Yaz(m_raporBaşlığı, {sayfaMetniSolu - MetinArası - SayfaBaşlığıKenarı, 0});
    m_yüzey.XAyarla(sayfaMetniSolu);
    m_yüzey.YazVeSatırıBitir(sayfaMetni);
    m_yüzey.Çiz(SayfaBaşlığıKenarı, SayfaBaşlığıÇizgisi, m_sayfaGenişliği - SayfaBaşlığıKenarı, SayfaBaşlığıÇizgisi,
                Qt::black);
    m_yüzey.YAyarla(ÜstBoşluk);
}

void SayfaDüzeni::SatırYaz(const QStringList& hücreler) {
    const int son = static_cast<int>(m_sütunlar.size()) - 1;
    double sol = Sol(0, hücreler.at(0));
    for (int i = 0; i <= son; ++i) {
        const QString& metin = hücreler.at(i);
        m_yüzey.XAyarla(sol);
        if (i < son) {
            const double sağdaki = Sol(i + 1, hücreler.at(i + 1));
            m_yüzey.Yaz(metin, Yer(i, metin, sağdaki - MetinArası));
            sol = sağdaki;
        } else {
            m_yüzey.YazVeSatırıBitir(metin, Yer(i, metin, m_sayfaGenişliği - SağPay));
        }
    }
}

void SayfaDüzeni::HücreYaz(int sütun, const QString& metin) {
    m_yüzey.XAyarla(m_yerler.at(sütun).Konum);
    m_yüzey.Yaz(metin, Yer(sütun, metin, m_yerler.at(sütun + 1).Konum - MetinArası));
}

void SayfaDüzeni::ÖzetSatırıYaz(const QString& etiket, const QString& değer) {
    const int son = static_cast<int>(m_sütunlar.size()) - 1;
    m_yüzey.XAyarla(SağKenar(son - 1) - m_yüzey.MetinGenişliği(etiket));
    m_yüzey.Yaz(etiket);
    m_yüzey.XAyarla(SağKenar(son) - m_yüzey.MetinGenişliği(değer));
    m_yüzey.YazVeSatırıBitir(değer);
}

void SayfaDüzeni::Bitir() {
    m_yüzey.KalınAyarla(false);
    m_yüzey.AltÇizgiAyarla(false);
    m_yüzey.Bitir();
}

double SayfaDüzeni::Sol(int sütun, const QString& metin) const {
    if (m_sütunlar.at(sütun).Tür != HücreTürü::Sayı) return m_yerler.at(sütun).Konum;
    return SağKenar(sütun) - m_yüzey.MetinGenişliği(metin);
}

// Room of a cell whose right neighbour (or the page's edge) stands at `sağdaki`.
SayfaYüzeyi::Yer SayfaDüzeni::Yer(int sütun, const QString& metin, double sağdaki) const {
    const double genişlik = std::max(0.0, sağdaki - m_yerler.at(sütun).Konum);
    switch (m_sütunlar.at(sütun).Tür) {
        case HücreTürü::Sayı:
            break;
        case HücreTürü::Miktar:
            return {genişlik, std::max<qsizetype>(0, metin.indexOf(QLatin1Char(' ')))};
        case HücreTürü::Metin:
            return {genişlik, 0};
    }
    return {};
}

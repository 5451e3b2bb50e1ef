#include "SayfaDuzeni.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "MetinSigdir.h"
#include "MetinTablosu.h"

namespace {

constexpr int BaşlıkPuntosu = 14;
constexpr int SatırPuntosu = 11;
constexpr int EnKüçükPunto = 8;     // of a running header in one line...
constexpr int İkiSatırPuntosu = 6;  // ...and of one in two, which have room above its rule

// Millimetres
constexpr double ÜstBoşluk = 15;
constexpr double AltBoşluk = 15;
constexpr double SayfaBaşlığıÜstü = 5;
constexpr double SayfaBaşlığıKenarı = 10;
constexpr double SayfaBaşlığıÇizgisi = 10;
constexpr double MetinArası = 2;  // free before the page number

int SatırSayısı(const QList<SatırParçası>& parçalar) {
    return parçalar.constLast().Satır + 1;
}

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
    const auto ölçü = [this](const QString& metin) { return m_yüzey.MetinGenişliği(metin); };
    // A title that is wider than the page is narrowed to the width of the running header, or takes several lines.
    const double doğal = ölçü(m_raporBaşlığı);
    double genişlik = m_sayfaGenişliği;
    if (const double dar = genişlik - 2 * SayfaBaşlığıKenarı; doğal > genişlik && doğal * ENDAR <= dar) genişlik = dar;
    const bool tekSatır = doğal * ENDAR <= genişlik;
    for (const QString& satır : tekSatır ? QStringList(m_raporBaşlığı) : MetniBöl(m_raporBaşlığı, genişlik, 0, ölçü)) {
        const bool sığar = ölçü(satır) <= genişlik;
        m_yüzey.XAyarla((m_sayfaGenişliği - (sığar ? ölçü(satır) : genişlik)) / 2);
        m_yüzey.YazVeSatırıBitir(satır, {sığar ? SayfaYüzeyi::SINIRSIZ : genişlik, 0});
    }
}

void SayfaDüzeni::SütunBaşlıklarınıYaz() {
    m_yüzey.YAyarla(m_yüzey.Y() + 5);
    m_yüzey.PuntoAyarla(SatırPuntosu);
    QList<SatırHücresi> hücreler;
    for (qsizetype i = 0; i < m_sütunlar.size(); ++i) {
        const QString başlık = Metin(m_sütunlar.at(i).Başlık);
        SütunYeri& yer = m_yerler[i];
        yer.SağKenar = std::min<double>(yer.Konum + m_yüzey.MetinGenişliği(başlık), m_sayfaGenişliği);
        hücreler.append({başlık, HücreTürü::Metin, static_cast<double>(yer.Konum), yer.SağKenar});
    }
    ParçalarıYaz(Yerleştir(hücreler), false);
    m_yüzey.KalınAyarla(false);
    m_yüzey.AltÇizgiAyarla(false);
    m_yüzey.YAyarla(m_yüzey.Y() + 1);
}

bool SayfaDüzeni::SayfaSonunaBak(double yükseklik) {
    if (m_yüzey.Y() + yükseklik < m_sayfaYüksekliği) return false;
    SayfaBaşlığıYaz();
    return true;
}

void SayfaDüzeni::SayfaBaşlığıYaz() {
    m_yüzey.YeniSayfa();
    const QString sayfaMetni = Metin(MetinNo::SayfaBaşı) + QLatin1Char(' ') + QString::number(m_yüzey.SayfaNo());
    const double sayfaMetniSolu = m_sayfaGenişliği - (m_yüzey.MetinGenişliği(sayfaMetni) + SayfaBaşlığıKenarı);
    SayfadakiBaşlığıYaz(sayfaMetniSolu - MetinArası - SayfaBaşlığıKenarı);
    m_yüzey.YAyarla(SayfaBaşlığıÜstü);
    m_yüzey.XAyarla(sayfaMetniSolu);
    m_yüzey.YazVeSatırıBitir(sayfaMetni);
    m_yüzey.Çiz(SayfaBaşlığıKenarı, SayfaBaşlığıÇizgisi, m_sayfaGenişliği - SayfaBaşlığıKenarı, SayfaBaşlığıÇizgisi,
                Qt::black);
    m_yüzey.YAyarla(m_başlıklarYinelenir ? SayfaBaşlığıÇizgisi - SayfaBaşlığıÜstü / 2 : ÜstBoşluk);
    if (!m_başlıklarYinelenir) return;
    m_yüzey.KalınAyarla(true);
    m_yüzey.AltÇizgiAyarla(true);
    SütunBaşlıklarınıYaz();
}

// A title that is too long for its line is written smaller, then in two lines; only what is longer even so is cut.
void SayfaDüzeni::SayfadakiBaşlığıYaz(double oda) {
    const auto ölçü = [this](const QString& metin) { return m_yüzey.MetinGenişliği(metin); };
    const auto sığar = [&] { return ölçü(m_raporBaşlığı) * ENDAR <= oda; };
    for (int punto = SatırPuntosu - 1; punto >= EnKüçükPunto && !sığar(); --punto) m_yüzey.PuntoAyarla(punto);
    m_yüzey.YAyarla(SayfaBaşlığıÜstü);
    m_yüzey.XAyarla(SayfaBaşlığıKenarı);
    if (sığar()) {
        m_yüzey.Yaz(m_raporBaşlığı, {oda, 0});
    } else {
        m_yüzey.PuntoAyarla(İkiSatırPuntosu);
        const QStringList satırlar = MetniBöl(m_raporBaşlığı, oda / ENDAR, 0, ölçü);
        m_yüzey.YazVeSatırıBitir(satırlar.first(), {oda, 0});
        m_yüzey.XAyarla(SayfaBaşlığıKenarı);
        m_yüzey.Yaz(satırlar.mid(1).join(QLatin1Char(' ')), {oda, 0});
    }
    m_yüzey.PuntoAyarla(SatırPuntosu);
}

void SayfaDüzeni::SatırYaz(const QStringList& hücreler, const QString& yeniSayfada) {
    QList<SatırParçası> parçalar = SatırıYerleştir(hücreler);
    const double fazlası = (SatırSayısı(parçalar) - 1) * m_yüzey.SatırYüksekliği();
    // A row that is taller than a page goes on over the page's end.
    const bool sayfayaSığar = ÜstBoşluk + fazlası + AltBoşluk < m_sayfaYüksekliği;
    if (SayfaSonunaBak(AltBoşluk + (sayfayaSığar ? fazlası : 0)) && hücreler.at(0).isEmpty() &&
        !yeniSayfada.isEmpty()) {
        QStringList tam = hücreler;
        tam[0] = yeniSayfada;
        parçalar = SatırıYerleştir(tam);
    }
    ParçalarıYaz(parçalar, !sayfayaSığar);
}

void SayfaDüzeni::ParçalarıYaz(const QList<SatırParçası>& parçalar, bool sayfaSonunaBakılır) {
    for (qsizetype i = 0; i < parçalar.size(); ++i) {
        const SatırParçası& parça = parçalar.at(i);
        if (sayfaSonunaBakılır && i > 0 && parçalar.at(i - 1).Satır != parça.Satır) SayfaSonunaBak(AltBoşluk);
        m_yüzey.XAyarla(parça.X);
        if (i + 1 < parçalar.size() && parçalar.at(i + 1).Satır == parça.Satır) {
            m_yüzey.Yaz(parça.Metin, parça.Yer);
        } else {
            m_yüzey.YazVeSatırıBitir(parça.Metin, parça.Yer);
        }
    }
}

void SayfaDüzeni::AltYazıYaz(const QString& metin) {
    const QList<SatırParçası> parçalar =
        Yerleştir({{metin, HücreTürü::Metin, static_cast<double>(m_yerler.constFirst().Konum), 0}});
    SayfaSonunaBak(AltBoşluk + SatırSayısı(parçalar) * m_yüzey.SatırYüksekliği());
    m_yüzey.YAyarla(m_yüzey.Y() + m_yüzey.SatırYüksekliği());
    ParçalarıYaz(parçalar, true);
}

void SayfaDüzeni::ÖzetSatırıYaz(const QString& etiket, const QString& değer) {
    ParçalarıYaz(ÖzetiYerleştir(etiket, değer), false);
}

double SayfaDüzeni::ÖzetSatırıYüksekliği(const QString& etiket, const QString& değer) const {
    return SatırSayısı(ÖzetiYerleştir(etiket, değer)) * m_yüzey.SatırYüksekliği();
}

void SayfaDüzeni::Bitir() {
    m_yüzey.KalınAyarla(false);
    m_yüzey.AltÇizgiAyarla(false);
    m_yüzey.Bitir();
}

QList<SatırParçası> SayfaDüzeni::Yerleştir(const QList<SatırHücresi>& hücreler) const {
    return ::SatırıYerleştir(hücreler, m_sayfaGenişliği,
                             [this](const QString& metin) { return m_yüzey.MetinGenişliği(metin); });
}

QList<SatırParçası> SayfaDüzeni::SatırıYerleştir(const QStringList& hücreler) const {
    QList<SatırHücresi> satır;
    for (qsizetype i = 0; i < m_sütunlar.size(); ++i) {
        const SütunYeri& yer = m_yerler.at(i);
        satır.append({hücreler.at(i), m_sütunlar.at(i).Tür, static_cast<double>(yer.Konum), yer.SağKenar});
    }
    return Yerleştir(satır);
}

QList<SatırParçası> SayfaDüzeni::ÖzetiYerleştir(const QString& etiket, const QString& değer) const {
    const int son = static_cast<int>(m_sütunlar.size()) - 1;
    return Yerleştir({{etiket, HücreTürü::Sayı, 0, SağKenar(son - 1)}, {değer, HücreTürü::Sayı, 0, SağKenar(son)}});
}

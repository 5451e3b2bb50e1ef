#include "SatirYerlesimi.h"

#include <algorithm>
#include <utility>

#include "MetinSigdir.h"

namespace {

// Millimetres
constexpr double SayıArası = 1;    // at least this much stays free before a figure...
constexpr double MetinArası = 2;   // ...before the next text...
constexpr double SağPay = 5;       // ...and between a text and the page's right edge
constexpr double EnDarSütun = 10;  // a text is not broken into lines shorter than this
constexpr double Yuvarlama = 1e-6;

// Of a quantity's figure, which ends at the first blank.
qsizetype SayıUzunluğu(const QString& miktar) {
    const qsizetype boşluk = miktar.indexOf(QLatin1Char(' '));
    if (boşluk >= 0) return boşluk;
    return !miktar.isEmpty() && miktar.back().isDigit() ? miktar.size() : 0;
}

class Yerleştirici {
  public:
    Yerleştirici(const QList<SatırHücresi>& hücreler, double sayfaGenişliği,
                 const std::function<double(const QString&)>& ölçü)
        : m_hücreler(hücreler), m_sayfa(sayfaGenişliği), m_sağUç(std::max(sayfaGenişliği - SağPay, 1.0)), m_ölçü(ölçü) {
        for (const SatırHücresi& hücre : hücreler) m_doğal.append(ölçü(hücre.Metin));
    }

    QList<SatırParçası> Yerleştir() {
        for (qsizetype i = 0; i < m_hücreler.size(); ++i) {
            const int satır = m_hücreler.at(i).Tür == HücreTürü::Sayı ? SayıyıKoy(i) : MetniKoy(i);
            if (m_dar) m_enÜst = satır;
        }
        std::sort(m_parçalar.begin(), m_parçalar.end(), [](const Konulan& a, const Konulan& b) {
            return std::pair(a.Parça.Satır, a.Hücre) < std::pair(b.Parça.Satır, b.Hücre);
        });
        QList<SatırParçası> parçalar;
        for (const Konulan& konulan : std::as_const(m_parçalar)) parçalar.append(konulan.Parça);
        return parçalar;
    }

  private:
    struct Konulan {
        qsizetype Hücre;
        SatırParçası Parça;
        double Sağ;
    };
    struct Yer {
        int Satır;
        double X;
        double Oda;
    };

    double SayınınSolu(qsizetype i) const {
        return std::max(0.0, m_hücreler.at(i).SağKenar - std::min(m_doğal.at(i), m_sayfa));
    }

    // Both give the line of the cell's beginning.
    int SayıyıKoy(qsizetype i) {
        const SatırHücresi& hücre = m_hücreler.at(i);
        const double doğal = m_doğal.at(i);
        SayfaYüzeyi::Yer yer;
        if (doğal > m_sayfa) yer = {m_sayfa, hücre.Metin.size()};
        return Koy(i, m_enÜst, SayınınSolu(i), std::min(doğal, m_sayfa), hücre.Metin, yer);
    }

    int MetniKoy(qsizetype i) {
        const SatırHücresi& hücre = m_hücreler.at(i);
        const double doğal = m_doğal.at(i);
        const qsizetype korunan = hücre.Tür == HücreTürü::Miktar ? SayıUzunluğu(hücre.Metin) : 0;
        if (const double oda = Oda(i, m_enÜst, hücre.Konum); doğal <= oda) {
            return Koy(i, m_enÜst, hücre.Konum, doğal, hücre.Metin, {oda, korunan});
        }
        const double sayı = korunan > 0 ? m_ölçü(hücre.Metin.left(korunan)) : 0;
        const double enAz = std::max(std::min(doğal, EnDarSütun / ENDAR), sayı) * ENDAR;
        const Yer yer = YerBul(i, doğal, enAz);
        if (doğal * ENDAR <= yer.Oda) {
            return Koy(i, yer.Satır, yer.X, std::min(doğal, yer.Oda), hücre.Metin, {yer.Oda, korunan});
        }
        const QStringList parçalar = MetniBöl(hücre.Metin, yer.Oda, korunan, m_ölçü);
        const int ilk =
            Koy(i, yer.Satır, yer.X, std::min(m_ölçü(parçalar.at(0)), yer.Oda), parçalar.at(0), {yer.Oda, korunan});
        int satır = ilk;
        for (const QString& parça : parçalar.mid(1)) {
            satır = Koy(i, satır + 1, yer.X, std::min(m_ölçü(parça), yer.Oda), parça, {yer.Oda, 0});
        }
        return ilk;
    }

    Yer YerBul(qsizetype i, double doğal, double enAz) {
        double x = m_hücreler.at(i).Konum;
        for (int satır = m_enÜst; satır <= std::max(m_enÜst, SatırSayısı()); ++satır) {
            const double oda = Oda(i, satır, x);
            if (oda >= enAz) return {satır, x, oda};
        }
        // Its column has no useful room on any line: it takes what the page has, and what follows it stands no higher.
        m_dar = true;
        if (m_sağUç - x < enAz) x = std::max(0.0, m_sağUç - doğal);
        return {m_enÜst, x, m_sağUç - x};
    }

    // The room at x on a line: up to what stands there and to the columns that are still to be filled.
    double Oda(qsizetype hücre, int satır, double x) const {
        double sağ = m_sağUç;
        for (const Konulan& konulan : m_parçalar) {
            if (konulan.Parça.Satır != satır || konulan.Sağ + MetinArası <= x) continue;
            sağ = std::min(sağ, konulan.Parça.X - MetinArası);
        }
        for (qsizetype i = hücre + 1; i < m_hücreler.size(); ++i) {
            const SatırHücresi& sonraki = m_hücreler.at(i);
            const double sol = sonraki.Tür == HücreTürü::Sayı ? SayınınSolu(i) : sonraki.Konum;
            sağ = std::min(sağ, sol - MetinArası);
        }
        return sağ - x;
    }

    bool Boş(int satır, double sol, double sağ, double ara) const {
        return std::none_of(m_parçalar.begin(), m_parçalar.end(), [=](const Konulan& konulan) {
            return konulan.Parça.Satır == satır && !konulan.Parça.Metin.isEmpty() &&
                   sol + Yuvarlama < konulan.Sağ + ara && konulan.Parça.X + Yuvarlama < sağ + ara;
        });
    }

    // On this line, or on the first one below that is free there; gives the line.
    int Koy(qsizetype hücre, int satır, double x, double genişlik, const QString& metin, SayfaYüzeyi::Yer yer) {
        const double ara = m_hücreler.at(hücre).Tür == HücreTürü::Sayı ? SayıArası : MetinArası;
        while (!metin.isEmpty() && !Boş(satır, x, x + genişlik, ara)) ++satır;
        m_parçalar.append({hücre, {satır, x, metin, yer}, x + genişlik});
        return satır;
    }

    int SatırSayısı() const {
        int sayı = 0;
        for (const Konulan& konulan : m_parçalar) sayı = std::max(sayı, konulan.Parça.Satır + 1);
        return sayı;
    }

    const QList<SatırHücresi>& m_hücreler;
    double m_sayfa;
    double m_sağUç;
    const std::function<double(const QString&)>& m_ölçü;
    QList<double> m_doğal;  // the cells' widths
    QList<Konulan> m_parçalar;
    bool m_dar = false;  // a cell had to leave its column
    int m_enÜst = 0;     // the line above which nothing more may stand
};

}  // namespace

QList<SatırParçası> SatırıYerleştir(const QList<SatırHücresi>& hücreler, double sayfaGenişliği,
                                    const std::function<double(const QString&)>& ölçü) {
    return Yerleştirici(hücreler, sayfaGenişliği, ölçü).Yerleştir();
}

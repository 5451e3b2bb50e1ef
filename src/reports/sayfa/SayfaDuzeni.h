#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "SatirYerlesimi.h"
#include "SayfaYuzeyi.h"

enum class MetinNo : int;

// Whole millimetres, halves to the even one (297,5 -> 298; 296,5 -> 296).
std::int16_t TamMilimetre(double milimetre);

struct SayfaSütunu {
    MetinNo Başlık;
    double Bölen;  // page width / Bölen = left position
    HücreTürü Tür;
};

// The page scheme that all printouts share: title, captions, rows, page breaks with a running header. A printout states
// its title, its columns and what it prints beside plain rows.
//
//     SayfaDüzeni düzen(yüzey, başlık, sütunlar);
//     if (!düzen.Başla()) return;
//     for each row düzen.SatırYaz(...);
//     düzen.Bitir();
class SayfaDüzeni {
  public:
    SayfaDüzeni(SayfaYüzeyi& yüzey, QString raporBaşlığı, QList<SayfaSütunu> sütunlar);

    // The captions stand on every page from now on; for printouts of many columns.
    void BaşlıklarıYinele() { m_başlıklarYinelenir = true; }

    // Opens the document and prints title and captions. False: the surface cannot begin, the printout does nothing.
    bool Başla();

    // Starts a new page when no more than `yükseklik` millimetres are left; tells whether it did.
    bool SayfaSonunaBak(double yükseklik);
    // A new page with title, page number and rule.
    void SayfaBaşlığıYaz();

    // One cell per column, in as many lines as its texts need; a row that would come within the bottom reserve starts a
    // new page. What its first cell says there, if that is empty: yeniSayfada.
    void SatırYaz(const QStringList& hücreler, const QString& yeniSayfada = {});

    // A text under the rows, over the page's width.
    void AltYazıYaz(const QString& metin);

    // Label and value end at the right edges of the last two columns' captions.
    void ÖzetSatırıYaz(const QString& etiket, const QString& değer);
    // In the current font; millimetres.
    double ÖzetSatırıYüksekliği(const QString& etiket, const QString& değer) const;

    void Bitir();

    SayfaYüzeyi& Yüzey() { return m_yüzey; }
    std::int16_t SayfaYüksekliği() const { return m_sayfaYüksekliği; }
    std::int16_t SütunKonumu(int sütun) const { return m_yerler.at(sütun).Konum; }
    // Right edge of the column's caption, in the font in which it was printed; within the page.
    double SağKenar(int sütun) const { return m_yerler.at(sütun).SağKenar; }

  private:
    struct SütunYeri {
        std::int16_t Konum = 0;
        double SağKenar = 0;
    };
    void BaşlıkYaz();
    void SütunBaşlıklarınıYaz();
    void SayfadakiBaşlığıYaz(double oda);
    QList<SatırParçası> Yerleştir(const QList<SatırHücresi>& hücreler) const;
    QList<SatırParçası> SatırıYerleştir(const QStringList& hücreler) const;
    QList<SatırParçası> ÖzetiYerleştir(const QString& etiket, const QString& değer) const;
    void ParçalarıYaz(const QList<SatırParçası>& parçalar, bool sayfaSonunaBakılır);

    SayfaYüzeyi& m_yüzey;
    QString m_raporBaşlığı;
    QList<SayfaSütunu> m_sütunlar;
    QList<SütunYeri> m_yerler;
    std::int16_t m_sayfaYüksekliği = 0;
    std::int16_t m_sayfaGenişliği = 0;
    bool m_başlıklarYinelenir = false;
};

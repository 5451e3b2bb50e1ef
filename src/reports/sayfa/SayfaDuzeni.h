#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "SayfaYuzeyi.h"

// Whole millimetres, halves to the even one (297,5 -> 298; 296,5 -> 296).
std::int16_t TamMilimetre(double milimetre);

// What a column's cells hold.
enum class HücreTürü {
    Metin,   // left-aligned; gives way where there is no room
    Miktar,  // left-aligned: a figure, a blank and a unit, of which only the unit may be cut
    Sayı     // right-aligned under its caption, never cut
};

struct SayfaSütunu {
    int Başlık;    // number of the caption's text
    double Bölen;  // page width / Bölen = left position
    HücreTürü Tür;
};

// The page scheme that all printouts share: title, captions, rows, page breaks with a running header. A printout states
// its title, its columns and what it prints beside plain rows.
//
//     SayfaDüzeni düzen(yüzey, başlık, sütunlar);
//     if (!düzen.Başla()) return;
//     for each row { düzen.SayfaSonunaBak(); düzen.SatırYaz(...); }
//     düzen.Bitir();
class SayfaDüzeni {
  public:
    SayfaDüzeni(SayfaYüzeyi& yüzey, QString raporBaşlığı, QList<SayfaSütunu> sütunlar);

    // Opens the document and prints title and captions. False: the surface cannot begin, the printout does nothing.
    bool Başla();

    // Starts a new page when the next line would come within the bottom reserve; tells whether it did.
    bool SayfaSonunaBak();
    // The same when less than `yükseklik` millimetres are left.
    bool SayfaSonunaBak(double yükseklik);
    // A new page with title, page number and rule.
    void SayfaBaşlığıYaz();

    // One cell per column, the last ends the line.
    void SatırYaz(const QStringList& hücreler);
    // A left-aligned cell alone, staying on the line.
    void HücreYaz(int sütun, const QString& metin);

    // The last two columns' captions have fixed right edges; label and value end there, the value ends the line.
    void ÖzetSatırıYaz(const QString& etiket, const QString& değer);

    void Bitir();

    SayfaYüzeyi& Yüzey() { return m_yüzey; }
    std::int16_t SayfaYüksekliği() const { return m_sayfaYüksekliği; }
    std::int16_t SütunKonumu(int sütun) const { return m_yerler.at(sütun).Konum; }
    // Right edge of the column's caption, in the font in which it was printed.
    double SağKenar(int sütun) const { return m_yerler.at(sütun).SağKenar; }

  private:
    struct SütunYeri {
        std::int16_t Konum = 0;
        double SağKenar = 0;
    };
    void BaşlıkYaz();
    void SütunBaşlıklarınıYaz();
    double Sol(int sütun, const QString& metin) const;
    SayfaYüzeyi::Yer Yer(int sütun, const QString& metin, double sağdaki) const;

    SayfaYüzeyi& m_yüzey;
    QString m_raporBaşlığı;
    QList<SayfaSütunu> m_sütunlar;
    QList<SütunYeri> m_yerler;
    std::int16_t m_sayfaYüksekliği = 0;
    std::int16_t m_sayfaGenişliği = 0;
};

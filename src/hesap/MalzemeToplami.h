#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <string>
#include <string_view>

#include "Para.h"

// The stored quantity "2,5 Kilogram" in its parts: "2,5", " Kilogram" and "Kilogram". The unit is what stands after the
// last blank; a text without a blank has none.
struct MiktarParçaları {
    QStringView Sayı;
    QStringView Kalan;  // from the first blank on
    QStringView Birim;
};
MiktarParçaları MiktarıAyır(QStringView miktar);
std::string_view MiktarBirimi(std::string_view miktar);  // UTF-8; its unit alone

// The stored quantity's number. A dot can only part thousands in it: "12.5" must not count as 125.
std::optional<double> MiktarSayısı(QStringView miktar);
std::optional<double> MiktarSayısı(std::string_view miktar);  // UTF-8

// The amount of a used material as money. Nothing: beyond its range.
std::optional<Para> MalzemeTutarı(double miktar, Para fiyat);

// Adds up the used materials of one product, in the order in which the main form reads them: sums of quantities are
// floating point and depend on it.
class MalzemeSayımı {
  public:
    // What is no number is nothing. False: the row does not count, as there is no amount or it leaves money's range.
    // `birim` in UTF-8, "" for none.
    bool Ekle(std::optional<double> miktar, std::optional<Para> fiyat, std::string_view birim);

    Para Tutar() const { return m_tutar; }            // unrounded amounts, added as money
    double ToplamMiktar() const { return m_miktar; }  // of the rows before the first with another unit
    bool BirimlerFarklı() const { return m_birimlerFarklı; }

  private:
    Para m_tutar;
    double m_miktar = 0;
    bool m_birimlerFarklı = false;
    bool m_ilk = true;
    std::string m_birim;  // the first row's
};

// A used material as the list shows it.
struct MalzemeSatırı {
    QString Miktar;
    QString Fiyat;
    QString Tutar;
    bool Sayıldı = true;  // false: quantity or price is unreadable or too large; the row's stored texts are shown
};

// The same from stored texts, with the rows as the list shows them.
class MalzemeToplamı {
  public:
    // miktar as stored; fiyat with "," as its decimal mark; the row's figures get `basamak` decimals.
    MalzemeSatırı Ekle(const QString& miktar, const QString& fiyat, int basamak);

    Para Tutar() const { return m_sayım.Tutar(); }
    double ToplamMiktar() const { return m_sayım.ToplamMiktar(); }
    bool BirimlerFarklı() const { return m_sayım.BirimlerFarklı(); }

  private:
    MalzemeSayımı m_sayım;
};

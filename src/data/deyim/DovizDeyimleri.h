#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "Para.h"

// Currencies, their rates, and the materials whose price is kept in one. The tables are made by the first writing; a
// data file without them is whole.
namespace Deyimler::Döviz {

inline constexpr const char* TABLO = "DovizTablosu";

QStringList TablolarıOluştur();

struct Döviz {
    QString Kod;  // capital letters A to Z
    Para Kur;     // above 0
    QString Gün;  // of the rate, yyyy-MM-dd
};
QString Dövizler();  // all columns in that order; by code
QString DövizEkle(const Döviz& döviz);
QString DövizSil(const QString& kod);
QString KuruYaz(const QString& kod, Para eski, Para yeni, const QString& gün);  // where `eski` still stands

// A material's price in a currency.
struct Bağ {
    QString Malzeme;
    QString Kod;
    Para Fiyat;    // in the currency, above 0
    Para Yazılan;  // the catalogue's price that the last rate wrote, or that stood there when the tie was made
    Para Önceki;   // what Yazılan was before that rate
    std::int64_t İşlem = 0;  // that rate's operation; 0: none yet
};
QString Bağlar();  // all columns in that order; by material
QString BağıMalzemenin(const QString& malzeme);
QString BağEkle(const Bağ& bağ);
QString BağSil(const QString& malzeme);
QString BağınYazılanı(const Bağ& bağ);  // sets Yazılan, Önceki and İşlem

}  // namespace Deyimler::Döviz

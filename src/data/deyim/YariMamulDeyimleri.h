#pragma once

#include <QString>
#include <QStringList>

// Materials that stand for products. The table is made by the first writing; a data file without it is whole. A
// material stands for one product at most; names go between single quotes as they are (Yazılabilir).
namespace Deyimler::YarıMamul {

inline constexpr const char* TABLO = "YariMamulTablosu";

QStringList TablolarıOluştur();

struct Bağ {
    QString Malzeme;
    QString Grup;
    QString Ürün;
    QString Tür;    // one of the words of TutarTürü
    QString Durum;  // one of the words of BağDurumu: what became of it the last time
};
QString Bağlar();  // all columns in that order; by material
QString BağEkle(const Bağ& bağ);
QString BağSil(const QString& malzeme);
QString ÜrünüYaz(const QString& malzeme, const QString& grup, const QString& ürün);
QString DurumuYaz(const QString& malzeme, const QString& durum);

// A used material's price in one product.
QString ÜründekiFiyat(const QString& grup, const QString& ürün, const QString& malzeme, const QString& fiyat);

}  // namespace Deyimler::YarıMamul

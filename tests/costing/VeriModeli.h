#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <array>

#include "Para.h"

// What the data should be, kept in memory beside the data file: plain lists and the rules in their plainest form.
// Names compare as the data file compares them.
class VeriModeli {
  public:
    struct Ürün {
        QString Grup, Ad;
        std::array<QString, 4> Yüzdeler;  // as typed; labour, profit, other, maturity
    };
    struct Malzeme {
        QString Ad, Fiyat;  // the price as typed
    };
    struct Kullanım {
        QString Tarih, Grup, Ürün, Malzeme, Miktar, Fiyat;  // the day as yyyy-mm-dd
    };

    QList<Ürün> Ürünler;
    QList<Malzeme> Malzemeler;
    QList<Kullanım> Kullanımlar;

    static bool Eş(const QString& a, const QString& b);

    bool ÜrünVar(const QString& grup, const QString& ad) const { return İlkÜrün(grup, ad); }
    bool MalzemeVar(const QString& ad) const;
    void GrubuSil(const QString& grup);
    void ÜrünüSil(const QString& grup, const QString& ad);
    // Whether two groups that are not one already have a product of the same name.
    bool OrtakÜrünVar(const QString& grup, const QString& öteki) const;
    void GrubuAdlandır(const QString& eski, const QString& yeni);
    // False: another product of the group bears the name.
    bool ÜrünüAdlandır(const QString& grup, const QString& eski, const QString& yeni);
    void FiyatDeğiştir(const QString& ad, const QString& fiyat);
    void MalzemeSil(const QString& ad, bool ürünlerdenDe);
    void Çıkar(const QString& grup, const QString& ürün, const QString& malzeme);
    // varolan: names that the product used before the transfer began.
    void Aktar(const QStringList& varolan, const Kullanım& satır);
    void YüzdeleriKaydet(const QString& grup, const QString& ürün, const std::array<QString, 4>& yüzdeler);
    const Ürün* İlkÜrün(const QString& grup, const QString& ürün) const;

    // Every row as the data file gives it, each headed by its table's name, sorted.
    QList<QStringList> HerSatır() const;
    // Groups by their exact names, each with its products in order.
    QMap<QString, QStringList> Ağaç() const;
    // The product's used materials as the main form lists them, sorted; columns parted by "|".
    QStringList Liste(const QString& grup, const QString& ürün) const;
    QStringList KullanılanAdlar(const QString& grup, const QString& ürün) const;
};

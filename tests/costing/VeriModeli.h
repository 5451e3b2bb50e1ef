#pragma once

#include <QMap>
#include <QStringList>
#include <algorithm>
#include <array>

#include "SayiMetni.h"
#include "TurkceSira.h"

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

    // A number as the data file gives it: no grouping, "." for the decimals.
    static QString Ham(const QString& sayı) { return QString::number(ParaOku(sayı)->Double(), 'g', 15); }
    static bool Eş(const QString& a, const QString& b) {
        return Türkçe::Karşılaştır(QStringView(a), QStringView(b)) == 0;
    }

    bool ÜrünVar(const QString& grup, const QString& ad) const { return İlkÜrün(grup, ad); }
    bool MalzemeVar(const QString& ad) const {
        return std::any_of(Malzemeler.begin(), Malzemeler.end(), [&](const Malzeme& m) { return Eş(m.Ad, ad); });
    }
    void GrubuSil(const QString& grup) {
        Ürünler.removeIf([&](const Ürün& ü) { return Eş(ü.Grup, grup); });
        Kullanımlar.removeIf([&](const Kullanım& k) { return Eş(k.Grup, grup); });
    }
    void ÜrünüSil(const QString& grup, const QString& ad) {
        Ürünler.removeIf([&](const Ürün& ü) { return Eş(ü.Grup, grup) && Eş(ü.Ad, ad); });
        Kullanımlar.removeIf([&](const Kullanım& k) { return Eş(k.Grup, grup) && Eş(k.Ürün, ad); });
    }
    // Whether two groups that are not one already have a product of the same name.
    bool OrtakÜrünVar(const QString& grup, const QString& öteki) const {
        return !Eş(grup, öteki) && std::any_of(Ürünler.begin(), Ürünler.end(),
                                               [&](const Ürün& ü) { return Eş(ü.Grup, grup) && ÜrünVar(öteki, ü.Ad); });
    }
    void GrubuAdlandır(const QString& eski, const QString& yeni) {
        for (Ürün& ü : Ürünler)
            if (Eş(ü.Grup, eski)) ü.Grup = yeni;
        for (Kullanım& k : Kullanımlar)
            if (Eş(k.Grup, eski)) k.Grup = yeni;
    }
    // False: another product of the group bears the name.
    bool ÜrünüAdlandır(const QString& grup, const QString& eski, const QString& yeni) {
        for (const Ürün& ü : Ürünler)
            if (Eş(ü.Grup, grup) && Eş(ü.Ad, yeni) && ü.Ad != eski) return false;
        for (Ürün& ü : Ürünler)
            if (Eş(ü.Grup, grup) && Eş(ü.Ad, eski)) ü.Ad = yeni;
        for (Kullanım& k : Kullanımlar)
            if (Eş(k.Grup, grup) && Eş(k.Ürün, eski)) k.Ürün = yeni;
        return true;
    }
    void FiyatDeğiştir(const QString& ad, const QString& fiyat) {
        for (Malzeme& m : Malzemeler)
            if (Eş(m.Ad, ad)) m.Fiyat = fiyat;
        for (Kullanım& k : Kullanımlar)
            if (Eş(k.Malzeme, ad)) k.Fiyat = fiyat;
    }
    void MalzemeSil(const QString& ad, bool ürünlerdenDe) {
        Malzemeler.removeIf([&](const Malzeme& m) { return Eş(m.Ad, ad); });
        if (ürünlerdenDe) Kullanımlar.removeIf([&](const Kullanım& k) { return Eş(k.Malzeme, ad); });
    }
    void Çıkar(const QString& grup, const QString& ürün, const QString& malzeme) {
        Kullanımlar.removeIf(
            [&](const Kullanım& k) { return Eş(k.Grup, grup) && Eş(k.Ürün, ürün) && Eş(k.Malzeme, malzeme); });
    }
    // varolan: names that the product used before the transfer began.
    void Aktar(const QStringList& varolan, const Kullanım& satır) {
        if (std::none_of(varolan.begin(), varolan.end(), [&](const QString& ad) { return Eş(ad, satır.Malzeme); })) {
            Kullanımlar.append(satır);
            return;
        }
        for (Kullanım& k : Kullanımlar)
            if (Eş(k.Grup, satır.Grup) && Eş(k.Ürün, satır.Ürün) && Eş(k.Malzeme, satır.Malzeme)) k = satır;
    }
    void YüzdeleriKaydet(const QString& grup, const QString& ürün, const std::array<QString, 4>& yüzdeler) {
        for (Ürün& ü : Ürünler)
            if (Eş(ü.Grup, grup) && Eş(ü.Ad, ürün)) ü.Yüzdeler = yüzdeler;
    }
    const Ürün* İlkÜrün(const QString& grup, const QString& ad) const {
        for (const Ürün& ürün : Ürünler)
            if (Eş(ürün.Grup, grup) && Eş(ürün.Ad, ad)) return &ürün;
        return nullptr;
    }

    // Every row as the data file gives it, each headed by its table's name, sorted.
    QList<QStringList> HerSatır() const {
        QList<QStringList> hepsi;
        for (const Ürün& ü : Ürünler) {
            QStringList satır{"UrunTablosu", ü.Grup, ü.Ad};
            for (const QString& yüzde : ü.Yüzdeler) satır.append(Ham(yüzde));
            hepsi.append(satır);
        }
        for (const Malzeme& m : Malzemeler) hepsi.append({"MalzemeTablosu", m.Ad, Ham(m.Fiyat)});
        for (const Kullanım& k : Kullanımlar) {
            hepsi.append(
                {"UrunMalzemeTablosu", k.Tarih + " 00:00:00", k.Grup, k.Ürün, k.Malzeme, k.Miktar, Ham(k.Fiyat)});
        }
        std::sort(hepsi.begin(), hepsi.end());
        return hepsi;
    }
    // Groups by their exact names, each with its products in order.
    QMap<QString, QStringList> Ağaç() const {
        QMap<QString, QStringList> ağaç;
        for (const Ürün& ü : Ürünler) ağaç[ü.Grup].append(ü.Ad);
        for (QStringList& adlar : ağaç) adlar.sort();
        return ağaç;
    }
    // The product's used materials as the main form lists them, sorted; columns parted by "|".
    QStringList Liste(const QString& grup, const QString& ürün) const {
        QStringList satırlar;
        for (const Kullanım& k : Kullanımlar) {
            if (!Eş(k.Grup, grup) || !Eş(k.Ürün, ürün)) continue;
            const qsizetype boşluk = k.Miktar.indexOf(' ');
            const double tutar = *DoubleOku(k.Fiyat) * *DoubleOku(k.Miktar.left(boşluk));
            satırlar.append(QStringList({*SayıMetniBiçimle(k.Miktar.left(boşluk), 2) + k.Miktar.mid(boşluk), k.Malzeme,
                                         *SayıMetniBiçimle(k.Fiyat, 2), *SayıBiçimle(tutar, 2)})
                                .join('|'));
        }
        satırlar.sort();
        return satırlar;
    }
    QStringList KullanılanAdlar(const QString& grup, const QString& ürün) const {
        QStringList adlar;
        for (const Kullanım& k : Kullanımlar)
            if (Eş(k.Grup, grup) && Eş(k.Ürün, ürün)) adlar.append(k.Malzeme);
        return adlar;
    }
};

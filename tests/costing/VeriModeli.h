#pragma once

#include <QMap>
#include <QStringList>
#include <algorithm>

#include "SayiMetni.h"
#include "TurkceSira.h"

// What the data should be, kept in memory beside the data file: the tables as plain lists of rows, numbers as they were
// typed. Names compare as the data file compares them.
struct VeriModeli {
    using Satırlar = QList<QStringList>;
    using Değerler = QMap<int, QString>;  // by column

    // Products have four percentages after their name; the day of a use is yyyy-mm-dd.
    enum ÜrünSütunu { Grup, Ürün, Yüzdeler, DiğerYüzdesi = 4 };
    enum MalzemeSütunu { Ad, Fiyatı };
    enum KullanımSütunu { Malzeme = Ürün + 1, Miktar, Fiyat, Tarih };

    Satırlar Ürünler, Malzemeler, Kullanımlar;

    static bool Eş(const QString& a, const QString& b) {
        return Türkçe::Karşılaştır(QStringView(a), QStringView(b)) == 0;
    }
    static bool Uyar(const QStringList& satır, const Değerler& koşul) {
        return std::all_of(koşul.keyBegin(), koşul.keyEnd(), [&](int i) { return Eş(satır[i], koşul[i]); });
    }
    static Satırlar Bul(const Satırlar& tablo, const Değerler& koşul) {
        Satırlar bulunan;
        for (const QStringList& satır : tablo)
            if (Uyar(satır, koşul)) bulunan += satır;
        return bulunan;
    }
    static bool Var(const Satırlar& tablo, const Değerler& koşul) { return !Bul(tablo, koşul).isEmpty(); }
    static void Sil(Satırlar& tablo, const Değerler& koşul) {
        tablo.removeIf([&](const QStringList& satır) { return Uyar(satır, koşul); });
    }
    static void Değiştir(Satırlar& tablo, const Değerler& koşul, const Değerler& yeni) {
        for (QStringList& satır : tablo)
            if (Uyar(satır, koşul))
                for (auto değer = yeni.begin(); değer != yeni.end(); ++değer) satır[değer.key()] = değer.value();
    }

    // Whether two groups that are not one already have a product of the same name.
    bool OrtakÜrünVar(const QString& grup, const QString& öteki) const {
        const Satırlar ürünleri = Bul(Ürünler, {{Grup, grup}});
        return !Eş(grup, öteki) && std::any_of(ürünleri.begin(), ürünleri.end(), [&](const QStringList& ü) {
            return Var(Ürünler, {{Grup, öteki}, {Ürün, ü[Ürün]}});
        });
    }

    // A number as the data file gives it: no grouping, "." for the decimals.
    static QString Ham(const QString& sayı) { return QString::number(ParaOku(sayı)->Double(), 'g', 15); }
    // Every row as the data file gives it, each headed by its table's name, sorted.
    Satırlar HerSatır() const {
        Satırlar hepsi;
        for (QStringList ü : Ürünler) {
            for (int i = Yüzdeler; i < ü.size(); ++i) ü[i] = Ham(ü[i]);
            hepsi += QStringList("UrunTablosu") + ü;
        }
        for (const QStringList& m : Malzemeler) hepsi += {"MalzemeTablosu", m[Ad], Ham(m[Fiyatı])};
        for (const QStringList& k : Kullanımlar)
            hepsi +=
                {"UrunMalzemeTablosu", k[Tarih] + " 00:00:00", k[Grup], k[Ürün], k[Malzeme], k[Miktar], Ham(k[Fiyat])};
        std::sort(hepsi.begin(), hepsi.end());
        return hepsi;
    }
    // The product's used materials as the main form lists them, sorted; columns parted by "|".
    QStringList Liste(const QString& grup, const QString& ürün) const {
        QStringList satırlar;
        for (const QStringList& k : Bul(Kullanımlar, {{Grup, grup}, {Ürün, ürün}})) {
            const QString miktar = k[Miktar].section(' ', 0, 0);
            satırlar +=
                QStringList{*SayıMetniBiçimle(miktar, 2) + k[Miktar].mid(miktar.size()), k[Malzeme],
                            *SayıMetniBiçimle(k[Fiyat], 2), *SayıBiçimle(*DoubleOku(k[Fiyat]) * *DoubleOku(miktar), 2)}
                    .join('|');
        }
        satırlar.sort();
        return satırlar;
    }
};

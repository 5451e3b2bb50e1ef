#include "MetinSigdir.h"

#include <algorithm>

namespace {

constexpr double Yuvarlama = 1e-6;  // between the measures of who breaks a text and who draws it

using Ölçü = std::function<double(const QString&)>;

bool ÇiftinOrtası(const QString& metin, qsizetype yer) {
    return yer > 0 && metin.at(yer - 1).isHighSurrogate();
}

// The text's first `uzunluk` characters with the sign that some are missing; no half letter, no blank before the sign.
QString Kes(const QString& metin, qsizetype uzunluk) {
    if (ÇiftinOrtası(metin, uzunluk)) --uzunluk;
    while (uzunluk > 0 && metin.at(uzunluk - 1).isSpace()) --uzunluk;
    return metin.left(uzunluk) + QChar(0x2026);
}

// How many characters fit, at least one.
qsizetype Sığan(const QString& metin, double genişlik, const Ölçü& ölçü) {
    qsizetype sığan = 1;
    qsizetype sığmayan = metin.size() + 1;
    while (sığmayan - sığan > 1) {
        const qsizetype orta = (sığan + sığmayan) / 2;
        (ölçü(metin.left(orta)) <= genişlik ? sığan : sığmayan) = orta;
    }
    return ÇiftinOrtası(metin, sığan) && sığan < metin.size() ? sığan + (sığan > 1 ? -1 : 1) : sığan;
}

// The length of the text's first line.
qsizetype İlkSatır(const QString& metin, double genişlik, qsizetype korunan, const Ölçü& ölçü) {
    const QChar boşluk = QLatin1Char(' ');
    const qsizetype sığan = Sığan(metin, genişlik, ölçü);
    if (sığan == metin.size()) return sığan;
    if (const qsizetype son = metin.lastIndexOf(boşluk, sığan); son > 0 && son >= korunan) return son;
    const qsizetype ilkBoşluk = metin.indexOf(boşluk);
    const qsizetype sözcük = ilkBoşluk > 0 ? ilkBoşluk : metin.size();
    if (sözcük <= korunan || ölçü(metin.left(sözcük)) * ENDAR <= genişlik) return sözcük;
    return Sığan(metin, genişlik / ENDAR, ölçü);
}

}  // namespace

Sığdırılan MetniSığdır(const QString& metin, SayfaYüzeyi::Yer yer, const std::function<double(const QString&)>& ölçü) {
    const double doğal = ölçü(metin);
    if (doğal <= yer.Genişlik) return {metin, 1, doğal};
    const double oran = yer.Genişlik / doğal;
    if (oran >= ENDAR - Yuvarlama) return {metin, oran, yer.Genişlik};

    // The longest beginning that fits, found by halving.
    qsizetype sığan = std::min(yer.Korunan, metin.size());
    qsizetype sığmayan = metin.size();
    while (sığmayan - sığan > 1) {
        const qsizetype orta = (sığan + sığmayan) / 2;
        (ölçü(Kes(metin, orta)) * ENDAR <= yer.Genişlik ? sığan : sığmayan) = orta;
    }
    const QString kesik = sığan < metin.size() ? Kes(metin, sığan) : metin;
    const double genişlik = ölçü(kesik);
    const double kesikOranı = yer.Korunan > 0 ? std::min(ENDAR, yer.Genişlik / genişlik) : ENDAR;
    return {kesik, kesikOranı, genişlik * kesikOranı};
}

QStringList MetniBöl(const QString& metin, double genişlik, qsizetype korunan, const Ölçü& ölçü) {
    QStringList satırlar;
    QString kalan = metin.trimmed();
    do {
        const qsizetype uzunluk = İlkSatır(kalan, genişlik, korunan, ölçü);
        satırlar.append(kalan.left(uzunluk));
        kalan = kalan.mid(uzunluk).trimmed();
        korunan = 0;
    } while (!kalan.isEmpty());
    return satırlar;
}

#include "MetinSigdir.h"

#include <algorithm>

namespace {

constexpr double ENDAR = 0.7;

// The text's first `uzunluk` characters with the sign that some are missing; no half letter, no blank before the sign.
QString Kes(const QString& metin, qsizetype uzunluk) {
    if (uzunluk > 0 && metin.at(uzunluk - 1).isHighSurrogate()) --uzunluk;
    while (uzunluk > 0 && metin.at(uzunluk - 1).isSpace()) --uzunluk;
    return metin.left(uzunluk) + QChar(0x2026);
}

}  // namespace

Sığdırılan MetniSığdır(const QString& metin, SayfaYüzeyi::Yer yer, const std::function<double(const QString&)>& ölçü) {
    const double doğal = ölçü(metin);
    if (doğal <= yer.Genişlik) return {metin, 1, doğal};
    const double oran = yer.Genişlik / doğal;
    if (oran >= ENDAR) return {metin, oran, yer.Genişlik};

    // The longest beginning that fits, found by halving.
    qsizetype sığan = std::min(yer.Korunan, metin.size());
    qsizetype sığmayan = metin.size();
    while (sığmayan - sığan > 1) {
        const qsizetype orta = (sığan + sığmayan) / 2;
        (ölçü(Kes(metin, orta)) * ENDAR <= yer.Genişlik ? sığan : sığmayan) = orta;
    }
    const QString kesik = sığan < metin.size() ? Kes(metin, sığan) : metin;
    return {kesik, ENDAR, ölçü(kesik) * ENDAR};
}

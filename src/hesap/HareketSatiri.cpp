#include "HareketSatiri.h"

#include "SayiMetni.h"

HareketSatırı HareketiBiçimle(const QString& miktar, const QString& fiyat, int basamak) {
    const qsizetype boşluk = miktar.indexOf(QLatin1Char(' '));
    const QStringView sayı = boşluk < 0 ? QStringView(miktar) : QStringView(miktar).left(boşluk);
    const QStringView kalan = QStringView(miktar).mid(sayı.size());
    const QString fiyatMetni = NoktayıVirgüleÇevir(fiyat);

    HareketSatırı satır{miktar, fiyatMetni, {}};
    // In a stored number a dot can only part thousands: "12.5" must not count as 125.
    const std::optional<double> adet = DoubleOku(sayı, NoktaKuralı::Yerinde);
    if (adet) satır.Miktar = SayıMetniBiçimle(sayı, basamak).value_or(QString()).append(kalan);
    const std::optional<Para> birimFiyat = ParaOku(fiyatMetni, NoktaKuralı::Yerinde);
    if (birimFiyat) satır.Fiyat = SayıBiçimle(*birimFiyat, basamak);
    const std::optional<Para> tutar = Para::Doubledan(birimFiyat.value_or(Para()).Double() * adet.value_or(0));
    if (tutar) satır.Tutar = SayıBiçimle(*tutar, basamak);
    return satır;
}

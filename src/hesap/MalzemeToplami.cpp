#include "MalzemeToplami.h"

#include "SayiMetni.h"

MiktarParçaları MiktarıAyır(QStringView miktar) {
    const qsizetype ilk = miktar.indexOf(u' ');
    if (ilk < 0) return {miktar, {}, {}};
    return {miktar.left(ilk), miktar.mid(ilk), miktar.mid(miktar.lastIndexOf(u' ') + 1)};
}

std::optional<double> MiktarSayısı(QStringView miktar) {
    return DoubleOku(MiktarıAyır(miktar).Sayı, NoktaKuralı::Yerinde);
}

std::optional<Para> MalzemeTutarı(double miktar, Para fiyat) {
    return Para::Doubledan(fiyat.Double() * miktar);
}

MalzemeSatırı MalzemeToplamı::Ekle(const QString& miktar, const QString& fiyat, int basamak) {
    MalzemeSatırı satır{miktar, fiyat, {}};
    const MiktarParçaları parçalar = MiktarıAyır(miktar);
    BirimeBak(parçalar.Birim);

    const std::optional<Ondalık> adet = OndalıkOku(parçalar.Sayı, NoktaKuralı::Yerinde);
    const std::optional<double> sayı = adet ? EnYakınDouble(*adet) : std::nullopt;
    if (sayı) satır.Miktar = SayıBiçimle(*adet, basamak).append(parçalar.Kalan);
    const std::optional<Para> birimFiyat = ParaOku(fiyat, NoktaKuralı::Yerinde);
    if (birimFiyat) satır.Fiyat = SayıBiçimle(*birimFiyat, basamak);

    std::optional<Para> toplam;
    if (sayı && birimFiyat) {
        if (const std::optional<Ondalık> tutar = OnBeşHaneyle(birimFiyat->Double() * *sayı)) {
            satır.Tutar = SayıBiçimle(*tutar, basamak);
            if (const std::optional<Para> para = Para::Ondalıktan(*tutar)) toplam = Topla(m_tutar, *para);
        }
    }
    if (satır.Tutar.isEmpty()) satır.Tutar = SayıBiçimle(Para(), basamak);
    satır.Sayıldı = toplam.has_value();
    m_tutar = toplam.value_or(m_tutar);
    if (sayı && !m_birimlerFarklı) m_miktar += *sayı;
    return satır;
}

void MalzemeToplamı::BirimeBak(QStringView birim) {
    if (!m_birim) {
        m_birim = birim.toString();
    } else if (birim != *m_birim) {
        m_birimlerFarklı = true;
    }
}

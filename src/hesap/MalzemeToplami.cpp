#include "MalzemeToplami.h"

#include <algorithm>

#include "SayiMetni.h"
#include "TurkceMetin.h"

MiktarParçaları MiktarıAyır(QStringView miktar) {
    const qsizetype ilk = miktar.indexOf(u' ');
    if (ilk < 0) return {miktar, {}, {}};
    return {miktar.left(ilk), miktar.mid(ilk), miktar.mid(miktar.lastIndexOf(u' ') + 1)};
}

std::optional<double> MiktarSayısı(QStringView miktar) {
    return DoubleOku(MiktarıAyır(miktar).Sayı, NoktaKuralı::Yerinde);
}

std::optional<double> MiktarSayısı(std::string_view miktar) {
    // Nearly all quantities are plain digits with a comma or none: whole numbers that doubles hold exactly, and the
    // quotient of two such is the nearest double itself.
    constexpr int sınır = 15;
    constexpr double onlar[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    std::int64_t sayı = 0;
    int rakam = 0;
    int kesir = -1;  // digits behind the comma; -1: no comma yet
    for (const char harf : miktar) {
        if (harf == ' ' && rakam > 0) break;
        if (harf == ',' && kesir < 0) {
            kesir = 0;
            continue;
        }
        if (harf < '0' || harf > '9' || ++rakam > sınır) return MiktarSayısı(QStringView(Utf8Metni(miktar)));
        sayı = sayı * 10 + (harf - '0');
        if (kesir >= 0) ++kesir;
    }
    if (rakam == 0) return std::nullopt;
    return static_cast<double>(sayı) / onlar[std::max(kesir, 0)];
}

std::optional<Para> MalzemeTutarı(double miktar, Para fiyat) {
    return Para::Doubledan(fiyat.Double() * miktar);
}

std::string_view MiktarBirimi(std::string_view miktar) {
    const std::size_t boşluk = miktar.rfind(' ');
    return boşluk == std::string_view::npos ? std::string_view() : miktar.substr(boşluk + 1);
}

bool MalzemeSayımı::Ekle(std::optional<double> miktar, std::optional<Para> fiyat, std::string_view birim) {
    if (m_ilk) m_birim = birim;
    m_ilk = false;
    if (birim != m_birim) m_birimlerFarklı = true;
    const std::optional<Para> tutar = miktar && fiyat ? MalzemeTutarı(*miktar, *fiyat) : std::nullopt;
    const std::optional<Para> toplam = tutar ? Topla(m_tutar, *tutar) : std::nullopt;
    m_tutar = toplam.value_or(m_tutar);
    if (miktar && !m_birimlerFarklı) m_miktar += *miktar;
    return toplam.has_value();
}

MalzemeSatırı MalzemeToplamı::Ekle(const QString& miktar, const QString& fiyat, int basamak) {
    MalzemeSatırı satır{miktar, fiyat, {}};
    const MiktarParçaları parçalar = MiktarıAyır(miktar);
    const std::optional<Ondalık> adet = OndalıkOku(parçalar.Sayı, NoktaKuralı::Yerinde);
    const std::optional<double> sayı = adet ? EnYakınDouble(*adet) : std::nullopt;
    if (sayı) satır.Miktar = SayıBiçimle(*adet, basamak).append(parçalar.Kalan);
    const std::optional<Para> birimFiyat = ParaOku(fiyat, NoktaKuralı::Yerinde);
    if (birimFiyat) satır.Fiyat = SayıBiçimle(*birimFiyat, basamak);
    const std::optional<Ondalık> tutar = sayı && birimFiyat ? OnBeşHaneyle(birimFiyat->Double() * *sayı) : std::nullopt;
    satır.Tutar = tutar ? SayıBiçimle(*tutar, basamak) : SayıBiçimle(Para(), basamak);
    const QByteArray birim = parçalar.Birim.toUtf8();
    satır.Sayıldı = m_sayım.Ekle(sayı, birimFiyat, {birim.constData(), static_cast<std::size_t>(birim.size())});
    return satır;
}

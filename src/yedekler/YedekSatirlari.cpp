#include "YedekSatirlari.h"

#include <QFileInfo>
#include <QLocale>

#include "YedekMetinleri.h"

namespace {

constexpr qint64 KB = 1024;

void KopyalarıEkle(std::vector<YedekSatırı>& satırlar, const QString& klasör, const QString& yer) {
    for (const Kopya& kopya : KopyalarıOku(klasör)) {
        YedekSatırı satır;
        satır.Yol = kopya.Yol;
        satır.Yer = yer;
        satır.Değişme = kopya.Ad.Değişme;
        satır.Boy = kopya.Boy;
        satır.Tür = kopya.Ad.Tür;
        satırlar.push_back(satır);
    }
}

YedekSatırı TekDosya(const QString& yol, YedekSatırı::Cins cins) {
    const QFileInfo dosya(yol);
    YedekSatırı satır;
    satır.Yol = yol;
    satır.Değişme = dosya.lastModified();
    satır.Boy = dosya.size();
    satır.Ne = cins;
    return satır;
}

QString Sayı(std::int64_t sayı) {
    return QLocale(QLocale::Turkish).toString(static_cast<qlonglong>(sayı));
}

}  // namespace

QList<TabloSütunu> YedekSütunlarınıVer() {
    return {{YedekMetni::GünSütunu, 16},       {YedekMetni::TürSütunu, 24},          {YedekMetni::BoySütunu, 10, true},
            {YedekMetni::ÜrünSütunu, 7, true}, {YedekMetni::MalzemeSütunu, 8, true}, {YedekMetni::SatırSütunu, 9, true},
            {YedekMetni::DenetimSütunu, 14},   {YedekMetni::YerSütunu, 24}};
}

QString TürMetni(const YedekSatırı& satır) {
    if (satır.Ne == YedekSatırı::Cins::SonYedek) return Metin(YedekMetni::TürSonYedek);
    if (satır.Ne == YedekSatırı::Cins::Dosya) return Metin(YedekMetni::TürDosya);
    switch (satır.Tür) {
        case KopyaTürü::Elle:
            return Metin(YedekMetni::TürElle);
        case KopyaTürü::Önce:
            return Metin(YedekMetni::TürÖnce);
        case KopyaTürü::Ham:
            return Metin(YedekMetni::TürHam);
        case KopyaTürü::Günlük:
            break;
    }
    return Metin(YedekMetni::TürGünlük);
}

QString GünMetni(const YedekSatırı& satır) {
    return satır.Değişme.toString(QStringLiteral("dd.MM.yyyy HH:mm"));
}

QString DenetimMetni(const YedekSatırı& satır) {
    if (satır.Aşama == YedekSatırı::Denetim::Sırada) return Metin(YedekMetni::DenetimSırada);
    if (satır.Aşama == YedekSatırı::Denetim::Sürüyor) return Metin(YedekMetni::DenetimSürüyor);
    switch (satır.Bilgi.Durum) {
        case YedekDurumu::Sağlam:
            return Metin(YedekMetni::DenetimSağlam);
        case YedekDurumu::Bozuk:
            return Metin(YedekMetni::DenetimBozuk);
        case YedekDurumu::BaşkaSürüm:
            return Metin(YedekMetni::DenetimBaşkaSürüm);
        case YedekDurumu::Durduruldu:
            return Metin(YedekMetni::DenetimSırada);
        case YedekDurumu::Okunamadı:
            break;
    }
    return Metin(YedekMetni::DenetimOkunamadı);
}

QString YedekSatırları::Hücre(std::size_t satır, int sütun) const {
    const YedekSatırı& s = Satırlar[satır];
    const bool sayılar = s.Aşama == YedekSatırı::Denetim::Bitti && s.Bilgi.Durum == YedekDurumu::Sağlam;
    switch (sütun) {
        case YGün:
            return GünMetni(s);
        case YTür:
            return TürMetni(s);
        case YBoy:
            return Metin(YedekMetni::BoyMetni).arg(Sayı((s.Boy + KB - 1) / KB));
        case YÜrün:
            return sayılar ? Sayı(s.Bilgi.Sayılar.Ürün) : QString();
        case YMalzeme:
            return sayılar ? Sayı(s.Bilgi.Sayılar.Malzeme) : QString();
        case YSatır:
            return sayılar ? Sayı(s.Bilgi.Sayılar.Satır) : QString();
        case YDenetim:
            return DenetimMetni(s);
        default:
            return s.Yer.isEmpty() ? Metin(YedekMetni::BuDosya) : s.Yer;
    }
}

int YedekSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const YedekSatırı& x = Satırlar[a];
    const YedekSatırı& y = Satırlar[b];
    switch (sütun) {
        case YGün:
            return Sırala(x.Değişme, y.Değişme);
        case YBoy:
            return Sırala(x.Boy, y.Boy);
        case YÜrün:
            return Sırala(x.Bilgi.Sayılar.Ürün, y.Bilgi.Sayılar.Ürün);
        case YMalzeme:
            return Sırala(x.Bilgi.Sayılar.Malzeme, y.Bilgi.Sayılar.Malzeme);
        case YSatır:
            return Sırala(x.Bilgi.Sayılar.Satır, y.Bilgi.Sayılar.Satır);
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

QString YedekSatırları::Açıklama(std::size_t satır) const {
    const YedekSatırı& s = Satırlar[satır];
    return s.Bilgi.Neden.isEmpty() ? s.Yol : Metin(YedekMetni::TabloAçıklaması).arg(s.Yol, s.Bilgi.Neden);
}

std::vector<YedekSatırı> YedekleriBul(const VeriYolları& yollar, const QString& damga) {
    std::vector<YedekSatırı> satırlar;
    const QString kendisi = KopyaKlasörü(yollar.YedekKlasörü, yollar.GerçekDosya, damga);
    // Raw copies are not opened for a mark and stand by the path alone.
    const QString hamlar = KopyaKlasörü(yollar.YedekKlasörü, yollar.GerçekDosya, {});
    const auto bununMu = [&](const KopyaYeri& yer) {
        return yer.Klasör == kendisi || yer.Klasör == hamlar || (damga.isEmpty() && yer.Dosya == yollar.GerçekDosya);
    };
    const std::vector<KopyaYeri> yerler = KopyaYerleri(yollar.YedekKlasörü);
    for (const KopyaYeri& yer : yerler)
        if (bununMu(yer) && yer.Klasör != hamlar) KopyalarıEkle(satırlar, yer.Klasör, {});
    KopyalarıEkle(satırlar, hamlar, {});
    if (QFileInfo::exists(yollar.Yedek)) satırlar.push_back(TekDosya(yollar.Yedek, YedekSatırı::Cins::SonYedek));
    for (const KopyaYeri& yer : yerler)
        if (!bununMu(yer))
            KopyalarıEkle(satırlar, yer.Klasör, yer.Dosya.isEmpty() ? Metin(YedekMetni::YeriBilinmiyor) : yer.Dosya);
    return satırlar;
}

YedekSatırı DosyaSatırı(const QString& yol) {
    YedekSatırı satır = TekDosya(yol, YedekSatırı::Cins::Dosya);
    satır.Yer = yol;
    return satır;
}

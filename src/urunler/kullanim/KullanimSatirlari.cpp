#include "KullanimSatirlari.h"

#include "KullanimMetinleri.h"
#include "MalzemeToplami.h"
#include "SayiMetni.h"
#include "UrunMetinleri.h"

namespace {

template <typename T>
int SonaBırakarakSırala(const std::optional<T>& a, const std::optional<T>& b) {
    return a && b ? Sırala(*a, *b) : Sırala(!a, !b);
}

std::optional<double> Double(const std::optional<Ondalık>& sayı) {
    return sayı ? EnYakınDouble(*sayı) : std::nullopt;
}

KullanımSatırları::Satır SatırYap(const MalzemeKullanımı::Ürün& ürün, const MalzemeKullanımı::Satır& okunan,
                                  int basamak) {
    KullanımSatırları::Satır satır;
    satır.Ürün = &ürün;
    satır.İkiKez = okunan.İkiKez;
    const QString miktar = QString::fromStdString(okunan.Miktar);
    MalzemeToplamı toplam;  // the way that the main form's list goes
    const MalzemeSatırı gösterilen =
        toplam.Ekle(miktar, okunan.Fiyat ? SayıBiçimle(*okunan.Fiyat, 4) : QString(), basamak);
    satır.Miktar = gösterilen.Miktar;
    satır.SaklananMiktar = miktar;
    satır.Fiyat = gösterilen.Fiyat;
    satır.Tutar = gösterilen.Tutar;
    satır.MiktarSayısı = MiktarSayısı(miktar);
    satır.MiktarOkunur = satır.MiktarSayısı.has_value();
    satır.FiyatSayısı = OndalıkOku(gösterilen.Fiyat);
    if (!gösterilen.Sayıldı) return satır;
    satır.TutarSayısı = OndalıkOku(gösterilen.Tutar);
    const std::optional<double> tutar = Double(satır.TutarSayısı);
    if (tutar && ürün.Listede && ürün.MalzemeMaliyeti != Para())
        satır.Pay = *tutar / ürün.MalzemeMaliyeti.Double() * 100;
    return satır;
}

}  // namespace

QList<TabloSütunu> KullanımSütunlarınıVer() {
    return {{MetinNo::GrubuSütunu, 14},
            {MetinNo::ÜrünSütunu, 24},
            {MetinNo::MiktarıSütunu, 14, false, ÇizelgedeSütun::Miktar},
            {MetinNo::FiyatıSütunu, 12, true},
            {MetinNo::TutarıSütunu, 13, true},
            {KullanımMetni::PaySütunu, 8, true},
            {ÜrünMetni::DikkatSütunu, 16}};
}

void KullanımSatırları::Al(const MalzemeKullanımı& kullanım, std::size_t malzeme, int basamak) {
    Satırlar.clear();
    for (const MalzemeKullanımı::Satır& satır : kullanım.Satırlar(malzeme))
        Satırlar.push_back(SatırYap(kullanım.Ürünler()[satır.Ürün], satır, basamak));
}

QString KullanımSatırları::Hücre(std::size_t satır, int sütun) const {
    const Satır& s = Satırlar[satır];
    switch (sütun) {
        case KGrup:
            return s.Ürün->Grup;
        case KÜrün:
            return s.Ürün->Ad;
        case KMiktar:
            return s.Miktar;
        case KFiyat:
            return s.Fiyat;
        case KTutar:
            return s.Tutar;
        case KPay:
            return s.Pay ? SayıBiçimle(*s.Pay, PAY_BASAMAĞI).value_or(QString()) : QString();
        default:
            return Açıklama(satır);
    }
}

int KullanımSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const Satır& x = Satırlar[a];
    const Satır& y = Satırlar[b];
    switch (sütun) {
        case KMiktar:
            return SonaBırakarakSırala(x.MiktarSayısı, y.MiktarSayısı);
        case KFiyat:
            return SonaBırakarakSırala(Double(x.FiyatSayısı), Double(y.FiyatSayısı));
        case KTutar:
            return SonaBırakarakSırala(Double(x.TutarSayısı), Double(y.TutarSayısı));
        case KPay:
            return SonaBırakarakSırala(x.Pay, y.Pay);
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

QString KullanımSatırları::Açıklama(std::size_t satır) const {
    const Satır& s = Satırlar[satır];
    QStringList metin;
    if (!s.Ürün->Listede) metin.append(Metin(KullanımMetni::ÜrünListedeYok));
    if (!s.MiktarOkunur)
        metin.append(Metin(ÜrünMetni::DikkatOkunamayanMiktar));
    else if (!s.TutarSayısı)
        metin.append(Metin(ÜrünMetni::DikkatTutarTaşıyor));
    if (s.İkiKez) metin.append(Metin(ÜrünMetni::DikkatİkiKez));
    return metin.join(QStringLiteral("; "));
}

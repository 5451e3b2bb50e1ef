#include "SatisSatirlari.h"

#include "FiyatYazimi.h"
#include "KullanimMetinleri.h"
#include "MaliyetSatirlari.h"
#include "SatisFiyati.h"
#include "SayiMetni.h"
#include "UrunMetinleri.h"
#include "YariMamulMetinleri.h"

namespace {

QString Biçimle(const std::optional<Para>& tutar) {
    return tutar ? SayıBiçimle(*tutar, SatışSatırları::BASAMAK) : QString();
}

}  // namespace

QList<TabloSütunu> SatışSütunlarınıVer() {
    return {{MetinNo::GrubuSütunu, 14},
            {MetinNo::ÜrünSütunu, 26},
            {KullanımMetni::FiyatSütunu, 14, true},
            {KullanımMetni::KdvSütunu, 8, true},
            {KullanımMetni::KdvliSütunu, 14, true},
            {ÜrünMetni::DikkatSütunu, 22}};
}

void SatışSatırları::Al(const std::vector<MaliyetTablosuSatırı>& ürünler) {
    Satırlar.clear();
    for (const MaliyetTablosuSatırı& ü : ürünler)
        Satırlar.push_back({ü.Grup,
                            ü.Ad,
                            ü.GrupSırası,
                            ü.AdSırası,
                            ü.Toplam,
                            ü.Dikkat,
                            ü.YarıMamul,
                            {},
                            {},
                            ü.Dikkat == 0 && !ü.YarıMamul});
}

void SatışSatırları::Hesapla(const Yuvarlama& yuvarlama, std::optional<Para> oran) {
    Oran = oran;
    for (Satır& satır : Satırlar) {
        satır.Fiyat = SatışFiyatı(satır.Toplam, yuvarlama);
        satır.Kdvli = satır.Fiyat && oran ? KdvliFiyat(*satır.Fiyat, *oran) : std::nullopt;
    }
}

QString SatışSatırları::Hücre(std::size_t satır, int sütun) const {
    const Satır& s = Satırlar[satır];
    switch (sütun) {
        case SGrup:
            return s.Grup;
        case SAd:
            return s.Ad;
        case SFiyat:
            return Biçimle(s.Fiyat);
        case SKdv:
            return Oran ? SayıYazımı(*Oran) : QString();
        case SKdvli:
            return Biçimle(s.Kdvli);
        default:
            return Açıklama(satır);
    }
}

int SatışSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const Satır& x = Satırlar[a];
    const Satır& y = Satırlar[b];
    switch (sütun) {
        case SGrup:
            return Sırala(x.GrupSırası, y.GrupSırası);
        case SAd:
            return Sırala(x.AdSırası, y.AdSırası);
        case SFiyat:
            return Sırala(x.Fiyat, y.Fiyat);
        case SKdv:
            return 0;
        case SKdvli:
            return Sırala(x.Kdvli, y.Kdvli);
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

std::optional<bool> SatışSatırları::İşaret(std::size_t satır) const {
    const Satır& s = Satırlar[satır];
    const bool basılır = s.Fiyat && *s.Fiyat > Para() && (s.Kdvli || !Oran);
    return basılır ? std::optional(s.İstenen) : std::nullopt;
}

QString SatışSatırları::Açıklama(std::size_t satır) const {
    const Satır& s = Satırlar[satır];
    QStringList metin;
    if (!s.Fiyat || (Oran && !s.Kdvli))
        metin.append(Metin(MetinNo::NedenÇokBüyük));
    else if (*s.Fiyat <= Para())
        metin.append(Metin(KullanımMetni::FiyatSıfırYaDaAltı));
    if (s.Dikkat != 0) metin.append(DikkatMetni(s.Dikkat));
    if (s.YarıMamul) metin.append(Metin(YarıMamulMetni::NedenYarıMamul));
    return metin.join(QStringLiteral("; "));
}

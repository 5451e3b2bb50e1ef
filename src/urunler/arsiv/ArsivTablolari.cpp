#include "ArsivTablolari.h"

#include "ArsivMetinleri.h"
#include "ArsivMetni.h"
#include "FiyatYazimi.h"
#include "MalzemeToplami.h"
#include "SayiMetni.h"
#include "UrunMetinleri.h"

namespace {

enum FöyMalzemeSütunları { MMiktar, MAd, MFiyat };

}  // namespace

QList<TabloSütunu> ArşivSütunlarınıVer() {
    return {{ArşivMetni::NoSütunu, 3, true},
            {ArşivMetni::GünSütunu, 8, false, ÇizelgedeSütun::Tarih},
            {ArşivMetni::FöySayısıSütunu, 5, true},
            {ArşivMetni::KapsamSütunu, 12},
            {ArşivMetni::NotSütunu, 14}};
}

QString ArşivSatırları::Hücre(std::size_t satır, int sütun) const {
    const Başlık& s = Satırlar[satır];
    switch (sütun) {
        case ANo:
            return QString::number(s.No);
        case AGün:
            return GünMetni(s.Gün);
        case AKapsam:
            return KapsamMetni(s.Neyin);
        case ANot:
            return s.Not;
        default:
            return QString::number(s.FöySayısı);
    }
}

int ArşivSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const Başlık& x = Satırlar[a];
    const Başlık& y = Satırlar[b];
    switch (sütun) {
        case ANo:
            return Sırala(x.No, y.No);
        case AGün:
            return Sırala(x.Gün, y.Gün);
        case AFöy:
            return Sırala(x.FöySayısı, y.FöySayısı);
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

QList<TabloSütunu> FöySütunlarınıVer() {
    return {{MetinNo::GrubuSütunu, 10},
            {MetinNo::ÜrünSütunu, 16},
            {ÜrünMetni::ToplamSütunu, 10, true},
            {ÜrünMetni::DikkatSütunu, 10}};
}

QString FöySatırları::Hücre(std::size_t satır, int sütun) const {
    const FöyBaşlığı& s = Satırlar[satır];
    switch (sütun) {
        case FGrup:
            return s.Grup;
        case FÜrün:
            return s.Ürün;
        case FToplam:
            return s.ToplamMetni;
        default:
            return ArşivDikkatMetni(s.Dikkat);
    }
}

int FöySatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    if (sütun == FToplam) return Sırala(Satırlar[a].Toplam, Satırlar[b].Toplam);
    if (sütun == FDikkat) return Sırala(Satırlar[a].Dikkat, Satırlar[b].Dikkat);
    return TabloKaynağı::Karşılaştır(a, b, sütun);
}

QList<TabloSütunu> FöyMalzemeSütunlarınıVer() {
    return {{MetinNo::MiktarıSütunu, 12, false, ÇizelgedeSütun::Miktar},
            {MetinNo::AdıSütunu, 24},
            {MetinNo::FiyatıSütunu, 10, true},
            {MetinNo::TutarıSütunu, 12, true}};
}

QString FöyMalzemeleri::Hücre(std::size_t satır, int sütun) const {
    const Deyimler::Arşiv::Satır& s = Satırlar[satır];
    const QString* hücreler[] = {&s.MiktarMetni, &s.Malzeme, &s.FiyatMetni, &s.TutarMetni};
    return *hücreler[sütun];
}

QString FöyMalzemeleri::Saklanan(std::size_t satır, int sütun) const {
    const Deyimler::Arşiv::Satır& s = Satırlar[satır];
    if (sütun == MMiktar) return s.Miktar;
    // A row that did not count may have held a price that is none: what it showed.
    return sütun == MFiyat && s.Sayıldı ? SayıYazımı(s.Fiyat) : Hücre(satır, sütun);
}

int FöyMalzemeleri::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const auto& x = Satırlar[a];
    const auto& y = Satırlar[b];
    const auto adet = [](const Deyimler::Arşiv::Satır& s) { return MiktarSayısı(s.Miktar).value_or(0); };
    if (sütun == MAd) return TabloKaynağı::Karşılaştır(a, b, sütun);
    if (sütun == MMiktar) return Sırala(adet(x), adet(y));
    if (sütun == MFiyat) return Sırala(x.Fiyat, y.Fiyat);
    return Sırala(x.Fiyat.Double() * adet(x), y.Fiyat.Double() * adet(y));
}

#include "DegisimTablosu.h"

#include <cmath>

#include "FiyatMetinleri.h"
#include "KullanimMetinleri.h"
#include "YariMamulMetinleri.h"

namespace {

double Büyüklük(const DeğişenÜrün& ürün) {
    return std::abs(ürün.SonrakiToplam.Double() - ürün.ÖncekiToplam.Double());
}

double OranBüyüklüğü(const DeğişenÜrün& ürün) {
    return ürün.ÖncekiToplam == Para() ? -1 : Büyüklük(ürün) / std::abs(ürün.ÖncekiToplam.Double());
}

QString SatırlarınMetni(const std::vector<KullanılanSatır>& satırlar) {
    QStringList metin;
    for (const KullanılanSatır& satır : satırlar) metin.append(satır.Miktar + QLatin1Char(' ') + satır.Malzeme);
    return metin.join(QStringLiteral("; "));
}

}  // namespace

QList<TabloSütunu> DeğişimSütunlarınıVer() {
    return {{MetinNo::GrubuSütunu, 12},
            {MetinNo::ÜrünSütunu, 18},
            {KullanımMetni::ÖncekiSatırlarSütunu, 22},
            {KullanımMetni::SonrakiSatırlarSütunu, 18},
            {MetinNo::ÖncekiToplamSütunu, 12, true},
            {MetinNo::SonrakiToplamSütunu, 12, true},
            {MetinNo::FarkSütunu, 10, true},
            {MetinNo::YüzdeSütunu, 7, true},
            {MetinNo::NedenSütunu, 20}};
}

QString DeğişimNedeniMetni(DeğişimNedeni neden) {
    switch (neden) {
        case DeğişimNedeni::Yok:
            return {};
        case DeğişimNedeni::FiyatıAyrı:
            return Metin(KullanımMetni::NedenFiyatıAyrı);
        case DeğişimNedeni::SatırlarıDeğişmiş:
            return Metin(KullanımMetni::NedenSatırlarıDeğişmiş);
        case DeğişimNedeni::ÜrünListedeYok:
            return Metin(KullanımMetni::ÜrünListedeYok);
        case DeğişimNedeni::BirimFarklı:
            return Metin(KullanımMetni::NedenBirimFarklı);
        case DeğişimNedeni::MiktarOkunamaz:
            return Metin(KullanımMetni::NedenMiktarOkunamaz);
        case DeğişimNedeni::SatırOkunamaz:
            return Metin(KullanımMetni::NedenSatırOkunamaz);
        case DeğişimNedeni::SonuçSıfır:
            return Metin(KullanımMetni::NedenSonuçSıfır);
        case DeğişimNedeni::MetinUzun:
            return Metin(KullanımMetni::NedenMetinUzun);
        case DeğişimNedeni::TutarBüyük:
            return Metin(MetinNo::NedenÇokBüyük);
        case DeğişimNedeni::AdYazılamaz:
            return Metin(MetinNo::NedenAdıYazılamaz);
        case DeğişimNedeni::YarıMamulünden:
            return Metin(YarıMamulMetni::NedenYarıMamulünden);
        case DeğişimNedeni::ÇemberKapatır:
            return Metin(KullanımMetni::NedenÇemberKapatır);
    }
    return {};
}

QString DeğişimSatırları::Hücre(std::size_t satır, int sütun) const {
    const DeğişenÜrün& ü = Ürün(satır);
    const bool değişir = Uygulanır(ü.Neden) || ü.Neden == DeğişimNedeni::YarıMamulünden;
    switch (sütun) {
        case DGrup:
            return ü.Grup;
        case DÜrün:
            return ü.Ad;
        case DÖnce:
            return SatırlarınMetni(ü.Önce);
        case DSonra:
            return SatırlarınMetni(ü.Sonra);
        case DÖncekiToplam:
            return ToplamMetni(ü.ÖncekiToplam);
        case DSonrakiToplam:
            return değişir ? ToplamMetni(ü.SonrakiToplam) : QString();
        case DFark:
            return değişir ? ToplamFarkı(ü.ÖncekiToplam, ü.SonrakiToplam) : QString();
        case DYüzde:
            return değişir ? YüzdeFarkı(ü.ÖncekiToplam, ü.SonrakiToplam) : QString();
        default:
            return Açıklama(satır);
    }
}

int DeğişimSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const DeğişenÜrün& x = Ürün(a);
    const DeğişenÜrün& y = Ürün(b);
    switch (sütun) {
        case DÖncekiToplam:
            return Sırala(x.ÖncekiToplam, y.ÖncekiToplam);
        case DSonrakiToplam:
            return Sırala(x.SonrakiToplam, y.SonrakiToplam);
        case DFark:
            return Sırala(Büyüklük(x), Büyüklük(y));
        case DYüzde:
            return Sırala(OranBüyüklüğü(x), OranBüyüklüğü(y));
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

std::optional<bool> DeğişimSatırları::İşaret(std::size_t satır) const {
    return Uygulanır(Ürün(satır).Neden) ? std::optional(Ürün(satır).İşaretli) : std::nullopt;
}

QString DeğişimSatırları::Açıklama(std::size_t satır) const {
    const DeğişenÜrün& ü = Ürün(satır);
    if (ü.Neden == DeğişimNedeni::Yok && ü.FiyatAyrı) return Metin(KullanımMetni::NedenFiyatıAyrı);
    return DeğişimNedeniMetni(ü.Neden);
}

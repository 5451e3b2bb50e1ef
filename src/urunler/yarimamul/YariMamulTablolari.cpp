#include "YariMamulTablolari.h"

#include "FiyatYazimi.h"
#include "MetinTablosu.h"
#include "YariMamulMetinleri.h"
#include "YariMamulSozleri.h"

QList<TabloSütunu> BağlarınKaynağı::Sütunlar() {
    return {{MetinNo::MalzemeSütunu, 20},      {MetinNo::GrubuSütunu, 11},        {MetinNo::ÜrünSütunu, 20},
            {YarıMamulMetni::TutarSütunu, 13}, {MetinNo::FiyatıSütunu, 10, true}, {YarıMamulMetni::DurumSütunu, 14}};
}

QString BağlarınKaynağı::Hücre(std::size_t satır, int sütun) const {
    const Satır& s = Satırlar[satır];
    switch (sütun) {
        case BMalzeme:
            return s.Bağ.Malzeme;
        case BGrup:
            return s.Bağ.Ürün.Grup;
        case BÜrün:
            return s.Bağ.Ürün.Ad;
        case BTutar:
            return TutarTürüMetni(s.Bağ.Tür);
        case BFiyat:
            return s.Fiyat ? FiyatMetni(*s.Fiyat) : QString();
        default:
            return DurumMetni(s.Bağ.Durum);
    }
}

int BağlarınKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    return sütun == BFiyat ? Sırala(Satırlar[a].Fiyat, Satırlar[b].Fiyat) : TabloKaynağı::Karşılaştır(a, b, sütun);
}

QString BağlarınKaynağı::Açıklama(std::size_t satır) const {
    const BağDurumu durum = Satırlar[satır].Bağ.Durum;
    return durum == BağDurumu::Uyuyor ? QString() : Metin(YarıMamulMetni::FiyatıUymuyor).arg(DurumMetni(durum));
}

QList<TabloSütunu> ÜrünlerinKaynağı::Sütunlar() {
    return {{MetinNo::GrubuSütunu, 14}, {MetinNo::ÜrünSütunu, 24}};
}

#include "YariMamulSozleri.h"

#include "MetinTablosu.h"
#include "YariMamulMetinleri.h"

QString TutarTürüMetni(TutarTürü tür) {
    switch (tür) {
        case TutarTürü::Malzeme:
            return Metin(YarıMamulMetni::TürMalzemeMaliyeti);
        case TutarTürü::Toplam:
            return Metin(YarıMamulMetni::TürToplamMaliyet);
        case TutarTürü::Birim:
            break;
    }
    return Metin(YarıMamulMetni::TürBirimMaliyet);
}

QString DurumMetni(BağDurumu durum) {
    switch (durum) {
        case BağDurumu::Uyuyor:
            return Metin(YarıMamulMetni::DurumUyuyor);
        case BağDurumu::ÜrünYok:
            return Metin(YarıMamulMetni::DurumÜrünYok);
        case BağDurumu::MalzemeYok:
            return Metin(YarıMamulMetni::DurumMalzemeYok);
        case BağDurumu::Döngüde:
            return Metin(YarıMamulMetni::DurumDöngüde);
        case BağDurumu::MalzemesizÜrün:
            return Metin(YarıMamulMetni::DurumMalzemesiz);
        case BağDurumu::OkunamayanMiktar:
            return Metin(YarıMamulMetni::DurumOkunamayan);
        case BağDurumu::FarklıBirimler:
            return Metin(YarıMamulMetni::DurumFarklıBirim);
        case BağDurumu::MiktarSıfır:
            return Metin(YarıMamulMetni::DurumMiktarSıfır);
        case BağDurumu::SıfırYaDaAltı:
            return Metin(YarıMamulMetni::DurumSıfır);
        case BağDurumu::ÇokBüyük:
            return Metin(YarıMamulMetni::DurumBüyük);
        case BağDurumu::Yazılamadı:
            break;
    }
    return Metin(YarıMamulMetni::DurumYazılamadı);
}

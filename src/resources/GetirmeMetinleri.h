#pragma once

#include "MetinTablosu.h"

// The texts of bringing products and materials in from a backup.
namespace GetirmeMetni {

inline constexpr MetinNo SeçerekGetir{3500};
inline constexpr MetinNo YedektenBaşlığı{3501};
inline constexpr MetinNo DönüşBaşlığı{3502};
inline constexpr MetinNo FarklarEtiketi{3503};
inline constexpr MetinNo AyrıntıEtiketi{3504};
inline constexpr MetinNo NeSütunu{3505};
inline constexpr MetinNo GrupSütunu{3506};
inline constexpr MetinNo AdSütunu{3507};
inline constexpr MetinNo DurumSütunu{3508};
inline constexpr MetinNo YedekteSütunu{3509};
inline constexpr MetinNo ŞimdiSütunu{3510};
inline constexpr MetinNo SonraSütunu{3511};
inline constexpr MetinNo SonrakiSütunu{3512};
inline constexpr MetinNo NeÜrün{3513};
inline constexpr MetinNo NeMalzeme{3514};
inline constexpr MetinNo DurumŞimdiYok{3515};
inline constexpr MetinNo DurumFarklı{3516};
inline constexpr MetinNo DurumSilinecek{3517};
inline constexpr MetinNo AyrıntıAdı{3518};
inline constexpr MetinNo YedektekiMiktar{3519};
inline constexpr MetinNo YedektekiGün{3520};
inline constexpr MetinNo ŞimdikiMiktar{3521};
inline constexpr MetinNo ŞimdikiGün{3522};
inline constexpr MetinNo AyrıntıFarkı{3523};
inline constexpr MetinNo YalnızGelen{3524};
inline constexpr MetinNo YalnızŞimdiki{3525};
inline constexpr MetinNo FarklıSatır{3526};
inline constexpr MetinNo Getir{3527};
inline constexpr MetinNo Uygula{3528};
inline constexpr MetinNo Özet{3529};
inline constexpr MetinNo DönüşÖzeti{3530};
inline constexpr MetinNo DiğerÜrünler{3531};
inline constexpr MetinNo ÇemberVar{3532};
inline constexpr MetinNo Hesaplanamadı{3533};
inline constexpr MetinNo GidenMalzemeler{3534};
inline constexpr MetinNo NedenBirlikte{3535};
inline constexpr MetinNo NedenDövizeBağlı{3536};
inline constexpr MetinNo NedenİkiKez{3537};
inline constexpr MetinNo NedenSatırOkunamaz{3538};
inline constexpr MetinNo NedenSonradanDeğişmiş{3539};
inline constexpr MetinNo NedenFiyatlarıDeğişmiş{3540};
inline constexpr MetinNo FarkYok{3541};
inline constexpr MetinNo GeriAlınacakYok{3542};
inline constexpr MetinNo TürGetir{3543};
inline constexpr MetinNo Açıklama{3544};
inline constexpr MetinNo Hazırlanıyor{3545};
inline constexpr MetinNo Karşılaştırılıyor{3546};
inline constexpr MetinNo Deneniyor{3547};
inline constexpr MetinNo Getiriliyor{3548};
inline constexpr MetinNo KopyaAlınamadı{3549};
inline constexpr MetinNo Saklanamadı{3550};
inline constexpr MetinNo Getirilemedi{3551};
inline constexpr MetinNo Getirildi{3552};
inline constexpr MetinNo BağlarÇözüldü{3553};
inline constexpr MetinNo GelecekMiktar{3554};
inline constexpr MetinNo GelecekGün{3555};
inline constexpr MetinNo Tümünüİşaretle{3556};

}  // namespace GetirmeMetni

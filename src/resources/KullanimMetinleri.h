#pragma once

#include "MetinTablosu.h"

// The texts of where materials are used, of replacing one, and of the price list for customers.
namespace KullanımMetni {

inline constexpr MetinNo NeredeKullanılıyorBaşlığı{2900};
inline constexpr MetinNo MalzemeEtiketi{2901};
inline constexpr MetinNo KullananlarEtiketi{2902};
inline constexpr MetinNo PaySütunu{2903};
inline constexpr MetinNo ÜrünListedeYok{2904};
inline constexpr MetinNo KatalogdaYokEki{2905};
inline constexpr MetinNo KullanımSayısı{2906};
inline constexpr MetinNo MalzemeSeçilmemiş{2907};
inline constexpr MetinNo KullanımRaporBaşlığı{2908};
inline constexpr MetinNo KullanımOkunuyor{2909};
inline constexpr MetinNo KullanılanYok{2910};
inline constexpr MetinNo TürDeğiştir{2911};
inline constexpr MetinNo DeğiştirDüğmesi{2912};
inline constexpr MetinNo MalzemeDeğiştirBaşlığı{2913};
inline constexpr MetinNo EskiMalzemeMetni{2914};
inline constexpr MetinNo YeniMalzemeEtiketi{2915};
inline constexpr MetinNo ÇarpanEtiketi{2916};
inline constexpr MetinNo ÇarpanAçıklaması{2917};
inline constexpr MetinNo ÇarpanBoş{2918};
inline constexpr MetinNo ÇarpanSıfır{2919};
inline constexpr MetinNo DeğişimAçıklaması{2920};
inline constexpr MetinNo DeğişimÖnizlemeBaşlığı{2921};
inline constexpr MetinNo DeğişimHesaplanıyor{2922};
inline constexpr MetinNo DeğişimYazılıyor{2923};
inline constexpr MetinNo DeğişimYazılamadı{2924};
inline constexpr MetinNo YeniMalzemeKatalogdaYok{2925};
inline constexpr MetinNo DeğişimÖzeti{2926};
inline constexpr MetinNo GünündenÇıkanSayısı{2927};
inline constexpr MetinNo DışarıdaKalanSayısı{2928};
inline constexpr MetinNo ÖncekiSatırlarSütunu{2929};
inline constexpr MetinNo SonrakiSatırlarSütunu{2930};
inline constexpr MetinNo NedenFiyatıAyrı{2931};
inline constexpr MetinNo NedenSatırlarıDeğişmiş{2932};
inline constexpr MetinNo NedenBirimFarklı{2933};
inline constexpr MetinNo NedenMiktarOkunamaz{2934};
inline constexpr MetinNo NedenSatırOkunamaz{2935};
inline constexpr MetinNo NedenSonuçSıfır{2936};
inline constexpr MetinNo NedenMetinUzun{2937};
inline constexpr MetinNo NedenÇemberKapatır{2938};
inline constexpr MetinNo SatışListesiBaşlığı{2950};
inline constexpr MetinNo SatışListesiİlkBaşlığı{2951};
inline constexpr MetinNo FiyatSütunu{2952};
inline constexpr MetinNo KdvSütunu{2953};
inline constexpr MetinNo KdvliSütunu{2954};
inline constexpr MetinNo FiyatSıfırYaDaAltı{2955};
inline constexpr MetinNo KdvEtiketi{2956};
inline constexpr MetinNo BaşlıkEtiketi{2957};
inline constexpr MetinNo AltYazıEtiketi{2958};
inline constexpr MetinNo BasılacakSayısı{2959};
inline constexpr MetinNo BasılmayanSayısı{2960};
inline constexpr MetinNo KdvAralıkDışı{2961};

}  // namespace KullanımMetni

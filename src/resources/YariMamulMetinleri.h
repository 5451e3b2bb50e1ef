#pragma once

#include "MetinTablosu.h"

// The texts of materials that stand for products.
namespace YarıMamulMetni {

inline constexpr MetinNo YarıMamulBaşlığı{3100};
inline constexpr MetinNo NedenYarıMamul{3101};
inline constexpr MetinNo TürYarıMamul{3102};
inline constexpr MetinNo BağlamaAçıklaması{3103};
inline constexpr MetinNo TürMalzemeMaliyeti{3104};
inline constexpr MetinNo TürToplamMaliyet{3105};
inline constexpr MetinNo TürBirimMaliyet{3106};
inline constexpr MetinNo BağlarEtiketi{3107};
inline constexpr MetinNo MalzemeSüz{3108};
inline constexpr MetinNo MalzemelerEtiketi{3109};
inline constexpr MetinNo ÜrünSüz{3110};
inline constexpr MetinNo ÜrünlerEtiketi{3111};
inline constexpr MetinNo TürEtiketi{3112};
inline constexpr MetinNo Bağla{3113};
inline constexpr MetinNo Çöz{3114};
inline constexpr MetinNo TutarSütunu{3115};
inline constexpr MetinNo DurumSütunu{3116};
inline constexpr MetinNo DurumUyuyor{3117};
inline constexpr MetinNo DurumÜrünYok{3118};
inline constexpr MetinNo DurumMalzemeYok{3119};
inline constexpr MetinNo DurumDöngüde{3120};
inline constexpr MetinNo DurumMalzemesiz{3121};
inline constexpr MetinNo DurumOkunamayan{3122};
inline constexpr MetinNo DurumFarklıBirim{3123};
inline constexpr MetinNo DurumMiktarSıfır{3124};
inline constexpr MetinNo DurumSıfır{3125};
inline constexpr MetinNo DurumBüyük{3126};
inline constexpr MetinNo DurumYazılamadı{3127};
inline constexpr MetinNo ListeAçıklaması{3128};
inline constexpr MetinNo FiyatıUymuyor{3129};
inline constexpr MetinNo ÇözmeSorusu{3130};
inline constexpr MetinNo ÇözmeOnayı{3131};
inline constexpr MetinNo BağlarÇözüldü{3132};
inline constexpr MetinNo FiyatlarYazılamadı{3133};
inline constexpr MetinNo ÜrünBulunamadı{3134};
inline constexpr MetinNo DöngüyleAktarılmayanlar{3135};
inline constexpr MetinNo MalzemeSeçiniz{3136};
inline constexpr MetinNo ÜrünSeçiniz{3137};
inline constexpr MetinNo ZatenBağlı{3138};
inline constexpr MetinNo DövizeBağlı{3139};
inline constexpr MetinNo DöngüOlur{3140};
inline constexpr MetinNo FiyatHesaplanamıyor{3141};
inline constexpr MetinNo KesmeliBağlanmaz{3142};
inline constexpr MetinNo KatalogdaYok{3143};
inline constexpr MetinNo DövizMalzemesiYarıMamul{3144};
inline constexpr MetinNo YarıMamulYok{3146};
inline constexpr MetinNo KopyaDöngüsü{3147};
inline constexpr MetinNo NedenYarıMamulünden{3148};
inline constexpr MetinNo YayılanSatırSayısı{3149};
inline constexpr MetinNo AğaçBaşlığı{3150};
inline constexpr MetinNo AğaçÜrünü{3151};
inline constexpr MetinNo AdetEtiketi{3152};
inline constexpr MetinNo AğaçEtiketi{3153};
inline constexpr MetinNo ToplamlarEtiketi{3154};
inline constexpr MetinNo ToplamSütunu{3155};
inline constexpr MetinNo BirimSütunu{3156};
inline constexpr MetinNo NotSütunu{3157};
inline constexpr MetinNo NotFarklıBirim{3158};
inline constexpr MetinNo NotOkunamayan{3159};
inline constexpr MetinNo NotAçılamaz{3160};
inline constexpr MetinNo AdetGerekli{3161};
inline constexpr MetinNo AğaçRaporu{3162};
inline constexpr MetinNo NotTaşıyor{3163};
inline constexpr MetinNo DikkatBağ{3164};

}  // namespace YarıMamulMetni

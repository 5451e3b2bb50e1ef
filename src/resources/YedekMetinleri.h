#pragma once

#include "MetinTablosu.h"

// The texts of backups.
namespace YedekMetni {

inline constexpr MetinNo YedeklerMenüsü{3200};
inline constexpr MetinNo YedeklerBaşlığı{3201};
inline constexpr MetinNo YedeklerEtiketi{3202};
inline constexpr MetinNo GünSütunu{3203};
inline constexpr MetinNo TürSütunu{3204};
inline constexpr MetinNo BoySütunu{3205};
inline constexpr MetinNo ÜrünSütunu{3206};
inline constexpr MetinNo MalzemeSütunu{3207};
inline constexpr MetinNo SatırSütunu{3208};
inline constexpr MetinNo DenetimSütunu{3209};
inline constexpr MetinNo YerSütunu{3210};
inline constexpr MetinNo ŞimdiYedekle{3211};
inline constexpr MetinNo BaşkaKlasöre{3212};
inline constexpr MetinNo GeriYükle{3213};
inline constexpr MetinNo DosyaAç{3214};
inline constexpr MetinNo TürGünlük{3215};
inline constexpr MetinNo TürElle{3216};
inline constexpr MetinNo TürÖnce{3217};
inline constexpr MetinNo TürHam{3218};
inline constexpr MetinNo TürSonYedek{3219};
inline constexpr MetinNo TürDosya{3220};
inline constexpr MetinNo BuDosya{3221};
inline constexpr MetinNo YeriBilinmiyor{3222};
inline constexpr MetinNo DenetimSırada{3223};
inline constexpr MetinNo DenetimSürüyor{3224};
inline constexpr MetinNo DenetimSağlam{3225};
inline constexpr MetinNo DenetimBozuk{3226};
inline constexpr MetinNo DenetimBaşkaSürüm{3227};
inline constexpr MetinNo DenetimOkunamadı{3228};
inline constexpr MetinNo YedekYok{3229};
inline constexpr MetinNo BoyMetni{3230};
inline constexpr MetinNo Yedekleniyor{3231};
inline constexpr MetinNo KapanıştaYedekleniyor{3232};
inline constexpr MetinNo DışarıYazılıyor{3233};
inline constexpr MetinNo Hazırlanıyor{3234};
inline constexpr MetinNo GeriYükleniyor{3235};
inline constexpr MetinNo YedekAlındı{3236};
inline constexpr MetinNo YedekAlınamadı{3237};
inline constexpr MetinNo YedekYeriYok{3238};
inline constexpr MetinNo VeriBoş{3239};
inline constexpr MetinNo KlasörSeçBaşlığı{3240};
inline constexpr MetinNo KlasörYok{3241};
inline constexpr MetinNo AynıDisk{3242};
inline constexpr MetinNo DışarıYazıldı{3243};
inline constexpr MetinNo DışarıYazılamadı{3244};
inline constexpr MetinNo DışarıTutmadı{3245};
inline constexpr MetinNo DosyaAçBaşlığı{3246};
inline constexpr MetinNo DosyaSüzgeci{3247};
inline constexpr MetinNo YedekKullanılamaz{3249};
inline constexpr MetinNo GeriYüklemeSorusu{3250};
inline constexpr MetinNo GeriYüklemeSorusuBilinmeyen{3251};
inline constexpr MetinNo Saklanamadı{3252};
inline constexpr MetinNo GeriYüklenemedi{3253};
inline constexpr MetinNo GeriYüklendi{3254};
inline constexpr MetinNo GeriYüklendiSaklanansız{3255};
inline constexpr MetinNo BağlantıKurulamadı{3256};
inline constexpr MetinNo BaşlangıçtaSunum{3257};
inline constexpr MetinNo GeriYüklendiDoğrulanamadı{3258};
inline constexpr MetinNo TabloAçıklaması{3259};
inline constexpr MetinNo ErişimdenDeğişenler{3260};
inline constexpr MetinNo ErişimdenDeğişenlerListesiz{3261};
inline constexpr MetinNo ZatenSaklı{3262};

}  // namespace YedekMetni

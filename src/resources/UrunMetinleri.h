#pragma once

#include "MetinTablosu.h"

// The texts of products as a whole. They stand apart from MetinNo so that a new one concerns those alone who show them.
namespace ÜrünMetni {

inline constexpr MetinNo ÜrünlerMenüsü{2800};
inline constexpr MetinNo MaliyetTablosuMenüsü{2801};
inline constexpr MetinNo MaliyetTablosuBaşlığı{2802};
inline constexpr MetinNo ÜrünSüz{2803};
inline constexpr MetinNo DikkatSeçeneği{2804};
inline constexpr MetinNo ÜrünSayısıMetni{2805};
inline constexpr MetinNo GrupToplamlarıEtiketi{2806};
inline constexpr MetinNo ÜrüneGit{2807};
inline constexpr MetinNo TabloyaAktar{2808};
inline constexpr MetinNo MaliyetlerOkunuyor{2809};
inline constexpr MetinNo ÜrünYok{2810};
inline constexpr MetinNo YüzdeleriKaydetSorusu{2811};
inline constexpr MetinNo MalzemeSayısıSütunu{2812};
inline constexpr MetinNo MalzemeMaliyetiSütunu{2813};
inline constexpr MetinNo İşçilikSütunu{2814};
inline constexpr MetinNo KârSütunu{2815};
inline constexpr MetinNo DiğerSütunu{2816};
inline constexpr MetinNo VadeSütunu{2817};
inline constexpr MetinNo ToplamSütunu{2818};
inline constexpr MetinNo BirimMaliyetSütunu{2819};
inline constexpr MetinNo DikkatSütunu{2820};
inline constexpr MetinNo ÜrünSayısıSütunu{2821};
inline constexpr MetinNo BütünGruplar{2822};
inline constexpr MetinNo DikkatMalzemesiYok{2823};
inline constexpr MetinNo DikkatKatalogDışı{2824};
inline constexpr MetinNo DikkatSıfırFiyat{2825};
inline constexpr MetinNo DikkatOkunamayanMiktar{2826};
inline constexpr MetinNo DikkatİkiKez{2827};
inline constexpr MetinNo DikkatToplamSıfır{2828};
inline constexpr MetinNo DikkatTutarTaşıyor{2829};
inline constexpr MetinNo MaliyetDağılımıMenüsü{2830};
inline constexpr MetinNo ÜrünKopyalaMenüsü{2831};
inline constexpr MetinNo NeredeKullanılıyorMenüsü{2832};
inline constexpr MetinNo YarıMamulMenüsü{2833};
inline constexpr MetinNo YarıMamulAğacıMenüsü{2834};
inline constexpr MetinNo MaliyetArşiviMenüsü{2835};
inline constexpr MetinNo SatışFiyatListesiMenüsü{2836};
inline constexpr MetinNo BulMenüsü{2837};
inline constexpr MetinNo BulBaşlığı{2840};
inline constexpr MetinNo Aranan{2841};
inline constexpr MetinNo Bulunanlar{2842};
inline constexpr MetinNo BulunanSayısı{2843};
inline constexpr MetinNo İlkBulunanlar{2844};
inline constexpr MetinNo Git{2845};
inline constexpr MetinNo TürüÜrün{2846};
inline constexpr MetinNo TürüMalzeme{2847};
inline constexpr MetinNo AdlarOkunuyor{2848};
inline constexpr MetinNo KopyaBaşlığı{2849};
inline constexpr MetinNo Kopyalanan{2850};
inline constexpr MetinNo KopyaKalanVar{2851};
inline constexpr MetinNo KopyalananDeğişmiş{2852};
inline constexpr MetinNo ÜrünArtıkYok{2853};
inline constexpr MetinNo KopyaTamam{2854};
inline constexpr MetinNo DağılımBaşlığı{2855};
inline constexpr MetinNo DağılımTablosuEtiketi{2856};
inline constexpr MetinNo PaylarTablosuEtiketi{2857};
inline constexpr MetinNo KalemSütunu{2858};
inline constexpr MetinNo PaySütunu{2859};
inline constexpr MetinNo BirikimliPaySütunu{2860};
inline constexpr MetinNo Yuvarlama{2861};
inline constexpr MetinNo Diğerleri{2862};
inline constexpr MetinNo Katılmadı{2863};
inline constexpr MetinNo SayılmayanlarNotu{2864};
inline constexpr MetinNo MalzemesizNotu{2865};
inline constexpr MetinNo ResimKaydet{2866};
inline constexpr MetinNo ResimFormuBaşlığı{2867};
inline constexpr MetinNo ResimSüzgeci{2868};
inline constexpr MetinNo ResimYazılamadı{2869};

}  // namespace ÜrünMetni

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

}  // namespace KullanımMetni

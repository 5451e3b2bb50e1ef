#pragma once

#include "MetinTablosu.h"

// The texts of taking an Access file over at the start.
namespace ErişimMetni {

inline constexpr MetinNo Alınıyor{3400};
inline constexpr MetinNo Alınamadı{3401};
inline constexpr MetinNo Vazgeçildi{3402};
inline constexpr MetinNo Değiştirilenler{3403};
inline constexpr MetinNo YedekSaklanamadı{3404};

}  // namespace ErişimMetni

#pragma once

#include "MetinTablosu.h"

// The texts of taking an Access file over at the start.
namespace ErişimMetni {

inline constexpr MetinNo Alınıyor{3300};
inline constexpr MetinNo Alınamadı{3301};
inline constexpr MetinNo Vazgeçildi{3302};
inline constexpr MetinNo Değiştirilenler{3303};

}  // namespace ErişimMetni

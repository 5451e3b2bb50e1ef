#pragma once

#include "MetinTablosu.h"

// The texts of materials that stand for products.
namespace YarıMamulMetni {

inline constexpr MetinNo YarıMamulBaşlığı{3100};

}  // namespace YarıMamulMetni

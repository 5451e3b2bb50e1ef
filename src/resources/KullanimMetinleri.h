#pragma once

#include "MetinTablosu.h"

// The texts of where materials are used, of replacing one, and of the price list for customers.
namespace KullanımMetni {

inline constexpr MetinNo NeredeKullanılıyorBaşlığı{2900};

}  // namespace KullanımMetni

#pragma once

#include "MetinTablosu.h"

// The texts of lists as spreadsheets.
namespace ÇizelgeMetni {

inline constexpr MetinNo BirimiSütunu{3300};
inline constexpr MetinNo DövizTablosunuAktar{3301};

}  // namespace ÇizelgeMetni

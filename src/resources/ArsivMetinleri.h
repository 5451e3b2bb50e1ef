#pragma once

#include "MetinTablosu.h"

// The texts of the archive of cost sheets.
namespace ArşivMetni {

inline constexpr MetinNo MaliyetArşiviBaşlığı{3000};

}  // namespace ArşivMetni

#pragma once

#include "MetinTablosu.h"

// The texts of lists as spreadsheets.
namespace ÇizelgeMetni {

inline constexpr MetinNo BirimiSütunu{3300};
inline constexpr MetinNo TabloyaAktarY{3301};  // the same caption with other mnemonics
inline constexpr MetinNo TabloyaAktarO{3302};
inline constexpr MetinNo TabloyaAktarR{3303};
inline constexpr MetinNo İşaretSütunu{3304};
inline constexpr MetinNo İşaretli{3305};
inline constexpr MetinNo İşaretsiz{3306};

}  // namespace ÇizelgeMetni

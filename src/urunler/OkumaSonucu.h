#pragma once

#include "FiyatIsi.h"
#include "OdbcModulu.h"

// Whether it could be done; shows what went wrong. The user's giving up needs no word.
inline bool OlduysaBil(const İşSonucu& sonuç) {
    İşSonucunuGöster(sonuç);
    return sonuç.Tamam();
}

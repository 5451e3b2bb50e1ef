#pragma once

#include "Cizelge.h"

// What each kind of file is to ÇizelgeOkuyucu.
class SayfaKaynağı {
  public:
    virtual ~SayfaKaynağı() = default;
    virtual OkumaSonucu SayfalarıOku() = 0;
    virtual OkumaSonucu Oku(qsizetype sayfa, const SatırAlıcı& alıcı) = 0;

    QList<SayfaBilgisi> Sayfalar;
};

#pragma once

#include <cstdint>
#include <vector>

#include "FiyatKayitlari.h"
#include "FiyatPlani.h"

// Taking operations back, and putting forward again what was taken back: each as a plan of its own.

// Whether it is neither a taking back nor a putting forward.
bool Kendiİşlemi(const Deyimler::Fiyat::İşlem& işlem);

// The latest operation that stands and is itself neither; the one that was taken back last. Nothing: none.
std::optional<Deyimler::Fiyat::İşlem> GeriAlınacakİşlem(const std::vector<Deyimler::Fiyat::İşlem>& işlemler);
std::optional<Deyimler::Fiyat::İşlem> YinelenecekİşlemiBul(const std::vector<Deyimler::Fiyat::İşlem>& işlemler);

// What the data have that the operation wanted to reach, and that stays as it is.
struct GeriAlmaEksikleri {
    QStringList Malzemeler;  // not in the catalogue any more
    QString Döviz;           // its rate has been changed since, or it is gone
};

// What taking the operation back (GeriAlma) or putting it forward (Yineleme) makes of the prices. A material whose
// price is no longer the one that it would leave is offered, but not ticked. What it added is deleted again, unless it
// is used or its price has changed.
İşSonucu GeriAlmaÖnerileri(OdbcBağlantısı& bağlantı, const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür,
                           FiyatTeklifi& teklif, GeriAlmaEksikleri& eksikler);

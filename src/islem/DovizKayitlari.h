#pragma once

#include <vector>

#include "DovizDeyimleri.h"
#include "FiyatKurali.h"
#include "FiyatPlani.h"

// Currencies and the materials whose price is kept in one.

// All of them, by code; none without the tables.
İşSonucu DövizleriOku(OdbcBağlantısı& bağlantı, std::vector<Deyimler::Döviz::Döviz>& dövizler);

// Whether there is a currency of this code.
İşSonucu DövizVar(OdbcBağlantısı& bağlantı, const QString& kod, bool& var);

// All ties, by material; none without the tables.
İşSonucu DövizBağlarınıOku(OdbcBağlantısı& bağlantı, std::vector<Deyimler::Döviz::Bağ>& bağlar);

// The tie of one material, if it has one.
İşSonucu MalzemeninBağınıOku(OdbcBağlantısı& bağlantı, const QString& malzeme,
                             std::optional<Deyimler::Döviz::Bağ>& bağ);

// Each is one transaction, and makes the tables first where there are none.
İşSonucu DövizEkle(OdbcBağlantısı& bağlantı, const Deyimler::Döviz::Döviz& döviz);
İşSonucu DövizSil(OdbcBağlantısı& bağlantı, const QString& kod);
İşSonucu BağıYaz(OdbcBağlantısı& bağlantı, const Deyimler::Döviz::Bağ& bağ);  // in place of the material's former one
İşSonucu BağıSil(OdbcBağlantısı& bağlantı, const QString& malzeme);

// What a rate makes of the prices of all materials tied to the currency. One whose catalogue price is not the one that
// the last rate wrote is offered, but not ticked; ties whose material is gone are named in `eksikler`. `kur`'s ties are
// filled in here, and its old rate and day with what is stored; a currency that is gone gives no offer and no rate.
İşSonucu KurÖnerileri(OdbcBağlantısı& bağlantı, KurDeğişimi kur, const Yuvarlama& yuvarlama, FiyatTeklifi& teklif,
                      QStringList& eksikler);

#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "FiyatDeyimleri.h"
#include "KatalogOkuma.h"

// What the data file remembers of price operations.

enum class İşlemTürü {
    Elle,   // one material's price in its form
    Toplu,  // a rise or cut over many
    Liste,  // a supplier's list
    Kur,    // a currency's rate
    GeriAlma,
    Yineleme,   // putting forward again what was taken back
    YarıMamul,  // the price with which a material was tied to its product
    Değiştir,   // a material put in another one's place; it changes used rows, and no price of the catalogue
    Getir       // products and prices brought in from a backup
};
QString TürSözcüğü(İşlemTürü tür);  // as it is stored
std::optional<İşlemTürü> SözcüğünTürü(const QString& sözcük);

// Whether the operation changed products' rows themselves, so that its way back has a plan and a preview of its own.
bool ÜrünleriDeğiştirir(const Deyimler::Fiyat::İşlem& işlem);

// Whether the tables are there; without them nothing has been recorded yet.
İşSonucu FiyatTablolarıVar(OdbcBağlantısı& bağlantı, bool& var);

// All operations, the latest first; none without the tables.
İşSonucu İşlemleriOku(OdbcBağlantısı& bağlantı, std::vector<Deyimler::Fiyat::İşlem>& işlemler);

// To be asked where there are operations: the changes that `deyim` (one of Deyimler::Fiyat's) names, in its order, at
// most `enÇok`. `fazlaVar`: there are more.
İşSonucu DeğişimleriOku(OdbcBağlantısı& bağlantı, const QString& deyim,
                        std::vector<Deyimler::Fiyat::Değişim>& değişimler, std::size_t enÇok, bool& fazlaVar);

// Writes an operation's record as the first thing of a transaction that is under way; makes the tables first where
// there are none. `işlem`'s number is found here.
İşSonucu İşlemiYaz(OdbcBağlantısı& bağlantı, bool tablolarVar, const Deyimler::Fiyat::İşlem& işlem);

// The number that the next operation gets. To be asked before the transaction: a statement that only reads would stand
// outside it.
İşSonucu SıradakiİşlemNo(OdbcBağlantısı& bağlantı, bool tablolarVar, std::int64_t& no);

// The names of the materials whose price an operation of that day ("yyyy-MM-dd") changed.
İşSonucu BugünDeğişenler(OdbcBağlantısı& bağlantı, const QString& gün, AdDizini& adlar);

// The day of the last recorded change of each material that has one.
struct SonDeğişim {
    QString Malzeme;
    QString Gün;  // yyyy-MM-dd
};
İşSonucu SonDeğişimleri(OdbcBağlantısı& bağlantı, std::vector<SonDeğişim>& değişimler);

// The materials that any product uses.
İşSonucu KullanılanAdlar(OdbcBağlantısı& bağlantı, AdDizini& adlar, const İlerleme& ilerleme);

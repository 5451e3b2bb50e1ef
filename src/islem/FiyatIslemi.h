#pragma once

#include <QString>
#include <functional>

#include "FiyatKayitlari.h"
#include "FiyatPlani.h"

class OdbcHareketi;

// Carrying a plan out: every price of its ticked materials, in the catalogue and in every used row, with the
// operation's record, in one transaction; all of it or nothing.

struct İşlemBilgisi {
    İşlemTürü Tür = İşlemTürü::Toplu;
    QString Açıklama;
    std::int64_t Karşılığı = 0;          // the operation that is taken back or put forward
    std::int64_t KarşılığıGeriAlan = 0;  // what its GeriAlan was when it was chosen
};

enum class UygulamaSonu {
    Tamam,
    Vazgeçildi,     // by the user, nothing was written
    Değişmiş,       // the data are not those that the plan was made from; nothing was written
    İşlemDeğişmiş,  // the operation has been taken back or put forward meanwhile; nothing was written
    Olmadı          // a statement failed; nothing was written
};
struct [[nodiscard]] UygulamaSonucu {
    UygulamaSonu Son = UygulamaSonu::Tamam;
    OdbcSonucu Odbc;  // of what failed
    QString Malzeme;  // where the data differ
};

// Begins the transaction with the operation's record (its number, kind, description and counterpart are filled in here)
// and marks the operation that it takes back or puts forward. To be called before anything else is read or written.
UygulamaSonucu İşlemiAç(OdbcBağlantısı& bağlantı, OdbcHareketi& hareket, const İşlemBilgisi& bilgi,
                        Deyimler::Fiyat::İşlem& işlem);

// The ticked materials of the plan, with what the operation's record keeps of them, within the transaction that is
// under way; stops at the first that is not as planned.
UygulamaSonucu FiyatlarıYaz(OdbcBağlantısı& bağlantı, const FiyatPlanı& plan, std::int64_t işlem,
                            const İlerleme& ilerleme = {});

// `zaman`: local, "yyyy-MM-dd HH:mm:ss". `ilerleme` is told how many materials are done; it is not asked any more once
// committing has begun.
UygulamaSonucu FiyatlarıUygula(OdbcBağlantısı& bağlantı, const FiyatPlanı& plan, const İşlemBilgisi& bilgi,
                               const QString& zaman, const İlerleme& ilerleme = {});

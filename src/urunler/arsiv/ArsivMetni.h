#pragma once

#include <QString>

#include "ArsivFarki.h"
#include "FiyatYazimi.h"

// How the archive's forms write things.

QString KapsamMetni(const Kapsam& kapsam);   // everything, a group, "group / product"
QString ArşivAdı(const Başlık& arşiv);       // its number and day
QString ArşivDikkatMetni(unsigned dikkat);   // DikkatMetni, and what only archives know
QString ArşivTutarı(Para tutar);             // with OndalıkBasamak decimals
QString ArşivYüzdesi(Para eski, Para yeni);  // the change in per cent, two decimals; "" without an old amount
QString ArşivBoyuMetni(std::int64_t bayt);   // KB or MB
Para ArşivGösterimi(Para tutar);             // rounded to OndalıkBasamak

// For a label that wraps: a long run of letters without a blank may be broken too, so that it does not widen the form.
QString SatırlaraBölünür(const QString& metin);

// Shows why reading failed, a box for each error. Nothing for success and where the user gave up.
void ArşivSonucunuGöster(const İşSonucu& sonuç);

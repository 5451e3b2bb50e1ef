#pragma once

#include <QString>
#include <QStringView>

// The currency that a text or a number format names.
enum class ParaCinsi { Yok, Türk, Başka };

struct Paraİşareti {
    ParaCinsi Cins = ParaCinsi::Yok;
    QString Metin;
};

// Whether the word is ₺, TL or TRY, in any case.
bool TürkParasıMı(QStringView söz);

// The first other currency in the text, else the first Turkish one: signs of any currency, and the codes and names that
// price lists use, as words of their own.
Paraİşareti ParaİşaretiAra(QStringView metin);

#pragma once

#include <QString>

#include "Para.h"

// A stored price as all forms write it: as many decimals as it has, at least OndalıkBasamak.
QString FiyatMetni(Para fiyat);

// A number as it is, without needless decimals: "1.000", "0,5".
QString SayıYazımı(Para sayı);

// A stored day (yyyy-MM-dd) as the user reads it; "" of none.
QString GünMetni(const QString& gün);

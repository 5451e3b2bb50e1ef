#pragma once

#include <QString>

#include "Para.h"

// A stored price as all forms write it: as many decimals as it has, at least OndalıkBasamak.
QString FiyatMetni(Para fiyat);

// A stored day (yyyy-MM-dd) as the user reads it; "" of none.
QString GünMetni(const QString& gün);

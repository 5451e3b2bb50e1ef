#pragma once

#include "OdbcTanitici.h"

// How much of the present data a backup does not have.
struct YedekFarkı {
    std::int64_t Ürün = 0;
    std::int64_t Malzeme = 0;
};

// One pass over the names in each file; names are one as the data file compares them.
OdbcSonucu YedekteOlmayanlarıSay(OdbcBağlantısı& şimdiki, OdbcBağlantısı& yedek, YedekFarkı& fark);

#pragma once

#include <functional>

// Offers the dated copies to a user whose start would end otherwise. True: one of them is the data file now.
using YedekSunumu = std::function<bool()>;

// Puts the data file in its place and opens it: restores it from the backup when it is missing, takes it over when it
// is one of Access, compacts it into the backup at the first start of a day, and connects. False: the program is to
// end; why has been shown. No failure loses what was in the data file or in the backup: both are only ever replaced by
// a complete file, and a backup that holds rows neither by a data file that holds none nor by a damaged one.
bool VeritabanınıHazırla(const YedekSunumu& sun = {});

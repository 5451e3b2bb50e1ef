#pragma once

#include <vector>

#include "KopyaAdi.h"

// The dated copies of each data file stand in a folder of their own below the backups' folder (`kök`, which ends in the
// path separator): "<the data file's folder> <8 hex digits>", with the data file's path in "yer.txt".

// The folder for the data file at this real path with this mark, with a separator at its end; it need not be there.
QString KopyaKlasörü(const QString& kök, const QString& dosya, const QString& damga);

// Makes it, with its note. False: it could not be made.
bool KopyaKlasörünüYap(const QString& klasör, const QString& dosya);

struct Kopya {
    QString Yol;
    KopyaAdı Ad;
    qint64 Boy = 0;
};
// The newest first.
std::vector<Kopya> KopyalarıOku(const QString& klasör);

struct KopyaYeri {
    QString Klasör;  // with a separator at its end
    QString Dosya;   // whose copies these are; "" when the note cannot be read
};
// All folders with copies, in the order of their names.
std::vector<KopyaYeri> KopyaYerleri(const QString& kök);

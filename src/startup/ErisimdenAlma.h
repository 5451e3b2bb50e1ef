#pragma once

#include "VeriYollari.h"

// Unless Alındı, why has been shown, and all files are as they were.
enum class ErişimSonu {
    Alındı,
    Alınamadı,
    AçıkGörünüyor,  // on another computer
    Vazgeçildi
};

// Takes the data file over where it is one of Access; any other is left alone. The loading form shows how far it has
// come and lets the user give up.
ErişimSonu ErişimDosyasınıAl(const VeriYolları& yollar);

// Puts what a backup in Access format holds in the place of a data file that is missing. The backup stays as it is, and
// is kept beside the data file as well, since the next compaction replaces it.
ErişimSonu ErişimYedeğiniGeriYükle(const VeriYolları& yollar);

// The same of one that is looked at where it stands: it is taken over there.
ErişimSonu ErişimYedeğiniAl(const VeriYolları& yollar);

bool DosyaErişimDosyası(const VeriYolları& yollar);
bool YedekErişimDosyası(const VeriYolları& yollar);

// Keeps a backup in Access format beside the data file before something replaces it. False: it could not be kept.
bool ErişimYedeğiniSakla(const VeriYolları& yollar);

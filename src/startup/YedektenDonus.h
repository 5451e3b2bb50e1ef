#pragma once

#include "VeriYollari.h"

// Removes what a start that was cut off has left beside data file and backup.
void YarımKalanlarıSil(const VeriYolları& yollar);

// Puts the backup in the place of a data file that is missing, without asking. It is read whole first. False: the
// reason has been shown, and both places are as they were.
bool EksikDosyayıGeriYükle(const VeriYolları& yollar);

// What is to become of a data file without rows beside a backup that has some.
enum class BoşDosyaSonucu {
    Sorunsuz,         // the data file holds rows, or there are none to lose
    YedekKorunur,     // the backup must not be replaced in this start
    YedekOkunamıyor,  // the same, and nothing is known about its rows
    Bitir             // the program is to end; why has been shown
};

// Looks whether the data file is empty while the backup is not, and asks. Yes: the backup comes back, the empty file
// is kept under another name. No: the empty file stays, and the backup's content is kept under another name too, since
// the first row in the data file makes it the next day's backup. `neden` gets the reason why a backup is kept that
// the user has not been asked about; otherwise it stays as it is.
BoşDosyaSonucu BoşDosyayıGözet(const VeriYolları& yollar, QString& neden);

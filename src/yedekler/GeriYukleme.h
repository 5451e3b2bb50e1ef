#pragma once

#include "VeriYollari.h"
#include "YedekSatirlari.h"

class QWidget;

// Puts a backup into the data file's place, after a question with what would be lost. The backup is checked anew, the
// present data are kept as a backup of their own first; what cannot be kept is not replaced. Where the program is
// connected (`bağlı`), it is connected again afterwards, whatever came of it. True: restored. All has been told.
bool YedeğiGeriYükle(const VeriYolları& yollar, const YedekSatırı& satır, bool bağlı, QWidget* sahip);

// Where it is one of Access: tells how much was stored otherwise than it stands there, and keeps the list of it beside
// the data file.
void ErişimdenDeğişenleriBildir(const AçılmışYedek& yedek, const VeriYolları& yollar);

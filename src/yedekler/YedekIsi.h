#pragma once

#include "KopyaYazma.h"
#include "VeriYollari.h"

class QWidget;

// What the user has done with backups beyond the start's own; all is told in boxes.

// A copy of the present data beside the dated ones. True: it was written.
bool ŞimdiYedekle(const VeriYolları& yollar, QWidget* sahip);

// A copy into a folder that the user chooses, mostly on another disk; nothing there is ever replaced or deleted.
void BaşkaKlasöreYedekle(const VeriYolları& yollar, QWidget* sahip);

// At the program's end, once the connection is closed: a dated copy if this run changed something since its last one.
void KapanıştaYedekle();

// Offers the dated copies where the start would end. True: one was restored.
bool YedekleriSun();

#pragma once

#include "VeriYollari.h"

// Takes the data file over where it is one of Access; any other is left alone. The loading form shows how far it has
// come and lets the user give up. False: the program is to end; why has been shown, and the file is as it was.
bool ErişimDosyasınıAl(const VeriYolları& yollar);

// Puts what a backup in Access format holds in the place of a data file that is missing; the backup stays as it is.
bool YedekErişimDosyası(const VeriYolları& yollar);

// Whether data file or backup is one.
bool ErişimDosyasıVar(const VeriYolları& yollar);
bool ErişimYedeğiniGeriYükle(const VeriYolları& yollar);

#pragma once

#include "Komut.h"

// Takes an Access file over. With --bildir its reports go to the standard output in the form that erisim/AlmaSureci
// reads; --liste names the file for what could not be taken as it is.
extern const Komut ErişimdenAlKomutu;

#pragma once

#include <QString>

// The numbered table of every text that the program shows. An unknown number is a fault of the program: the text then
// reads "?number?" and a debug build stops.
QString Metin(int numara);

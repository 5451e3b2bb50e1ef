#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

// Colour values as the program keeps them: 0x00BBGGRR, or 0x80000000 + n for the desktop's own colour number n. They
// stay such numbers until they are painted.

// The colour itself. A desktop colour that has no counterpart in the palette gives the text colour.
QColor RenkÇöz(std::uint32_t renk, const QPalette& palet);

// The colour of text painted on the palette's window background: as RenkÇöz, but drawn towards white (on a dark
// background) or black as far as it takes to be readable there, which is a contrast of 4.5 to 1.
QColor YazıRengi(std::uint32_t renk, const QPalette& palet);

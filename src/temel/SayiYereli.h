#pragma once

#include <clocale>

// Numbers of the C library with a "." whatever the environment says: making the application object sets the locale from
// it, and libraries that print numbers (libxlsxwriter) would then write ones that no other program reads. To be called
// right after the application object is made, in every program.
inline void SayıYereliniSabitle() {
    std::setlocale(LC_NUMERIC, "C");
}

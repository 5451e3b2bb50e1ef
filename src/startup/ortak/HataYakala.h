#pragma once

#include <QString>
#include <exception>

#include "MesajKutusu.h"

// Runs a step of the form; an error that nobody foresaw is shown, and the form stays as far as it got.
template <typename İş>
void HataYakala(const İş& iş) {
    try {
        iş();
    } catch (const std::exception& hata) {
        BeklenmeyenHataGöster(QString::fromUtf8(hata.what()));
    }
}

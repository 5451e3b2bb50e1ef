#pragma once

#include <QString>
#include <functional>

#include "ApilerModulu.h"
#include "VeritabaniHazirlik.h"

class TekKopya;

// What the start routine takes from outside.
struct BaşlatmaBağları {
    // Where the program's file and the driver lie, and the data file too unless VARNEK_VERI_KLASORU names another
    // folder.
    QString ProgramKlasörü;
    std::function<void(std::function<void()> karşılamayıKapat)> AnaFormuYükle;  // shows the main form
    YedekSunumu YedekleriSun;
    std::function<int()> EkranGenişliğiAl = EkranGenişliği;  // pixels
    std::function<bool(SistemSürümü&)> SürümAl = SistemSürümünüAl;
};

enum class BaşlatmaSonucu {
    Başladı,        // the main form is loaded; the program runs on its events
    BaşkaKopyaVar,  // the running copy has been brought to the front
    Başlayamadı     // the reason has been shown
};

// The start routine: checks the machine, shows the welcome form, sets the shared variables, prepares the data file and
// loads the main form, which closes the welcome form. Until the data file's turn comes it writes nothing. The copy
// guard has to live as long as the program.
BaşlatmaSonucu Main(TekKopya& kopya, const BaşlatmaBağları& bağlar);

// The start's checks of the machine, without messages.

// Whether a screen of this width (pixels) is wide enough. The height is not asked for.
bool EkranYeterli(int genişlik);

constexpr unsigned NT_PLATFORMU = 2;

// Whether the program runs on this system: every one that is not of the NT family, and NT from 4.0 on, without its
// service packs 1 and 2.
bool SürümYeterli(const SistemSürümü& sürüm);

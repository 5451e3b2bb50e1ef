#pragma once

#include "ApilerModulu.h"

// The start's checks of the machine, without messages.

// Whether a screen of this width (pixels) is wide enough. The height is not asked for.
bool EkranYeterli(int genişlik);

constexpr unsigned NT_PLATFORMU = 2;

// Whether the program runs on this system: every one that is not of the NT family, and NT from 4.0 on, without its
// service packs 1 and 2.
bool SürümYeterli(const SistemSürümü& sürüm);

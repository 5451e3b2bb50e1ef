#pragma once

// Turns on the look of the desktop's own controls. True when that raised no error.
bool GörselStilleriEtkinleştir();

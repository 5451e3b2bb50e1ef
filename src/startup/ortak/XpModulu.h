#pragma once

// Leaves the look of the controls to the desktop where it has one of its own; the toolkit's own look gets frames that
// stay whole at fractional scale factors. True when there is a look at all.
bool GörselStilleriEtkinleştir();

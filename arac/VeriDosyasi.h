#pragma once

#include <QString>
#include <functional>

class VeriBağlantısı;

// Makes a data file in one piece: it is built in a folder of its own beside the target, and gets its name only when
// all is written and on disk. An existing file is never overwritten; a failure, an interrupt or a killed process
// leaves nothing under the target's name. Throws VeriHatası.
// `doldur` writes the rows.
void VeriDosyasıYap(const QString& hedef, const std::function<void(VeriBağlantısı&)>& doldur);

// Ends the work at the next statement, as a failure. May be called from a signal handler.
void YarıdaKes() noexcept;

// To be called by a long `doldur` now and then: throws VeriHatası after YarıdaKes.
void YarıdaKesildiMi();

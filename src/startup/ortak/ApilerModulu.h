#pragma once

#include <QString>

// What the program asks of the platform, in one place.

// Copies a file so that no failure leaves a half-written one: the copy is written beside the target, synced to disk and
// renamed into place, with the source's modification time; a journal left behind by a crash beside the target is
// removed first, as it does not belong to the new file. The target is overwritten. False: the target is as it was.
bool DosyaKopyala(const QString& kaynak, const QString& hedef);

// The operating system's version, as the version check reads it.
struct SistemSürümü {
    unsigned Ana;
    unsigned İkincil;
    unsigned PlatformKimliği;  // 2 = NT family
    QString ServisPaketi;
};
// False when the system does not tell.
bool SistemSürümünüAl(SistemSürümü& sürüm);

// Number of installed printers.
int YazıcıSayısı();

// Width of the primary screen in pixels at 100 % scaling.
int EkranGenişliği();

#pragma once

// Faults of the disk under SQLite.
namespace Arıza {

enum class Tür { Yazma, KlasörEşitleme };

// Before SQLite is used for the first time.
void Kur();

// From here on the `kaçıncı`-th call of this kind fails (from 1), with `sürekli` those after it as well.
void Başlat(Tür tür, int kaçıncı, bool sürekli);

// Ends the fault; whether it struck.
bool Bitir();

}  // namespace Arıza

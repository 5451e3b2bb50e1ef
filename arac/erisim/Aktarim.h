#pragma once

#include <QString>
#include <functional>

namespace Erişim {

struct Aktarımİsteği {
    QString Kaynak;
    QString Hedef;                      // empty: the new file takes the Access file's place
    QString Liste;                      // with a target: where the list goes; empty: beside it
    bool Sakla = false;                 // with a target: the original is kept beside it all the same
    std::function<void(int)> İlerleme;  // thousandths
};

struct AktarımSonucu {
    QString Özet;  // what was taken over
    QString Not;   // what was stored otherwise than it stood, and where the list is; empty: nothing
};

// Takes an Access file over: writes a data file of our own beside it, reads both again and compares every value, keeps
// the original as "<name>.access" and only then gives the new file its name. Until that moment the Access file stands
// untouched under its name. The new file bears the original's time of change. Throws VeriHatası.
AktarımSonucu ErişimDosyasınıAl(const Aktarımİsteği& istek);

}  // namespace Erişim

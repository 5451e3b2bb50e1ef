#pragma once

#include <functional>
#include <string>

namespace Erişim {

// What is to be taken over: in its place, or into a new file with a list of what was stored otherwise than it stood.
struct Almaİsteği {
    std::string Araç;  // the data-file tool
    std::string Kaynak;
    std::string Hedef;   // "": in its place
    std::string Liste;   // with a target; "": beside it
    bool Sakla = false;  // with a target: the original is kept beside it, for one that is to be replaced
};

struct AlmaSonucu {
    enum class Tür { Alındı, Alınamadı, Vazgeçildi };
    Tür Ne = Tür::Alınamadı;
    // Alınamadı: what is wrong. Alındı: what was stored otherwise than it stood; "" when nothing was.
    std::string Metin;
};

// Runs the tool and waits for it. `ilerleme` gets thousandths, several times a second; false from it gives up. Unless
// Alındı, source and target are as they were.
AlmaSonucu ErişimdenAl(const Almaİsteği& istek, const std::function<bool(int)>& ilerleme);

}  // namespace Erişim

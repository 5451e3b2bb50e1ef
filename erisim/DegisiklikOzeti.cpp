#include "DegisiklikOzeti.h"

#include <fstream>

namespace Erişim {

std::string ListeninÖzeti(const std::string& liste) {
    std::ifstream dosya(liste);
    std::string satır;
    if (!std::getline(dosya, satır) || satır != LİSTE_BAŞLIĞI || !std::getline(dosya, satır)) return {};
    return satır;
}

}  // namespace Erişim

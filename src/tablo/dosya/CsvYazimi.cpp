#include "CsvYazimi.h"

namespace {

bool Boşluk(char harf) {
    return harf == ' ' || harf == '\t';
}

bool TırnakGerek(std::string_view alan) {
    return !alan.empty() &&
           (alan.find_first_of(";\"\r\n") != std::string_view::npos || Boşluk(alan.front()) || Boşluk(alan.back()));
}

}  // namespace

void CsvAlanıEkle(std::string& satır, std::string_view alan) {
    if (!TırnakGerek(alan)) {
        satır += alan;
        return;
    }
    satır += '"';
    for (const char harf : alan) {
        if (harf == '"') satır += '"';
        satır += harf;
    }
    satır += '"';
}

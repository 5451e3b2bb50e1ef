#include "YuzdeTutari.h"

#include <cmath>

#include "SayiMetni.h"

std::optional<double> YüzdeTutarı(const QString& malzemeMaliyeti, const QString& yüzde) {
    const std::optional<Para> malzeme = ParaOku(malzemeMaliyeti);
    const std::optional<double> oran = DoubleOku(yüzde);
    if (!malzeme || !oran) return std::nullopt;
    const double tutar = malzeme->Double() * *oran / 100.0;
    return std::isfinite(tutar) ? std::optional(tutar) : std::nullopt;
}

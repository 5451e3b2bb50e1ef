#include "Para.h"

#include <cmath>
#include <limits>

#include "Ondalik.h"

namespace {

__extension__ using GenişSayı = __int128;

std::optional<Para> Sığdır(GenişSayı onBindeBir) {
    if (onBindeBir < std::numeric_limits<std::int64_t>::min() || onBindeBir > std::numeric_limits<std::int64_t>::max())
        return std::nullopt;
    return Para::OnBindeBirden(static_cast<std::int64_t>(onBindeBir));
}

}  // namespace

std::optional<Para> Para::Doubledan(double değer) {
    // Far enough from a half the digits behind the 15th decide nothing: below this bound they are less than `pay`.
    constexpr double sınır = 1e12;  // ten-thousandths
    constexpr double pay = 0.01;
    const double sayım = değer * Ölçek;
    if (std::fabs(sayım) < sınır) {
        const double yakın = std::nearbyint(sayım);
        if (0.5 - std::fabs(sayım - yakın) > pay) return Para(static_cast<std::int64_t>(yakın));
    }
    const auto sayı = OnBeşHaneyle(değer);
    return sayı ? Ondalıktan(*sayı) : std::nullopt;
}

std::optional<Para> Para::Ondalıktan(const Ondalık& sayı) {
    const auto onBindeBir = Ölçeğe(sayı);
    if (!onBindeBir) return std::nullopt;
    return Para(*onBindeBir);
}

double Para::Double() const noexcept {
    // A quotient of two whole numbers that doubles hold exactly is the nearest double itself.
    constexpr std::int64_t tamSınır = std::int64_t{1} << 53;
    if (m_onBindeBir >= -tamSınır && m_onBindeBir <= tamSınır) return static_cast<double>(m_onBindeBir) / Ölçek;
    return EnYakınDouble(Ölçekten(m_onBindeBir)).value_or(0);
}

std::optional<Para> Çarp(Para a, Para b) noexcept {
    const GenişSayı çarpım = GenişSayı{a.OnBindeBir()} * b.OnBindeBir();
    const GenişSayı kalan = çarpım % Para::Ölçek;
    const GenişSayı ikiKatı = 2 * (kalan < 0 ? -kalan : kalan);
    GenişSayı bölüm = çarpım / Para::Ölçek;
    if (ikiKatı > Para::Ölçek || (ikiKatı == Para::Ölçek && bölüm % 2 != 0)) bölüm += çarpım < 0 ? -1 : 1;
    return Sığdır(bölüm);
}

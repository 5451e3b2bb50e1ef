#include "Renk.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t MasaüstüRengi = 0x80000000;
constexpr double OkunurKarşıtlık = 4.5;

QPalette::ColorRole PaletRolü(std::uint32_t numara) {
    switch (numara) {
        case 5:
            return QPalette::Base;
        case 13:
            return QPalette::Highlight;
        case 14:
            return QPalette::HighlightedText;
        case 15:
            return QPalette::Button;
        case 16:
            return QPalette::Dark;
        case 18:
            return QPalette::ButtonText;
        default:
            return QPalette::WindowText;
    }
}

double Doğrusal(double kanal) {
    return kanal <= 0.04045 ? kanal / 12.92 : std::pow((kanal + 0.055) / 1.055, 2.4);
}

// Relative luminance, 0 (black) to 1 (white).
double Parlaklık(const QColor& renk) {
    return 0.2126 * Doğrusal(renk.redF()) + 0.7152 * Doğrusal(renk.greenF()) + 0.0722 * Doğrusal(renk.blueF());
}

double Karşıtlık(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

int Karıştır(int renk, int uç, int yüzde) {
    return renk + (uç - renk) * yüzde / 100;
}

}  // namespace

QColor RenkÇöz(std::uint32_t renk, const QPalette& palet) {
    if (renk & MasaüstüRengi) return palet.color(PaletRolü(renk & 0xFF));
    return QColor(renk & 0xFF, renk >> 8 & 0xFF, renk >> 16 & 0xFF);
}

QColor YazıRengi(std::uint32_t renk, const QPalette& palet) {
    const QColor asıl = RenkÇöz(renk, palet);
    const double zemin = Parlaklık(palet.color(QPalette::Window));
    const int uç = Karşıtlık(zemin, 1.0) > Karşıtlık(zemin, 0.0) ? 255 : 0;
    QColor boya = asıl;
    for (int yüzde = 5; yüzde <= 100 && Karşıtlık(Parlaklık(boya), zemin) < OkunurKarşıtlık; yüzde += 5)
        boya.setRgb(Karıştır(asıl.red(), uç, yüzde), Karıştır(asıl.green(), uç, yüzde),
                    Karıştır(asıl.blue(), uç, yüzde));
    return boya;
}

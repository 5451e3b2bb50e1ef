#include "EkranKonumu.h"

#include <algorithm>

namespace {

constexpr int BaşlıkYüksekliği = 30;  // pixels
constexpr int EnAzGörünen = 80;

int Alan(const QRect& r) {
    return r.isValid() ? r.width() * r.height() : 0;
}

}  // namespace

QPoint EkranaGetir(const QRect& pencere, const QList<QRect>& ekranlar) {
    if (ekranlar.isEmpty()) return pencere.topLeft();
    const QRect başlık(pencere.topLeft(), QSize(pencere.width(), BaşlıkYüksekliği));
    for (const QRect& ekran : ekranlar) {
        const QRect görünen = başlık & ekran;
        if (görünen.width() >= EnAzGörünen && görünen.height() == BaşlıkYüksekliği) return pencere.topLeft();
    }
    const QRect& ekran = *std::max_element(ekranlar.begin(), ekranlar.end(), [&](const QRect& a, const QRect& b) {
        return Alan(a & pencere) < Alan(b & pencere);
    });
    const int sağ = std::max(ekran.left(), ekran.right() + 1 - pencere.width());
    const int alt = std::max(ekran.top(), ekran.bottom() + 1 - pencere.height());
    return {std::clamp(pencere.x(), ekran.left(), sağ), std::clamp(pencere.y(), ekran.top(), alt)};
}

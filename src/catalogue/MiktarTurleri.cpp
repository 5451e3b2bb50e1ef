#include "MiktarTurleri.h"

#include <algorithm>

#include "OrtakFonksiyonlarModulu.h"
#include "TurkceSira.h"

namespace MiktarTürleri {
namespace {

constexpr int EnÇok = 10;

QString Anahtar(int numara) {
    return QStringLiteral("Miktar-") + QString::number(numara);
}

QString Değer(int numara) {
    return AyarOku(QStringLiteral("Miktarlar"), Anahtar(numara), QString()).trimmed();
}

void Yaz(int numara, const QString& tür) {
    AyarYaz(QStringLiteral("Miktarlar"), Anahtar(numara), tür);
}

// The key that the number of types names; where the settings have gaps it may be taken, then the next free one up to
// ten, then any free one.
int BoşNumara(int ilk) {
    for (int numara = ilk; numara <= EnÇok; ++numara) {
        if (Değer(numara).isEmpty()) return numara;
    }
    int numara = 1;
    while (numara < ilk && !Değer(numara).isEmpty()) ++numara;
    return numara;
}

}  // namespace

QStringList Oku() {
    QStringList türler;
    for (int numara = 0; numara <= EnÇok; ++numara) {
        const QString tür = Değer(numara);
        if (!tür.isEmpty()) türler.append(tür);
    }
    return türler;
}

void Hatırla(QStringList& türler, const QString& tür) {
    const auto kayıtlı =
        std::any_of(türler.cbegin(), türler.cend(), [&](const QString& eski) { return Türkçe::İleBaşlar(eski, tür); });
    if (kayıtlı || türler.size() > EnÇok) return;
    const bool dolu = türler.size() == EnÇok;
    türler.prepend(tür);
    if (!dolu) {
        const int sayı = static_cast<int>(türler.size());
        Yaz(BoşNumara(sayı), tür);
        return;
    }
    türler.removeLast();
    Yaz(0, QString());
    for (int sıra = 0; sıra < EnÇok; ++sıra) Yaz(sıra + 1, türler.at(sıra));
}

}  // namespace MiktarTürleri

#include "UrunAdlandirma.h"

#include <optional>

#include "Deyimler.h"
#include "OdbcModulu.h"

namespace {

// The used materials follow the product only when it took the name; when they cannot follow, the product has been
// renamed all the same.
AdlandırmaSonucu Adlandır(const QString& ürünler, const QString& malzemeler) {
    if (!DeyimiYürüt(ürünler)) return AdlandırmaSonucu::Değişmedi;
    return DeyimiYürüt(malzemeler) ? AdlandırmaSonucu::Değişti : AdlandırmaSonucu::MalzemelerKaldı;
}

// A row that bears just the old name is the product itself, whose letters' case is being corrected. nullopt: the data
// file refused the question.
std::optional<bool> BaşkaÜrünVar(const QString& grup, const QString& eski, const QString& yeni) {
    bool var = false;
    const Okuma okuma = SatırlarıOku(Deyimler::ÜrünAdıVarMı(grup, yeni), [&] { var = var || SütunOku(1) != eski; });
    if (okuma != Okuma::Tamam) return std::nullopt;
    return var;
}

}  // namespace

AdlandırmaSonucu GrubuAdlandır(const QString& eski, const QString& yeni) {
    return Adlandır(Deyimler::GrupAdınıDeğiştir(eski, yeni), Deyimler::MalzemelerdeGrupAdınıDeğiştir(eski, yeni));
}

AdlandırmaSonucu ÜrünüAdlandır(const QString& grup, const QString& eski, const QString& yeni) {
    const std::optional<bool> başkası = BaşkaÜrünVar(grup, eski, yeni);
    if (!başkası) return AdlandırmaSonucu::Değişmedi;
    if (*başkası) return AdlandırmaSonucu::Yinelenen;
    return Adlandır(Deyimler::ÜrünAdınıDeğiştir(grup, eski, yeni),
                    Deyimler::MalzemelerdeÜrünAdınıDeğiştir(grup, eski, yeni));
}

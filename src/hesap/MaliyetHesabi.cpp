#include "MaliyetHesabi.h"

#include <cmath>

#include "SayiMetni.h"

namespace {

std::optional<double> Sonlu(double değer) {
    return std::isfinite(değer) ? std::optional(değer) : std::nullopt;
}

Para Oran(const QString& yüzde) {
    return ParaOku(yüzde).value_or(Para());
}

// What cannot be computed leaves the rate standing in the amount's place.
Para Tutar(Para oran, std::optional<Para> malzeme) {
    if (!malzeme) return oran;
    const std::optional<Para> çarpım = Çarp(oran, *malzeme);
    if (!çarpım) return oran;
    return Para::Doubledan(çarpım->Double() / 100.0).value_or(oran);
}

std::optional<Para> Topla(std::optional<Para> a, Para b) {
    return a ? ::Topla(*a, b) : std::nullopt;
}

}  // namespace

MaliyetTutarları MaliyetHesapla(const MaliyetGirdisi& girdi) {
    const std::optional<Para> malzeme = ParaOku(girdi.MalzemeMaliyeti);
    MaliyetTutarları sonuç;
    sonuç.İşçilik = Tutar(Oran(girdi.İşçilik), malzeme);
    sonuç.Kâr = Tutar(Oran(girdi.Kâr), malzeme);
    sonuç.Diğer = Tutar(Oran(girdi.Diğer), malzeme);
    sonuç.Vade = Tutar(Oran(girdi.Vade), malzeme);
    if (malzeme) {
        const auto yüzdeler = Topla(Topla(::Topla(sonuç.İşçilik, sonuç.Kâr), sonuç.Diğer), sonuç.Vade);
        sonuç.Toplam = Topla(yüzdeler, *malzeme).value_or(Para());
    }
    return sonuç;
}

std::optional<double> BirimMaliyet(const QString& toplamMaliyet, double toplamMiktar) {
    const std::optional<Para> toplam = ParaOku(toplamMaliyet);
    if (!toplam || !(toplamMiktar > 0)) return std::nullopt;
    return Sonlu(toplam->Double() / toplamMiktar);
}

std::optional<double> FireliMiktar(const QString& toplamMiktar, const QString& fireOranı) {
    const std::optional<double> miktar = DoubleOku(toplamMiktar);
    const std::optional<double> oran = DoubleOku(fireOranı);
    if (!miktar || !oran) return std::nullopt;
    return Sonlu(*miktar - *oran * (*miktar / 100.0));
}

std::optional<double> FireliBirimMaliyet(const QString& malzemeMaliyeti, const QString& fireliMiktar) {
    const std::optional<double> maliyet = DoubleOku(malzemeMaliyeti);
    const std::optional<double> miktar = DoubleOku(fireliMiktar);
    if (!maliyet || !miktar || *miktar == 0) return std::nullopt;
    return Sonlu(*maliyet / *miktar);
}

std::optional<double> YüzdeTutarı(const QString& malzemeMaliyeti, const QString& yüzde) {
    const std::optional<Para> malzeme = ParaOku(malzemeMaliyeti);
    const std::optional<double> oran = DoubleOku(yüzde);
    if (!malzeme || !oran) return std::nullopt;
    const double tutar = malzeme->Double() * *oran / 100.0;
    return Sonlu(tutar);
}

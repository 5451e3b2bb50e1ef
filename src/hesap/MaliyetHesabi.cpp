#include "MaliyetHesabi.h"

#include <cmath>
#include <cstdlib>

#include "SayiMetni.h"

namespace {

std::optional<double> Sonlu(double değer) {
    return std::isfinite(değer) ? std::optional(değer) : std::nullopt;
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
    return MaliyetHesapla(ParaOku(girdi.MalzemeMaliyeti), {YüzdeOranı(girdi.İşçilik), YüzdeOranı(girdi.Kâr),
                                                           YüzdeOranı(girdi.Diğer), YüzdeOranı(girdi.Vade)});
}

MaliyetTutarları MaliyetHesapla(std::optional<Para> malzeme, const MaliyetOranları& oranlar) {
    MaliyetTutarları sonuç;
    sonuç.İşçilik = Tutar(oranlar.İşçilik, malzeme);
    sonuç.Kâr = Tutar(oranlar.Kâr, malzeme);
    sonuç.Diğer = Tutar(oranlar.Diğer, malzeme);
    sonuç.Vade = Tutar(oranlar.Vade, malzeme);
    if (malzeme) {
        const auto yüzdeler = Topla(Topla(::Topla(sonuç.İşçilik, sonuç.Kâr), sonuç.Diğer), sonuç.Vade);
        sonuç.Toplam = Topla(yüzdeler, *malzeme).value_or(Para());
    }
    return sonuç;
}

QString YüzdeMetni(const QString& saklanan, int basamak) {
    if (saklanan.isEmpty()) return QStringLiteral("0");
    const QString metin = NoktayıVirgüleÇevir(saklanan);
    return SayıMetniBiçimle(metin, basamak, NoktaKuralı::Yerinde).value_or(metin);
}

Para YüzdeOranı(const QString& metin) {
    return ParaOku(metin).value_or(Para());
}

std::optional<Para> GösterilenTutar(Para tutar, int basamak) {
    std::int64_t adım = 1;
    for (int hane = basamak; hane < 4; ++hane) adım *= 10;
    const std::int64_t kalan = tutar.OnBindeBir() % adım;
    const std::int64_t kesik = tutar.OnBindeBir() - kalan;
    const std::int64_t eklenen = 2 * std::abs(kalan) < adım ? 0 : kalan < 0 ? -adım : adım;
    return ::Topla(Para::OnBindeBirden(kesik), Para::OnBindeBirden(eklenen));
}

Para GösterilenToplam(Para malzeme, const MaliyetOranları& oranlar, int basamak) {
    const Para toplam = MaliyetHesapla(GösterilenTutar(malzeme, basamak), oranlar).Toplam;
    return GösterilenTutar(toplam, basamak).value_or(toplam);
}

std::optional<double> BirimMaliyet(const QString& toplamMaliyet, double toplamMiktar) {
    const std::optional<Para> toplam = ParaOku(toplamMaliyet);
    return toplam ? BirimMaliyet(*toplam, toplamMiktar) : std::nullopt;
}

std::optional<double> BirimMaliyet(Para toplam, double toplamMiktar) {
    return toplamMiktar > 0 ? Sonlu(toplam.Double() / toplamMiktar) : std::nullopt;
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
    return malzeme && oran ? YüzdeTutarı(*malzeme, *oran) : std::nullopt;
}

std::optional<double> YüzdeTutarı(Para malzemeMaliyeti, double yüzde) {
    return Sonlu(malzemeMaliyeti.Double() * yüzde / 100.0);
}

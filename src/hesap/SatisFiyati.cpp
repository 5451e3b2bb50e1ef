#include "SatisFiyati.h"

namespace {

constexpr Yuvarlama KURUŞA{100, YuvarlamaYönü::EnYakın};

}  // namespace

std::optional<Para> SatışFiyatı(Para toplam, const Yuvarlama& yuvarlama) {
    return Yuvarla(KesinTutar(toplam), yuvarlama.Adım == 0 ? KURUŞA : yuvarlama);
}

std::optional<Para> KdvliFiyat(Para fiyat, Para oran) {
    constexpr std::int64_t yüz = 100 * Para::Ölçek;
    const auto kat = KesinTutar(fiyat).Kat(oran);
    const auto kdv = kat ? kat->Böl(Para::OnBindeBirden(yüz)) : std::nullopt;
    const std::optional<Para> kuruş = kdv ? Yuvarla(*kdv, KURUŞA) : std::nullopt;
    return kuruş ? Topla(fiyat, *kuruş) : std::nullopt;
}

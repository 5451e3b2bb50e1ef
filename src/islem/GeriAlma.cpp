#include "GeriAlma.h"

#include <algorithm>
#include <limits>

#include "OdbcTanitici.h"

using Deyimler::Fiyat::Değişim;
using Deyimler::Fiyat::İşlem;

namespace {

// The single rows of an operation, with the price that each had before it.
İşSonucu TekleriOku(OdbcBağlantısı& bağlantı, std::int64_t işlem, std::vector<KullanılanSatır>& tekler) {
    return İşSonucuYap(bağlantı.Oku(Deyimler::Fiyat::İşleminAyrıSatırları(işlem), [&tekler](OdbcSatırı& satır) {
        tekler.push_back({satır.Metin(1), satır.Metin(2), satır.Metin(3), satır.Metin(5), TarihYazımı(satır.Metin(4)),
                          SaklananPara(satır.Baytlar(6).value_or("")).value_or(Para())});
        return true;
    }));
}

// Back: from the operation's new price to its old one. Forward: the other way round.
FiyatÖnerisi Öneri(const Değişim& değişim, const KatalogMalzemesi& malzeme, bool geri) {
    const Para beklenen = geri ? değişim.Yeni : değişim.Eski;
    const Para hedef = geri ? değişim.Eski : değişim.Yeni;
    FiyatÖnerisi öneri{malzeme.Ad, malzeme.Fiyat, hedef};
    const bool yalnızSatırlar = değişim.Eski == değişim.Yeni;  // only used rows got another price
    if (malzeme.Fiyat == hedef && !yalnızSatırlar)
        öneri.Neden = PlanNedeni::Değişmiyor;
    else if (malzeme.Fiyat != beklenen)
        öneri.Neden = PlanNedeni::SonradanDeğişmiş;
    öneri.İşaretli = öneri.Neden == PlanNedeni::Yok;
    öneri.HerSatır = false;
    if (!yalnızSatırlar) öneri.Fiyatlar = {beklenen};
    if (malzeme.Fiyat != beklenen) öneri.Fiyatlar.push_back(malzeme.Fiyat);
    return öneri;
}

}  // namespace

bool Kendiİşlemi(const İşlem& işlem) {
    const std::optional<İşlemTürü> tür = SözcüğünTürü(işlem.Tür);
    return tür && *tür != İşlemTürü::GeriAlma && *tür != İşlemTürü::Yineleme;
}

std::optional<İşlem> GeriAlınacakİşlem(const std::vector<İşlem>& işlemler) {
    const auto yer = std::find_if(işlemler.begin(), işlemler.end(),
                                  [](const İşlem& i) { return Kendiİşlemi(i) && i.GeriAlan == 0; });
    return yer == işlemler.end() ? std::nullopt : std::optional(*yer);
}

std::optional<İşlem> YinelenecekİşlemiBul(const std::vector<İşlem>& işlemler) {
    const auto sıra = [](const İşlem& i) { return Kendiİşlemi(i) ? i.GeriAlan : 0; };
    const auto yer = std::max_element(işlemler.begin(), işlemler.end(),
                                      [&](const İşlem& a, const İşlem& b) { return sıra(a) < sıra(b); });
    return yer == işlemler.end() || sıra(*yer) == 0 ? std::nullopt : std::optional(*yer);
}

İşSonucu GeriAlmaÖnerileri(OdbcBağlantısı& bağlantı, std::int64_t işlem, İşlemTürü tür,
                           std::vector<FiyatÖnerisi>& öneriler, QStringList& eksikler) {
    öneriler.clear();
    eksikler.clear();
    const bool geri = tür == İşlemTürü::GeriAlma;
    std::vector<Değişim> değişimler;
    bool fazlaVar = false;
    constexpr std::size_t hepsi = std::numeric_limits<std::size_t>::max();
    İşSonucu sonuç = DeğişimleriOku(bağlantı, Deyimler::Fiyat::İşleminDeğişimleri(işlem), değişimler, hepsi, fazlaVar);
    std::vector<KullanılanSatır> tekler;
    if (sonuç.Tamam()) sonuç = TekleriOku(bağlantı, işlem, tekler);
    MalzemeKataloğu katalog;
    if (sonuç.Tamam()) sonuç = katalog.Oku(bağlantı);
    if (!sonuç.Tamam()) return sonuç;

    AdDizini yerler;
    std::vector<Para> yeniFiyatlar;  // that the operation gave, beside the offers
    for (const Değişim& değişim : değişimler) {
        const std::string ad = değişim.Malzeme.toStdString();
        const std::uint32_t yer = katalog.Dizin.Bul(ad);
        if (yer == AdDizini::YOK) {
            eksikler.append(değişim.Malzeme);
            continue;
        }
        yerler.BulYaDaEkle(ad, static_cast<std::uint32_t>(öneriler.size()));
        öneriler.push_back(Öneri(değişim, katalog.Malzemeler[yer], geri));
        yeniFiyatlar.push_back(değişim.Yeni);
    }
    for (KullanılanSatır& satır : tekler) {
        const std::uint32_t yer = yerler.Bul(satır.Malzeme.toStdString());
        if (yer == AdDizini::YOK) continue;
        FiyatÖnerisi& öneri = öneriler[yer];
        const Para önceki = satır.Fiyat;
        if (geri) satır.Fiyat = yeniFiyatlar[yer];
        öneri.Tekler.push_back({satır, geri ? önceki : öneri.Yeni});
    }
    return sonuç;
}

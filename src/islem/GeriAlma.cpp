#include "GeriAlma.h"

#include <algorithm>
#include <limits>

#include "DovizKayitlari.h"
#include "OdbcTanitici.h"

using Deyimler::Döviz::Bağ;
using Deyimler::Döviz::Döviz;
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

FiyatÖnerisi Ekleme(const Değişim& değişim) {
    FiyatÖnerisi öneri{değişim.Malzeme, {}, değişim.Yeni};
    öneri.Malzemenin = Varlık::Eklendi;
    return öneri;
}

FiyatÖnerisi Silme(const Değişim& değişim, const KatalogMalzemesi& malzeme) {
    FiyatÖnerisi öneri{malzeme.Ad, malzeme.Fiyat, {}};
    öneri.Malzemenin = Varlık::Silindi;
    öneri.HerSatır = false;
    if (malzeme.Fiyat != değişim.Yeni) {
        öneri.Neden = PlanNedeni::FiyatıDeğişmiş;
        öneri.İşaretli = false;
    }
    return öneri;
}

// The rate of before the operation, or the operation's again; the ties that it wrote get back what they held before.
İşSonucu KuruÇevir(OdbcBağlantısı& bağlantı, const İşlem& işlem, const std::vector<Değişim>& değişimler, bool geri,
                   std::optional<KurDeğişimi>& kur, QString& değişmişDöviz) {
    if (işlem.DövizKodu.isEmpty()) return {};
    std::vector<Döviz> dövizler;
    std::vector<Bağ> bağlar;
    İşSonucu sonuç = DövizleriOku(bağlantı, dövizler);
    if (sonuç.Tamam()) sonuç = DövizBağlarınıOku(bağlantı, bağlar);
    if (!sonuç.Tamam()) return sonuç;
    kur = KurDeğişimi{işlem.DövizKodu, işlem.EskiKur, işlem.YeniKur, işlem.EskiKurGünü, işlem.YeniKurGünü, {}};
    if (geri) {
        std::swap(kur->Eski, kur->Yeni);
        std::swap(kur->EskiGün, kur->YeniGün);
    }
    const bool aynı = std::any_of(dövizler.begin(), dövizler.end(), [&kur](const Döviz& döviz) {
        return döviz.Kod == kur->Kod && döviz.Kur == kur->Eski && döviz.Gün == kur->EskiGün;
    });
    if (!aynı) {
        değişmişDöviz = kur->Kod;
        kur.reset();
        return sonuç;
    }
    AdDizini yerler;
    for (std::uint32_t i = 0; i < değişimler.size(); ++i) yerler.BulYaDaEkle(değişimler[i].Malzeme.toStdString(), i);
    for (Bağ& bağ : bağlar) {
        if (bağ.Kod != kur->Kod) continue;
        if (bağ.İşlem == işlem.No) {
            std::swap(bağ.Yazılan, bağ.Önceki);
        } else {
            // A later rate wrote it and was taken back: it stands as this operation left it.
            const std::uint32_t yer = yerler.Bul(bağ.Malzeme.toStdString());
            if (yer == AdDizini::YOK) continue;
            const Değişim& değişim = değişimler[yer];
            if (bağ.Yazılan != (geri ? değişim.Yeni : değişim.Eski)) continue;
            bağ.Önceki = bağ.Yazılan;
            bağ.Yazılan = geri ? değişim.Eski : değişim.Yeni;
            bağ.İşlem = işlem.No;
        }
        kur->Bağlar.push_back(bağ);
    }
    return sonuç;
}

}  // namespace

bool Kendiİşlemi(const İşlem& işlem) {
    const std::optional<İşlemTürü> tür = SözcüğünTürü(işlem.Tür);
    return tür && *tür != İşlemTürü::GeriAlma && *tür != İşlemTürü::Yineleme;
}

std::optional<İşlem> GeriAlınacakİşlem(const std::vector<İşlem>& işlemler) {
    const auto yer = std::find_if(işlemler.begin(), işlemler.end(), [](const İşlem& i) {
        // While a tie stands its price cannot be taken back; the history offers it.
        return Kendiİşlemi(i) && i.GeriAlan == 0 && SözcüğünTürü(i.Tür) != İşlemTürü::YarıMamul;
    });
    return yer == işlemler.end() ? std::nullopt : std::optional(*yer);
}

std::optional<İşlem> YinelenecekİşlemiBul(const std::vector<İşlem>& işlemler) {
    const auto sıra = [](const İşlem& i) { return Kendiİşlemi(i) ? i.GeriAlan : 0; };
    const auto yer = std::max_element(işlemler.begin(), işlemler.end(),
                                      [&](const İşlem& a, const İşlem& b) { return sıra(a) < sıra(b); });
    return yer == işlemler.end() || sıra(*yer) == 0 ? std::nullopt : std::optional(*yer);
}

İşSonucu GeriAlmaÖnerileri(OdbcBağlantısı& bağlantı, const İşlem& işlem, İşlemTürü tür, FiyatTeklifi& teklif,
                           GeriAlmaEksikleri& eksikler) {
    teklif = {};
    eksikler = {};
    const bool geri = tür == İşlemTürü::GeriAlma;
    std::vector<Değişim> değişimler;
    bool fazlaVar = false;
    constexpr std::size_t hepsi = std::numeric_limits<std::size_t>::max();
    İşSonucu sonuç =
        DeğişimleriOku(bağlantı, Deyimler::Fiyat::İşleminDeğişimleri(işlem.No), değişimler, hepsi, fazlaVar);
    std::vector<KullanılanSatır> tekler;
    if (sonuç.Tamam()) sonuç = TekleriOku(bağlantı, işlem.No, tekler);
    MalzemeKataloğu katalog;
    if (sonuç.Tamam()) sonuç = katalog.Oku(bağlantı);
    if (sonuç.Tamam()) sonuç = KuruÇevir(bağlantı, işlem, değişimler, geri, teklif.Kur, eksikler.Döviz);
    if (!sonuç.Tamam()) return sonuç;

    AdDizini yerler;
    std::vector<Para> yeniFiyatlar;  // that the operation gave, beside the offers
    for (const Değişim& değişim : değişimler) {
        const std::string ad = değişim.Malzeme.toStdString();
        const std::uint32_t yer = katalog.Dizin.Bul(ad);
        const bool eklenecek = !geri && değişim.Malzemenin == Varlık::Eklendi;
        if (yer == AdDizini::YOK && !eklenecek) {
            eksikler.Malzemeler.append(değişim.Malzeme);
            continue;
        }
        yerler.BulYaDaEkle(ad, static_cast<std::uint32_t>(teklif.Öneriler.size()));
        if (eklenecek)
            teklif.Öneriler.push_back(Ekleme(değişim));
        else if (değişim.Malzemenin == Varlık::Eklendi)
            teklif.Öneriler.push_back(Silme(değişim, katalog.Malzemeler[yer]));
        else
            teklif.Öneriler.push_back(Öneri(değişim, katalog.Malzemeler[yer], geri));
        yeniFiyatlar.push_back(değişim.Yeni);
    }
    for (const KullanılanSatır& satır : tekler) {
        const std::uint32_t yer = yerler.Bul(satır.Malzeme.toStdString());
        if (yer == AdDizini::YOK) continue;
        FiyatÖnerisi& öneri = teklif.Öneriler[yer];
        const Para önceki = satır.Fiyat;
        if (öneri.Malzemenin == Varlık::Eklendi) continue;
        // Rows that used a material before it was added have kept their price.
        if (öneri.Malzemenin == Varlık::Silindi)
            öneri.Tekler.push_back({satır, önceki});
        else
            öneri.Tekler.push_back(
                {{satır.Grup, satır.Ürün, satır.Malzeme, satır.Miktar, satır.Tarih, geri ? yeniFiyatlar[yer] : önceki},
                 geri ? önceki : öneri.Yeni});
    }
    return sonuç;
}

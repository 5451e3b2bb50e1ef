#include <algorithm>

#include "FiyatIslemi.h"
#include "FiyatKurali.h"
#include "OrnekVeri.h"
#include "SayiMetni.h"
#include "TedarikciDeyimleri.h"
#include "TurkceSira.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

struct Değişiklik {
    int GünÖnce;
    İşlemTürü Tür;
    QStringView Açıklama;
    QList<QStringView> Adlar;  // parts of the names; none: all materials
    QStringView Yüzde;
};

// The earliest first.
const QList<Değişiklik>& Değişiklikler() {
    static const QList<Değişiklik> değişiklikler{
        {178, İşlemTürü::Toplu, u"Toplu değişim: yüzde 10", {}, u"10"},
        {112, İşlemTürü::Liste, u"Fiyat listesi: Yıldız Hırdavat", {u"menteşe", u"ray", u"kulp", u"vida"}, u"7,5"},
        {64, İşlemTürü::Toplu, u"Toplu değişim: yüzde 12", {u"kereste"}, u"12"},
        {41, İşlemTürü::Liste, u"Fiyat listesi: Yıldız Hırdavat", {u"menteşe", u"kulp"}, u"4"},
        {19, İşlemTürü::Elle, u"Malzeme formunda fiyat değişimi", {u"döşemelik kumaş"}, u"9,25"}};
    return değişiklikler;
}

bool Geçer(const QString& ad, const QList<QStringView>& parçalar) {
    return parçalar.isEmpty() || std::any_of(parçalar.begin(), parçalar.end(),
                                             [&ad](QStringView parça) { return Türkçe::İçerir(ad, parça.toString()); });
}

// What the price was before it rose by `yüzde`.
Para Önceki(Para fiyat, Para yüzde) {
    constexpr std::int64_t yüz = 100 * Para::Ölçek;
    const auto kesin = KesinTutar(fiyat).Kat(Para::OnBindeBirden(yüz));
    const auto bölünmüş = kesin ? kesin->Böl(Para::OnBindeBirden(yüz + yüzde.OnBindeBir())) : std::nullopt;
    // To 5 kuruş, as prices are; what costs only a few of them stays exact.
    const Yuvarlama yuvarlama{fiyat < Para::OnBindeBirden(5 * Para::Ölçek) ? 0 : 500};
    const auto eski = bölünmüş ? Yuvarla(*bölünmüş, yuvarlama) : std::nullopt;
    return eski.value_or(fiyat);
}

std::map<QString, Para> BugünküFiyatlar() {
    std::map<QString, Para> fiyatlar;
    for (const ÖrnekMalzeme& malzeme : ÖrnekMalzemeler())
        fiyatlar[malzeme.ad.toString()] = ParaOku(malzeme.fiyat).value_or(Para());
    return fiyatlar;
}

}  // namespace

std::map<QString, Para> ÖrnekFiyatları(int günÖnce) {
    std::map<QString, Para> fiyatlar = BugünküFiyatlar();
    const QList<Değişiklik>& değişiklikler = Değişiklikler();
    for (auto değişiklik = değişiklikler.rbegin(); değişiklik != değişiklikler.rend(); ++değişiklik)
        for (auto& [ad, fiyat] : fiyatlar)
            if (değişiklik->GünÖnce < günÖnce && Geçer(ad, değişiklik->Adlar))
                fiyat = Önceki(fiyat, ParaOku(değişiklik->Yüzde).value_or(Para()));
    return fiyatlar;
}

// From today's prices backwards: each change ends where the next one began.
void ÖrnekGeçmişiYaz(VeriYazıcısı& yazıcı, QDate bugün) {
    namespace Fiyat = Deyimler::Fiyat;
    for (const QString& deyim : Fiyat::TablolarıOluştur()) yazıcı.Çalıştır(deyim);
    std::map<QString, Para> fiyatlar = BugünküFiyatlar();
    const QList<Değişiklik>& değişiklikler = Değişiklikler();
    for (qsizetype i = değişiklikler.size(); i-- > 0;) {
        const Değişiklik& değişiklik = değişiklikler[i];
        const std::int64_t no = i + 1;
        yazıcı.Çalıştır(Fiyat::İşlemEkle({no, bugün.addDays(-değişiklik.GünÖnce).toString(Qt::ISODate) + u" 10:15:00"_s,
                                          TürSözcüğü(değişiklik.Tür), değişiklik.Açıklama.toString()}));
        for (auto& [ad, fiyat] : fiyatlar) {
            if (!Geçer(ad, değişiklik.Adlar)) continue;
            const Para yeni = fiyat;
            fiyat = Önceki(yeni, ParaOku(değişiklik.Yüzde).value_or(Para()));
            yazıcı.Çalıştır(Fiyat::DeğişimEkle({no, ad, fiyat, yeni}));
        }
    }
}

void ÖrnekTedarikçiYaz(VeriYazıcısı& yazıcı) {
    namespace Tedarikçi = Deyimler::Tedarikçi;
    for (const QString& deyim : Tedarikçi::TablolarıOluştur()) yazıcı.Çalıştır(deyim);
    Tedarikçi::Tedarikçi yıldız;
    yıldız.Ad = u"Yıldız Hırdavat"_s;
    yıldız.BaşlıkSatırı = 3;
    yıldız.AdSütunu = 1;
    yıldız.FiyatSütunu = 3;
    yıldız.AdBaşlığı = u"Ürün Adı"_s;
    yıldız.FiyatBaşlığı = u"Birim Fiyat (TL)"_s;
    yıldız.Ayraç = u";"_s;
    yıldız.İskonto = Para::OnBindeBirden(5 * Para::Ölçek);
    yazıcı.Çalıştır(Tedarikçi::TedarikçiEkle(yıldız));
    const auto bağla = [&](const QString& listeAdı, const QString& malzeme, std::int64_t bölen) {
        yazıcı.Çalıştır(Tedarikçi::BağEkle(yıldız.Ad, {listeAdı, malzeme, Para::OnBindeBirden(bölen * Para::Ölçek)}));
    };
    bağla(u"Ağaç Vidası 4x40 (1000’lik Kutu)"_s, u"Ağaç Vidası"_s, 1000);
    bağla(u"Tas Menteşe 35 mm"_s, u"Tas Menteşe"_s, 1);
}

#include "DovizDeyimleri.h"
#include "OrnekVeri.h"
#include "VeriDosyasi.h"

namespace {

struct ÖrnekDöviz {
    QStringView kod;
    Para kur;
    int günÖnce;
};

// `sonYazılan`: what the rate made of it, where its price has been changed by hand since; 0: the catalogue's price.
struct ÖrnekBağ {
    QStringView malzeme;
    QStringView kod;
    Para dövizFiyatı;
    Para fiyat;  // the catalogue's
    Para sonYazılan;
};

constexpr Para Tutar(std::int64_t tam, std::int64_t onBindeBir = 0) {
    return Para::OnBindeBirden(tam * Para::Ölçek + onBindeBir);
}

constexpr ÖrnekDöviz DÖVİZLER[] = {{u"EUR", Tutar(48, 2'150), 12}, {u"USD", Tutar(41, 8'765), 5}};

constexpr ÖrnekBağ BAĞLAR[] = {
    {u"Frenli Menteşe", u"EUR", Tutar(0, 8'815), Tutar(42, 5'000), {}},
    {u"Frenli Ray 50lik", u"EUR", Tutar(5, 1'176), Tutar(246, 7'500), {}},
    {u"Gazlı Amortisör", u"EUR", Tutar(1, 9'960), Tutar(96, 2'500), {}},
    {u"Poliüretan Vernik", u"EUR", Tutar(5, 4'500), Tutar(268, 5'000), Tutar(262, 7'500)},
    {u"Teleskopik Ray 45lik", u"EUR", Tutar(2, 4'474), Tutar(118), {}},
    {u"Ayna Flotal", u"USD", Tutar(12, 4'175), Tutar(520), {}},
    {u"Led Şerit Işık", u"USD", Tutar(1, 7'410), Tutar(72, 9'000), {}},
    {u"Suni Deri Kahverengi", u"USD", Tutar(7, 1'160), Tutar(298), {}},
};

}  // namespace

void ÖrnekDövizleriYaz(VeriYazıcısı& yazıcı, QDate bugün) {
    for (const QString& deyim : Deyimler::Döviz::TablolarıOluştur()) yazıcı.Çalıştır(deyim);
    for (const ÖrnekDöviz& döviz : DÖVİZLER)
        yazıcı.Çalıştır(Deyimler::Döviz::DövizEkle(
            {döviz.kod.toString(), döviz.kur, bugün.addDays(-döviz.günÖnce).toString(Qt::ISODate)}));
    for (const ÖrnekBağ& bağ : BAĞLAR) {
        const Para yazılan = bağ.sonYazılan == Para() ? bağ.fiyat : bağ.sonYazılan;
        yazıcı.Çalıştır(Deyimler::Döviz::BağEkle(
            {bağ.malzeme.toString(), bağ.kod.toString(), bağ.dövizFiyatı, yazılan, Para(), 0}));
    }
}

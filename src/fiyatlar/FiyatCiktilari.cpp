#include "FiyatCiktilari.h"

#include <cmath>

#include "MetinTablosu.h"
#include "Ondalik.h"
#include "SayfaDuzeni.h"

namespace {

QString NedenYaDaİşaretsiz(const GörünenPlan& plan, std::size_t yer) {
    const QString neden = plan.Malzemeler.Açıklama(yer);
    return neden.isEmpty() ? Metin(MetinNo::İşaretsiz) : neden;
}

ÇizelgeDeğeri Fark(Para önce, Para sonra) {
    const std::optional<Para> fark = Topla(sonra, Para::OnBindeBirden(-önce.OnBindeBir()));
    return fark ? ÇizelgeDeğeri(*fark) : ÇizelgeDeğeri();
}

ÇizelgeDeğeri Yüzde(Para önce, Para sonra) {
    if (önce.OnBindeBir() == 0) return {};
    const auto oran = OnBeşHaneyle((sonra.Double() - önce.Double()) / std::abs(önce.Double()) * 100);
    return oran ? ÇizelgeDeğeri(Yuvarla(*oran, 2, Yarım::SıfırdanUzağa)) : ÇizelgeDeğeri();
}

QList<ÇizelgeDeğeri> MalzemeSatırı(const GörünenPlan& plan, std::size_t yer) {
    const PlanMalzemesi& m = plan.Malzemeler.Malzeme(yer);
    QList<ÇizelgeDeğeri> satır{Metin(MetinNo::MalzemeSütunu), QString(), m.Malzeme, m.Eski};
    if (Uygulanır(m.Neden))
        satır += {m.Yeni, Fark(m.Eski, m.Yeni), Yüzde(m.Eski, m.Yeni)};
    else
        satır += {ÇizelgeDeğeri(), ÇizelgeDeğeri(), ÇizelgeDeğeri()};
    satır += m.İşaretli ? plan.Malzemeler.Açıklama(yer) : NedenYaDaİşaretsiz(plan, yer);
    return satır;
}

QList<ÇizelgeDeğeri> ÜrünSatırı(const GörünenPlan& plan, std::size_t yer) {
    const PlanÜrünü& ü = plan.Ürünler.Ürün(yer);
    return {Metin(MetinNo::ÜrünSütunu), ü.Grup, ü.Ad, ü.Önce, ü.Sonra, Fark(ü.Önce, ü.Sonra), Yüzde(ü.Önce, ü.Sonra),
            plan.Ürünler.Açıklama(yer)};
}

}  // namespace

void PlanıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const GörünenPlan& plan) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::MalzemeSütunu, 13.5, HücreTürü::Metin},
                       {MetinNo::EskiFiyatSütunu, 2.3, HücreTürü::Sayı},
                       {MetinNo::YeniFiyatSütunu, 1.75, HücreTürü::Sayı},
                       {MetinNo::FarkSütunu, 1.35, HücreTürü::Sayı},
                       {MetinNo::YüzdeSütunu, 1.15, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    for (const bool alınan : {true, false}) {
        for (int satır = 0; satır < plan.MalzemeModeli.rowCount(); ++satır) {
            const std::size_t yer = plan.MalzemeModeli.KaynakSatırı(satır);
            if (plan.Malzemeler.Malzeme(yer).İşaretli != alınan) continue;
            QStringList hücreler;
            for (int sütun = MAd; sütun <= MYüzde; ++sütun) hücreler.append(plan.Malzemeler.Hücre(yer, sütun));
            if (!alınan) {
                hücreler[MAd] += QStringLiteral(" (%1)").arg(NedenYaDaİşaretsiz(plan, yer));
            }
            düzen.SatırYaz(hücreler);
        }
    }
    for (int satır = 0; satır < plan.ÜrünModeli.rowCount(); ++satır) {
        const std::size_t yer = plan.ÜrünModeli.KaynakSatırı(satır);
        const auto hücre = [&](int sütun) { return plan.Ürünler.Hücre(yer, sütun); };
        düzen.SatırYaz({hücre(ÜGrup) + QStringLiteral(" / ") + hücre(ÜAd), hücre(ÜÖnce), hücre(ÜSonra), hücre(ÜFark),
                        hücre(ÜYüzde)});
    }
    düzen.Bitir();
}

YazmaSonucu PlanıÇizelgeyeYaz(const QString& yol, const QString& başlık, const GörünenPlan& plan) {
    const auto sütun = [](MetinNo metin, double genişlik, ÇizelgeSütunTürü tür, int basamak = 4) {
        return ÇizelgeSütunu{Metin(metin), genişlik, tür, basamak};
    };
    ÇizelgeYazıcı yazıcı(
        yol, başlık,
        {sütun(MetinNo::TürSütunu, 10, ÇizelgeSütunTürü::Metin),
         sütun(MetinNo::GrubuSütunu, 20, ÇizelgeSütunTürü::Metin),
         sütun(MetinNo::AdıSütunu, 34, ÇizelgeSütunTürü::Metin), sütun(MetinNo::ÖnceSütunu, 16, ÇizelgeSütunTürü::Para),
         sütun(MetinNo::SonraSütunu, 16, ÇizelgeSütunTürü::Para),
         sütun(MetinNo::FarkSütunu, 16, ÇizelgeSütunTürü::Para),
         sütun(MetinNo::YüzdeSütunu, 10, ÇizelgeSütunTürü::Yüzde, 2),
         sütun(MetinNo::NedenSütunu, 40, ÇizelgeSütunTürü::Metin)});
    YazmaSonucu sonuç = yazıcı.Aç();
    for (const bool alınan : {true, false}) {
        for (int satır = 0; satır < plan.MalzemeModeli.rowCount() && sonuç.Tamam(); ++satır) {
            const std::size_t yer = plan.MalzemeModeli.KaynakSatırı(satır);
            if (plan.Malzemeler.Malzeme(yer).İşaretli == alınan) sonuç = yazıcı.SatırEkle(MalzemeSatırı(plan, yer));
        }
        for (int satır = 0; alınan && satır < plan.ÜrünModeli.rowCount() && sonuç.Tamam(); ++satır)
            sonuç = yazıcı.SatırEkle(ÜrünSatırı(plan, plan.ÜrünModeli.KaynakSatırı(satır)));
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

#include "FiyatCiktilari.h"

#include <cmath>
#include <optional>

#include "MetinTablosu.h"
#include "Ondalik.h"
#include "SayfaDuzeni.h"

namespace {

QString NedenYaDaİşaretsiz(const GörünenPlan& plan, std::size_t yer) {
    const QString neden = plan.Malzemeler.Açıklama(yer);
    return neden.isEmpty() ? Metin(MetinNo::İşaretsiz) : neden;
}

// A row is put together value by value: what is not there stays empty.
class Satır {
  public:
    Satır& Metin(const QString& metin) {
        m_değerler.emplaceBack(metin);
        return *this;
    }
    Satır& Tutar(std::optional<Para> tutar) {
        tutar ? m_değerler.emplaceBack(*tutar) : m_değerler.emplaceBack();
        return *this;
    }
    // The amounts, their difference and what it is in per cent.
    Satır& Değişim(Para önce, Para sonra) {
        Tutar(önce).Tutar(sonra).Tutar(Topla(sonra, Para::OnBindeBirden(-önce.OnBindeBir())));
        const auto oran = önce.OnBindeBir() == 0
                              ? std::nullopt
                              : OnBeşHaneyle((sonra.Double() - önce.Double()) / std::abs(önce.Double()) * 100);
        oran ? m_değerler.emplaceBack(Yuvarla(*oran, 2, Yarım::SıfırdanUzağa)) : m_değerler.emplaceBack();
        return *this;
    }
    const QList<ÇizelgeDeğeri>& Değerler() const { return m_değerler; }

  private:
    QList<ÇizelgeDeğeri> m_değerler;
};

Satır MalzemeDeğerleri(const GörünenPlan& plan, std::size_t yer) {
    const PlanMalzemesi& m = plan.Malzemeler.Malzeme(yer);
    Satır satır;
    satır.Metin(Metin(MetinNo::MalzemeSütunu)).Metin({}).Metin(m.Malzeme);
    const auto eski = m.Malzemenin == Varlık::Eklendi ? std::nullopt : std::optional(m.Eski);
    const auto yeni = !Uygulanır(m.Neden) || m.Malzemenin == Varlık::Silindi ? std::nullopt : std::optional(m.Yeni);
    if (eski && yeni)
        satır.Değişim(*eski, *yeni);
    else
        satır.Tutar(eski).Tutar(yeni).Tutar({}).Tutar({});
    satır.Metin(m.İşaretli ? plan.Malzemeler.Açıklama(yer) : NedenYaDaİşaretsiz(plan, yer));
    return satır;
}

Satır ÜrünDeğerleri(const GörünenPlan& plan, std::size_t yer) {
    const PlanÜrünü& ü = plan.Ürünler.Ürün(yer);
    Satır satır;
    satır.Metin(Metin(MetinNo::ÜrünSütunu)).Metin(ü.Grup).Metin(ü.Ad);
    satır.Değişim(ü.Önce, ü.Sonra).Metin(plan.Ürünler.Açıklama(yer));
    return satır;
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
            if (plan.Malzemeler.Malzeme(yer).İşaretli == alınan)
                sonuç = yazıcı.SatırEkle(MalzemeDeğerleri(plan, yer).Değerler());
        }
        for (int satır = 0; alınan && satır < plan.ÜrünModeli.rowCount() && sonuç.Tamam(); ++satır)
            sonuç = yazıcı.SatırEkle(ÜrünDeğerleri(plan, plan.ÜrünModeli.KaynakSatırı(satır)).Değerler());
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

#include "DegisimCiktilari.h"

#include <cmath>

#include "DegiskenModulu.h"
#include "KullanimMetinleri.h"
#include "ListeCizelgesi.h"
#include "SayfaDuzeni.h"

namespace {

QString Neden(const DeğişimSatırları& satırlar, std::size_t yer) {
    const QString neden = satırlar.Açıklama(yer);
    return neden.isEmpty() && !satırlar.Ürün(yer).İşaretli ? Metin(MetinNo::İşaretsiz) : neden;
}

// The ticked rows in the order of the screen, then the others.
template <typename İş>
void HerSatır(const DeğişimSatırları& satırlar, const TabloModeli& model, const İş& iş) {
    for (const bool alınan : {true, false})
        for (int sıra = 0; sıra < model.rowCount(); ++sıra) {
            const std::size_t yer = model.KaynakSatırı(sıra);
            if (satırlar.Ürün(yer).İşaretli == alınan) iş(yer);
        }
}

void Ekle(QList<ÇizelgeDeğeri>& değerler, const std::optional<Para>& tutar) {
    tutar ? değerler.emplaceBack(*tutar) : değerler.emplaceBack();
}

std::optional<Ondalık> Oran(const DeğişenÜrün& ürün) {
    if (ürün.ÖncekiToplam == Para()) return std::nullopt;
    const double önce = ürün.ÖncekiToplam.Double();
    const auto oran = OnBeşHaneyle((ürün.SonrakiToplam.Double() - önce) / std::abs(önce) * 100);
    return oran ? std::optional(Yuvarla(*oran, 2, Yarım::SıfırdanUzağa)) : std::nullopt;
}

QList<ÇizelgeDeğeri> Değerler(const DeğişimSatırları& satırlar, std::size_t yer) {
    const DeğişenÜrün& ürün = satırlar.Ürün(yer);
    const bool değişir = Uygulanır(ürün.Neden) || ürün.Neden == DeğişimNedeni::YarıMamulünden;
    QList<ÇizelgeDeğeri> değerler;
    for (int sütun = DGrup; sütun <= DSonra; ++sütun) değerler.emplaceBack(satırlar.Hücre(yer, sütun));
    değerler.emplaceBack(ürün.ÖncekiToplam);
    Ekle(değerler, değişir ? std::optional(ürün.SonrakiToplam) : std::nullopt);
    Ekle(değerler,
         değişir ? Topla(ürün.SonrakiToplam, Para::OnBindeBirden(-ürün.ÖncekiToplam.OnBindeBir())) : std::nullopt);
    const std::optional<Ondalık> oran = değişir ? Oran(ürün) : std::nullopt;
    oran ? değerler.emplaceBack(*oran) : değerler.emplaceBack();
    değerler.emplaceBack(Neden(satırlar, yer));
    return değerler;
}

}  // namespace

void DeğişimiYaz(SayfaYüzeyi& yüzey, const QString& başlık, const DeğişimSatırları& satırlar,
                 const TabloModeli& model) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::ÜrünSütunu, 18, HücreTürü::Metin},
                       {KullanımMetni::ÖncekiSatırlarSütunu, 3.4, HücreTürü::Metin},
                       {KullanımMetni::SonrakiSatırlarSütunu, 2.05, HücreTürü::Metin},
                       {MetinNo::ÖncekiToplamSütunu, 1.5, HücreTürü::Sayı},
                       {MetinNo::SonrakiToplamSütunu, 1.27, HücreTürü::Sayı},
                       {MetinNo::FarkSütunu, 1.06, HücreTürü::Sayı}});
    düzen.BaşlıklarıYinele();
    if (!düzen.Başla()) return;
    HerSatır(satırlar, model, [&](std::size_t yer) {
        QString ad = satırlar.Hücre(yer, DGrup) + QStringLiteral(" / ") + satırlar.Hücre(yer, DÜrün);
        const QString neden = Neden(satırlar, yer);
        if (!neden.isEmpty()) ad += QStringLiteral(" (%1)").arg(neden);
        QStringList hücreler{ad};
        for (int sütun = DÖnce; sütun <= DFark; ++sütun) hücreler.append(satırlar.Hücre(yer, sütun));
        düzen.SatırYaz(hücreler);
    });
    düzen.Bitir();
}

YazmaSonucu DeğişimiÇizelgeyeYaz(const QString& yol, const QString& başlık, const DeğişimSatırları& satırlar,
                                 const TabloModeli& model) {
    QList<ÇizelgeSütunu> sütunlar = ÇizelgeSütunları(model, OndalıkBasamak);
    sütunlar[DYüzde].Tür = ÇizelgeSütunTürü::Yüzde;
    sütunlar[DYüzde].Basamak = 2;
    ÇizelgeYazıcı yazıcı(yol, başlık, sütunlar);
    YazmaSonucu sonuç = yazıcı.Aç();
    HerSatır(satırlar, model, [&](std::size_t yer) {
        if (sonuç.Tamam()) sonuç = yazıcı.SatırEkle(Değerler(satırlar, yer));
    });
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

#include "SatisCiktilari.h"

#include "KullanimMetinleri.h"
#include "SayfaDuzeni.h"

namespace {

template <typename İş>
void HerBasılan(const SatışListesi& liste, const İş& iş) {
    for (int sıra = 0; sıra < liste.Model.rowCount(); ++sıra) {
        const std::size_t yer = liste.Model.KaynakSatırı(sıra);
        if (liste.Satırlar.İşaretli(yer)) iş(yer);
    }
}

}  // namespace

void SatışListesiniYaz(SayfaYüzeyi& yüzey, const SatışListesi& liste) {
    SayfaDüzeni düzen(yüzey, liste.Başlık,
                      {{MetinNo::ÜrünSütunu, 13.5, HücreTürü::Metin},
                       {KullanımMetni::FiyatSütunu, 1.75, HücreTürü::Sayı},
                       {KullanımMetni::KdvSütunu, 1.42, HücreTürü::Sayı},
                       {KullanımMetni::KdvliSütunu, 1.2, HücreTürü::Sayı}});
    düzen.BaşlıklarıYinele();
    if (!düzen.Başla()) return;
    HerBasılan(liste, [&](std::size_t yer) {
        const auto hücre = [&](int sütun) { return liste.Satırlar.Hücre(yer, sütun); };
        düzen.SatırYaz({hücre(SGrup) + QStringLiteral(" / ") + hücre(SAd), hücre(SFiyat), hücre(SKdv), hücre(SKdvli)});
    });
    if (!liste.AltYazı.isEmpty()) düzen.AltYazıYaz(liste.AltYazı);
    düzen.Bitir();
}

YazmaSonucu SatışListesiniÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı, const SatışListesi& liste) {
    constexpr int basamak = SatışSatırları::BASAMAK;
    ÇizelgeYazıcı yazıcı(yol, sayfaAdı,
                         {{Metin(MetinNo::GrubuSütunu), 20},
                          {Metin(MetinNo::ÜrünSütunu), 36},
                          {Metin(KullanımMetni::FiyatSütunu), 16, ÇizelgeSütunTürü::Para, basamak},
                          {Metin(KullanımMetni::KdvSütunu), 9, ÇizelgeSütunTürü::Sayı},
                          {Metin(KullanımMetni::KdvliSütunu), 16, ÇizelgeSütunTürü::Para, basamak}});
    yazıcı.ÜstYazıKoy(liste.Başlık);
    YazmaSonucu sonuç = yazıcı.Aç();
    HerBasılan(liste, [&](std::size_t yer) {
        if (!sonuç.Tamam()) return;
        const SatışSatırları::Satır& satır = liste.Satırlar.Satırlar[yer];
        QList<ÇizelgeDeğeri> değerler;
        değerler.emplaceBack(satır.Grup);
        değerler.emplaceBack(satır.Ad);
        for (const std::optional<Para>& tutar : {satır.Fiyat, liste.Satırlar.Oran, satır.Kdvli})
            tutar ? değerler.emplaceBack(*tutar) : değerler.emplaceBack();
        sonuç = yazıcı.SatırEkle(değerler);
    });
    if (sonuç.Tamam() && !liste.AltYazı.isEmpty()) {
        sonuç = yazıcı.SatırEkle({});
        QList<ÇizelgeDeğeri> alt;
        alt.emplaceBack(liste.AltYazı);
        if (sonuç.Tamam()) sonuç = yazıcı.SatırEkle(alt);
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

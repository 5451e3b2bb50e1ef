#include "KullanimCiktilari.h"

#include "DegiskenModulu.h"
#include "KullanimMetinleri.h"
#include "ListeCizelgesi.h"
#include "SayfaDuzeni.h"

namespace {

void Ekle(QList<ÇizelgeDeğeri>& değerler, const std::optional<Ondalık>& sayı) {
    sayı ? değerler.emplaceBack(*sayı) : değerler.emplaceBack();
}

}  // namespace

void KullanımıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const KullanımSatırları& satırlar,
                  const TabloModeli& model) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::ÜrünSütunu, 18, HücreTürü::Metin},
                       {MetinNo::MiktarıSütunu, 2.1, HücreTürü::Miktar},
                       {MetinNo::FiyatıSütunu, 1.5, HücreTürü::Sayı},
                       {MetinNo::TutarıSütunu, 1.25, HücreTürü::Sayı},
                       {KullanımMetni::PaySütunu, 1.1, HücreTürü::Sayı}});
    düzen.BaşlıklarıYinele();
    if (!düzen.Başla()) return;
    for (int sıra = 0; sıra < model.rowCount(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        QString ad = satırlar.Hücre(yer, KGrup) + QStringLiteral(" / ") + satırlar.Hücre(yer, KÜrün);
        const QString dikkat = satırlar.Açıklama(yer);
        if (!dikkat.isEmpty()) ad += QStringLiteral(" (%1)").arg(dikkat);
        düzen.SatırYaz({ad, satırlar.Hücre(yer, KMiktar), satırlar.Hücre(yer, KFiyat), satırlar.Hücre(yer, KTutar),
                        satırlar.Hücre(yer, KPay)});
    }
    düzen.Bitir();
}

YazmaSonucu KullanımıÇizelgeyeYaz(const QString& yol, const QString& başlık, const KullanımSatırları& satırlar,
                                  const TabloModeli& model) {
    QList<ÇizelgeSütunu> sütunlar = ÇizelgeSütunları(model, OndalıkBasamak);
    constexpr int pay = KPay + 1;  // the quantity has taken two
    sütunlar[pay].Tür = ÇizelgeSütunTürü::Yüzde;
    sütunlar[pay].Basamak = KullanımSatırları::PAY_BASAMAĞI;
    ÇizelgeYazıcı yazıcı(yol, başlık, sütunlar);
    YazmaSonucu sonuç = yazıcı.Aç();
    for (int sıra = 0; sıra < model.rowCount() && sonuç.Tamam(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        const KullanımSatırları::Satır& satır = satırlar.Satırlar[yer];
        QList<ÇizelgeDeğeri> değerler;
        for (const QString& metin : {satır.Ürün->Grup, satır.Ürün->Ad}) değerler.emplaceBack(metin);
        MiktarEkle(değerler, satır.SaklananMiktar);
        Ekle(değerler, satır.FiyatSayısı);
        Ekle(değerler, satır.TutarSayısı);
        std::optional<Ondalık> oran = satır.Pay ? OnBeşHaneyle(*satır.Pay) : std::nullopt;
        if (oran) oran = Yuvarla(*oran, KullanımSatırları::PAY_BASAMAĞI, Yarım::SıfırdanUzağa);
        Ekle(değerler, oran);
        değerler.emplaceBack(satırlar.Açıklama(yer));
        sonuç = yazıcı.SatırEkle(değerler);
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

#include "MaliyetCiktilari.h"

#include "DegiskenModulu.h"
#include "MetinTablosu.h"
#include "UrunMetinleri.h"
#include "SayfaDuzeni.h"

namespace {

void Ekle(QList<ÇizelgeDeğeri>& değerler, const std::optional<double>& sayı) {
    const std::optional<Ondalık> gösterilen = GösterilenSayı(sayı);
    gösterilen ? değerler.emplaceBack(*gösterilen) : değerler.emplaceBack();
}

}  // namespace

void MaliyetTablosunuYaz(SayfaYüzeyi& yüzey, const QString& başlık, const MaliyetSatırları& satırlar,
                         const TabloModeli& model) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::ÜrünSütunu, 13.5, HücreTürü::Metin},
                       {ÜrünMetni::MalzemeMaliyetiSütunu, 2.2, HücreTürü::Sayı},
                       {ÜrünMetni::ToplamSütunu, 1.55, HücreTürü::Sayı},
                       {ÜrünMetni::BirimMaliyetSütunu, 1.2, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    for (int sıra = 0; sıra < model.rowCount(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        QString ad = satırlar.Hücre(yer, CGrup) + QStringLiteral(" / ") + satırlar.Hücre(yer, CAd);
        const QString dikkat = satırlar.Hücre(yer, CDikkat);
        if (!dikkat.isEmpty()) ad += QStringLiteral(" (%1)").arg(dikkat);
        düzen.SatırYaz({ad, satırlar.Hücre(yer, CMalzeme), satırlar.Hücre(yer, CToplam), satırlar.Hücre(yer, CBirim)});
    }
    düzen.Bitir();
}

YazmaSonucu MaliyetTablosunuÇizelgeyeYaz(const QString& yol, const QString& başlık, const MaliyetSatırları& satırlar,
                                         const TabloModeli& model) {
    QList<ÇizelgeSütunu> sütunlar;
    for (const TabloSütunu& sütun : model.Sütunlar()) {
        const bool tutar = sütun.Sayı && sütunlar.size() != CSayı;
        const ÇizelgeSütunTürü tür = tutar        ? ÇizelgeSütunTürü::Para
                                     : sütun.Sayı ? ÇizelgeSütunTürü::Sayı
                                                  : ÇizelgeSütunTürü::Metin;
        sütunlar.append({Metin(sütun.Başlık), sütun.Harf * 1.2, tür, OndalıkBasamak});
    }
    ÇizelgeYazıcı yazıcı(yol, başlık, sütunlar);
    YazmaSonucu sonuç = yazıcı.Aç();
    for (int sıra = 0; sıra < model.rowCount() && sonuç.Tamam(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        const MaliyetTablosuSatırı& satır = satırlar.Satırlar[yer];
        QList<ÇizelgeDeğeri> değerler;
        for (const QString& metin : {satır.Grup, satır.Ad, DikkatMetni(satır.Dikkat)}) değerler.emplaceBack(metin);
        değerler.emplaceBack(Para::OnBindeBirden(satır.MalzemeSayısı * Para::Ölçek));
        değerler.emplaceBack(satır.MalzemeMaliyeti);
        for (const std::optional<double>& tutar : satır.Tutarlar) Ekle(değerler, tutar);
        değerler.emplaceBack(satır.Toplam);
        Ekle(değerler, satır.BirimMaliyet);
        sonuç = yazıcı.SatırEkle(değerler);
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

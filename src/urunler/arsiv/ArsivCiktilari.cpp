#include "ArsivCiktilari.h"

#include "ArsivMetinleri.h"
#include "ArsivMetni.h"
#include "DegiskenModulu.h"
#include "SayfaDuzeni.h"
#include "SayiMetni.h"

void FarklarıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const FarkSatırları& satırlar, const TabloModeli& model) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::ÜrünSütunu, 40, HücreTürü::Metin},
                       {ArşivMetni::EskiSütunu, 3.9, HücreTürü::Sayı},
                       {ArşivMetni::YeniSütunu, 2.85, HücreTürü::Sayı},
                       {ArşivMetni::FarkSütunu, 2.15, HücreTürü::Sayı},
                       {ArşivMetni::YüzdeSütunu, 1.85, HücreTürü::Sayı},
                       {ArşivMetni::ÇıkanSütunu, 1.67, HücreTürü::Sayı},
                       {ArşivMetni::MiktarSütunu, 1.5, HücreTürü::Sayı},
                       {ArşivMetni::FiyatSütunu, 1.35, HücreTürü::Sayı},
                       {ArşivMetni::EklenenSütunu, 1.24, HücreTürü::Sayı},
                       {ArşivMetni::YüzdelerSütunu, 1.13, HücreTürü::Sayı},
                       {ArşivMetni::YuvarlamaSütunu, 1.07, HücreTürü::Sayı}});
    düzen.BaşlıklarıYinele();
    if (!düzen.Başla()) return;
    for (int sıra = 0; sıra < model.rowCount(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        QString ad = satırlar.Hücre(yer, KGrup) + QStringLiteral(" / ") + satırlar.Hücre(yer, KÜrün);
        const QString durum = satırlar.Hücre(yer, KDurum);
        if (!durum.isEmpty()) ad += QStringLiteral(" (%1)").arg(durum);
        QStringList hücreler{ad};
        for (int sütun = KEski; sütun < KDurum; ++sütun) hücreler.append(satırlar.Hücre(yer, sütun));
        düzen.SatırYaz(hücreler);
    }
    düzen.Bitir();
}

YazmaSonucu FarklarıÇizelgeyeYaz(const QString& yol, const QString& başlık, const FarkSatırları& satırlar,
                                 const TabloModeli& model) {
    QList<ÇizelgeSütunu> sütunlar;
    for (const TabloSütunu& sütun : model.Sütunlar()) {
        const bool yüzde = sütunlar.size() == KYüzde;
        const ÇizelgeSütunTürü tür = yüzde        ? ÇizelgeSütunTürü::Yüzde
                                     : sütun.Sayı ? ÇizelgeSütunTürü::Para
                                                  : ÇizelgeSütunTürü::Metin;
        sütunlar.append({Metin(sütun.Başlık), sütun.Harf * 1.4, tür, yüzde ? 2 : OndalıkBasamak});
    }
    ÇizelgeYazıcı yazıcı(yol, başlık, sütunlar);
    YazmaSonucu sonuç = yazıcı.Aç();
    for (int sıra = 0; sıra < model.rowCount() && sonuç.Tamam(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        QList<ÇizelgeDeğeri> değerler;
        for (int sütun = KGrup; sütun <= KDurum; ++sütun) {
            const QString metin = satırlar.Hücre(yer, sütun);
            const std::optional<Ondalık> sayı =
                model.Sütunlar().at(sütun).Sayı ? OndalıkOku(metin, NoktaKuralı::Serbest) : std::nullopt;
            if (sayı)
                değerler.emplaceBack(*sayı);
            else if (metin.isEmpty())
                değerler.emplaceBack();
            else
                değerler.emplaceBack(metin);
        }
        sonuç = yazıcı.SatırEkle(değerler);
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

MaliyetFişi ArşivFişi(const Başlık& arşiv, const OkunanFöy& okunan) {
    const ArşivFöyü& föy = okunan.Föy;
    MaliyetFişi fiş;
    fiş.Ürün = Metin(ArşivMetni::FöyBaşlığı).arg(föy.Ürün, GünMetni(arşiv.Gün), QString::number(arşiv.No));
    const QString dikkat = ArşivDikkatMetni(föy.Dikkat);
    if (!okunan.Sağlam) fiş.Ürün += QStringLiteral(" – ") + Metin(ArşivMetni::DurumBozuk);
    if (FöyEksik(föy.Dikkat)) fiş.Ürün += QStringLiteral(" – ") + Metin(ArşivMetni::DurumEksik).arg(dikkat);
    for (const Deyimler::Arşiv::Satır& satır : föy.Satırlar)
        fiş.Satırlar.append({satır.MiktarMetni, satır.Malzeme, satır.FiyatMetni, satır.TutarMetni});
    fiş.MalzemeMaliyeti = föy.MalzemeMetni;
    fiş.İşçilikYüzdesi = föy.YüzdeMetinleri[0];
    fiş.KârYüzdesi = föy.YüzdeMetinleri[1];
    fiş.DiğerYüzdesi = föy.YüzdeMetinleri[2];
    fiş.VadeYüzdesi = föy.YüzdeMetinleri[3];
    fiş.ToplamMaliyet = föy.ToplamMetni;
    fiş.ToplamMiktar = föy.MiktarMetni;
    fiş.BirimMaliyet = föy.BirimMetni;
    fiş.OndalıkBasamak = arşiv.Basamak;
    return fiş;
}

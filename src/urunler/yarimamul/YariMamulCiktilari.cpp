#include "YariMamulCiktilari.h"

#include <QStringList>
#include <cmath>

#include "ListeCizelgesi.h"
#include "MetinTablosu.h"
#include "Ondalik.h"
#include "SayfaDuzeni.h"
#include "SayiMetni.h"
#include "YariMamulMetinleri.h"
#include "YariMamulSozleri.h"

namespace {

// Six decimals, more for what they would hide.
int Basamak(double miktar) {
    return std::abs(miktar) < 0.001 ? 15 : 6;
}

std::optional<Ondalık> Yuvarlanan(double miktar) {
    const std::optional<Ondalık> sayı = OnBeşHaneyle(miktar);
    return sayı ? std::optional(Yuvarla(*sayı, Basamak(miktar), Yarım::SıfırdanUzağa)) : std::nullopt;
}

}  // namespace

void BağlarıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const BağlarınKaynağı& bağlar, const TabloModeli& model) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::MalzemeSütunu, 13.5, HücreTürü::Metin},
                       {MetinNo::ÜrünSütunu, 2.9, HücreTürü::Metin},
                       {YarıMamulMetni::TutarSütunu, 1.55, HücreTürü::Metin},
                       {MetinNo::FiyatıSütunu, 1.15, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    for (int sıra = 0; sıra < model.rowCount(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        const auto hücre = [&](int sütun) { return bağlar.Hücre(yer, sütun); };
        QString malzeme = hücre(BMalzeme);
        if (bağlar.Satırlar[yer].Bağ.Durum != BağDurumu::Uyuyor) malzeme += QStringLiteral(" (%1)").arg(hücre(BDurum));
        düzen.SatırYaz({malzeme, hücre(BGrup) + QStringLiteral(" / ") + hücre(BÜrün), hücre(BTutar), hücre(BFiyat)});
    }
    düzen.Bitir();
}

YazmaSonucu BağlarıÇizelgeyeYaz(const QString& yol, const QString& başlık, const BağlarınKaynağı& bağlar,
                                const TabloModeli& model) {
    ÇizelgeYazıcı yazıcı(yol, başlık, ÇizelgeSütunları(model, 4));
    YazmaSonucu sonuç = yazıcı.Aç();
    for (int sıra = 0; sıra < model.rowCount() && sonuç.Tamam(); ++sıra) {
        const std::size_t yer = model.KaynakSatırı(sıra);
        QList<ÇizelgeDeğeri> değerler;
        for (const int sütun : {BMalzeme, BGrup, BÜrün, BTutar}) değerler.emplaceBack(bağlar.Hücre(yer, sütun));
        const std::optional<Para>& fiyat = bağlar.Satırlar[yer].Fiyat;
        fiyat ? değerler.emplaceBack(*fiyat) : değerler.emplaceBack();
        değerler.emplaceBack(bağlar.Hücre(yer, BDurum));
        sonuç = yazıcı.SatırEkle(değerler);
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

QString AçılımMiktarı(double miktar) {
    const std::optional<Ondalık> sayı = Yuvarlanan(miktar);
    if (!sayı) return Metin(YarıMamulMetni::NotTaşıyor);
    QString metin = SayıBiçimle(*sayı, Basamak(miktar));
    if (!metin.contains(QLatin1Char(','))) return metin;
    while (metin.endsWith(QLatin1Char('0'))) metin.chop(1);
    if (metin.endsWith(QLatin1Char(','))) metin.chop(1);
    return metin;
}

QString AçılımNotu(const AçılımToplamı& toplam) {
    QStringList notlar;
    if (toplam.Okunamayan > 0) notlar.append(Metin(YarıMamulMetni::NotOkunamayan));
    if (toplam.FarklıBirim) notlar.append(Metin(YarıMamulMetni::NotFarklıBirim));
    if (toplam.Durum != BağDurumu::Uyuyor)
        notlar.append(Metin(YarıMamulMetni::NotAçılamaz).arg(DurumMetni(toplam.Durum)));
    return notlar.join(QStringLiteral("; "));
}

void AçılımıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const std::vector<AçılımToplamı>& toplamlar) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::MalzemeSütunu, 13.5, HücreTürü::Metin},
                       {YarıMamulMetni::ToplamSütunu, 1.5, HücreTürü::Sayı},
                       {YarıMamulMetni::BirimSütunu, 1.3, HücreTürü::Metin}});
    if (!düzen.Başla()) return;
    for (const AçılımToplamı& toplam : toplamlar) {
        const QString not_ = AçılımNotu(toplam);
        düzen.SatırYaz({not_.isEmpty() ? toplam.Malzeme : toplam.Malzeme + QStringLiteral(" (%1)").arg(not_),
                        AçılımMiktarı(toplam.Miktar), toplam.Birim});
    }
    düzen.Bitir();
}

YazmaSonucu AçılımıÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı,
                                const std::vector<AçılımToplamı>& toplamlar) {
    QList<ÇizelgeSütunu> sütunlar{{Metin(MetinNo::MalzemeSütunu), 36}};
    MiktarSütunlarıEkle(sütunlar, Metin(MetinNo::MiktarıSütunu));
    sütunlar.append({Metin(YarıMamulMetni::NotSütunu), 36});
    ÇizelgeYazıcı yazıcı(yol, sayfaAdı, sütunlar);
    YazmaSonucu sonuç = yazıcı.Aç();
    for (const AçılımToplamı& toplam : toplamlar) {
        if (!sonuç.Tamam()) break;
        QList<ÇizelgeDeğeri> değerler;
        değerler.emplaceBack(toplam.Malzeme);
        const std::optional<Ondalık> miktar = Yuvarlanan(toplam.Miktar);
        miktar ? değerler.emplaceBack(*miktar) : değerler.emplaceBack();
        değerler.emplaceBack(toplam.Birim);
        değerler.emplaceBack(AçılımNotu(toplam));
        sonuç = yazıcı.SatırEkle(değerler);
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

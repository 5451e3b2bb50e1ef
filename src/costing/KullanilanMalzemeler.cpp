#include "KullanilanMalzemeler.h"

#include "Deyimler.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "SutunluSatir.h"
#include "SayiMetni.h"

namespace {

enum Sütunlar { MiktarSütunu, AdSütunu };

}  // namespace

KullanılanMalzemeListesi::KullanılanMalzemeListesi(QWidget* sahip)
    : SütunluListe({{MetinNo::MiktarıSütunu, 5, false, true},
                    {MetinNo::AdıSütunu, 3, false},
                    {MetinNo::FiyatıSütunu, 5, true},
                    {MetinNo::TutarıSütunu, 4.6, true}},
                   sahip) {
    setObjectName(QStringLiteral("KullanılanMalzemeListesi"));
    setMinimumHeight(120);
}

KullanılanMalzemeListesi::Yüklenen KullanılanMalzemeListesi::Yükle(const QString& grup, const QString& ürün,
                                                                   int basamak) {
    clear();
    Yüklenen sonuç;
    QList<QTreeWidgetItem*> satırlar;
    const Okuma okuma = SatırlarıOku(Deyimler::KullanılanMalzemeler(grup, ürün), [&] {
        const QString miktar = SütunOku(1);
        const QString ad = SütunOku(2);
        const QString fiyat = NoktayıVirgüleÇevir(SütunOku(3));
        const MalzemeSatırı satır = sonuç.Toplam.Ekle(miktar, fiyat, basamak);
        if (!satır.Sayıldı) sonuç.Sayılmayanlar.append(miktar + QLatin1Char(' ') + ad);
        satırlar.append(new SütunluSatır({satır.Miktar, ad, satır.Fiyat, satır.Tutar}, {miktar, QString(), fiyat}));
    });
    sonuç.Tamam = okuma == Okuma::Tamam;
    SatırlarıKoy(satırlar);
    return sonuç;
}

QString KullanılanMalzemeListesi::SeçiliMiktar() const {
    return SeçiliMetin(MiktarSütunu);
}

QString KullanılanMalzemeListesi::SeçiliMalzeme() const {
    return SeçiliMetin(AdSütunu);
}

QStringList KullanılanMalzemeListesi::MalzemeAdları() const {
    QStringList adlar;
    for (int satır = 0; satır < topLevelItemCount(); ++satır) adlar.append(topLevelItem(satır)->text(AdSütunu));
    return adlar;
}

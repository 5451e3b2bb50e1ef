#include "OrnekVeri.h"

#include <QHash>

#include "Deyimler.h"
#include "VeriDosyasi.h"

void ÖrnekVeriYaz(VeriYazıcısı& yazıcı, QDate bugün) {
    QHash<QStringView, QStringView> fiyatlar;
    for (const ÖrnekMalzeme& malzeme : ÖrnekMalzemeler()) {
        yazıcı.Çalıştır(Deyimler::MalzemeEkle(malzeme.ad.toString(), malzeme.fiyat.toString()));
        fiyatlar.insert(malzeme.ad, malzeme.fiyat);
    }
    for (const ÖrnekÜrün& ürün : ÖrnekÜrünler()) {
        const ÖrnekYüzdeler& yüzde = ürün.yüzdeler;
        const QString grup = ürün.grup.toString();
        const QString ad = ürün.ad.toString();
        yazıcı.Çalıştır(Deyimler::ÜrünEkle(grup, ad));
        yazıcı.Çalıştır(Deyimler::YüzdeleriKaydet(yüzde.işçilik.toString(), yüzde.kâr.toString(),
                                                  yüzde.diğer.toString(), yüzde.vade.toString(), grup, ad));
        const QString tarih = Deyimler::Tarih(bugün.addDays(-ürün.günÖnce));
        for (const ÖrnekMiktar& satır : ürün.malzemeler)
            yazıcı.Çalıştır(
                Deyimler::KullanılanMalzemeEkle({grup, ad, satır.malzeme.toString(), satır.miktar.toString(),
                                                 fiyatlar.value(satır.malzeme).toString(), tarih}));
    }
    ÖrnekGeçmişiYaz(yazıcı, bugün);
    ÖrnekTedarikçiYaz(yazıcı);
    ÖrnekDövizleriYaz(yazıcı, bugün);
    ÖrnekYarıMamulleriYaz(yazıcı);
    ÖrnekArşivleriYaz(yazıcı, bugün);
}

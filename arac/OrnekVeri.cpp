#include "OrnekVeri.h"

#include <QHash>

#include "VeriBaglantisi.h"
#include "VeriDeyimleri.h"

void ÖrnekVeriYaz(VeriBağlantısı& bağlantı, QDate bugün) {
    QHash<QStringView, QStringView> fiyatlar;
    for (const ÖrnekMalzeme& malzeme : ÖrnekMalzemeler()) {
        bağlantı.Çalıştır(VeriDeyimleri::MalzemeEkle(malzeme.ad, malzeme.fiyat));
        fiyatlar.insert(malzeme.ad, malzeme.fiyat);
    }
    for (const ÖrnekÜrün& ürün : ÖrnekÜrünler()) {
        const ÖrnekYüzdeler& yüzde = ürün.yüzdeler;
        bağlantı.Çalıştır(VeriDeyimleri::ÜrünEkle(ürün.grup, ürün.ad));
        bağlantı.Çalıştır(
            VeriDeyimleri::YüzdeleriYaz(ürün.grup, ürün.ad, yüzde.işçilik, yüzde.kâr, yüzde.diğer, yüzde.vade));
        const QString tarih = VeriDeyimleri::Tarih(bugün.addDays(-ürün.günÖnce));
        for (const ÖrnekMiktar& satır : ürün.malzemeler) {
            bağlantı.Çalıştır(VeriDeyimleri::KullanılanMalzemeEkle(tarih, ürün.grup, ürün.ad, satır.malzeme,
                                                                   satır.miktar, fiyatlar.value(satır.malzeme)));
        }
    }
}

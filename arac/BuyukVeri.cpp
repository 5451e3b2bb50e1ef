#include "BuyukVeri.h"

#include <algorithm>
#include <numeric>

#include "Deyimler.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int GÜN_SAYISI = 250;

QString Numaralı(const QString& ad, int sıra) {
    return ad.arg(sıra + 1, 6, 10, QChar(u'0'));
}

QString Fiyat(int sıra) {
    return u"%1,%2"_s.arg(sıra * 7 % 2500).arg(sıra * 13 % 10000, 4, 10, QChar(u'0'));
}

}  // namespace

QString BüyükGrupAdı(int sıra) {
    return Numaralı(u"ÜRÜN GRUBU %1"_s, sıra);
}
QString BüyükÜrünAdı(int sıra) {
    return Numaralı(u"Ölçme Ürünü %1"_s, sıra);
}
QString BüyükMalzemeAdı(int sıra) {
    return Numaralı(u"Çeşitli Malzeme %1"_s, sıra);
}

void BüyükVeriYaz(VeriYazıcısı& yazıcı, int satırSayısı, QDate bugün, int malzemeSayısı) {
    if (malzemeSayısı == 0) malzemeSayısı = satırSayısı / 10;
    malzemeSayısı = std::max(malzemeSayısı, BÜYÜK_ÜRÜNÜN_MALZEMESİ);
    for (int i = 0; i < malzemeSayısı; ++i) {
        YarıdaKesildiMi();
        yazıcı.Çalıştır(Deyimler::MalzemeEkle(BüyükMalzemeAdı(i), Fiyat(i)));
    }
    // A step without a common divisor with the catalogue's size keeps a product's materials apart and uses them all.
    int adım = 7919;
    while (std::gcd(adım, malzemeSayısı) != 1) ++adım;
    QString grup;
    QString ürün;
    QString tarih;
    for (int satır = 0; satır < satırSayısı; ++satır) {
        YarıdaKesildiMi();
        const int ürünSırası = satır / BÜYÜK_ÜRÜNÜN_MALZEMESİ;
        if (satır % BÜYÜK_ÜRÜNÜN_MALZEMESİ == 0) {
            grup = BüyükGrupAdı(ürünSırası / BÜYÜK_GRUBUN_ÜRÜNÜ);
            ürün = BüyükÜrünAdı(ürünSırası);
            tarih = Deyimler::Tarih(bugün.addDays(-(ürünSırası % GÜN_SAYISI)));
            yazıcı.Çalıştır(Deyimler::ÜrünEkle(grup, ürün));
            yazıcı.Çalıştır(Deyimler::YüzdeleriKaydet(u"12,50"_s, u"20,00"_s, u"-3,25"_s, u"4,75"_s, grup, ürün));
        }
        const int malzeme = int(qint64(satır) * adım % malzemeSayısı);
        const QString miktar = u"%1,%2 Adet"_s.arg(satır % 90 + 1).arg(satır % 100, 2, 10, QChar(u'0'));
        yazıcı.Çalıştır(
            Deyimler::KullanılanMalzemeEkle({grup, ürün, BüyükMalzemeAdı(malzeme), miktar, Fiyat(malzeme), tarih}));
    }
}

#include "VeriDeyimleri.h"

#include <QString>
#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace VeriDeyimleri {

QString Tarih(QDate tarih) {
    return u"#%1/%2/%3#"_s.arg(tarih.month()).arg(tarih.day()).arg(tarih.year());
}

QString MalzemeEkle(QStringView malzeme, QStringView fiyat) {
    return u"INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('" % malzeme % u"', '" % fiyat % u"')";
}

QString ÜrünEkle(QStringView grup, QStringView ürün) {
    return u"INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('" % grup % u"', '" % ürün % u"')";
}

QString YüzdeleriYaz(QStringView grup, QStringView ürün, QStringView işçilik, QStringView kâr, QStringView diğer,
                     QStringView vade) {
    return u"UPDATE UrunTablosu SET IscilikYuzdesi= '" % işçilik % u"', KarYuzdesi= '" % kâr %
           u"', DigerVarnekYuzdesi= '" % diğer % u"', VadeFarkiYuzdesi= '" % vade % u"' WHERE UrunGrubu= '" % grup %
           u"' AND UrunAdi= '" % ürün % u"'";
}

QString KullanılanMalzemeEkle(QStringView tarih, QStringView grup, QStringView ürün, QStringView malzeme,
                              QStringView miktar, QStringView fiyat) {
    return u"INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
           u"KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (" %
           tarih % u", '" % grup % u"', '" % ürün % u"', '" % malzeme % u"', '" % miktar % u"', '" % fiyat % u"')";
}

}  // namespace VeriDeyimleri

#include "DegisimDeyimleri.h"

#include "DeyimParcalari.h"

namespace Deyimler {

QString MalzemeninSatırları(const QString& malzeme) {
    return TümKullanılanlar() + QStringLiteral(" WHERE KullanilanMalzemeAdi= ") + Tırnakla(malzeme);
}

namespace Değiştirme {

QStringList TabloyuOluştur() {
    return {
        QStringLiteral("CREATE TABLE MalzemeDegisimTablosu (IslemNo DOUBLE NOT NULL, Sonraki DOUBLE NOT NULL, "
                       "UrunGrubu TEXT(255) NOT NULL, UrunAdi TEXT(255) NOT NULL, MalzemeAdi TEXT(255) NOT NULL, "
                       "MalzemeMiktari TEXT(255) NOT NULL, MalzemeFiyati CURRENCY NOT NULL, "
                       "KullanimTarihi DATETIME NOT NULL)"),
        QStringLiteral("CREATE INDEX IsleminDegisimleri ON MalzemeDegisimTablosu (IslemNo)"),
        QStringLiteral("CREATE INDEX MalzemeninDegisimleri ON MalzemeDegisimTablosu (MalzemeAdi, IslemNo)"),
    };
}

QString SatırEkle(std::int64_t işlem, bool sonraki, const KullanılanSatır& satır) {
    return QStringLiteral(
               "INSERT INTO MalzemeDegisimTablosu (IslemNo, Sonraki, UrunGrubu, UrunAdi, MalzemeAdi, MalzemeMiktari, "
               "MalzemeFiyati, KullanimTarihi)") +
           Değerler({Numara(işlem), Numara(sonraki ? 1 : 0), Tırnakla(satır.Grup), Tırnakla(satır.Ürün),
                     Tırnakla(satır.Malzeme), Tırnakla(satır.Miktar), Tırnakla(SaklanacakSayı(satır.Fiyat)),
                     satır.Tarih});
}

QString İşleminSatırları(std::int64_t işlem) {
    return QStringLiteral(
               "SELECT Sonraki, UrunGrubu, UrunAdi, MalzemeAdi, MalzemeMiktari, MalzemeFiyati, KullanimTarihi FROM "
               "MalzemeDegisimTablosu WHERE IslemNo= ") +
           Numara(işlem);
}

QString Malzemeninİşlemleri(const QString& malzeme) {
    return QStringLiteral("SELECT DISTINCT IslemNo FROM MalzemeDegisimTablosu WHERE MalzemeAdi= ") + Tırnakla(malzeme);
}

}  // namespace Değiştirme

}  // namespace Deyimler

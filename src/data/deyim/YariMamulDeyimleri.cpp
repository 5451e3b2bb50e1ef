#include "YariMamulDeyimleri.h"

#include "DeyimParcalari.h"

namespace Deyimler::YarıMamul {

namespace {

QString Koşul(const QString& malzeme) {
    return QStringLiteral(" WHERE MalzemeAdi= ") + Tırnakla(malzeme);
}

}  // namespace

QStringList TablolarıOluştur() {
    return {
        QStringLiteral("CREATE TABLE YariMamulTablosu (MalzemeAdi TEXT(255) NOT NULL, UrunGrubu TEXT(255) NOT NULL, "
                       "UrunAdi TEXT(255) NOT NULL, TutarTuru TEXT(20) NOT NULL, Durum TEXT(20) NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX YariMamulSirasi ON YariMamulTablosu (MalzemeAdi)"),
    };
}

QString Bağlar() {
    return QStringLiteral(
        "SELECT MalzemeAdi, UrunGrubu, UrunAdi, TutarTuru, Durum FROM YariMamulTablosu ORDER BY MalzemeAdi ASC");
}

QString BağEkle(const Bağ& bağ) {
    return QStringLiteral("INSERT INTO YariMamulTablosu (MalzemeAdi, UrunGrubu, UrunAdi, TutarTuru, Durum)") +
           Değerler(
               {Tırnakla(bağ.Malzeme), Tırnakla(bağ.Grup), Tırnakla(bağ.Ürün), Tırnakla(bağ.Tür), Tırnakla(bağ.Durum)});
}

QString BağSil(const QString& malzeme) {
    return QStringLiteral("DELETE FROM YariMamulTablosu") + Koşul(malzeme);
}

QString ÜrünüYaz(const QString& malzeme, const QString& grup, const QString& ürün) {
    return QStringLiteral("UPDATE YariMamulTablosu SET UrunGrubu= ") + Tırnakla(grup) + QStringLiteral(", UrunAdi= ") +
           Tırnakla(ürün) + Koşul(malzeme);
}

QString DurumuYaz(const QString& malzeme, const QString& durum) {
    return QStringLiteral("UPDATE YariMamulTablosu SET Durum= ") + Tırnakla(durum) + Koşul(malzeme);
}

QString ÜründekiFiyat(const QString& grup, const QString& ürün, const QString& malzeme, const QString& fiyat) {
    return QStringLiteral("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= ") + Tırnakla(fiyat) +
           QStringLiteral(" WHERE UrunGrubu= ") + Tırnakla(grup) + QStringLiteral(" AND UrunAdi= ") + Tırnakla(ürün) +
           QStringLiteral(" AND KullanilanMalzemeAdi= ") + Tırnakla(malzeme);
}

}  // namespace Deyimler::YarıMamul

#include "GetirmeDeyimleri.h"

#include "DeyimParcalari.h"

namespace Deyimler {

QString ÜrününSatırları(const QString& grup, const QString& ürün) {
    return TümKullanılanlar() + QStringLiteral(" WHERE UrunGrubu= ") + Tırnakla(grup) +
           QStringLiteral(" AND UrunAdi= ") + Tırnakla(ürün);
}

namespace Getirme {

QStringList TabloyuOluştur() {
    return {
        QStringLiteral("CREATE TABLE UrunDegisimTablosu (IslemNo DOUBLE NOT NULL, Sonraki DOUBLE NOT NULL, "
                       "UrunGrubu TEXT(255) NOT NULL, UrunAdi TEXT(255) NOT NULL, IscilikYuzdesi DOUBLE NOT NULL, "
                       "KarYuzdesi DOUBLE NOT NULL, DigerVarnekYuzdesi DOUBLE NOT NULL, "
                       "VadeFarkiYuzdesi DOUBLE NOT NULL)"),
        QStringLiteral("CREATE INDEX IsleminUrunleri ON UrunDegisimTablosu (IslemNo)"),
    };
}

QString ÜrünEkle(const ÜrünKaydı& ürün) {
    QStringList değerler{Numara(ürün.İşlem), Numara(ürün.Sonraki ? 1 : 0), Tırnakla(ürün.Grup), Tırnakla(ürün.Ad)};
    for (const QString& yüzde : ürün.Yüzdeler) değerler.append(Tırnakla(yüzde));
    return QStringLiteral(
               "INSERT INTO UrunDegisimTablosu (IslemNo, Sonraki, UrunGrubu, UrunAdi, IscilikYuzdesi, KarYuzdesi, "
               "DigerVarnekYuzdesi, VadeFarkiYuzdesi)") +
           Değerler(değerler);
}

QString İşleminÜrünleri(std::int64_t işlem) {
    return QStringLiteral(
               "SELECT Sonraki, UrunGrubu, UrunAdi, IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi "
               "FROM UrunDegisimTablosu WHERE IslemNo= ") +
           Numara(işlem);
}

}  // namespace Getirme

}  // namespace Deyimler

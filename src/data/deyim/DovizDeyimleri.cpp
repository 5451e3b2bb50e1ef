#include "DovizDeyimleri.h"

#include "DeyimParcalari.h"
#include "FiyatDeyimleri.h"

namespace Deyimler::Döviz {

namespace {

QString Tutar(Para tutar) {
    return Tırnakla(SaklanacakSayı(tutar));
}

QString BağSorgusu() {
    return QStringLiteral(
        "SELECT MalzemeAdi, DovizKodu, DovizFiyati, YazilanFiyat, OncekiFiyat, IslemNo FROM DovizBagiTablosu");
}

}  // namespace

QStringList TablolarıOluştur() {
    return {
        QStringLiteral("CREATE TABLE DovizTablosu (DovizKodu TEXT(10) NOT NULL, Kur CURRENCY NOT NULL, "
                       "KurGunu TEXT(10) NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX DovizSirasi ON DovizTablosu (DovizKodu)"),
        QStringLiteral("CREATE TABLE DovizBagiTablosu (MalzemeAdi TEXT(255) NOT NULL, DovizKodu TEXT(10) NOT NULL, "
                       "DovizFiyati CURRENCY NOT NULL, YazilanFiyat CURRENCY NOT NULL, OncekiFiyat CURRENCY NOT NULL, "
                       "IslemNo DOUBLE NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX DovizBagiSirasi ON DovizBagiTablosu (MalzemeAdi)"),
    };
}

QString Dövizler() {
    return QStringLiteral("SELECT DovizKodu, Kur, KurGunu FROM DovizTablosu ORDER BY DovizKodu ASC");
}

QString DövizEkle(const Döviz& döviz) {
    return QStringLiteral("INSERT INTO DovizTablosu (DovizKodu, Kur, KurGunu)") +
           Değerler({Tırnakla(döviz.Kod), Tutar(döviz.Kur), Tırnakla(döviz.Gün)});
}

QString DövizSil(const QString& kod) {
    return QStringLiteral("DELETE FROM DovizTablosu WHERE DovizKodu= ") + Tırnakla(kod);
}

QString KuruYaz(const QString& kod, Para eski, Para yeni, const QString& gün) {
    return QStringLiteral("UPDATE DovizTablosu SET Kur= ") + Tutar(yeni) + QStringLiteral(", KurGunu= ") +
           Tırnakla(gün) + QStringLiteral(" WHERE DovizKodu= ") + Tırnakla(kod) + QStringLiteral(" AND Kur= ") +
           Tutar(eski);
}

QString Bağlar() {
    return BağSorgusu() + QStringLiteral(" ORDER BY MalzemeAdi ASC");
}

QString BağıMalzemenin(const QString& malzeme) {
    return BağSorgusu() + QStringLiteral(" WHERE MalzemeAdi= ") + Tırnakla(malzeme);
}

QString BağEkle(const Bağ& bağ) {
    return QStringLiteral(
               "INSERT INTO DovizBagiTablosu (MalzemeAdi, DovizKodu, DovizFiyati, YazilanFiyat, OncekiFiyat, "
               "IslemNo)") +
           Değerler({Tırnakla(bağ.Malzeme), Tırnakla(bağ.Kod), Tutar(bağ.Fiyat), Tutar(bağ.Yazılan), Tutar(bağ.Önceki),
                     Numara(bağ.İşlem)});
}

QString BağSil(const QString& malzeme) {
    return QStringLiteral("DELETE FROM DovizBagiTablosu WHERE MalzemeAdi= ") + Tırnakla(malzeme);
}

QString BağınYazılanı(const Bağ& bağ) {
    return QStringLiteral("UPDATE DovizBagiTablosu SET YazilanFiyat= ") + Tutar(bağ.Yazılan) +
           QStringLiteral(", OncekiFiyat= ") + Tutar(bağ.Önceki) + QStringLiteral(", IslemNo= ") + Numara(bağ.İşlem) +
           QStringLiteral(" WHERE MalzemeAdi= ") + Tırnakla(bağ.Malzeme) + QStringLiteral(" AND DovizKodu= ") +
           Tırnakla(bağ.Kod);
}

}  // namespace Deyimler::Döviz

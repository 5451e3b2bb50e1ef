#include "Deyimler.h"

namespace Deyimler {
namespace {

// UrunGrubu= 'grup' AND UrunAdi= 'ürün'
QString ÜrünKoşulu(const QString& grup, const QString& ürün) {
    return QStringLiteral("WHERE UrunGrubu= '") + grup + QStringLiteral("' AND ") + QStringLiteral("UrunAdi= '") +
           ürün + QStringLiteral("'");
}

QString GrupKoşulu(const QString& grup) {
    return QStringLiteral("WHERE UrunGrubu= '") + grup + QStringLiteral("'");
}

QString MalzemeKoşulu(const QString& malzeme) {
    return QStringLiteral("WHERE MalzemeAdi= '") + malzeme + QStringLiteral("'");
}

QString KullanılanKoşulu(const QString& malzeme) {
    return QStringLiteral("WHERE KullanilanMalzemeAdi= '") + malzeme + QStringLiteral("'");
}

QString GrupAdı(QLatin1String tablo, const QString& eski, const QString& yeni) {
    return QStringLiteral("UPDATE ") + tablo + QStringLiteral(" SET UrunGrubu= '") + yeni + QStringLiteral("' ") +
           GrupKoşulu(eski);
}

QString ÜrünAdı(QLatin1String tablo, const QString& grup, const QString& eski, const QString& yeni) {
    return QStringLiteral("UPDATE ") + tablo + QStringLiteral(" SET UrunAdi= '") + yeni + QStringLiteral("' ") +
           QStringLiteral("WHERE UrunAdi= '") + eski + QStringLiteral("' AND ") + QStringLiteral("UrunGrubu= '") +
           grup + QStringLiteral("'");
}

constexpr QLatin1String ÜrünTablosu("UrunTablosu");
constexpr QLatin1String ÜrünMalzemeTablosu("UrunMalzemeTablosu");

}  // namespace

QString Tarih(QDate tarih) {
    return QStringLiteral("#%1/%2/%3#").arg(tarih.month()).arg(tarih.day()).arg(tarih.year());
}

QString ÜrünSayısı() {
    return QStringLiteral("SELECT Count(UrunAdi) AS KayitSayisi FROM UrunTablosu");
}

QString ÜrünAğacı() {
    return QStringLiteral("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi");
}

QString ÜrünListesiRaporu() {
    return QStringLiteral("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi ASC");
}

QString ÜrünGrupları() {
    return QStringLiteral("SELECT DISTINCT UrunGrubu FROM UrunTablosu ORDER BY UrunGrubu ASC");
}

QString ÜrünVarMı(const QString& grup, const QString& ürün) {
    return QStringLiteral("SELECT UrunGrubu FROM UrunTablosu ") + ÜrünKoşulu(grup, ürün);
}

QString ÜrünAdıVarMı(const QString& grup, const QString& ürün) {
    return QStringLiteral("SELECT UrunAdi, UrunGrubu FROM UrunTablosu ") + ÜrünKoşulu(grup, ürün);
}

QString ÜrünEkle(const QString& grup, const QString& ürün) {
    return QStringLiteral("INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('") + grup + QStringLiteral("', '") +
           ürün + QStringLiteral("')");
}

QString GrubuSil(const QString& grup) {
    return QStringLiteral("DELETE FROM UrunTablosu ") + GrupKoşulu(grup);
}

QString GrubunMalzemeleriniSil(const QString& grup) {
    return QStringLiteral("DELETE FROM UrunMalzemeTablosu ") + GrupKoşulu(grup);
}

QString ÜrünüSil(const QString& grup, const QString& ürün) {
    return QStringLiteral("DELETE FROM UrunTablosu ") + ÜrünKoşulu(grup, ürün);
}

QString ÜrününMalzemeleriniSil(const QString& grup, const QString& ürün) {
    return QStringLiteral("DELETE FROM UrunMalzemeTablosu ") + ÜrünKoşulu(grup, ürün);
}

QString GrupAdınıDeğiştir(const QString& eski, const QString& yeni) {
    return GrupAdı(ÜrünTablosu, eski, yeni);
}

QString MalzemelerdeGrupAdınıDeğiştir(const QString& eski, const QString& yeni) {
    return GrupAdı(ÜrünMalzemeTablosu, eski, yeni);
}

QString ÜrünAdınıDeğiştir(const QString& grup, const QString& eski, const QString& yeni) {
    return ÜrünAdı(ÜrünTablosu, grup, eski, yeni);
}

QString MalzemelerdeÜrünAdınıDeğiştir(const QString& grup, const QString& eski, const QString& yeni) {
    return ÜrünAdı(ÜrünMalzemeTablosu, grup, eski, yeni);
}

QString Yüzdeler(const QString& grup, const QString& ürün) {
    return QStringLiteral("SELECT IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu ") +
           ÜrünKoşulu(grup, ürün);
}

QString YüzdeleriKaydet(const QString& işçilik, const QString& kâr, const QString& diğer, const QString& vade,
                        const QString& grup, const QString& ürün) {
    return QStringLiteral("UPDATE UrunTablosu SET IscilikYuzdesi= '") + işçilik + QStringLiteral("', KarYuzdesi= '") +
           kâr + QStringLiteral("', DigerVarnekYuzdesi= '") + diğer + QStringLiteral("', VadeFarkiYuzdesi= '") + vade +
           QStringLiteral("' WHERE UrunGrubu= '") + grup + QStringLiteral("' AND UrunAdi= '") + ürün +
           QStringLiteral("'");
}

QString MalzemeSayısı() {
    return QStringLiteral("SELECT Count(MalzemeAdi) AS KayitSayisi FROM MalzemeTablosu");
}

QString MalzemeListesi() {
    return QStringLiteral("SELECT MalzemeAdi FROM MalzemeTablosu ORDER BY MalzemeAdi ASC");
}

QString MalzemeKataloğuRaporu() {
    return QStringLiteral("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC");
}

QString MalzemeVarMı(const QString& malzeme) {
    return QStringLiteral("SELECT MalzemeAdi FROM MalzemeTablosu ") + MalzemeKoşulu(malzeme);
}

QString MalzemeVeFiyatı(const QString& malzeme) {
    return QStringLiteral("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ") + MalzemeKoşulu(malzeme);
}

QString MalzemeFiyatı(const QString& malzeme) {
    return QStringLiteral("SELECT MalzemeFiyati FROM MalzemeTablosu ") + MalzemeKoşulu(malzeme);
}

QString MalzemeEkle(const QString& malzeme, const QString& fiyat) {
    return QStringLiteral("INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('") + malzeme +
           QStringLiteral("', '") + fiyat + QStringLiteral("')");
}

QString MalzemeSil(const QString& malzeme) {
    return QStringLiteral("DELETE FROM MalzemeTablosu ") + MalzemeKoşulu(malzeme);
}

QString FiyatDeğiştir(const QString& malzeme, const QString& fiyat) {
    return QStringLiteral("UPDATE MalzemeTablosu SET MalzemeFiyati= '") + fiyat + QStringLiteral("' ") +
           MalzemeKoşulu(malzeme);
}

QString KullanılanMalzemeSayısı() {
    return QStringLiteral("SELECT Count(UrunAdi) AS KayitSayisi FROM UrunMalzemeTablosu");
}

QString KullanılanMalzemeler(const QString& grup, const QString& ürün) {
    return QStringLiteral(
               "SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM "
               "UrunMalzemeTablosu ") +
           ÜrünKoşulu(grup, ürün) + QStringLiteral(" ORDER BY KullanilanMalzemeAdi ASC");
}

QString KullanılanMalzemeEkle(const KullanılanMalzeme& satır) {
    return QStringLiteral(
               "INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
               "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (") +
           satır.Tarih + QStringLiteral(", '") + satır.Grup + QStringLiteral("', '") + satır.Ürün +
           QStringLiteral("', '") + satır.Malzeme + QStringLiteral("', '") + satır.Miktar + QStringLiteral("', '") +
           satır.Fiyat + QStringLiteral("')");
}

QString KullanılanMalzemeDeğiştir(const KullanılanMalzeme& satır) {
    return QStringLiteral("UPDATE UrunMalzemeTablosu SET KullanimTarihi= ") + satır.Tarih +
           QStringLiteral(", UrunGrubu= '") + satır.Grup + QStringLiteral("', UrunAdi= '") + satır.Ürün +
           QStringLiteral("', KullanilanMalzemeAdi= '") + satır.Malzeme +
           QStringLiteral("', KullanilanMalzemeMiktari= '") + satır.Miktar +
           QStringLiteral("', KullanilanMalzemeFiyati= '") + satır.Fiyat + QStringLiteral("' WHERE UrunGrubu= '") +
           satır.Grup + QStringLiteral("' AND UrunAdi= '") + satır.Ürün +
           QStringLiteral("' AND KullanilanMalzemeAdi= '") + satır.Malzeme + QStringLiteral("'");
}

QString KullanılanMalzemeÇıkar(const QString& grup, const QString& ürün, const QString& malzeme) {
    // No blank after "UrunAdi=" here.
    return QStringLiteral("DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= '") + grup +
           QStringLiteral("' AND UrunAdi='") + ürün + QStringLiteral("' AND KullanilanMalzemeAdi= '") + malzeme +
           QStringLiteral("'");
}

QString MalzemeyiÜrünlerdenSil(const QString& malzeme) {
    return QStringLiteral("DELETE FROM UrunMalzemeTablosu ") + KullanılanKoşulu(malzeme);
}

QString ÜrünlerdeFiyatDeğiştir(const QString& malzeme, const QString& fiyat) {
    return QStringLiteral("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '") + fiyat + QStringLiteral("' ") +
           KullanılanKoşulu(malzeme);
}

QString GününHareketleri(const QString& tarih) {
    return QStringLiteral(
               "SELECT KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, UrunAdi FROM "
               "UrunMalzemeTablosu WHERE KullanimTarihi = ") +
           tarih + QStringLiteral(" ORDER BY UrunAdi ASC");
}

}  // namespace Deyimler

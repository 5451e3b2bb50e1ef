#include "FiyatDeyimleri.h"

#include <algorithm>

#include "DeyimParcalari.h"
#include "Deyimler.h"

namespace Deyimler {

namespace {

constexpr qsizetype AZAMİ_UZUNLUK = 255;

QString AnahtarKoşulu(const KullanılanSatır& satır) {
    return QStringLiteral(" WHERE UrunGrubu= ") + Tırnakla(satır.Grup) + QStringLiteral(" AND UrunAdi= ") +
           Tırnakla(satır.Ürün) + QStringLiteral(" AND KullanilanMalzemeAdi= ") + Tırnakla(satır.Malzeme) +
           QStringLiteral(" AND KullanilanMalzemeMiktari= ") + Tırnakla(satır.Miktar) +
           QStringLiteral(" AND KullanimTarihi= ") + satır.Tarih + QStringLiteral(" AND KullanilanMalzemeFiyati= ") +
           Tırnakla(SaklanacakSayı(satır.Fiyat));
}

}  // namespace

bool Yazılabilir(const QString& ad) {
    return !ad.contains(QLatin1Char('\''));
}

QString SaklanacakMetin(const QString& metin) {
    // Nearly all texts are stored as they are.
    const bool olduğuGibi =
        metin.size() <= AZAMİ_UZUNLUK && std::all_of(metin.begin(), metin.end(), [](QChar harf) {
            return harf >= u' ' && harf != u'\'' && (harf < u'\x7f' || (harf >= u'\xa0' && harf < u'\x2000'));
        });
    if (olduğuGibi) return metin;
    QString sonuç = metin;
    for (QChar& harf : sonuç) {
        if (harf == QLatin1Char('\'')) harf = QChar(u'’');
        if (harf.category() == QChar::Other_Control || harf == QChar::LineSeparator ||
            harf == QChar::ParagraphSeparator)
            harf = QLatin1Char(' ');
    }
    if (sonuç.size() <= AZAMİ_UZUNLUK || sonuç.toUcs4().size() <= AZAMİ_UZUNLUK) return sonuç;
    const QList<uint> kodlar = sonuç.toUcs4().first(AZAMİ_UZUNLUK - 1);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(kodlar.constData()), kodlar.size()) + QChar(u'…');
}

QString SaklanacakSayı(Para tutar) {
    const std::int64_t sayım = tutar.OnBindeBir();
    const auto büyüklük = sayım < 0 ? -static_cast<std::uint64_t>(sayım) : static_cast<std::uint64_t>(sayım);
    return (sayım < 0 ? QStringLiteral("-") : QString()) + QString::number(büyüklük / Para::Ölçek) + QLatin1Char(',') +
           QString::number(büyüklük % Para::Ölçek).rightJustified(4, QLatin1Char('0'));
}

QString TümÜrünler() {
    return QStringLiteral(
        "SELECT UrunGrubu, UrunAdi, IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu");
}

QString TümKullanılanlar() {
    return QStringLiteral(
        "SELECT UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, "
        "KullanimTarihi FROM UrunMalzemeTablosu");
}

QString SıralıKullanılanlar() {
    return QStringLiteral(
        "SELECT UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati FROM "
        "UrunMalzemeTablosu ORDER BY UrunGrubu ASC, UrunAdi ASC, KullanilanMalzemeAdi ASC");
}

QString KullanılanAdlar() {
    return QStringLiteral("SELECT DISTINCT KullanilanMalzemeAdi FROM UrunMalzemeTablosu");
}

QString KataloğunFiyatı(const QString& malzeme, Para eski, Para yeni) {
    return QStringLiteral("UPDATE MalzemeTablosu SET MalzemeFiyati= ") + Tırnakla(SaklanacakSayı(yeni)) +
           QStringLiteral(" WHERE MalzemeAdi= ") + Tırnakla(malzeme) + QStringLiteral(" AND MalzemeFiyati= ") +
           Tırnakla(SaklanacakSayı(eski));
}

QString KullanılanlarınFiyatı(const QString& malzeme, Para eski, Para yeni) {
    return QStringLiteral("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= ") + Tırnakla(SaklanacakSayı(yeni)) +
           QStringLiteral(" WHERE KullanilanMalzemeAdi= ") + Tırnakla(malzeme) +
           QStringLiteral(" AND KullanilanMalzemeFiyati= ") + Tırnakla(SaklanacakSayı(eski));
}

QString KullanılanSayısı(const QString& malzeme) {
    return QStringLiteral(
               "SELECT Count(KullanilanMalzemeAdi) AS KayitSayisi FROM UrunMalzemeTablosu WHERE "
               "KullanilanMalzemeAdi= ") +
           Tırnakla(malzeme);
}

QString KullanılanSayısı(const QString& malzeme, Para fiyat) {
    return KullanılanSayısı(malzeme) + QStringLiteral(" AND KullanilanMalzemeFiyati= ") +
           Tırnakla(SaklanacakSayı(fiyat));
}

QString AdınSayısı(const QString& malzeme) {
    return QStringLiteral("SELECT Count(MalzemeAdi) FROM MalzemeTablosu WHERE MalzemeAdi= ") + Tırnakla(malzeme);
}

QString FiyatıylaSil(const QString& malzeme, Para fiyat) {
    return QStringLiteral("DELETE FROM MalzemeTablosu WHERE MalzemeAdi= ") + Tırnakla(malzeme) +
           QStringLiteral(" AND MalzemeFiyati= ") + Tırnakla(SaklanacakSayı(fiyat));
}

QString MalzemeninKullanımları(const QString& malzeme) {
    return QStringLiteral(
               "SELECT UrunGrubu, UrunAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, KullanimTarihi FROM "
               "UrunMalzemeTablosu WHERE KullanilanMalzemeAdi= ") +
           Tırnakla(malzeme);
}

QString AynıKullanılanlar(const KullanılanSatır& satır) {
    return QStringLiteral(
               "SELECT UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari FROM UrunMalzemeTablosu") +
           AnahtarKoşulu(satır);
}

QString KullanılanınFiyatı(const KullanılanSatır& satır, Para yeni) {
    return QStringLiteral("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= ") + Tırnakla(SaklanacakSayı(yeni)) +
           AnahtarKoşulu(satır);
}

QString KullanılanıSil(const KullanılanSatır& satır) {
    return QStringLiteral("DELETE FROM UrunMalzemeTablosu") + AnahtarKoşulu(satır);
}

QString KullanılanıEkle(const KullanılanSatır& satır, Para fiyat) {
    return KullanılanMalzemeEkle(
        {satır.Grup, satır.Ürün, satır.Malzeme, satır.Miktar, SaklanacakSayı(fiyat), satır.Tarih});
}

namespace Fiyat {

QStringList TablolarıOluştur() {
    return {
        QStringLiteral("CREATE TABLE FiyatIslemTablosu (IslemNo DOUBLE NOT NULL, IslemZamani TEXT(19) NOT NULL, "
                       "IslemTuru TEXT(20) NOT NULL, Aciklama TEXT(255) NOT NULL, Karsiligi DOUBLE NOT NULL, "
                       "GeriAlan DOUBLE NOT NULL, DovizKodu TEXT(10) NOT NULL, EskiKur CURRENCY NOT NULL, "
                       "YeniKur CURRENCY NOT NULL, EskiKurGunu TEXT(10) NOT NULL, YeniKurGunu TEXT(10) NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX FiyatIslemSirasi ON FiyatIslemTablosu (IslemNo)"),
        QStringLiteral("CREATE TABLE FiyatGecmisiTablosu (IslemNo DOUBLE NOT NULL, MalzemeAdi TEXT(255) NOT NULL, "
                       "EskiFiyat CURRENCY NOT NULL, YeniFiyat CURRENCY NOT NULL, Eklendi DOUBLE NOT NULL)"),
        QStringLiteral("CREATE INDEX FiyatGecmisiSirasi ON FiyatGecmisiTablosu (IslemNo, MalzemeAdi)"),
        QStringLiteral("CREATE INDEX MalzemeninFiyatlari ON FiyatGecmisiTablosu (MalzemeAdi, IslemNo)"),
        QStringLiteral("CREATE TABLE FiyatSatirTablosu (IslemNo DOUBLE NOT NULL, UrunGrubu TEXT(255) NOT NULL, "
                       "UrunAdi TEXT(255) NOT NULL, KullanilanMalzemeAdi TEXT(255) NOT NULL, "
                       "KullanimTarihi DATETIME NOT NULL, KullanilanMalzemeMiktari TEXT(255) NOT NULL, "
                       "EskiFiyat CURRENCY NOT NULL)"),
        QStringLiteral("CREATE INDEX IsleminSatirlari ON FiyatSatirTablosu (IslemNo)"),
    };
}

QString İşlemEkle(const İşlem& işlem) {
    return QStringLiteral(
               "INSERT INTO FiyatIslemTablosu (IslemNo, IslemZamani, IslemTuru, Aciklama, Karsiligi, GeriAlan, "
               "DovizKodu, EskiKur, YeniKur, EskiKurGunu, YeniKurGunu)") +
           Değerler({Numara(işlem.No), Tırnakla(işlem.Zaman), Tırnakla(işlem.Tür),
                     Tırnakla(SaklanacakMetin(işlem.Açıklama)), Numara(işlem.Karşılığı), Numara(işlem.GeriAlan),
                     Tırnakla(işlem.DövizKodu), Tırnakla(SaklanacakSayı(işlem.EskiKur)),
                     Tırnakla(SaklanacakSayı(işlem.YeniKur)), Tırnakla(işlem.EskiKurGünü),
                     Tırnakla(işlem.YeniKurGünü)});
}

QString İşlemler() {
    return QStringLiteral(
        "SELECT IslemNo, IslemZamani, IslemTuru, Aciklama, Karsiligi, GeriAlan, DovizKodu, EskiKur, YeniKur, "
        "EskiKurGunu, YeniKurGunu FROM FiyatIslemTablosu ORDER BY IslemNo DESC");
}

QString GeriAlanıYaz(std::int64_t işlem, std::int64_t eski, std::int64_t yeni) {
    return QStringLiteral("UPDATE FiyatIslemTablosu SET GeriAlan= ") + Numara(yeni) +
           QStringLiteral(" WHERE IslemNo= ") + Numara(işlem) + QStringLiteral(" AND GeriAlan= ") + Numara(eski);
}

QString DeğişimEkle(const Değişim& değişim) {
    return QStringLiteral("INSERT INTO FiyatGecmisiTablosu (IslemNo, MalzemeAdi, EskiFiyat, YeniFiyat, Eklendi)") +
           Değerler({Numara(değişim.İşlem), Tırnakla(değişim.Malzeme), Tırnakla(SaklanacakSayı(değişim.Eski)),
                     Tırnakla(SaklanacakSayı(değişim.Yeni)), Numara(static_cast<int>(değişim.Malzemenin))});
}

QString Değişimler() {
    return QStringLiteral(
        "SELECT IslemNo, MalzemeAdi, EskiFiyat, YeniFiyat, Eklendi FROM FiyatGecmisiTablosu ORDER BY IslemNo DESC, "
        "MalzemeAdi "
        "DESC");
}

QString İşleminDeğişimleri(std::int64_t işlem) {
    return QStringLiteral(
               "SELECT IslemNo, MalzemeAdi, EskiFiyat, YeniFiyat, Eklendi FROM FiyatGecmisiTablosu WHERE IslemNo= ") +
           Numara(işlem) + QStringLiteral(" ORDER BY MalzemeAdi ASC");
}

QString MalzemeninDeğişimleri(const QString& malzeme) {
    return QStringLiteral(
               "SELECT IslemNo, MalzemeAdi, EskiFiyat, YeniFiyat, Eklendi FROM FiyatGecmisiTablosu WHERE "
               "MalzemeAdi= ") +
           Tırnakla(malzeme) + QStringLiteral(" ORDER BY IslemNo DESC");
}

QString AyrıSatırEkle(std::int64_t işlem, const KullanılanSatır& satır) {
    return QStringLiteral(
               "INSERT INTO FiyatSatirTablosu (IslemNo, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanimTarihi, "
               "KullanilanMalzemeMiktari, EskiFiyat)") +
           Değerler({Numara(işlem), Tırnakla(SaklanacakMetin(satır.Grup)), Tırnakla(SaklanacakMetin(satır.Ürün)),
                     Tırnakla(satır.Malzeme), satır.Tarih, Tırnakla(SaklanacakMetin(satır.Miktar)),
                     Tırnakla(SaklanacakSayı(satır.Fiyat))});
}

QString İşleminAyrıSatırları(std::int64_t işlem) {
    return QStringLiteral(
               "SELECT UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanimTarihi, KullanilanMalzemeMiktari, EskiFiyat "
               "FROM FiyatSatirTablosu WHERE IslemNo= ") +
           Numara(işlem);
}

}  // namespace Fiyat

}  // namespace Deyimler

#include "ArsivDeyimleri.h"

#include "DeyimParcalari.h"
#include "FiyatDeyimleri.h"

namespace Deyimler::Arşiv {

namespace {

QString Koşul(const Kapsam& kapsam) {
    if (kapsam.Tümü()) return {};
    const QString grup = QStringLiteral(" WHERE UrunGrubu= ") + Tırnakla(kapsam.Grup);
    return kapsam.Ürün.isEmpty() ? grup : grup + QStringLiteral(" AND UrunAdi= ") + Tırnakla(kapsam.Ürün);
}

QString ArşivKoşulu(std::int64_t arşiv) {
    return QStringLiteral(" WHERE ArsivNo= ") + Numara(arşiv);
}

QString FöyKoşulu(std::int64_t arşiv, std::int64_t föy) {
    return ArşivKoşulu(arşiv) + QStringLiteral(" AND FoyNo= ") + Numara(föy);
}

const QString FÖY_SÜTUNLARI = QStringLiteral(
    "ArsivNo, FoyNo, UrunGrubu, UrunAdi, MalzemeMetni, IscilikMetni, KarMetni, DigerMetni, VadeMetni, ToplamMetni, "
    "MiktarMetni, BirimMetni, IscilikYuzdesi, KarYuzdesi, DigerYuzdesi, VadeYuzdesi, MalzemeTutari, Toplam, "
    "SatirSayisi, Dikkat, Ozet");

const QString SATIR_SÜTUNLARI =
    QStringLiteral("MalzemeAdi, MiktarMetni, FiyatMetni, TutarMetni, Miktar, Fiyat, Sayildi");

// The values of an INSERT, put together in one text: there are many of them.
class DeğerListesi {
  public:
    explicit DeğerListesi(const QString& başı) {
        constexpr qsizetype yer = 512;
        m_metin.reserve(başı.size() + yer);
        m_metin += başı;
    }
    DeğerListesi& operator<<(const QString& metin) {
        m_metin += m_ilk ? QLatin1String("'") : QLatin1String(", '");
        m_metin += metin;
        m_metin += QLatin1Char('\'');
        m_ilk = false;
        return *this;
    }
    DeğerListesi& operator<<(std::int64_t sayı) { return *this << QString::number(sayı); }
    DeğerListesi& operator<<(Para tutar) { return *this << SaklanacakSayı(tutar); }
    QString Bitir() { return std::move(m_metin += QLatin1Char(')')); }

  private:
    QString m_metin;
    bool m_ilk = true;
};

}  // namespace

QStringList TablolarıOluştur() {
    return {
        QStringLiteral("CREATE TABLE ArsivTablosu (ArsivNo DOUBLE NOT NULL, ArsivGunu TEXT(10) NOT NULL, "
                       "Aciklama TEXT(255) NOT NULL, UrunGrubu TEXT(255) NOT NULL, UrunAdi TEXT(255) NOT NULL, "
                       "OndalikBasamak DOUBLE NOT NULL, FoySayisi DOUBLE NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX ArsivSirasi ON ArsivTablosu (ArsivNo)"),
        QStringLiteral(
            "CREATE TABLE ArsivFoyTablosu (ArsivNo DOUBLE NOT NULL, FoyNo DOUBLE NOT NULL, "
            "UrunGrubu TEXT(255) NOT NULL, UrunAdi TEXT(255) NOT NULL, MalzemeMetni TEXT(255) NOT NULL, "
            "IscilikMetni TEXT(255) NOT NULL, KarMetni TEXT(255) NOT NULL, DigerMetni TEXT(255) NOT NULL, "
            "VadeMetni TEXT(255) NOT NULL, ToplamMetni TEXT(255) NOT NULL, MiktarMetni TEXT(255) NOT NULL, "
            "BirimMetni TEXT(255) NOT NULL, IscilikYuzdesi CURRENCY NOT NULL, KarYuzdesi CURRENCY NOT NULL, "
            "DigerYuzdesi CURRENCY NOT NULL, VadeYuzdesi CURRENCY NOT NULL, MalzemeTutari CURRENCY NOT NULL, "
            "Toplam CURRENCY NOT NULL, SatirSayisi DOUBLE NOT NULL, Dikkat DOUBLE NOT NULL, "
            "Ozet TEXT(64) NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX ArsivinFoyleri ON ArsivFoyTablosu (ArsivNo, FoyNo)"),
        QStringLiteral("CREATE INDEX UrununFoyleri ON ArsivFoyTablosu (UrunGrubu, UrunAdi, ArsivNo)"),
        QStringLiteral("CREATE TABLE ArsivSatirTablosu (ArsivNo DOUBLE NOT NULL, FoyNo DOUBLE NOT NULL, "
                       "SatirNo DOUBLE NOT NULL, MalzemeAdi TEXT(255) NOT NULL, MiktarMetni TEXT(255) NOT NULL, "
                       "FiyatMetni TEXT(255) NOT NULL, TutarMetni TEXT(255) NOT NULL, Miktar TEXT(255) NOT NULL, "
                       "Fiyat CURRENCY NOT NULL, Sayildi DOUBLE NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX FoyunSatirlari ON ArsivSatirTablosu (ArsivNo, FoyNo, SatirNo)"),
    };
}

QString Ürünler(const Kapsam& kapsam) {
    return QStringLiteral(
               "SELECT UrunGrubu, UrunAdi, IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM "
               "UrunTablosu") +
           Koşul(kapsam) + QStringLiteral(" ORDER BY UrunGrubu ASC, UrunAdi ASC");
}

QString Kullanımlar(const Kapsam& kapsam) {
    return QStringLiteral(
               "SELECT UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati "
               "FROM UrunMalzemeTablosu") +
           Koşul(kapsam) + QStringLiteral(" ORDER BY UrunGrubu ASC, UrunAdi ASC, KullanilanMalzemeAdi ASC");
}

QString ÜrünSayısı(const Kapsam& kapsam) {
    return QStringLiteral("SELECT Count(UrunAdi) FROM UrunTablosu") + Koşul(kapsam);
}

QString KullanımSayısı(const Kapsam& kapsam) {
    return QStringLiteral("SELECT Count(UrunAdi) FROM UrunMalzemeTablosu") + Koşul(kapsam);
}

QString Ekle(const Başlık& b) {
    return QStringLiteral(
               "INSERT INTO ArsivTablosu (ArsivNo, ArsivGunu, Aciklama, UrunGrubu, UrunAdi, OndalikBasamak, "
               "FoySayisi)") +
           Değerler({Numara(b.No), Tırnakla(b.Gün), Tırnakla(b.Not), Tırnakla(b.Neyin.Grup), Tırnakla(b.Neyin.Ürün),
                     Numara(b.Basamak), Numara(b.FöySayısı)});
}

QString FöySayısınıYaz(std::int64_t arşiv, std::int64_t sayı) {
    return QStringLiteral("UPDATE ArsivTablosu SET FoySayisi= ") + Numara(sayı) + ArşivKoşulu(arşiv) +
           QStringLiteral(" AND FoySayisi= ") + Numara(0);
}

QString Arşivler() {
    return QStringLiteral(
        "SELECT ArsivNo, ArsivGunu, Aciklama, UrunGrubu, UrunAdi, OndalikBasamak, FoySayisi FROM ArsivTablosu ORDER BY "
        "ArsivNo DESC");
}

QString SonNumara() {
    return QStringLiteral("SELECT ArsivNo FROM ArsivTablosu ORDER BY ArsivNo DESC");
}

QStringList Sil(std::int64_t arşiv) {
    QStringList deyimler;
    for (const char* tablo : {"ArsivSatirTablosu", "ArsivFoyTablosu", TABLO})
        deyimler += QStringLiteral("DELETE FROM ") + QLatin1String(tablo) + ArşivKoşulu(arşiv);
    return deyimler;
}

QString FöyEkle(const Föy& f) {
    static const QString başı =
        QStringLiteral("INSERT INTO ArsivFoyTablosu (") + FÖY_SÜTUNLARI + QStringLiteral(") VALUES (");
    DeğerListesi değerler(başı);
    değerler << f.Arşiv << f.No << f.Grup << f.Ürün << f.MalzemeMetni;
    for (const QString& yüzde : f.YüzdeMetinleri) değerler << yüzde;
    değerler << f.ToplamMetni << f.MiktarMetni << f.BirimMetni;
    for (const Para yüzde : f.Yüzdeler) değerler << yüzde;
    değerler << f.Malzeme << f.Toplam << f.SatırSayısı << static_cast<std::int64_t>(f.Dikkat) << f.Özet;
    return değerler.Bitir();
}

QString Föyler(std::int64_t arşiv) {
    return QStringLiteral("SELECT ") + FÖY_SÜTUNLARI + QStringLiteral(" FROM ArsivFoyTablosu") + ArşivKoşulu(arşiv) +
           QStringLiteral(" ORDER BY FoyNo ASC");
}

QString TekFöy(std::int64_t arşiv, std::int64_t föy) {
    return QStringLiteral("SELECT ") + FÖY_SÜTUNLARI + QStringLiteral(" FROM ArsivFoyTablosu") + FöyKoşulu(arşiv, föy);
}

QString FöyListesi(std::int64_t arşiv) {
    return QStringLiteral("SELECT FoyNo, UrunGrubu, UrunAdi, ToplamMetni, Toplam, Dikkat FROM ArsivFoyTablosu") +
           ArşivKoşulu(arşiv) + QStringLiteral(" ORDER BY FoyNo ASC");
}

QString ÜrününFöyleri(const QString& grup, const QString& ürün) {
    return QStringLiteral("SELECT ArsivNo, FoyNo, Toplam, Dikkat FROM ArsivFoyTablosu") + Koşul({grup, ürün}) +
           QStringLiteral(" ORDER BY ArsivNo ASC");
}

QString Adlar() {
    return QStringLiteral(
        "SELECT DISTINCT UrunGrubu, UrunAdi FROM ArsivFoyTablosu ORDER BY UrunGrubu ASC, UrunAdi ASC");
}

QString SatırEkle(std::int64_t arşiv, std::int64_t föy, std::int64_t no, const Satır& s) {
    static const QString başı = QStringLiteral("INSERT INTO ArsivSatirTablosu (ArsivNo, FoyNo, SatirNo, ") +
                                SATIR_SÜTUNLARI + QStringLiteral(") VALUES (");
    DeğerListesi değerler(başı);
    değerler << arşiv << föy << no << s.Malzeme << s.MiktarMetni << s.FiyatMetni << s.TutarMetni << s.Miktar << s.Fiyat
             << std::int64_t{s.Sayıldı};
    return değerler.Bitir();
}

QString Satırlar(std::int64_t arşiv) {
    return QStringLiteral("SELECT FoyNo, ") + SATIR_SÜTUNLARI + QStringLiteral(" FROM ArsivSatirTablosu") +
           ArşivKoşulu(arşiv) + QStringLiteral(" ORDER BY FoyNo ASC, SatirNo ASC");
}

QString FöyünSatırları(std::int64_t arşiv, std::int64_t föy) {
    return QStringLiteral("SELECT FoyNo, ") + SATIR_SÜTUNLARI + QStringLiteral(" FROM ArsivSatirTablosu") +
           FöyKoşulu(arşiv, föy) + QStringLiteral(" ORDER BY SatirNo ASC");
}

}  // namespace Deyimler::Arşiv

#include "Tablolar.h"

#include "ArsivDeyimleri.h"
#include "DegisimDeyimleri.h"
#include "DovizDeyimleri.h"
#include "FiyatDeyimleri.h"
#include "GetirmeDeyimleri.h"
#include "TedarikciDeyimleri.h"
#include "YariMamulDeyimleri.h"

namespace Deyimler {

namespace {

// Percentages have a default, because the program's INSERT does not name them. Only material names are unique: merged
// groups may hold the same product twice, and a product the same material twice. The last three indexes are the ways in
// which the program looks used materials up or orders them.
QStringList AnaTablolar() {
    return {
        QStringLiteral("CREATE TABLE UrunTablosu (UrunGrubu TEXT(255) NOT NULL, UrunAdi TEXT(255) NOT NULL, "
                       "IscilikYuzdesi DOUBLE DEFAULT 0 NOT NULL, KarYuzdesi DOUBLE DEFAULT 0 NOT NULL, "
                       "DigerVarnekYuzdesi DOUBLE DEFAULT 0 NOT NULL, VadeFarkiYuzdesi DOUBLE DEFAULT 0 NOT NULL)"),
        QStringLiteral("CREATE INDEX UrunSirasi ON UrunTablosu (UrunGrubu, UrunAdi)"),
        QStringLiteral("CREATE TABLE MalzemeTablosu (MalzemeAdi TEXT(255) NOT NULL, MalzemeFiyati CURRENCY NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX MalzemeSirasi ON MalzemeTablosu (MalzemeAdi)"),
        QStringLiteral("CREATE TABLE UrunMalzemeTablosu (KullanimTarihi DATETIME NOT NULL, "
                       "UrunGrubu TEXT(255) NOT NULL, UrunAdi TEXT(255) NOT NULL, "
                       "KullanilanMalzemeAdi TEXT(255) NOT NULL, KullanilanMalzemeMiktari TEXT(255) NOT NULL, "
                       "KullanilanMalzemeFiyati CURRENCY NOT NULL)"),
        QStringLiteral("CREATE INDEX UrununMalzemeleri ON UrunMalzemeTablosu (UrunGrubu, UrunAdi, "
                       "KullanilanMalzemeAdi)"),
        QStringLiteral("CREATE INDEX MalzemeninUrunleri ON UrunMalzemeTablosu (KullanilanMalzemeAdi)"),
        QStringLiteral("CREATE INDEX GununHareketleri ON UrunMalzemeTablosu (KullanimTarihi, UrunAdi)"),
    };
}

}  // namespace

QList<QStringList> TabloTakımları() {
    return {AnaTablolar(),
            Fiyat::TablolarıOluştur(),
            Değiştirme::TabloyuOluştur(),
            Getirme::TabloyuOluştur(),
            Döviz::TablolarıOluştur(),
            Tedarikçi::TablolarıOluştur(),
            YarıMamul::TablolarıOluştur(),
            Arşiv::TablolarıOluştur()};
}

QString BildirilenTablo(const QString& bildirim) {
    const QStringList sözcükler = bildirim.split(QLatin1Char(' '));
    return sözcükler.value(1) == QLatin1String("TABLE") ? sözcükler.value(2) : QString();
}

bool HızDizini(const QString& bildirim) {
    return bildirim.startsWith(QLatin1String("CREATE INDEX "));
}

}  // namespace Deyimler

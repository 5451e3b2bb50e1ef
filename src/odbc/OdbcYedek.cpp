#include "OdbcYedek.h"

#include <sql.h>
#include <sqlext.h>

#include <array>

#include "OdbcSurucu.h"
#include "OdbcTanitici.h"

namespace {

constexpr SQLUSMALLINT DAMGA_BİLGİSİ = 1000;  // the driver's own

// A blank parts two paths.
QString Boşluksuz(QString yol) {
    return yol.replace(QLatin1Char('%'), QLatin1String("%25")).replace(QLatin1Char(' '), QLatin1String("%20"));
}

bool İste(const QString& istek, const QString& dur = {}) {
    QStringList nitelikler{QStringLiteral("UID=Admin"), QStringLiteral("PWD=") + VeriDosyasıParolası(), istek};
    if (!dur.isEmpty()) nitelikler.append(QStringLiteral("STOP=") + Boşluksuz(dur));
    return SürücüKurulumu(Kurulumİsteği::Ekle, nitelikler);
}

}  // namespace

bool VeriDosyasınıYedekle(const QString& kaynak, const QString& hedef, const QString& dur) {
    return İste(QStringLiteral("BACKUP_DB=") + Boşluksuz(kaynak) + QLatin1Char(' ') + Boşluksuz(hedef), dur);
}

bool VeriDosyasıSağlam(const QString& yol, const QString& dur) {
    return İste(QStringLiteral("CHECK_DB=") + Boşluksuz(yol), dur);
}

bool VeriDosyasınıGeriYükle(const QString& yedek, const QString& dosya) {
    return İste(QStringLiteral("RESTORE_DB=") + Boşluksuz(yedek) + QLatin1Char(' ') + Boşluksuz(dosya));
}

bool VeriDosyasınıDamgala(const QString& yol) {
    return İste(QStringLiteral("MARK_DB=") + Boşluksuz(yol));
}

QString VeriDosyasıDamgası(const OdbcBağlantısı& bağlantı) {
    std::array<char, 64> damga{};
    SQLSMALLINT uzunluk = 0;
    const SQLRETURN sonuç =
        SQLGetInfo(bağlantı.Tanıtıcı(), DAMGA_BİLGİSİ, damga.data(), static_cast<SQLSMALLINT>(damga.size()), &uzunluk);
    return sonuç == SQL_SUCCESS ? QString::fromLatin1(damga.data()) : QString();
}

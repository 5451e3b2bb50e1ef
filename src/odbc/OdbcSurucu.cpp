#include "OdbcSurucu.h"

#include <QByteArray>
#include <QFile>
#include <odbcinst.h>
#include <sql.h>

namespace {

constexpr QLatin1String PAROLA("Kumsaldaki");

// The file library's limit, less what is appended to a path: the copy by which a backup is tried, in the making
// (".sinama.yeni").
constexpr qsizetype EN_UZUN_YOL = 492;

// In braces a value may hold ";" and blanks at its ends; a closing brace is doubled.
QString Süslü(QString değer) {
    return QLatin1Char('{') + değer.replace(QLatin1Char('}'), QLatin1String("}}")) + QLatin1Char('}');
}

QString ParolaNiteliği() {
    return QStringLiteral("PWD=") + PAROLA;
}

}  // namespace

QString SürücüAdı() {
    return QStringLiteral("Microsoft Access Driver (*.mdb)");
}

void SürücüKlasörünüAyarla(const QString& klasör) {
    qputenv("ODBCSYSINI", QFile::encodeName(klasör));
    qunsetenv("ODBCINSTINI");
}

bool SürücüKayıtlı() {
    char yol[512] = "";
    return SQLGetPrivateProfileString(SürücüAdı().toUtf8().constData(), "Driver", "", yol, sizeof yol, "odbcinst.ini") >
           0;
}

QString VeriDosyasıParolası() {
    return PAROLA;
}

QString BağlantıMetni(const QString& dosya, const QString& veriKaynağı) {
    const QString kaynak = veriKaynağı.isEmpty() ? QStringLiteral("DRIVER=") + Süslü(SürücüAdı()) : veriKaynağı;
    return kaynak + QStringLiteral(";DBQ=") + Süslü(dosya) + QStringLiteral(";UID=Admin;") + ParolaNiteliği();
}

bool VeriDosyasıYoluSığıyor(const QString& yol) {
    return yol.toUtf8().size() <= EN_UZUN_YOL;
}

bool SürücüKurulumu(Kurulumİsteği istek, const QStringList& nitelikler) {
    QByteArray liste;
    for (const QString& nitelik : nitelikler) liste.append(nitelik.toUtf8()).append('\0');
    liste.append('\0');
    return SQLConfigDataSource(nullptr, static_cast<WORD>(istek), SürücüAdı().toUtf8().constData(), liste.constData());
}

bool BoşVeriDosyasıOluştur(const QString& yol) {
    return SürücüKurulumu(Kurulumİsteği::Ekle,
                          {QStringLiteral("UID=Admin"), ParolaNiteliği(), QStringLiteral("CREATE_DB=") + yol});
}

bool VeritabanınıSıkıştır(const QString& kaynak, const QString& hedef, const QString& dur) {
    QStringList nitelikler{QStringLiteral("UID=Admin"), ParolaNiteliği(),
                           QStringLiteral("COMPACT_DB=") + kaynak + QLatin1Char(' ') + hedef};
    if (!dur.isEmpty()) nitelikler.append(QStringLiteral("STOP=") + SürücüYolu(dur));
    return SürücüKurulumu(Kurulumİsteği::Ekle, nitelikler);
}

bool VeriDosyasınıOnar(const QString& kaynak, const QString& hedef, const QString& rapor, const QString& bildirimler,
                       const QString& dur) {
    return SürücüKurulumu(Kurulumİsteği::Ekle,
                          {QStringLiteral("UID=Admin"), ParolaNiteliği(),
                           QStringLiteral("REPAIR_DB=") + SürücüYolu(kaynak) + QLatin1Char(' ') + SürücüYolu(hedef),
                           QStringLiteral("REPAIR_REPORT=") + rapor, QStringLiteral("REPAIR_TABLES=") + bildirimler,
                           QStringLiteral("STOP=") + SürücüYolu(dur)});
}

QString SürücüYolu(QString yol) {
    yol.replace(QLatin1Char('%'), QLatin1String("%25"));
    return yol.replace(QLatin1Char(' '), QLatin1String("%20"));
}

QStringList SürücüKurulumHataları() {
    constexpr WORD azamiKayıt = 8;
    QStringList iletiler;
    for (WORD sıra = 1; sıra <= azamiKayıt; ++sıra) {
        DWORD kod = 0;
        char ileti[SQL_MAX_MESSAGE_LENGTH] = "";
        WORD uzunluk = 0;
        const RETCODE sonuç = SQLInstallerError(sıra, &kod, ileti, sizeof ileti, &uzunluk);
        if (sonuç != SQL_SUCCESS && sonuç != SQL_SUCCESS_WITH_INFO) break;
        iletiler.append(QString::fromUtf8(ileti));
    }
    return iletiler;
}

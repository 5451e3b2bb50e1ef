#include "OdbcModulu.h"

#include <QByteArray>
#include <QFile>
#include <QScopeGuard>
#include <odbcinst.h>
#include <optional>
#include <sql.h>
#include <sqlext.h>

#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcTanitici.h"
#include "SurumKaydi.h"

namespace {

constexpr std::int16_t Başarı = 0;
constexpr std::int16_t SatırKalmadı = 100;
// Bytes that the file library takes for a data file's path, with room for what is written beside it: the copy by which
// a backup is tried, in the making (".sinama.yeni").
constexpr qsizetype EN_UZUN_YOL = 492;

// One connection and one statement for the whole run.
OdbcBağlantısı Bağlantı;
OdbcDeyimi Deyim;

// In braces a value may hold ";" and blanks at its ends; a closing brace is doubled.
QString Süslü(QString değer) {
    return QLatin1Char('{') + değer.replace(QLatin1Char('}'), QLatin1String("}}")) + QLatin1Char('}');
}

QString BağlantıMetni(const QString& kaynak, const QString& dosya) {
    return kaynak + QStringLiteral(";DBQ=") + Süslü(dosya) + QStringLiteral(";UID=Admin;PWD=Kumsaldaki");
}

// The connection to a file without a data source.
QString SürücüTanımı() {
    return QStringLiteral("DRIVER=") + Süslü(SürücüAdı());
}

// Whether the data source stands in the user's ODBC settings as it is to be. The file itself is read: the driver
// manager remembers for a while what it once read, also that there was nothing. Where no file is named, nothing can be
// told.
std::optional<bool> VeriKaynağıKayıtlı() {
    QFile dosya(QFile::decodeName(qgetenv("ODBCINI")));
    if (dosya.fileName().isEmpty()) return std::nullopt;
    if (!dosya.open(QIODevice::ReadOnly)) return false;
    const QString bölüm = QLatin1Char('[') + Sürüm().ÜrünAdı + QLatin1Char(']');
    bool bölümde = false;
    while (!dosya.atEnd()) {
        const QString satır = QString::fromUtf8(dosya.readLine()).trimmed();
        if (satır.startsWith(QLatin1Char('['))) bölümde = satır == bölüm;
        if (bölümde && satır.section(QLatin1Char('='), 0, 0).trimmed() == QLatin1String("Driver"))
            return satır.section(QLatin1Char('='), 1).trimmed() == SürücüAdı();
    }
    return false;
}

void BilgiKutusu(MetinNo metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam, Metin(metin));
}

}  // namespace

void HatalarıGöster(const QStringList& hatalar) {
    for (const QString& hata : hatalar) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                            hata.isEmpty() ? Metin(MetinNo::OdbcHatasıOkunamadı) : hata, Metin(MetinNo::OdbcHatası));
    }
}

namespace {

// Besides the end of the rows, a column of the row before that could not be read whole ends them.
bool SatırGetir() {
    if (SonDönüşKodu == Başarı) SonDönüşKodu = Deyim.Getir();
    return SonDönüşKodu == Başarı;
}

// Rows that ended before their end: what is missing, and the driver's reason.
void YarımOkumayıGöster(MetinNo metin) {
    QStringList satırlar{Metin(metin)};
    if (Deyim.Tanıtıcı()) satırlar += OdbcHatalarınıAl(nullptr, Deyim.Tanıtıcı());
    Deyim.Bırak();
    satırlar.removeDuplicates();
    satırlar.removeAll(QString());
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, satırlar.join(QLatin1Char('\n')));
}

// SQLConfigDataSource with NUL-separated attributes; the list ends in a NUL of its own.
std::int16_t SürücüKurulumu(std::uint16_t istek, const QByteArray& nitelikler) {
    return static_cast<std::int16_t>(
        SQLConfigDataSource(nullptr, istek, SürücüAdı().toUtf8().constData(), nitelikler.constData()));
}

}  // namespace

QString SürücüAdı() {
    return QStringLiteral("Microsoft Access Driver (*.mdb)");
}

QString VeriKaynağıTanımı() {
    return QStringLiteral("DSN=") + Sürüm().ÜrünAdı;
}

bool ODBCBağlan() {
    SonDönüşKodu = Bağlantı.OrtamAç();
    if (SonDönüşKodu != Başarı) {
        Bağlantı.Kapat();
        BilgiKutusu(MetinNo::OdbcErişilemiyor);
        return false;
    }
    SonDönüşKodu = Bağlantı.BağlantıAç();
    if (SonDönüşKodu != Başarı) {
        Bağlantı.Kapat();
        BilgiKutusu(MetinNo::BağlantıyaBellekYok);
        return false;
    }
    // What stands there already is not written again: the driver manager cuts the whole file and writes it anew.
    if (!VeriKaynağıKayıtlı().value_or(false)) VeriKaynağıKaydet(VeriKaynağıİsteği::Ekle);
    // Where the settings cannot be written (no home folder, a read-only one) there is no data source; the driver opens
    // the file all the same.
    const QString kaynak = VeriKaynağıKayıtlı().value_or(true) ? VeriKaynağıTanımı() : SürücüTanımı();
    SonDönüşKodu = Bağlantı.Bağlan(BağlantıMetni(kaynak, UygulamaYolu + QStringLiteral("Varnek.vtb")));
    if (SonDönüşKodu != Başarı) {
        ODBCHatasıGöster();
        Bağlantı.Kapat();
        return false;
    }
    return true;
}

void ODBCBağlantısınıKapat() {
    DeyimiBırak();
    VeriKaynağıKaydet(VeriKaynağıİsteği::Kaldır);
    Bağlantı.Kapat();
}

void VeriKaynağıKaydet(VeriKaynağıİsteği istek) {
    SürücüKurulumu(static_cast<std::uint16_t>(istek), VeriKaynağıTanımı().toUtf8() + '\0');
}

std::int16_t VeritabanınıSıkıştır(const QString& kaynak, const QString& hedef) {
    QByteArray nitelikler("UID=Admin");
    nitelikler.append('\0').append("PWD=Kumsaldaki").append('\0');
    nitelikler.append("COMPACT_DB=").append(kaynak.toUtf8()).append(' ').append(hedef.toUtf8()).append('\0');
    return SürücüKurulumu(static_cast<std::uint16_t>(VeriKaynağıİsteği::Ekle), nitelikler);
}

bool SürücüKayıtlı() {
    char yol[512] = "";
    return SQLGetPrivateProfileString(SürücüAdı().toUtf8().constData(), "Driver", "", yol, sizeof yol, "odbcinst.ini") >
           0;
}

QString SürücüKurulumHatası() {
    DWORD kod = 0;
    char ileti[SQL_MAX_MESSAGE_LENGTH] = "";
    WORD uzunluk = 0;
    SQLInstallerError(1, &kod, ileti, sizeof ileti, &uzunluk);
    const QString metin = QString::fromUtf8(ileti);
    return metin.isEmpty() ? Metin(MetinNo::OdbcHatasıOkunamadı) : metin;
}

bool VeriDosyasıYoluSığıyor(const QString& yol) {
    return yol.toUtf8().size() <= EN_UZUN_YOL;
}

std::int16_t VeriDosyasınaBağlan(OdbcBağlantısı& bağlantı, const QString& yol) {
    if (bağlantı.OrtamAç() != Başarı || bağlantı.BağlantıAç() != Başarı) return SQL_ERROR;
    return bağlantı.Bağlan(BağlantıMetni(SürücüTanımı(), yol));
}

bool SorguÇalıştır() {
    SonDönüşKodu = Deyim.Aç(Bağlantı);
    if (SonDönüşKodu == Başarı) {
        SonDönüşKodu = Deyim.Çalıştır(SQLMetni);
        if (SonDönüşKodu == Başarı) return true;
    }
    // A statement's errors are gone once it is dropped, so they are taken before.
    QStringList hatalar;
    if (Deyim.Tanıtıcı()) hatalar = OdbcHatalarınıAl(nullptr, Deyim.Tanıtıcı());
    DeyimiBırak();
    if (Bağlantı.Tanıtıcı()) hatalar += OdbcHatalarınıAl(Bağlantı.Tanıtıcı(), nullptr);
    HatalarıGöster(hatalar);
    return false;
}

bool DeyimiYürüt(const QString& deyim) {
    SQLMetni = deyim;
    const bool tamam = SorguÇalıştır();
    DeyimiBırak();
    return tamam;
}

Okuma SatırlarıOku(const QString& deyim, const std::function<void()>& satır) {
    SQLMetni = deyim;
    if (!SorguÇalıştır()) return Okuma::Yapılamadı;
    const auto koruma = qScopeGuard(DeyimiBırak);
    while (SatırGetir()) satır();
    if (SonDönüşKodu == SatırKalmadı) return Okuma::Tamam;
    YarımOkumayıGöster(MetinNo::KayıtlarEksik);
    return Okuma::Eksik;
}

Kayıt KaydıOku(const QString& deyim, const std::function<void()>& satır) {
    SQLMetni = deyim;
    if (!SorguÇalıştır()) return Kayıt::Okunamadı;
    const auto koruma = qScopeGuard(DeyimiBırak);
    const bool var = SatırGetir();
    if (var && satır) satır();
    if (SonDönüşKodu == SatırKalmadı) return Kayıt::Yok;
    if (SonDönüşKodu == Başarı) return Kayıt::Var;
    YarımOkumayıGöster(MetinNo::KayıtOkunamadı);
    return Kayıt::Okunamadı;
}

QString SütunOku(int sütun) {
    QString metin;
    const std::int16_t sonuç = Deyim.Oku(sütun, metin);
    if (SonDönüşKodu == Başarı || sonuç < Başarı) SonDönüşKodu = sonuç;
    return metin;
}

void DeyimiBırak() {
    Deyim.Bırak();
}

std::int32_t KayıtSayısıAl() {
    std::int32_t sayı = 0;
    if (SorguÇalıştır()) {
        if (SatırGetir()) sayı = SütunOku(1).toInt();
        DeyimiBırak();
    }
    return sayı == 0 ? 1 : sayı;
}

void ODBCHatasıGöster() {
    if (Bağlantı.Tanıtıcı()) HatalarıGöster(OdbcHatalarınıAl(Bağlantı.Tanıtıcı(), nullptr));
}

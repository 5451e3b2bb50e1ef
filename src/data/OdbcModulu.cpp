#include "OdbcModulu.h"

#include <QFile>
#include <QScopeGuard>
#include <optional>

#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcSurucu.h"
#include "OdbcTanitici.h"
#include "SurumKaydi.h"

namespace {

constexpr std::int16_t Başarı = 0;
constexpr std::int16_t SatırKalmadı = 100;
// VeriTamponu: 255 characters with the closing NUL, so 254 of a text.
constexpr int TamponKarakteri = 254;
constexpr std::int16_t Kesildi = 1;

// One connection and one statement for the whole run.
OdbcBağlantısı Bağlantı;
OdbcDeyimi Deyim;

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
    satırlar += OdbcİletileriniAl(Deyim.HatalarınıAl());
    Deyim.Bırak();
    satırlar.removeDuplicates();
    satırlar.removeAll(QString());
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, satırlar.join(QLatin1Char('\n')));
}

}  // namespace

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
    if (!VeriKaynağıKayıtlı().value_or(false)) VeriKaynağıKaydet(Kurulumİsteği::Ekle);
    // Where the settings cannot be written (no home folder, a read-only one) there is no data source; the driver opens
    // the file all the same.
    const QString kaynak = VeriKaynağıKayıtlı().value_or(true) ? VeriKaynağıTanımı() : QString();
    SonDönüşKodu = Bağlantı.Bağlan(BağlantıMetni(UygulamaYolu + QStringLiteral("Varnek.vtb"), kaynak));
    if (SonDönüşKodu != Başarı) {
        ODBCHatasıGöster();
        Bağlantı.Kapat();
        return false;
    }
    return true;
}

OdbcBağlantısı& ODBCBağlantısı() {
    return Bağlantı;
}

void ODBCBağlantısınıKapat() {
    DeyimiBırak();
    VeriKaynağıKaydet(Kurulumİsteği::Kaldır);
    Bağlantı.Kapat();
}

void VeriKaynağıKaydet(Kurulumİsteği istek) {
    SürücüKurulumu(istek, {VeriKaynağıTanımı()});
}

QString SürücüKurulumHatası() {
    const QString metin = SürücüKurulumHataları().value(0);
    return metin.isEmpty() ? Metin(MetinNo::OdbcHatasıOkunamadı) : metin;
}

bool SorguÇalıştır() {
    SonDönüşKodu = Deyim.Aç(Bağlantı);
    if (SonDönüşKodu == Başarı) {
        SonDönüşKodu = Deyim.Çalıştır(SQLMetni);
        if (SonDönüşKodu == Başarı) return true;
    }
    // A statement's errors are gone once it is dropped, so they are taken before.
    QList<OdbcHatası> hatalar = Deyim.HatalarınıAl();
    DeyimiBırak();
    hatalar += Bağlantı.HatalarınıAl();
    HatalarıGöster(OdbcİletileriniAl(hatalar));
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
    std::int16_t sonuç = Deyim.Oku(sütun, metin);
    if (metin.size() > TamponKarakteri) {
        metin.truncate(metin.at(TamponKarakteri).isLowSurrogate() ? TamponKarakteri - 1 : TamponKarakteri);
        sonuç = Kesildi;
    }
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
    HatalarıGöster(OdbcİletileriniAl(Bağlantı.HatalarınıAl()));
}

#include "OdbcModulu.h"

#include <QByteArray>

#include <QScopeGuard>
#include <odbcinst.h>

#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcTanitici.h"
#include "SurumKaydi.h"

namespace {

constexpr std::int16_t Başarı = 0;
constexpr std::int16_t SatırKalmadı = 100;

// One connection and one statement for the whole run.
OdbcBağlantısı Bağlantı;
OdbcDeyimi Deyim;

QString BağlantıMetni(const QString& dosya) {
    return VeriKaynağıTanımı() + QStringLiteral(";DBQ=") + dosya + QStringLiteral(";UID=Admin;PWD=Kumsaldaki");
}

void BilgiKutusu(int metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam, Metin(metin));
}

void HatalarıGöster(const QStringList& hatalar) {
    for (const QString& hata : hatalar) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                            hata.isEmpty() ? Metin(190) : hata, Metin(180));
    }
}

// Besides the end of the rows, a column of the row before that could not be read whole ends them.
bool SatırGetir() {
    if (SonDönüşKodu == Başarı) SonDönüşKodu = Deyim.Getir();
    return SonDönüşKodu == Başarı;
}

// Rows that ended before their end: what is missing, and the driver's reason.
void YarımOkumayıGöster(int metin) {
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
        BilgiKutusu(160);
        return false;
    }
    SonDönüşKodu = Bağlantı.BağlantıAç();
    if (SonDönüşKodu != Başarı) {
        Bağlantı.Kapat();
        BilgiKutusu(170);
        return false;
    }
    VeriKaynağıKaydet(VeriKaynağıİsteği::Ekle);
    SonDönüşKodu = Bağlantı.Bağlan(BağlantıMetni(UygulamaYolu + QStringLiteral("Varnek.vtb")));
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

bool VeriDosyasıAçılıyor(const QString& yol) {
    OdbcBağlantısı deneme;
    return deneme.OrtamAç() == Başarı && deneme.BağlantıAç() == Başarı &&
           deneme.Bağlan(QStringLiteral("DRIVER={") + SürücüAdı() + QStringLiteral("};DBQ=") + yol +
                         QStringLiteral(";UID=Admin;PWD=Kumsaldaki")) == Başarı;
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
    YarımOkumayıGöster(2132);
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
    YarımOkumayıGöster(2133);
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

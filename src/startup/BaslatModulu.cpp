#include "BaslatModulu.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "IlkDosya.h"
#include "KarsilamaFormu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcSurucu.h"
#include "SurumKaydi.h"
#include "TekKopya.h"
#include "XpModulu.h"

namespace {

constexpr int EN_DAR_EKRAN = 12000;  // twips
constexpr int PİKSELDEKİ_TWIP = 15;
constexpr unsigned SINIR_SÜRÜM = 4;  // the one whose service pack counts

void Bildir(MetinNo metin) {
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, Metin(metin));
}

void YoluylaBildir(MetinNo metin, const QString& yol) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                        Metin(metin) + QLatin1Char('\n') + yol);
}

bool WindowsSürümünüDenetle(const BaşlatmaBağları& bağlar) {
    SistemSürümü sürüm{};
    if (!bağlar.SürümAl(sürüm)) {
        MesajKutusuOrtala();
        Bildir(MetinNo::SürümOkunamadı);
        return false;
    }
    NTTabanlı = sürüm.PlatformKimliği == NT_PLATFORMU;
    if (!SürümYeterli(sürüm)) {
        MesajKutusuOrtala();
        Bildir(MetinNo::SürümYetersiz);
        return false;
    }
    return true;
}

// The driver that lies beside the program is the one to be found, whatever else is set up for the user; the driver
// manager looks here at the first call.
void SürücüyüTanıt(const QString& programKlasörü) {
    const QString klasör = SondaTersBöluYap(programKlasörü);
    if (DosyaVar(klasör + QStringLiteral("odbcinst.ini"))) SürücüKlasörünüAyarla(klasör);
}

// The program's data source is registered in a file of its own beside its settings: the driver manager rewrites the
// whole file each time, and a failure in between would take the user's other data sources along.
void VeriKaynaklarınıAyır() {
    if (!qEnvironmentVariableIsEmpty("ODBCINI")) return;
    const QString klasör = QFileInfo(AyarDosyası()).absolutePath();
    KlasörYap(klasör);
    qputenv("ODBCINI", QFile::encodeName(klasör + QStringLiteral("/Varnek-odbc.ini")));
}

// Where the user cannot write to the program's folder, its launcher names a folder for the data file.
QString VeriKlasörü(const QString& programKlasörü) {
    const QString seçilen = QFile::decodeName(qgetenv("VARNEK_VERI_KLASORU"));
    return SondaTersBöluYap(seçilen.isEmpty() ? programKlasörü : QFileInfo(seçilen).absoluteFilePath());
}

void PaylaşılanlarıKur(const QString& programKlasörü) {
    UygulamaYolu = VeriKlasörü(programKlasörü);
    EtkinEtiketRengi = 0x00C00000;
    AyarUygulamaAdı = Sürüm().ŞirketAdı + QLatin1Char('\\') + Sürüm().ÜrünAdı;
    OndalıkBasamak = KayıtlıOndalık();
    YazıcıVar = YazıcıSayısı() != 0;
}

// Takes the data file for this copy alone, and makes the first one for somebody new.
bool VeriDosyasınıAl(TekKopya& kopya, const QString& programKlasörü) {
    const bool ilk = İlkBaşlatma();
    KlasörYap(UygulamaYolu);  // the launcher's, where it has never been or is lost; the backup goes there as well
    const QString dosya = UygulamaYolu + QStringLiteral("Varnek.vtb");
    if (!kopya.VeriyiKilitle(dosya)) {
        YoluylaBildir(MetinNo::VeriBaşkaKopyada, dosya);
        return false;
    }
    if (ilk && !İlkDosyayıKoy(programKlasörü)) {
        YoluylaBildir(MetinNo::İlkDosyaOluşturulamadı, UygulamaYolu);
        return false;
    }
    return true;
}

}  // namespace

BaşlatmaSonucu Main(TekKopya& kopya, const BaşlatmaBağları& bağlar) {
    GörselStilleriEtkinleştir();
    UygulamaBaşlığı = Sürüm().Başlık();
    if (!kopya.Başla(UygulamaBaşlığı)) return BaşlatmaSonucu::BaşkaKopyaVar;
    if (!EkranYeterli(bağlar.EkranGenişliğiAl())) {
        Bildir(MetinNo::EkranDar);
        return BaşlatmaSonucu::Başlayamadı;
    }
    KarşılamaFormu karşılama;
    karşılama.show();
    QCoreApplication::processEvents();
    if (!WindowsSürümünüDenetle(bağlar)) return BaşlatmaSonucu::Başlayamadı;
    PaylaşılanlarıKur(bağlar.ProgramKlasörü);
    SürücüyüTanıt(bağlar.ProgramKlasörü);
    VeriKaynaklarınıAyır();
    if (!VeriDosyasınıAl(kopya, bağlar.ProgramKlasörü)) return BaşlatmaSonucu::Başlayamadı;
    if (!VeritabanınıHazırla(bağlar.YedekleriSun)) return BaşlatmaSonucu::Başlayamadı;
    QCoreApplication::processEvents();
    bağlar.AnaFormuYükle([form = QPointer<QWidget>(&karşılama)] {
        if (form) form->close();
    });
    return BaşlatmaSonucu::Başladı;
}

bool EkranYeterli(int genişlik) {
    return genişlik * PİKSELDEKİ_TWIP >= EN_DAR_EKRAN;
}

bool SürümYeterli(const SistemSürümü& sürüm) {
    if (sürüm.PlatformKimliği != NT_PLATFORMU || sürüm.Ana > SINIR_SÜRÜM) return true;
    if (sürüm.Ana < SINIR_SÜRÜM) return false;
    // The text comes out of a buffer of fixed length: it ends at the first NUL.
    const QString paket = sürüm.ServisPaketi.section(QChar(u'\0'), 0, 0);
    return paket != QLatin1String("Service Pack 1") && paket != QLatin1String("Service Pack 2");
}

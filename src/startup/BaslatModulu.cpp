#include "BaslatModulu.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>

#include "Ayarlar.h"
#include "DegiskenModulu.h"
#include "KarsilamaFormu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "SistemDenetimi.h"
#include "SurumKaydi.h"
#include "TekKopya.h"
#include "VeritabaniHazirlik.h"
#include "XpModulu.h"

namespace {

void Bildir(int metin) {
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, Metin(metin));
}

bool WindowsSürümünüDenetle(const BaşlatmaBağları& bağlar) {
    SistemSürümü sürüm{};
    if (!bağlar.SürümAl(sürüm)) {
        MesajKutusuOrtala();
        Bildir(10);
        return false;
    }
    NTTabanlı = sürüm.PlatformKimliği == NT_PLATFORMU;
    if (!SürümYeterli(sürüm)) {
        MesajKutusuOrtala();
        Bildir(20);
        return false;
    }
    return true;
}

// The driver that lies beside the program is the one to be found, whatever else is set up for the user; the driver
// manager looks here at the first call.
void SürücüyüTanıt() {
    if (!DosyaVar(UygulamaYolu + QStringLiteral("odbcinst.ini"))) return;
    qputenv("ODBCSYSINI", QFile::encodeName(UygulamaYolu));
    qunsetenv("ODBCINSTINI");
}

void PaylaşılanlarıKur(const QString& programKlasörü) {
    UygulamaYolu = SondaTersBöluYap(programKlasörü);
    EtkinEtiketRengi = 0x00C00000;
    AyarUygulamaAdı = Sürüm().ŞirketAdı + QLatin1Char('\\') + Sürüm().ÜrünAdı;
    OndalıkBasamak = KayıtlıOndalık();
    YazıcıVar = YazıcıSayısı() != 0;
}

}  // namespace

BaşlatmaSonucu Main(TekKopya& kopya, const BaşlatmaBağları& bağlar) {
    GörselStilleriEtkinleştir();
    UygulamaBaşlığı = Sürüm().Başlık();
    if (!kopya.Başla(UygulamaBaşlığı)) return BaşlatmaSonucu::BaşkaKopyaVar;
    if (!EkranYeterli(bağlar.EkranGenişliğiAl())) {
        Bildir(100);
        return BaşlatmaSonucu::Başlayamadı;
    }
    KarşılamaFormu karşılama;
    karşılama.show();
    QCoreApplication::processEvents();
    if (!WindowsSürümünüDenetle(bağlar)) return BaşlatmaSonucu::Başlayamadı;
    PaylaşılanlarıKur(bağlar.ProgramKlasörü);
    SürücüyüTanıt();
    if (!VeritabanınıHazırla()) return BaşlatmaSonucu::Başlayamadı;
    QCoreApplication::processEvents();
    bağlar.AnaFormuYükle([form = QPointer<QWidget>(&karşılama)] {
        if (form) form->close();
    });
    return BaşlatmaSonucu::Başladı;
}

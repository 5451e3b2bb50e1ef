#include "VeritabaniHazirlik.h"

#include <QDateTime>
#include <QFileInfo>
#include <utility>

#include "ApilerModulu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "ErisimMetinleri.h"
#include "ErisimdenAlma.h"
#include "GundeBir.h"
#include "KopyaYazma.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "VeriYollari.h"
#include "YedektenDonus.h"
#include "TarihliKopya.h"
#include "YedekOkuma.h"

namespace {

void KutuGöster(MesajKutusu::Simge simge, const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam, metin);
}

void KutuGöster(MesajKutusu::Simge simge, MetinNo metin, const QString& yol) {
    KutuGöster(simge, Metin(metin) + QLatin1Char('\n') + yol);
}

// A backup that cannot be made is told once a day.
void GündeBirUyar(const QString& metin) {
    ::GündeBirUyar(QStringLiteral("YedekUyarisi"), metin);
}

QString YedekAlınamadıMetni(const VeriYolları& yollar, const QString& neden) {
    return Metin(MetinNo::YedekAlınamadı).arg(neden, yollar.Dosya, yollar.Yedek);
}

// With the way back to the last backup, where there is one.
void YedekAlınamadı(const VeriYolları& yollar, const QString& neden) {
    QString metin = YedekAlınamadıMetni(yollar, neden);
    if (DosyaVar(yollar.Yedek)) metin += QStringLiteral("\n\n") + Metin(MetinNo::SonYedekDuruyor);
    GündeBirUyar(metin);
}

bool SıkıştırmaGünü(const VeriYolları& yollar) {
    if (!DosyaVar(yollar.Yedek)) return true;
    // By way of the month text, which has no time of day. A file without a date counts as of an earlier day.
    return Bugün() > AyMetniniTariheÇevir(AyMetni(QFileInfo(yollar.Dosya).lastModified().date()));
}

// The compacted copy becomes the backup, and then the data file is compacted where it is: another client's row can fall
// between two files, but not out of one. If that second step fails, nothing is lost and the next start tries again.
void Sıkıştır(const VeriYolları& yollar) {
    if (!VeriDosyasıYoluSığıyor(yollar.GerçekYedek)) {
        YedekAlınamadı(yollar, Metin(MetinNo::YedekYoluUzun));
        return;
    }
    if (!ErişimYedeğiniSakla(yollar)) {
        YedekAlınamadı(yollar, Metin(ErişimMetni::YedekSaklanamadı));
        return;
    }
    const QString dosya = KısaYolAl(yollar.GerçekDosya);
    const QDateTime değişme = QFileInfo(yollar.GerçekDosya).lastModified();
    SonDönüşKodu = VeritabanınıSıkıştır(dosya, KısaYolAl(yollar.GerçekYedek));
    if (SonDönüşKodu != 0) {
        VeritabanınıSıkıştır(dosya, dosya);
        GünlükKopyaAl(yollar, değişme);
    } else {
        YedekAlınamadı(yollar, SürücüKurulumHatası());
    }
}

void Yedekle(const VeriYolları& yollar, bool yedekKlasörüVar) {
    if (!yedekKlasörüVar) {
        GündeBirUyar(Metin(MetinNo::YedekKlasörüYok) + QLatin1Char('\n') + yollar.YedekKlasörü);
    } else if (SıkıştırmaGünü(yollar)) {
        Sıkıştır(yollar);
    }
}

// Offers the dated copies where there are some, and not again to whom they were offered already.
class Sunum {
  public:
    Sunum(const YedekSunumu& sun, const VeriYolları& yollar) : m_sun(sun), m_var(sun && KopyaVar(yollar)) {}
    bool Var() const { return m_var; }
    bool Yap() { return std::exchange(m_var, false) && m_sun(); }

  private:
    const YedekSunumu& m_sun;
    bool m_var;
};

// Puts a data file that is missing or one of Access into its place; where that cannot be, the user may choose a dated
// copy.
bool YerineGetir(const VeriYolları& yollar, Sunum& sunum) {
    const bool eksik = !DosyaVar(yollar.Dosya);
    if (eksik && !YedekErişimDosyası(yollar)) return EksikDosyayıGeriYükle(yollar) || sunum.Yap();
    const ErişimSonu son = eksik ? ErişimYedeğiniGeriYükle(yollar) : ErişimDosyasınıAl(yollar);
    return son == ErişimSonu::Alındı || (son == ErişimSonu::Alınamadı && sunum.Yap());
}

// What has to be right before the data file is touched.
bool YerlerUygun(const VeriYolları& yollar) {
    if (!DosyaVar(yollar.Dosya) && !DosyaVar(yollar.Yedek)) {
        KutuGöster(MesajKutusu::Simge::Kritik, Metin(MetinNo::VeriDosyasıYok));
        return false;
    }
    // Every statement needs to write beside the data file.
    if (!KlasöreYazılabilir(UygulamaYolu)) {
        KutuGöster(MesajKutusu::Simge::Kritik, MetinNo::KlasöreYazılamıyor, UygulamaYolu);
        return false;
    }
    if (!VeriDosyasıYoluSığıyor(yollar.GerçekDosya)) {
        KutuGöster(MesajKutusu::Simge::Kritik, MetinNo::VeriYoluUzun, UygulamaYolu);
        return false;
    }
    return true;
}

}  // namespace

bool VeritabanınıHazırla(const YedekSunumu& sun) {
    VeriYolları yollar = VeriYollarınıBul();
    const bool yedekKlasörüVar = KlasörYap(yollar.YedekKlasörü);
    yollar.GerçekYedek = GerçekYol(yollar.Yedek);
    YarımAçılmışlarıSil(yollar.YedekKlasörü);
    YarımKopyalarıSil(yollar.YedekKlasörü);
    // An Access file is taken over first, with progress: looking at it would do so without.
    const bool erişim = DosyaVar(yollar.Dosya) ? DosyaErişimDosyası(yollar) : YedekErişimDosyası(yollar);
    Sunum sunum(sun, yollar);
    if (sunum.Var() && !erişim && BaşlangıçBiter(yollar)) sunum.Yap();
    if (!YerlerUygun(yollar)) return false;
    YarımKalanlarıSil(yollar);
    // Without the driver nothing can be said about the files; connecting then shows what is wrong.
    if (!SürücüKayıtlı()) return ODBCBağlan();
    if (!YerineGetir(yollar, sunum)) return false;
    QString neden;
    switch (BoşDosyayıGözet(yollar, neden)) {
        case BoşDosyaSonucu::Sorunsuz:
            Yedekle(yollar, yedekKlasörüVar);
            break;
        case BoşDosyaSonucu::YedekKorunur:
            if (!neden.isEmpty() && SıkıştırmaGünü(yollar)) YedekAlınamadı(yollar, neden);
            break;
        case BoşDosyaSonucu::YedekOkunamıyor:
            if (SıkıştırmaGünü(yollar)) GündeBirUyar(YedekAlınamadıMetni(yollar, neden));
            break;
        case BoşDosyaSonucu::Bitir:
            return false;
    }
    if (!DosyayaYazılabilir(yollar.Dosya)) KutuGöster(MesajKutusu::Simge::Ünlem, MetinNo::VeriSaltOkunur, yollar.Dosya);
    return ODBCBağlan();
}

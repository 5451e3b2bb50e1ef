#include "VeritabaniHazirlik.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include "ApilerModulu.h"
#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "Saat.h"

namespace {

constexpr std::int16_t SIKIŞTIRILDI = 1;
const QString YEDEK_ADI = QStringLiteral("Varnek.ydk");

struct Yollar {
    QString Dosya;
    QString YedekKlasörü;
    QString Yedek;
};

Yollar YollarıBul() {
    const QString yedekKlasörü = SondaTersBöluYap(ProgramDosyalarıKlasörü() + QStringLiteral("Tovrek") +
                                                  QDir::separator() + QStringLiteral("Vtb Yedekleri"));
    return {UygulamaYolu + QStringLiteral("Varnek.vtb"), yedekKlasörü, yedekKlasörü + YEDEK_ADI};
}

void KutuGöster(MesajKutusu::Simge simge, int metin, const QString& yol = {}) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam,
                        yol.isEmpty() ? Metin(metin) : Metin(metin) + QLatin1Char('\n') + yol);
}

// The backup as the new data file, with the backup's time of change: the day test goes by it.
bool YedektenGeriYükle(const Yollar& yollar) {
    if (!VeriDosyasıAçılıyor(yollar.Yedek)) {
        KutuGöster(MesajKutusu::Simge::Kritik, 2122, yollar.Yedek);
        return false;
    }
    if (!DosyaKopyala(yollar.Yedek, yollar.Dosya)) {
        KutuGöster(MesajKutusu::Simge::Kritik, 2121, yollar.Dosya);
        return false;
    }
    return true;
}

bool SıkıştırmaGünü(const Yollar& yollar) {
    return !DosyaVar(yollar.Yedek) || Bugün() > QFileInfo(yollar.Dosya).lastModified().date();
}

// The compacted copy becomes the backup first and then the data file too. Failures leave either as it was and are
// silent: the next start tries again.
void Sıkıştır(const Yollar& yollar) {
    SonDönüşKodu = VeritabanınıSıkıştır(KısaYolAl(yollar.Dosya), KısaYolAl(yollar.YedekKlasörü) + YEDEK_ADI);
    if (SonDönüşKodu != SIKIŞTIRILDI) return;
    // A crash's journal has been played back by now: this one is that of another client, which is writing just now and
    // whose change the copy would swallow.
    if (DosyaVar(yollar.Dosya + QStringLiteral("-journal"))) return;
    DosyaKopyala(yollar.Yedek, yollar.Dosya);
}

}  // namespace

bool VeritabanınıHazırla() {
    const Yollar yollar = YollarıBul();
    const bool yedekKlasörüVar = QDir().mkpath(yollar.YedekKlasörü);
    const bool dosyaVar = DosyaVar(yollar.Dosya);
    if (!dosyaVar && !DosyaVar(yollar.Yedek)) {
        KutuGöster(MesajKutusu::Simge::Kritik, 150);
        return false;
    }
    // Every statement needs to write beside the data file.
    if (!KlasöreYazılabilir(UygulamaYolu)) {
        KutuGöster(MesajKutusu::Simge::Kritik, 2120, UygulamaYolu);
        return false;
    }
    YarımKopyayıSil(yollar.Dosya);
    // Without the driver nothing can be said about the backup; connecting then shows what is wrong.
    if (!SürücüKayıtlı()) return ODBCBağlan();
    if (!dosyaVar && !YedektenGeriYükle(yollar)) return false;
    if (!yedekKlasörüVar) {
        KutuGöster(MesajKutusu::Simge::Ünlem, 2123, yollar.YedekKlasörü);
    } else if (SıkıştırmaGünü(yollar)) {
        Sıkıştır(yollar);
    }
    return ODBCBağlan();
}

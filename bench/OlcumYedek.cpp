// A dated copy of the data file, checked before and after, beside the one backup's compaction.
#include <QCoreApplication>
#include <QFile>

#include "Cift.h"
#include "OdbcSurucu.h"
#include "KopyaYazma.h"
#include "OlcumFormOrtami.h"
#include "OrtakFonksiyonlarModulu.h"
#include "SayiYereli.h"

namespace {

// As many as fit into a run of some seconds; a run with the number of rows as the program's last word measures others.
int satırSayısı = 100'000;

QString Dosya() {
    static const QString klasör = ÖlçümOrtamı::VeriKlasörü(satırSayısı);
    return klasör + QStringLiteral("/Varnek.vtb");
}

void Tarihli(benchmark::State& durum) {
    const Kopyaİşi iş{Dosya() + QStringLiteral(".kopyalar/"), Dosya(), QDateTime::currentDateTime(), {}, {}, {}};
    for (auto _ : durum) {
        const KopyaSonucu sonuç = KopyaYaz(iş);
        if (sonuç.Ne != KopyaSonucu::Tür::Yazıldı) durum.SkipWithError("not copied");
        durum.PauseTiming();
        QFile::remove(sonuç.Yol);
        durum.ResumeTiming();
    }
}

void SonYedek(benchmark::State& durum) {
    const QString hedef = Dosya() + QStringLiteral(".yedek");
    for (auto _ : durum) {
        if (!VeritabanınıSıkıştır(KısaYolAl(Dosya()), KısaYolAl(hedef))) durum.SkipWithError("not compacted");
        durum.PauseTiming();
        QFile::remove(hedef);
        durum.ResumeTiming();
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    if (const int sayı = argc > 1 ? QByteArray(argv[argc - 1]).toInt() : 0; sayı > 0) {
        satırSayısı = sayı;
        --argc;
    }
    ÖlçümOrtamı::Kur();
    ÇiftEkle("dated copy / described backup", 1.5, Tarihli, SonYedek);
    return ÇiftleriÖlç(argc, argv);
}

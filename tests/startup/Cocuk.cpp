// The program's start without its main form, as the tests' child process:
//   hazirla FOLDER DAY     prepares and opens the data file in this program folder on this day (yyyy-MM-dd)
//   yaz FOLDER STATEMENT   runs one statement on it
//   basla FOLDER           the whole start; then says "basladi" and runs until it is killed or told to end
// Message boxes are answered at once and their texts written to the standard error output.

#include <QApplication>
#include <cstdio>
#include <memory>
#include <string_view>

#include "BaslatModulu.h"
#include "DegiskenModulu.h"
#include "KapanisModulu.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "SayiYereli.h"
#include "SistemBozucu.h"
#include "TekKopya.h"
#include "VeritabaniHazirlik.h"

namespace {

constexpr int BAŞKA_KOPYA = 3;

int Başla(const QString& klasör) {
    TekKopya kopya;
    BaşlatmaBağları bağlar;
    bağlar.ProgramKlasörü = klasör;
    bağlar.EkranGenişliğiAl = [] { return 800; };
    bağlar.AnaFormuYükle = [](const std::function<void()>& kapat) { kapat(); };
    const BitirmeDinleyicisi dinleyici([] {
        Kapan(false, {10, 20});
        QApplication::exit();
    });
    const BaşlatmaSonucu sonuç = Main(kopya, bağlar);
    if (sonuç == BaşlatmaSonucu::BaşkaKopyaVar) return BAŞKA_KOPYA;
    if (sonuç != BaşlatmaSonucu::Başladı) return 1;
    std::puts("basladi");
    std::fflush(stdout);
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    // Where no window is needed the windows' setting-up is saved: the tests run this hundreds of times.
    const bool pencereli = argc > 1 && argv[1] == std::string_view("basla");
    const std::unique_ptr<QCoreApplication> uygulama(pencereli ? new QApplication(argc, argv)
                                                               : new QCoreApplication(argc, argv));
    SayıYereliniSabitle();
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList istek = QCoreApplication::arguments();
    MesajKutusu::GöstericiyiAyarla([](const MesajKutusu::İstek& kutu) {
        std::fprintf(stderr, "%s\n", kutu.metin.toUtf8().constData());
        return kutu.düğmeler == MesajKutusu::Düğmeler::Tamam ? MesajKutusu::Yanıt::Tamam : MesajKutusu::Yanıt::Evet;
    });
    UygulamaYolu = istek.value(2);
    AyarUygulamaAdı = QStringLiteral("Tovrek\\Varnek");
    BozucuyuKur();
    if (pencereli) return Başla(UygulamaYolu);
    if (istek.value(1) == QLatin1String("hazirla")) {
        SaatiAyarla([gün = QDate::fromString(istek.value(3), Qt::ISODate)] { return gün; });
        return VeritabanınıHazırla() ? 0 : 1;
    }
    SQLMetni = istek.value(3);
    return ODBCBağlan() && SorguÇalıştır() ? 0 : 1;
}

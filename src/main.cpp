// Puts the pieces together and nothing else.

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>
#include <utility>

#include "AnaForm.h"
#include "ApilerModulu.h"
#include "BaslatModulu.h"
#include "KapanisModulu.h"
#include "SayiYereli.h"
#include "Simge.h"
#include "SurumKaydi.h"
#include "TekKopya.h"
#include "Yardim.h"
#include "YedekIsi.h"

namespace {

void UygulamayıTanıt() {
    QApplication::setApplicationName(Sürüm().ÜrünAdı);
    QApplication::setWindowIcon(ProgramSimgesi());
    QApplication::setDesktopFileName(QStringLiteral("varnek"));
    // Fonts that lie beside the program, where the system may not have them.
    const QDir yazıTipleri(QApplication::applicationDirPath() + QStringLiteral("/yazitipi"));
    for (const QFileInfo& dosya : yazıTipleri.entryInfoList(QDir::Files))
        QFontDatabase::addApplicationFont(dosya.filePath());
}

// The toolkit's own texts (file dialog, print preview) in Turkish.
void AraçTakımınıÇevir() {
    auto* çeviri = new QTranslator(qApp);
    if (çeviri->load(QStringLiteral("qtbase_tr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(çeviri);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    UygulamayıTanıt();
    AraçTakımınıÇevir();
    const YardımTuşu yardım(nullptr);
    // A message box of the start is not the last window.
    QApplication::setQuitOnLastWindowClosed(false);

    TekKopya kopya;
    std::unique_ptr<AnaForm> anaForm;
    std::unique_ptr<BitirmeDinleyicisi> bitirmeDinleyicisi;
    bool bitiyor = false;
    bool oturumBitiyor = false;
    // Settings and connection first; then every open form and box is left where it is.
    const auto sormadanBitir = [&anaForm, &bitiyor] {
        if (std::exchange(bitiyor, true)) return;
        Kapan(anaForm->isMinimized(), anaForm->pos());
        QApplication::exit();
    };
    BaşlatmaBağları bağlar;
    bağlar.YedekleriSun = YedekleriSun;
    bağlar.ProgramKlasörü = QApplication::applicationDirPath();
    bağlar.AnaFormuYükle = [&](std::function<void()> karşılamayıKapat) {
        // The end of the session does not wait for a copy; the next start makes it.
        const auto kapanış = [&oturumBitiyor](bool simgeDurumunda, QPoint solÜst) {
            if (!ÇıkışıYürüt(simgeDurumunda, solÜst)) return false;
            if (!oturumBitiyor) KapanıştaYedekle();
            return true;
        };
        anaForm = std::make_unique<AnaForm>(AnaFormBağları{std::move(karşılamayıKapat), kapanış});
        bitirmeDinleyicisi = std::make_unique<BitirmeDinleyicisi>(sormadanBitir);
        const auto sorupKapat = [&] {
            oturumBitiyor = true;
            return oturumBitiyor = bitiyor = anaForm->close();
        };
        OturumSonunuDinle(uygulama,
                          {sorupKapat, [&] { AyarlarıKaydet(anaForm->isMinimized(), anaForm->pos()); }, sormadanBitir});
        anaForm->Yükle();
    };
    switch (Main(kopya, bağlar)) {
        case BaşlatmaSonucu::Başladı:
            if (bitiyor) return 0;  // in a box of the main form's start
            QApplication::setQuitOnLastWindowClosed(true);
            return QApplication::exec();
        case BaşlatmaSonucu::BaşkaKopyaVar:
            return 0;
        case BaşlatmaSonucu::Başlayamadı:
            break;
    }
    return 1;
}

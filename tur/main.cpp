#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>
#include <cstdio>
#include <exception>
#include <memory>

#include "AnaForm.h"
#include "BaslatModulu.h"
#include "KapanisModulu.h"
#include "Sahneler.h"
#include "SayiYereli.h"
#include "SurumKaydi.h"
#include "TekKopya.h"

using namespace Qt::StringLiterals;

namespace {

void Yaz(const QString& metin) {
    std::fprintf(stderr, "%s\n", metin.toUtf8().constData());
}

// The next scenes are tried also after one that failed. 1: it failed.
int Dene(const Sahne& sahne, Tur& tur, QWidget& anaForm) {
    try {
        sahne.işlev(tur, anaForm);
        return 0;
    } catch (const std::exception& hata) {
        Yaz(u"%1: %2"_s.arg(sahne.ad, QString::fromUtf8(hata.what())));
        return 1;
    }
}

// The welcome form stands on the screen only until the main form comes.
const Sahne karşılamaSahnesi{u"karsilama"_s, [](Tur& tur, QWidget&) {
                                 for (QWidget* pencere : QApplication::topLevelWidgets()) {
                                     if (pencere->objectName() == u"KarşılamaFormu")
                                         return tur.Çek(u"karsilama"_s, *pencere);
                                 }
                                 throw TurHatası(u"no welcome form"_s);
                             }};

}  // namespace

// varnek-tur PROGRAM PICTURES: starts the program as its own main does, on the program folder PROGRAM, and walks
// through its forms.
int main(int argc, char** argv) {
    QApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    if (argc != 3) {
        Yaz(u"varnek-tur PROGRAM PICTURES"_s);
        return 2;
    }
    QApplication::setApplicationName(Sürüm().ÜrünAdı);
    QTranslator çeviri;
    if (çeviri.load(u"qtbase_tr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&çeviri);
    QApplication::setQuitOnLastWindowClosed(false);
    Tur tur(QDir(QString::fromLocal8Bit(argv[2])).absolutePath());
    TekKopya kopya;
    std::unique_ptr<AnaForm> anaForm;
    int başarısız = 0;
    BaşlatmaBağları bağlar;
    bağlar.ProgramKlasörü = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    bağlar.AnaFormuYükle = [&](const std::function<void()>& karşılamayıKapat) {
        const auto önceResmi = [&, karşılamayıKapat] {
            başarısız += Dene(karşılamaSahnesi, tur, *anaForm);
            karşılamayıKapat();
        };
        anaForm = std::make_unique<AnaForm>(AnaFormBağları{önceResmi, ÇıkışıYürüt});
        anaForm->Yükle();
    };
    if (Main(kopya, bağlar) != BaşlatmaSonucu::Başladı) {
        Yaz(u"The program did not start. Is another copy running?"_s);
        return 1;
    }
    for (const Sahne& sahne : Sahneler()) başarısız += Dene(sahne, tur, *anaForm);
    return başarısız == 0 ? 0 : 1;
}

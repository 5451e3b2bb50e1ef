#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <cstdio>
#include <exception>

#include "AnaForm.h"
#include "BaslatModulu.h"
#include "TekKopya.h"
#include "Tur.h"

using namespace Qt::StringLiterals;

namespace {

void Yaz(const QString& metin) {
    std::fprintf(stderr, "%s\n", metin.toUtf8().constData());
}

// Every scene is tried, also after one that failed. The number of failed ones.
int Gez(Tur& tur, QWidget& anaForm) {
    int başarısız = 0;
    for (const Sahne& sahne : Sahneler()) {
        try {
            sahne.işlev(tur, anaForm);
        } catch (const std::exception& hata) {
            Yaz(u"%1: %2"_s.arg(sahne.ad, QString::fromUtf8(hata.what())));
            ++başarısız;
        }
    }
    return başarısız;
}

QWidget* AçılanAnaForm() {
    for (QWidget* pencere : QApplication::topLevelWidgets()) {
        if (pencere->objectName() == u"AnaForm") return pencere;
    }
    return nullptr;
}

}  // namespace

// varnek-tur PROGRAM PICTURES: starts the program as its own main does, on the program folder PROGRAM, and walks
// through its forms.
int main(int argc, char** argv) {
    QApplication uygulama(argc, argv);
    if (argc != 3) {
        Yaz(u"varnek-tur PROGRAM PICTURES"_s);
        return 2;
    }
    Tur tur(QDir(QString::fromLocal8Bit(argv[2])).absolutePath());
    TekKopya kopya;
    int başarısız = 0;
    BaşlatmaBağları bağlar;
    bağlar.ProgramKlasörü = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    bağlar.AnaFormuYükle = [&](std::function<void()> karşılamayıKapat) {
        AnaFormuYükle([&] {
            başarısız += KarşılamaSahnesi(tur);
            karşılamayıKapat();
        });
    };
    if (Main(kopya, bağlar) != BaşlatmaSonucu::Başladı) {
        Yaz(u"The program did not start; is another copy running?"_s);
        return 1;
    }
    QWidget* anaForm = AçılanAnaForm();
    if (!anaForm) {
        Yaz(u"The main form did not open."_s);
        return 1;
    }
    başarısız += Gez(tur, *anaForm);
    return başarısız == 0 ? 0 : 1;
}

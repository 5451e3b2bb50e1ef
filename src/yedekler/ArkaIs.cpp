#include "ArkaIs.h"

#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <thread>

#include "IlerlemeKutusu.h"

void ArkaDurum::Durdur() {
    if (m_durdu.exchange(true)) return;
    QFile dur(DurYolu());
    static_cast<void>(dur.open(QIODevice::WriteOnly));
}

void ArkadaYürüt(MetinNo metin, std::int64_t azami, QWidget* sahip, const std::function<void(ArkaDurum&)>& iş) {
    constexpr int aralık = 20;  // milliseconds
    ArkaDurum durum;
    std::atomic<bool> bitti = false;
    std::thread işçi([&] {
        iş(durum);
        bitti = true;
    });
    {
        İlerlemeKutusu kutu(metin, azami, sahip);
        QEventLoop döngü;
        QTimer saat;
        QObject::connect(&saat, &QTimer::timeout, &döngü, [&] {
            if (!kutu.Bildir(durum.Yapılan())) durum.Durdur();
            if (bitti) döngü.quit();
        });
        saat.start(aralık);
        // What the user does reaches nobody until the box stands in front of the windows; the box itself asks for it.
        döngü.exec(QEventLoop::ExcludeUserInputEvents);
        if (!bitti) durum.Durdur();  // the program is to end
    }
    işçi.join();
}

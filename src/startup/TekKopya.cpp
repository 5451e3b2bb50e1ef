#include "TekKopya.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QDir>
#include <QThread>
#include <QWidget>

namespace {

// How long the first copy may take from its lock to its socket, or from its socket's end to its own (milliseconds).
constexpr int EN_UZUN_BEKLEME = 10000;
constexpr int EN_UZUN_VERİ_BEKLEMESİ = 1000;  // for a copy that is just ending
constexpr int BAĞLANMA_SÜRESİ = 1000;
constexpr int YANIT_SÜRESİ = 3000;
constexpr int ARA = 20;

// The path of lock and socket, without their endings.
QString OrtakYol(const QString& başlık) {
    QString klasör = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (klasör.isEmpty()) klasör = QDir::tempPath();
    return klasör + QLatin1Char('/') + başlık + QLatin1Char('-') + KullanıcıKimliği();
}

// False: there is no copy to ask, or it went away over the asking. A copy that does not answer in time is busy; the
// request waits in its queue.
bool ÖneÇağır(const QString& yol) {
    QLocalSocket soket;
    soket.connectToServer(yol);
    if (!soket.waitForConnected(BAĞLANMA_SÜRESİ)) return false;
    if (soket.waitForReadyRead(YANIT_SÜRESİ)) return true;
    return soket.state() == QLocalSocket::ConnectedState;
}

}  // namespace

bool TekKopya::Başla(const QString& başlık) {
    const QString yol = OrtakYol(başlık);
    QElapsedTimer geçen;
    geçen.start();
    do {
        const DosyaKilidi::Sonuç kilit = m_kilit.Al(yol + QStringLiteral(".kilit"));
        if (kilit == DosyaKilidi::Sonuç::Yapılamadı) return true;
        if (kilit == DosyaKilidi::Sonuç::Alındı) {
            Dinle(yol + QStringLiteral(".soket"));
            return true;
        }
        if (ÖneÇağır(yol + QStringLiteral(".soket"))) return false;
        QThread::msleep(ARA);
    } while (geçen.elapsed() < EN_UZUN_BEKLEME);
    return false;
}

bool TekKopya::VeriyiKilitle(const QString& dosya) {
    const QString yol = GerçekYol(dosya) + QStringLiteral(".kilit");
    QElapsedTimer geçen;
    geçen.start();
    do {
        const DosyaKilidi::Sonuç kilit = m_veriKilidi.Al(yol, DosyaKilidi::Artık::Silinir);
        if (kilit == DosyaKilidi::Sonuç::Alındı) m_veriKilidi.NotYaz(m_soket);
        if (kilit != DosyaKilidi::Sonuç::Başkasında) return true;
        const QString soket = DosyaKilidi::NotOku(yol);
        if (!soket.isEmpty() && ÖneÇağır(soket)) return false;
        QThread::msleep(ARA);
    } while (geçen.elapsed() < EN_UZUN_VERİ_BEKLEMESİ);
    return false;
}

void TekKopya::Dinle(const QString& yol) {
    // What lies there is left from a copy that was killed: the lock is ours.
    QLocalServer::removeServer(yol);
    m_sunucu.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&m_sunucu, &QLocalServer::newConnection, &m_sunucu, [this] {
        while (QLocalSocket* soket = m_sunucu.nextPendingConnection()) {
            QObject::connect(soket, &QLocalSocket::disconnected, soket, &QObject::deleteLater);
            soket->write("1");
            soket->flush();
            soket->disconnectFromServer();
        }
        PencereleriÖneGetir();
    });
    // Without a socket later copies still find the lock taken.
    if (m_sunucu.listen(yol)) m_soket = m_sunucu.fullServerName();
}

void PencereleriÖneGetir() {
    for (QWidget* pencere : QApplication::topLevelWidgets()) {
        const bool ana = pencere->isVisible() && !pencere->isModal() &&
                         (pencere->windowType() == Qt::Window || pencere->windowType() == Qt::SplashScreen);
        if (!ana) continue;
        pencere->showNormal();
        pencere->raise();
        pencere->activateWindow();
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal) return;
    if (modal->isMinimized()) modal->showNormal();
    modal->raise();
    modal->activateWindow();
}

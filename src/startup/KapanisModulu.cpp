#include "KapanisModulu.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <utility>

#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"

namespace {

class OturumDinleyicisi : public QObject {
  public:
    OturumDinleyicisi(OturumBağları bağlar, QObject* sahip) : QObject(sahip), m_bağlar(std::move(bağlar)) {}

    void OturumBitiyor(QSessionManager& oturum) {
        m_sorulamaz = !oturum.allowsInteraction();
        if (m_sorulamaz) {
            m_bağlar.AyarlarıYaz();
        } else if (m_bağlar.SorupKapat()) {
            oturum.release();
        } else {
            oturum.cancel();
        }
    }

    // The manager's last word comes as an order to quit, which would close the windows with their questions.
    bool eventFilter(QObject*, QEvent* olay) override {
        if (olay->type() != QEvent::Quit || !m_sorulamaz) return false;
        m_bağlar.SormadanBitir();
        return true;
    }

  private:
    OturumBağları m_bağlar;
    bool m_sorulamaz = false;
};

}  // namespace

bool ÇıkışıYürüt(bool simgeDurumunda, QPoint solÜst) {
    if (!simgeDurumunda) MesajKutusuOrtala();
    const MesajKutusu::Yanıt yanıt =
        MesajKutusu::Göster(MesajKutusu::Simge::Soru, MesajKutusu::Düğmeler::EvetHayır, Metin(MetinNo::ÇıkışSorusu));
    if (yanıt != MesajKutusu::Yanıt::Evet) return false;
    Kapan(simgeDurumunda, solÜst);
    return true;
}

void Kapan(bool simgeDurumunda, QPoint solÜst) {
    ODBCBağlantısınıKapat();
    AyarlarıKaydet(simgeDurumunda, solÜst);
}

void AyarlarıKaydet(bool simgeDurumunda, QPoint solÜst) {
    if (!simgeDurumunda) KonumuKaydet(solÜst);
    OndalığıKaydet(OndalıkBasamak);
}

void OturumSonunuDinle(QGuiApplication& uygulama, OturumBağları bağlar) {
    const auto dinleyici = new OturumDinleyicisi(std::move(bağlar), &uygulama);
    uygulama.installEventFilter(dinleyici);
    // Direct: the manager waits for the answer.
    QObject::connect(
        &uygulama, &QGuiApplication::commitDataRequest, dinleyici,
        [dinleyici](QSessionManager& oturum) { dinleyici->OturumBitiyor(oturum); }, Qt::DirectConnection);
}

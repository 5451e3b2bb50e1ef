#include "KapanisModulu.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <utility>

#include "Ayarlar.h"
#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"

bool KapanışıOnayla(bool simgeDurumunda, QPoint solÜst) {
    if (!simgeDurumunda) MesajKutusuOrtala();
    const MesajKutusu::Yanıt yanıt =
        MesajKutusu::Göster(MesajKutusu::Simge::Soru, MesajKutusu::Düğmeler::EvetHayır, Metin(60));
    if (yanıt != MesajKutusu::Yanıt::Evet) return false;
    Kapan(simgeDurumunda, solÜst);
    return true;
}

void Kapan(bool simgeDurumunda, QPoint solÜst) {
    ODBCBağlantısınıKapat();
    if (!simgeDurumunda) KonumuKaydet(solÜst);
    OndalığıKaydet(OndalıkBasamak);
}

void OturumSonunuDinle(QGuiApplication& uygulama, std::function<bool()> sor, std::function<void()> sormadan) {
    // Direct: the manager waits for the answer.
    QObject::connect(
        &uygulama, &QGuiApplication::commitDataRequest, &uygulama,
        [sor = std::move(sor), sormadan = std::move(sormadan)](QSessionManager& oturum) {
            if (!oturum.allowsInteraction()) {
                sormadan();
                return;
            }
            const bool kapandı = sor();
            oturum.release();
            if (!kapandı) oturum.cancel();
        },
        Qt::DirectConnection);
}

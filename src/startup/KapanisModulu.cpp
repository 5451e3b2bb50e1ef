#include "KapanisModulu.h"

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
    ODBCBağlantısınıKapat();
    if (!simgeDurumunda) KonumuKaydet(solÜst);
    OndalığıKaydet(OndalıkBasamak);
    return true;
}

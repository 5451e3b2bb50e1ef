#include "HakkindaFormu.h"

#include "Adresler.h"
#include "MetinTablosu.h"
#include "SurumKaydi.h"

HakkındaFormu::HakkındaFormu(QWidget* sahip) : KabukFormu(QStringLiteral("HakkındaFormu"), Metin(1000), sahip) {
    BaşlıkEkle(Sürüm().Başlık());
    EtiketEkle(Sürüm().SürümMetni());
    EtiketEkle(Sürüm().YasalUyarı);
    BağlantıEkle(Metin(2201), SiteAdresi());
    BağlantıEkle(Metin(2202), PostaAdresi());
    TamamEkle();
}

#include "HataBildirmeFormu.h"

#include "Adresler.h"
#include "MetinTablosu.h"

HataBildirmeFormu::HataBildirmeFormu(QWidget* sahip)
    : KabukFormu(QStringLiteral("HataBildirmeFormu"), Metin(MetinNo::HataBildirmeBaşlığı), sahip) {
    BaşlıkEkle(Metin(MetinNo::HatalarıBildirin));
    EtiketEkle(Metin(MetinNo::HataBildirmeAçıklaması));
    BağlantıEkle(Metin(MetinNo::MesajSayfasıBağlantısı), MesajSayfasıAdresi());
    BağlantıEkle(Metin(MetinNo::PostaBağlantısı), PostaAdresi());
    TamamEkle();
}

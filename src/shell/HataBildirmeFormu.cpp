#include "HataBildirmeFormu.h"

#include "Adresler.h"
#include "MetinTablosu.h"

HataBildirmeFormu::HataBildirmeFormu(QWidget* sahip)
    : KabukFormu(QStringLiteral("HataBildirmeFormu"), Metin(955), sahip) {
    BaşlıkEkle(Metin(960));
    EtiketEkle(Metin(970));
    BağlantıEkle(Metin(2203), MesajSayfasıAdresi());
    BağlantıEkle(Metin(2202), PostaAdresi());
    TamamEkle();
}

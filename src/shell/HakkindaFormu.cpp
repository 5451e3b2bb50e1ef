#include "HakkindaFormu.h"

#include "Adresler.h"
#include "MetinTablosu.h"
#include "SurumKaydi.h"

HakkındaFormu::HakkındaFormu(QWidget* sahip)
    : KabukFormu(QStringLiteral("HakkındaFormu"), Metin(MetinNo::HakkındaBaşlığı), sahip) {
    BaşlıkEkle(Sürüm().Başlık());
    EtiketEkle(Sürüm().SürümMetni());
    EtiketEkle(Sürüm().YasalUyarı);
    BağlantıEkle(Metin(MetinNo::SiteBağlantısı), SiteAdresi());
    BağlantıEkle(Metin(MetinNo::PostaBağlantısı), PostaAdresi());
    TamamEkle();
}

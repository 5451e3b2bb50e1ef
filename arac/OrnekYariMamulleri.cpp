#include "OrnekVeri.h"
#include "VeriDosyasi.h"
#include "YariMamulBaglari.h"

// A mixture by the litre, and a leg that it goes into: two levels. Their prices are what the products cost.
void ÖrnekYarıMamulleriYaz(VeriYazıcısı& yazıcı) {
    for (const QString& deyim : Deyimler::YarıMamul::TablolarıOluştur()) yazıcı.Çalıştır(deyim);
    const YarıMamulBağı bağlar[] = {
        {QStringLiteral("Hazır Vernik"),
         {QStringLiteral("ÖZEL SİPARİŞ"), QStringLiteral("Vernik Karışımı")},
         TutarTürü::Birim},
        {QStringLiteral("Vernikli Ayak"),
         {QStringLiteral("YARI MAMUL"), QStringLiteral("Vernikli Ayak")},
         TutarTürü::Toplam},
    };
    for (const YarıMamulBağı& bağ : bağlar) yazıcı.Çalıştır(Deyimler::YarıMamul::BağEkle(Saklanan(bağ)));
}

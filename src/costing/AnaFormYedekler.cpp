// The main form's way to the backups.

#include "AnaForm.h"
#include "DegisimIsi.h"
#include "SecerekGetirme.h"
#include "UrunAgaci.h"
#include "YedeklerFormu.h"

// After a restore nothing on the form is true any more: tree, list and prices of sub-assemblies come from the other
// file.
void AnaForm::Yedekler() {
    YedeklerFormu form(YedeklerFormu::Açılış::Program, this);
    form.SeçmedenÖnce([this] { return KaydedilmemişiSor(); });
    form.Yükle();
    form.exec();
    if (form.GeriYüklendi()) {
        VeriDeğişti({.Hepsi = true});
        AğacıYenidenYükle();
    } else if (form.Getirildi()) {
        ÜrünlerDeğişti();
    }
}

// Products may come and go with what was brought in from a backup.
bool AnaForm::İşlemiÇevir(const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip) {
    if (SözcüğünTürü(işlem.Tür) != İşlemTürü::Getir) return DeğişimiÇevir(işlem, tür, sahip);
    if (!KaydedilmemişiSor() || !GetirmeyiÇevir(işlem, tür, sahip)) return false;
    ÜrünlerDeğişti();
    return true;
}

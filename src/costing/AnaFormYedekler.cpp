// The main form's way to the backups.

#include "AnaForm.h"
#include "UrunAgaci.h"
#include "YedeklerFormu.h"

// After a restore nothing on the form is true any more: tree, list and prices of sub-assemblies come from the other
// file.
void AnaForm::Yedekler() {
    YedeklerFormu form(YedeklerFormu::Açılış::Program, this);
    form.Yükle();
    form.exec();
    if (!form.GeriYüklendi()) return;
    VeriDeğişti({.Hepsi = true});
    AğacıYenidenYükle();
}

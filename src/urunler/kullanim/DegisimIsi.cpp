#include "DegisimIsi.h"

#include "DegisimOnizlemeFormu.h"
#include "DegiskenModulu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"

bool DeğişimİşiniYürüt(const Değişimİşi& iş, QWidget* sahip) {
    DeğişimÖnizlemeFormu form(iş, sahip);
    return form.PlanıKur() && form.exec() == QDialog::Accepted;
}

bool DeğişimiÇevir(const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip) {
    const bool geri = tür == İşlemTürü::GeriAlma;
    const MetinNo açıklama = geri ? MetinNo::GeriAlmaAçıklaması : MetinNo::YinelemeAçıklaması;
    const Değişimİşi iş{{tür, Metin(açıklama).arg(işlem.No).arg(işlem.Açıklama), işlem.No, işlem.GeriAlan},
                        [no = işlem.No, geri](DeğişimPlanı& plan, const İlerleme& ilerleme) {
                            return plan.DönüşüKur(ODBCBağlantısı(), no, geri, OndalıkBasamak, ilerleme);
                        }};
    return DeğişimİşiniYürüt(iş, sahip);
}

#pragma once

#include <QString>
#include <functional>

#include "MalzemeDegisimi.h"

class QWidget;

// What a replacement or its taking back hands to the preview. The plan is asked for again when the data have changed.
struct Değişimİşi {
    İşlemBilgisi Bilgi;
    std::function<İşSonucu(DeğişimPlanı& plan, const İlerleme& ilerleme)> PlanıKur;
};

// Makes the plan, shows it, carries it out if the user wants it. True: carried out.
bool DeğişimİşiniYürüt(const Değişimİşi& iş, QWidget* sahip);

// "Geri Al" (GeriAlma) and "Yinele" (Yineleme) of a replacement.
bool DeğişimiÇevir(const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip);

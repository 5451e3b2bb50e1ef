#pragma once

#include <QString>

#include "YariMamulHesabi.h"

// "toplam maliyeti"
QString TutarTürüMetni(TutarTürü tür);

// Why a price does not follow; "uyuyor" where it does.
QString DurumMetni(BağDurumu durum);

#pragma once

#include "AnaForm.h"
#include "FormTesti.h"

inline constexpr const char* Ağaç = "ÜrünListesi";
inline constexpr const char* Liste = "KullanılanMalzemeListesi";

class AnaFormOrtamı : public FormTesti {
  protected:
    void Aç() {
        FormTesti::Aç<AnaForm>(AnaFormBağları{[] {}, [this](bool, QPoint) { return ++m_kapanmaSorusu, m_kapansın; }});
    }
    void Seç(const QString& grup, const QString& ürün = {}) { Tıkla(Ağaç, Yer(Ağaç, grup, ürün)); }
    QString Toplam() { return Yazı("ToplamMaliyetKutusu"); }

    bool m_kapansın = true;  // the answer to the exit's question
    int m_kapanmaSorusu = 0;
};

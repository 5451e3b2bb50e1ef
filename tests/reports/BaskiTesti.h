#pragma once

#include "FormTesti.h"
#include "KayitYuzeyi.h"
#include "Yazdirma.h"

// A form that prints; what it prints is recorded.
class BaskıTesti : public FormTesti {
  protected:
    BaskıTesti() {
        YazıcıVar = true;
        YazıcıyıAyarla([this](const Yazdırılacak& iş) {
            if (Yazdırılırken) Yazdırılırken();
            m_yazdırılan = std::make_unique<KayıtYüzeyi>();
            iş.Yaz(*m_yazdırılan);
        });
    }
    ~BaskıTesti() override { YazıcıyıAyarla(nullptr); }

    // Printed since the last look; null: nothing.
    std::unique_ptr<KayıtYüzeyi> Yazdırılan() { return std::move(m_yazdırılan); }
    // The enabled ones of the controls that a list without rows disables.
    QString YazdırılabilirOlanlar() {
        return Etkinler({"Çerçeve", "YazdırButonu", "PdfKaydetButonu", "ÖnizlemeButonu", "TabloyaAktarButonu"});
    }
    const char* Hepsi = "Çerçeve YazdırButonu PdfKaydetButonu ÖnizlemeButonu TabloyaAktarButonu";

    std::function<void()> Yazdırılırken;

  private:
    std::unique_ptr<KayıtYüzeyi> m_yazdırılan;
};

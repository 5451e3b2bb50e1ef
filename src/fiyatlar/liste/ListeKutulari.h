#pragma once

#include <functional>

#include "AcilirGirisKutusu.h"
#include "FiyatMetni.h"
#include "GirisKutusu.h"

// A file's path, typed or put in by the program. `değişti` runs when the box is left.
class YolKutusu : public GirişKutusu {
  public:
    explicit YolKutusu(std::function<void()> değişti) : m_değişti(std::move(değişti)) { EnUzunOlsun(EN_UZUN_YOL); }

    bool Bitir() override {
        m_değişti();
        return true;
    }

  private:
    static constexpr int EN_UZUN_YOL = 4096;
    std::function<void()> m_değişti;
};

// The supplier: chosen from those that are known, or typed. Blanks are put right on leaving.
class TedarikçiKutusu : public AçılırGirişKutusu {
  public:
    // `değişti` runs when a supplier was chosen, and when the box is left.
    explicit TedarikçiKutusu(std::function<void()> değişti) : m_değişti(std::move(değişti)) {
        connect(this, &QComboBox::activated, this, [this] { m_değişti(); });
    }

  protected:
    void Bitir() override {
        if (const QString ad = ListeAdı(currentText()); ad != currentText()) setEditText(ad);
        m_değişti();
    }

  private:
    std::function<void()> m_değişti;
};

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
    // The open editor of a name in the tree; one that has closed lives on unseen for a while.
    QLineEdit* Düzenleyici() {
        for (auto* kutu : Bul(Ağaç).findChildren<QLineEdit*>("AdDüzenleyici"))
            if (kutu->isVisible()) return kutu;
        return nullptr;
    }
    // Gives the current node another name. The editor hands the name over and closes, and then the renaming runs, each
    // in its turn of the event loop.
    void YeniAdVer(const QString& yeni) {
        QTest::keyClick(&Bul(Ağaç), Qt::Key_F2);
        ASSERT_TRUE(Bekle([this] { return Düzenleyici() != nullptr; }));
        Düzenleyici()->selectAll();
        Düzenleyici()->insert(yeni);
        QTest::keyClick(Düzenleyici(), Qt::Key_Return);
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    QString Toplam() { return Yazı("ToplamMaliyetKutusu"); }

    bool m_kapansın = true;  // the answer to the exit's question
    int m_kapanmaSorusu = 0;
};

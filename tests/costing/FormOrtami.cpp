#include "FormOrtami.h"

#include <QApplication>

#include "Deyimler.h"
#include "ModalBekleyici.h"

FormOrtamı::FormOrtamı() {
    VeriyeBağlan();
    m_veri = std::make_unique<TestVerisi>(VeriDosyası());
}

void FormOrtamı::Ürün(const QString& grup, const QString& ad, const QString& işçilik, const QString& kâr,
                      const QString& diğer, const QString& vade) {
    m_veri->Çalıştır(Deyimler::ÜrünEkle(grup, ad));
    m_veri->Çalıştır(Deyimler::YüzdeleriKaydet(işçilik, kâr, diğer, vade, grup, ad));
}

void FormOrtamı::Malzeme(const QString& grup, const QString& ürün, const QString& ad, const QString& miktar,
                         const QString& fiyat) {
    m_veri->Çalıştır(Deyimler::KullanılanMalzemeEkle({grup, ürün, ad, miktar, fiyat, QStringLiteral("#11/22/2026#")}));
}

void FormOrtamı::Aç() {
    const auto kapanış = [this](bool, QPoint) {
        ++m_kapanmaSorusu;
        return m_kapansın;
    };
    m_form = std::make_unique<AnaForm>(AnaFormBağları{[] {}, kapanış});
    m_form->Yükle();
    // The offscreen platform does not bring the window back once a modal form has gone.
    QApplication::setActiveWindow(m_form.get());
    ASSERT_TRUE(Bekle([this] { return m_form->isActiveWindow(); }));
}

std::string FormOrtamı::Yazılar(std::initializer_list<const char*> kutular) {
    QStringList yazılar;
    for (const char* kutu : kutular) yazılar.append(QString::fromStdString(Yazı(kutu)));
    return yazılar.join(' ').toStdString();
}

QTreeWidgetItem* FormOrtamı::Düğüm(const QString& grup, const QString& ürün) {
    for (QTreeWidgetItem* düğüm : Ağaç().findItems(grup, Qt::MatchExactly)) {
        if (ürün.isEmpty()) return düğüm;
        for (int i = 0; i < düğüm->childCount(); ++i) {
            if (düğüm->child(i)->text(0) == ürün) return düğüm->child(i);
        }
    }
    throw std::runtime_error("no node " + grup.toStdString() + "/" + ürün.toStdString());
}

void FormOrtamı::Tıkla(QTreeWidgetItem* düğüm) {
    if (düğüm->parent()) düğüm->parent()->setExpanded(true);
    Ağaç().scrollToItem(düğüm);
    QTest::mouseClick(Ağaç().viewport(), Qt::LeftButton, {}, Ağaç().visualItemRect(düğüm).center());
}

QStringList FormOrtamı::Satırlar() {
    QStringList satırlar;
    for (int i = 0; i < Liste().topLevelItemCount(); ++i) {
        QStringList sütunlar;
        for (int j = 0; j < Liste().columnCount(); ++j) sütunlar.append(Liste().topLevelItem(i)->text(j));
        satırlar.append(sütunlar.join(QLatin1Char('|')));
    }
    return satırlar;
}

QStringList FormOrtamı::Düğümler() {
    QStringList satırlar;
    for (QTreeWidgetItemIterator i(&Ağaç()); *i; ++i) {
        satırlar.append(((*i)->parent() ? " " : "") + (*i)->text(0));
    }
    return satırlar;
}

void FormOrtamı::Yaz(const char* kutu, const QString& metin) {
    QLineEdit& denetim = Bul<QLineEdit>(kutu);
    if (denetim.hasFocus()) {
        QTest::keyClick(&denetim, Qt::Key_A, Qt::ControlModifier);
    } else {
        QTest::mouseClick(&denetim, Qt::LeftButton);  // selects the whole text
    }
    QTest::keyClicks(&denetim, metin);
}

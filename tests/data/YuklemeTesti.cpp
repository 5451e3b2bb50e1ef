#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QTest>
#include <QTreeWidget>
#include <stdexcept>

#include "Deyimler.h"
#include "OdbcModulu.h"
#include "VarnekTesti.h"
#include "YuklemeGosterFormu.h"
#include "Yukleyiciler.h"

namespace {

class Yükleme : public VarnekTesti {
  protected:
    void ÜrünEkle(const char* grup, const char* ürün) {
        ASSERT_TRUE(DeyimiYürüt(Deyimler::ÜrünEkle(QString::fromUtf8(grup), QString::fromUtf8(ürün))));
    }
    // "GROUP: product product" for each top-level node.
    static QStringList Ağaç(const QTreeWidget& ağaç) {
        QStringList satırlar;
        for (int i = 0; i < ağaç.topLevelItemCount(); ++i) {
            QString satır = ağaç.topLevelItem(i)->text(0) + QLatin1Char(':');
            for (int j = 0; j < ağaç.topLevelItem(i)->childCount(); ++j) {
                satır += QLatin1Char(' ') + ağaç.topLevelItem(i)->child(j)->text(0);
            }
            satırlar.append(satır);
        }
        return satırlar;
    }
};

TEST_F(Yükleme, AğaçTürkçeSıradaVeGruplarTamAdlarıylaAyrılır) {
    VeriyeBağlan();
    ÜrünEkle("MASA", "B");
    ÜrünEkle("Masa", "C");
    ÜrünEkle("MASA", "D");
    ÜrünEkle("IŞIK", "İ");
    ÜrünEkle("IŞIK", "ı");
    ÜrünEkle("ÇEKMECE", "A");
    QTreeWidget ağaç;
    ağaç.addTopLevelItem(new QTreeWidgetItem(QStringList(QStringLiteral("eski"))));
    ÜrünAğacınıYükle(ağaç);
    EXPECT_EQ(Ağaç(ağaç), QStringList({QStringLiteral("ÇEKMECE: A"), QStringLiteral("IŞIK: ı İ"),
                                       QStringLiteral("MASA: B D"), QStringLiteral("Masa: C")}));
    EXPECT_EQ(YüklenenKayıt, 6);
    ODBCBağlantısınıKapat();
}

TEST_F(Yükleme, FormYükleyiciyiBirKezÇalıştırırVeİlerlemeyiGösterir) {
    VeriyeBağlan();
    for (const char* ad : {"Zımpara", "Çivi", "Ağaç"}) {
        ASSERT_TRUE(DeyimiYürüt(Deyimler::MalzemeEkle(QString::fromUtf8(ad), QStringLiteral("1"))));
    }
    QListWidget liste;
    int kez = 0;
    YüklemeGösterFormu::Çalıştır([&] {
        ++kez;
        QWidget* form = QApplication::activeModalWidget();
        ASSERT_TRUE(form && form->isVisible());
        EXPECT_EQ(form->findChild<QLabel*>(QStringLiteral("Etiket"))->text(),
                  QStringLiteral("Veriler yüklenirken lütfen bekleyiniz!"));
        // Neither Esc nor the close box ends it.
        QTest::keyClick(form, Qt::Key_Escape);
        form->close();
        EXPECT_TRUE(form->isVisible());
        MalzemeListesiniYükle(liste);
        EXPECT_EQ(form->findChild<QProgressBar*>(QStringLiteral("İlerlemeÇubuğu"))->maximum(), 3);
    });
    EXPECT_EQ(kez, 1);
    ASSERT_EQ(liste.count(), 3);
    EXPECT_EQ(liste.item(0)->text(), QStringLiteral("Ağaç"));
    EXPECT_EQ(liste.item(1)->text(), QStringLiteral("Çivi"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    ODBCBağlantısınıKapat();
}

TEST_F(Yükleme, YükleyicininHatasıFormKapandıktanSonraGelir) {
    EXPECT_THROW(YüklemeGösterFormu::Çalıştır([] { throw std::runtime_error("x"); }), std::runtime_error);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace

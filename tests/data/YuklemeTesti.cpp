#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
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

QWidget* YüklemeFormu() {
    QWidget* form = QApplication::activeModalWidget();
    return form && form->objectName() == QStringLiteral("YüklemeGösterFormu") ? form : nullptr;
}

TEST_F(Yükleme, KısaYüklemedeFormHiçGörünmez) {
    VeriyeBağlan();
    for (const char* ad : {"Zımpara", "Çivi", "Ağaç"}) {
        ASSERT_TRUE(DeyimiYürüt(Deyimler::MalzemeEkle(QString::fromUtf8(ad), QStringLiteral("1"))));
    }
    QListWidget liste;
    YüklemeGösterFormu::Çalıştır([&] {
        MalzemeListesiniYükle(liste);
        EXPECT_EQ(YüklemeFormu(), nullptr);
    });
    ASSERT_EQ(liste.count(), 3);
    EXPECT_EQ(liste.item(0)->text(), QStringLiteral("Ağaç"));
    EXPECT_EQ(liste.item(1)->text(), QStringLiteral("Çivi"));
}

TEST_F(Yükleme, UzunYüklemedeFormİlerlerVeKapatılamaz) {
    int çizimler = 0;
    int enÇok = 0;
    qint64 süre = 0;
    YüklemeGösterFormu::Çalıştır([&] {
        constexpr int Azami = 1 << 30;
        Yüklemeİlerlemesi ilerleme(Azami);
        QElapsedTimer geçen;
        geçen.start();
        while (!YüklemeFormu() && geçen.elapsed() < 5000) ilerleme.Arttır();
        QWidget* form = YüklemeFormu();
        ASSERT_TRUE(form);
        EXPECT_EQ(form->findChild<QLabel*>(QStringLiteral("Etiket"))->text(),
                  QStringLiteral("Veriler yüklenirken lütfen bekleyiniz!"));
        QTest::keyClick(form, Qt::Key_Escape);
        form->close();
        EXPECT_TRUE(form->isVisible());
        auto* çubuk = form->findChild<QProgressBar*>(QStringLiteral("İlerlemeÇubuğu"));
        EXPECT_EQ(çubuk->maximum(), Azami);
        const auto sayaç =
            QObject::connect(çubuk, &QProgressBar::valueChanged, çubuk, [&](int değer) { ++çizimler, enÇok = değer; });
        geçen.restart();
        while (geçen.elapsed() < 200) ilerleme.Arttır();
        süre = geçen.elapsed();
        QObject::disconnect(sayaç);
    });
    EXPECT_GE(çizimler, 2) << "the bar moves";
    EXPECT_LE(çizimler, süre / 16 + 1) << "at most one painting in 16 ms";
    EXPECT_LE(enÇok, YüklenenKayıt);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Yükleme, YükleyicininHatasıFormuKapatır) {
    EXPECT_THROW(YüklemeGösterFormu::Çalıştır([] { throw std::runtime_error("x"); }), std::runtime_error);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace

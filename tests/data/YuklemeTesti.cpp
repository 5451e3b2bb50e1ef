#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <stdexcept>

#include "OdbcModulu.h"
#include "VarnekTesti.h"
#include "YuklemeGosterFormu.h"
#include "Yukleyiciler.h"

namespace {

using Yükleme = VarnekTesti;

QWidget* YüklemeFormu() {
    QWidget* form = QApplication::activeModalWidget();
    return form && form->objectName() == QStringLiteral("YüklemeGösterFormu") ? form : nullptr;
}

TEST_F(Yükleme, KısaYüklemedeFormHiçGörünmez) {
    VeriyeBağlan();
    for (const char* ad : {"Zımpara", "Çivi", "Ağaç"}) MalzemeEkle(ad, "1");
    QListWidget liste;
    YüklemeGösterFormu::Çalıştır([&] {
        MalzemeListesiniYükle(liste);
        EXPECT_EQ(YüklemeFormu(), nullptr);
    });
    ASSERT_EQ(liste.count(), 3);
    EXPECT_EQ(liste.item(1)->text(), QStringLiteral("Çivi"));
}

TEST_F(Yükleme, VazgeçilebilirİşYalnızİptalleBırakılır) {
    const auto görünsün = [](const std::function<bool(int)>& ilerleme) {
        QElapsedTimer geçen;
        geçen.start();
        while (!YüklemeFormu() && geçen.elapsed() < 5000) EXPECT_TRUE(ilerleme(450));
        return YüklemeFormu();
    };
    YüklemeGösterFormu::ÇalıştırVazgeçilebilir(QStringLiteral("Alınıyor"), [&](const auto& ilerleme) {
        QWidget* form = görünsün(ilerleme);
        ASSERT_TRUE(form);
        EXPECT_EQ(form->findChild<QProgressBar*>(QStringLiteral("İlerlemeÇubuğu"))->value(), 450);
        QTest::keyClick(form, Qt::Key_Return);
        form->close();
        EXPECT_TRUE(ilerleme(500));
        QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("İptalButonu")), Qt::LeftButton);
        EXPECT_FALSE(ilerleme(550));
        EXPECT_TRUE(form->isVisible()) << "until the work has ended";
    });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Yükleme, UzunYüklemedeFormİlerlerVeKapatılamaz) {
    int çizimler = 0;
    qint64 süre = 0;
    YüklemeGösterFormu::Çalıştır([&] {
        constexpr int Azami = 1 << 30;
        Yüklemeİlerlemesi ilerleme(Azami);
        QElapsedTimer geçen;
        geçen.start();
        while (!YüklemeFormu() && geçen.elapsed() < 5000) ilerleme.Arttır();
        QWidget* form = YüklemeFormu();
        ASSERT_TRUE(form);
        QTest::keyClick(form, Qt::Key_Escape);
        form->close();
        EXPECT_TRUE(form->isVisible());
        auto* çubuk = form->findChild<QProgressBar*>(QStringLiteral("İlerlemeÇubuğu"));
        const auto sayaç = QObject::connect(çubuk, &QProgressBar::valueChanged, çubuk, [&] { ++çizimler; });
        geçen.restart();
        while (geçen.elapsed() < 200) ilerleme.Arttır();
        süre = geçen.elapsed();
        QObject::disconnect(sayaç);
    });
    EXPECT_GE(çizimler, 2) << "the bar moves";
    EXPECT_LE(çizimler, süre / 16 + 1) << "at most one painting in 16 ms";
    EXPECT_THROW(YüklemeGösterFormu::Çalıştır([] { throw std::runtime_error("x"); }), std::runtime_error);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace

#include "WebEtiketi.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QPalette>
#include <QTest>

#include "AcilanAdresler.h"
#include "Renk.h"

namespace {

constexpr std::uint32_t DüğmeYazısı = 0x80000012;

class WebEtiketiTesti : public ::testing::Test {
  protected:
    WebEtiketiTesti() {
        m_etiket.DeğişiklikBildiriciAyarla([this](const QString& özellik) { m_bildirilenler += özellik; });
    }

    QLabel& Yazı() { return *m_etiket.findChild<QLabel*>("Etiket"); }
    QColor YazınınRengi() { return Yazı().palette().color(QPalette::WindowText); }

    QWidget m_kap;
    WebEtiketi m_etiket{&m_kap};
    AçılanAdresler m_açılanlar;
    QStringList m_bildirilenler;
};

TEST_F(WebEtiketiTesti, EachPropertyIsReportedStoredAloneAndReadBack) {
    EXPECT_TRUE(m_etiket.ÖzellikleriYaz().isEmpty());
    QFont büyük = m_kap.font();
    büyük.setPointSize(23);
    m_etiket.CaptionAyarla("Bize yazın");
    m_etiket.FontAyarla(büyük);
    m_etiket.FontUnderlineAyarla(true);
    m_etiket.AktifRenkAyarla(0x000000C0);
    m_etiket.ForeColorAyarla(0x0000FF00);
    m_etiket.PasifRenkAyarla(DüğmeYazısı);
    m_etiket.UrlAyarla(PostaAdresi());
    m_etiket.RenkDeğiştirAyarla(true);
    EXPECT_EQ(m_bildirilenler.join(u' '), "Caption Font FontUnderline AktifRenk ForeColor PasifRenk Url RenkDeğiştir");
    const QVariantMap hepsi{{"Caption", "Bize yazın"},  {"Font", büyük.toString()}, {"FontUnderline", true},
                            {"AktifRenk", 0x000000C0u}, {"ForeColor", 0x0000FF00u}, {"PasifRenk", DüğmeYazısı},
                            {"Url", PostaAdresi()},     {"RenkDeğiştir", true}};
    EXPECT_EQ(m_etiket.ÖzellikleriYaz(), hepsi);

    // One by one in the same control: what the map leaves out goes back to its default.
    m_bildirilenler.clear();
    for (auto özellik = hepsi.begin(); özellik != hepsi.end(); ++özellik) {
        const QVariantMap tek{{özellik.key(), özellik.value()}};
        m_etiket.ÖzellikleriOku(tek);
        EXPECT_EQ(m_etiket.ÖzellikleriYaz(), tek) << özellik.key().toStdString();
    }
    EXPECT_TRUE(m_bildirilenler.isEmpty()) << "reading is no change";
}

TEST_F(WebEtiketiTesti, TheActiveColourShowsWhenItIsSetAndWhenItIsAskedFor) {
    m_etiket.AktifRenkAyarla(0x000000C0);
    EXPECT_EQ(YazınınRengi(), QColor(0xC0, 0, 0));
    m_etiket.ForeColorAyarla(DüğmeYazısı);
    EXPECT_EQ(m_etiket.ÖzellikleriYaz(), QVariantMap({{"AktifRenk", 0x000000C0u}}));
    EXPECT_EQ(m_etiket.ForeColor(), DüğmeYazısı) << "storing must not show the active colour";
    EXPECT_EQ(m_etiket.AktifRenk(), 0x000000C0u);
    EXPECT_EQ(m_etiket.ForeColor(), 0x000000C0u);
    m_etiket.ÖzellikleriOku({{"AktifRenk", 0x000000A0u}});
    EXPECT_EQ(m_etiket.ForeColor(), DüğmeYazısı) << "reading must not show it either";
}

TEST_F(WebEtiketiTesti, ClicksAndKeysOpenTheAddressOnce) {
    m_etiket.UrlAyarla(PostaAdresi());
    m_kap.resize(400, 200);
    m_kap.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_kap));
    QTest::mouseClick(&Yazı(), Qt::LeftButton);
    EXPECT_EQ(m_açılanlar.value(0), QUrl(PostaAdresi())) << "a link that does not change colour opens all the same";
    QTest::mouseDClick(&Yazı(), Qt::LeftButton);  // the second half of a double click
    QTest::mouseRelease(&Yazı(), Qt::LeftButton);
    EXPECT_EQ(m_açılanlar.size(), 1) << "a double click opens once";
    QTest::mouseClick(&Yazı(), Qt::RightButton);
    QTest::mousePress(&Yazı(), Qt::LeftButton);
    QTest::mouseRelease(&Yazı(), Qt::LeftButton, Qt::NoModifier, QPoint(390, 190));
    EXPECT_EQ(m_açılanlar.size(), 1) << "right clicks and presses let go elsewhere open nothing";

    m_açılanlar.clear();
    m_etiket.setFocus();
    for (const Qt::Key tuş : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) QTest::keyClick(&m_etiket, tuş);
    EXPECT_EQ(m_açılanlar.size(), 3);
    QAccessibleInterface* arayüz = QAccessible::queryAccessibleInterface(&m_etiket);
    ASSERT_TRUE(arayüz && arayüz->actionInterface());
    EXPECT_EQ(arayüz->role(), QAccessible::Link);
    EXPECT_EQ(arayüz->text(QAccessible::Name), m_etiket.Caption());
    arayüz->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(m_açılanlar.size(), 4);
}

TEST(RenkTesti, ColoursAreReadAsStoredAndPaintedReadably) {
    QPalette açık(Qt::black, Qt::white);
    const QPalette koyu(Qt::white, QColor(0x20, 0x24, 0x28));
    açık.setColor(QPalette::ButtonText, QColor(1, 2, 3));
    EXPECT_EQ(RenkÇöz(0x00C08040, açık), QColor(0x40, 0x80, 0xC0));
    EXPECT_EQ(RenkÇöz(0x80000012, açık), QColor(1, 2, 3));
    EXPECT_EQ(YazıRengi(0x00C00000, açık), QColor(0, 0, 192)) << "readable as it is";
    // On the dark background: still blue, but lighter.
    const QColor boya = YazıRengi(0x00C00000, koyu);
    EXPECT_GT(boya.lightness(), 130);
    EXPECT_GT(boya.blue(), boya.red());
    // A colour that the light background swallows is darkened.
    EXPECT_LT(YazıRengi(0x0080FFFF, açık).lightness(), 120);
}

}  // namespace

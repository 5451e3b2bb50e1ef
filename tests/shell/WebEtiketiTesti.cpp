#include "WebEtiketi.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPalette>
#include <QTest>

#include "Adresler.h"
#include "Renk.h"

namespace {

constexpr std::uint32_t DüğmeYazısı = 0x80000012;

class WebEtiketiTesti : public ::testing::Test {
  protected:
    WebEtiketiTesti() {
        AdresAçıcıyıAyarla([this](const QUrl& adres) { m_açılanlar += adres.toString(); });
        m_etiket.DeğişiklikBildiriciAyarla([this](const QString& özellik) { m_bildirilenler += özellik; });
    }
    ~WebEtiketiTesti() override { AdresAçıcıyıAyarla(nullptr); }

    QLabel& Yazı() { return *m_etiket.findChild<QLabel*>("Etiket"); }
    QColor YazınınRengi() { return Yazı().palette().color(QPalette::WindowText); }

    QWidget m_kap;
    WebEtiketi m_etiket{&m_kap};
    QStringList m_açılanlar;
    QStringList m_bildirilenler;
};

TEST_F(WebEtiketiTesti, EachPropertyHasADefaultIsReportedStoredAloneAndReadBack) {
    EXPECT_EQ(m_etiket.Caption() + m_etiket.Url(), "..." + SiteAdresi());
    EXPECT_FALSE(m_etiket.FontUnderline() || m_etiket.RenkDeğiştir() || m_etiket.Font() != m_kap.font());
    EXPECT_TRUE(m_etiket.PasifRenk() == 0 && m_etiket.ForeColor() == DüğmeYazısı);
    EXPECT_TRUE(m_etiket.ÖzellikleriYaz().isEmpty());
    EXPECT_EQ(m_etiket.AktifRenk(), 0x00FF0000u);  // asking for this one changes the look

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
    EXPECT_EQ(m_bildirilenler, QStringList("AktifRenk"));
    EXPECT_EQ(m_etiket.ForeColor(), 0x000000C0u);
    EXPECT_EQ(YazınınRengi(), QColor(0xC0, 0, 0));

    m_etiket.ForeColorAyarla(DüğmeYazısı);
    EXPECT_EQ(m_etiket.ÖzellikleriYaz(), QVariantMap({{"AktifRenk", 0x000000C0u}}));
    EXPECT_EQ(m_etiket.ForeColor(), DüğmeYazısı) << "storing must not show the active colour";
    EXPECT_EQ(m_etiket.AktifRenk(), 0x000000C0u);
    EXPECT_EQ(m_etiket.ForeColor(), 0x000000C0u);

    m_etiket.ÖzellikleriOku({{"AktifRenk", 0x000000A0u}});
    EXPECT_EQ(m_etiket.ForeColor(), DüğmeYazısı) << "reading must not show it either";
}

TEST_F(WebEtiketiTesti, TheControlHugsItsText) {
    const auto sarar = [this] {
        EXPECT_EQ(Yazı().pos(), QPoint(2, 2));
        EXPECT_EQ(Yazı().size(), Yazı().sizeHint());
        EXPECT_EQ(m_etiket.size(), Yazı().sizeHint() + QSize(4, 4));
    };
    sarar();
    const int dar = m_etiket.width();
    m_etiket.CaptionAyarla("www.tovrek.example mesaj sayfası");
    sarar();
    EXPECT_GT(m_etiket.width(), dar);
    const int alçak = m_etiket.height();
    QFont font = m_kap.font();
    font.setPointSize(30);
    m_etiket.FontAyarla(font);
    sarar();
    EXPECT_GT(m_etiket.height(), alçak);
    m_etiket.resize(500, 500);
    sarar();
    // The container's font is followed as long as the link has none of its own.
    m_etiket.ÖzellikleriOku({});
    m_etiket.FontUnderlineAyarla(true);
    m_kap.setFont(font);
    sarar();
    EXPECT_EQ(m_etiket.Font().pointSize(), 30);
    EXPECT_EQ(m_etiket.ÖzellikleriYaz(), QVariantMap({{"FontUnderline", true}}));
}

TEST_F(WebEtiketiTesti, ClicksAndKeysOpenTheAddressOnce) {
    m_etiket.UrlAyarla(PostaAdresi());
    m_kap.resize(400, 200);
    m_kap.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_kap));
    QTest::mouseClick(&Yazı(), Qt::LeftButton);
    EXPECT_EQ(m_açılanlar, QStringList(PostaAdresi())) << "a link that does not change colour opens all the same";
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

TEST_F(WebEtiketiTesti, MouseMovesOverTheTextArePassedOnAsTheyAre) {
    QList<QPoint> yerler;
    Qt::KeyboardModifiers tuşlar;
    m_etiket.MouseMoveAyarla([&](Qt::MouseButtons, Qt::KeyboardModifiers t, QPoint yer) {
        tuşlar = t;
        yerler += yer;
    });
    QMouseEvent olay(QEvent::MouseMove, QPointF(5, 3), QPointF(5, 3), Qt::NoButton, Qt::NoButton, Qt::ShiftModifier);
    QApplication::sendEvent(&Yazı(), &olay);
    EXPECT_EQ(yerler, QList<QPoint>{QPoint(5, 3)});
    EXPECT_EQ(tuşlar, Qt::ShiftModifier);
}

TEST_F(WebEtiketiTesti, AnotherThemeRepaintsTheSameValue) {
    m_etiket.ForeColorAyarla(0x00C00000);
    const QColor açıkta = YazınınRengi();
    m_kap.setPalette(QPalette(Qt::white, Qt::black));
    EXPECT_GT(YazınınRengi().lightness(), açıkta.lightness());
    EXPECT_EQ(m_etiket.ForeColor(), 0x00C00000u);
}

TEST(RenkTesti, ColoursAreReadAsStoredAndPaintedReadably) {
    QPalette açık(Qt::black, Qt::white);
    QPalette koyu(Qt::white, QColor(0x20, 0x24, 0x28));
    for (QPalette* palet : {&açık, &koyu}) palet->setColor(QPalette::ButtonText, QColor(1, 2, 3));
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

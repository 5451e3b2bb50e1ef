#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QUrl>

#include "Baglanti.h"
#include "ErisimDenetimi.h"
#include "FormOrtami.h"
#include "ModalBekleyici.h"

namespace {

class YardımMenüsü : public FormOrtamı {
  protected:
    YardımMenüsü() {
        Ürün("MASA", "Sehpa");
        Malzeme("MASA", "Sehpa", "Çam Kereste", "2,5 Metre", "4");
        Aç();
        BağlantıAçıcıyıAyarla([this](const QUrl& adres) { m_açılanlar += adres.fileName(); });
    }
    ~YardımMenüsü() override { BağlantıAçıcıyıAyarla(nullptr); }

    // With the mouse: the menu in the bar, then its entry.
    void Seç(const char* giriş) {
        auto& menü = Bul<QMenu>("YardımMenüsü");
        QMenuBar& çubuk = *Form().menuBar();
        QTest::mouseClick(&çubuk, Qt::LeftButton, {}, çubuk.actionGeometry(menü.menuAction()).center());
        ASSERT_TRUE(menü.isVisible());
        auto* eylem = Form().findChild<QAction*>(QString::fromUtf8(giriş));
        ASSERT_TRUE(eylem && eylem->isEnabled()) << giriş;
        QTest::mouseClick(&menü, Qt::LeftButton, {}, menü.actionGeometry(eylem).center());
    }

    QStringList m_açılanlar;
};

TEST_F(YardımMenüsü, HerGirişBirŞeyAçar) {
    for (const auto& [giriş, form] :
         {std::pair{"HakkındaMenüsü", "HakkındaFormu"}, {"HataBildirmeMenüsü", "HataBildirmeFormu"}}) {
        ModalAç([&] { Seç(giriş); }, QString::fromUtf8(form),
                [](QWidget& açılan) {
                    QTest::mouseClick(açılan.findChild<QPushButton*>(QStringLiteral("TamamButonu")), Qt::LeftButton);
                });
    }
    Seç("İçindekilerMenüsü");
    EXPECT_EQ(m_açılanlar, QStringList("AnaForm.html"));
}

TEST_F(YardımMenüsü, EkranOkuyucuAnaFormuOkur) {
    ÜrünSeç("MASA", "Sehpa");
    ErişimiDenetle(Form());
}

}  // namespace

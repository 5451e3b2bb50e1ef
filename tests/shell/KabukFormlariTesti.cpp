#include <QLabel>
#include <QUrlQuery>
#include <QWindow>

#include "Adresler.h"
#include "FormTesti.h"
#include "HakkindaFormu.h"
#include "HataBildirmeFormu.h"
#include "WebEtiketi.h"

namespace {

class KabukFormTesti : public FormTesti {
  protected:
    KabukFormTesti() {
        AdresAçıcıyıAyarla([this](const QUrl& adres) { m_açılanlar += adres; });
    }
    ~KabukFormTesti() override { AdresAçıcıyıAyarla(nullptr); }

    // The mouse as the window system tells of it: who gets the move depends on what lies there and on its tracking.
    void Fare(QPoint yer) { QTest::mouseMove(Form().windowHandle(), yer); }
    void Fare(QWidget& üstünde) { Fare(üstünde.mapTo(&Form(), üstünde.rect().center())); }
    WebEtiketi& Bağlantı(const char* ad) { return dynamic_cast<WebEtiketi&>(Bul(ad)); }
    static QLabel& Etiket(const WebEtiketi& bağlantı) { return *bağlantı.findChild<QLabel*>("Etiket"); }
    static void EtkinGörünür(WebEtiketi& bağlantı, bool etkin) {
        EXPECT_EQ(bağlantı.FontUnderline(), etkin);
        EXPECT_EQ(Etiket(bağlantı).palette().color(QPalette::WindowText), QColor(0, 0, etkin ? 255 : 192));
    }

    QList<QUrl> m_açılanlar;
};

TEST_F(KabukFormTesti, LinksLeadToTheSiteTheMessagePageAndMail) {
    Aç<HakkındaFormu>();
    EXPECT_EQ(Yazılar({"Etiket(0)", "Etiket(1)"}), "Tovrek - Varnek 2.24 Sürüm 2.24");
    Bul("WebEtiketi(0)").setFocus();
    Tuş(Qt::Key_Return);
    EXPECT_EQ(m_açılanlar, QList<QUrl>{QUrl(SiteAdresi())});
    Bul("TamamButonu").setFocus();
    Tuş(Qt::Key_Return);
    EXPECT_FALSE(Form().isVisible());

    Aç<HataBildirmeFormu>();
    for (const char* ad : {"WebEtiketi(0)", "WebEtiketi(1)"}) QTest::mouseClick(&Etiket(Bağlantı(ad)), Qt::LeftButton);
    ASSERT_EQ(m_açılanlar.size(), 3);
    EXPECT_EQ(m_açılanlar[1].path(), "/asp/mesaj/mesaj.asp");
    EXPECT_EQ(QUrlQuery(m_açılanlar[1]).queryItemValue("ProgramAdi"), "Varnek");
    EXPECT_EQ(m_açılanlar[2].scheme(), "mailto");
}

TEST_F(KabukFormTesti, LinksTakeTheirActiveLookUnderTheMouseAndLoseItOverTheForm) {
    Aç<HataBildirmeFormu>().setPalette(QPalette(Qt::black, Qt::white));
    WebEtiketi& ilk = Bağlantı("WebEtiketi(0)");
    WebEtiketi& ikinci = Bağlantı("WebEtiketi(1)");
    const auto görünüm = [&](bool birinciEtkin, bool ikinciEtkin) {
        EtkinGörünür(ilk, birinciEtkin);
        EtkinGörünür(ikinci, ikinciEtkin);
    };
    görünüm(false, false);
    Fare(Etiket(ilk));
    görünüm(true, false);
    // Straight on to the other link: nothing tells the first, as the form was not crossed.
    Fare(Etiket(ikinci));
    görünüm(true, true);
    Fare(QPoint(3, 3));
    görünüm(false, false);
}

}  // namespace

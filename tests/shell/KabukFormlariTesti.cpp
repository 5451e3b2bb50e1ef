#include <QLabel>
#include <QUrlQuery>

#include "AcilanAdresler.h"
#include "FormTesti.h"
#include "HakkindaFormu.h"
#include "HataBildirmeFormu.h"
#include "WebEtiketi.h"

namespace {

class KabukFormTesti : public FormTesti {
  protected:
    AçılanAdresler m_açılanlar;
};

TEST_F(KabukFormTesti, LinksLeadToTheSiteTheMessagePageAndMail) {
    Aç<HakkındaFormu>();
    EXPECT_EQ(Yazılar({"Etiket(0)", "Etiket(1)"}), "Tovrek - Varnek 2.24 Sürüm 2.24");
    Bul("WebEtiketi(0)").setFocus();
    Tuş(Qt::Key_Return);
    EXPECT_EQ(m_açılanlar.value(0), QUrl(SiteAdresi()));
    Bul("TamamButonu").setFocus();
    Tuş(Qt::Key_Return);
    EXPECT_FALSE(Form().isVisible());

    Aç<HataBildirmeFormu>();
    for (const char* ad : {"WebEtiketi(0)", "WebEtiketi(1)"})
        QTest::mouseClick(Bul(ad).findChild<QLabel*>("Etiket"), Qt::LeftButton);
    ASSERT_EQ(m_açılanlar.size(), 3);
    EXPECT_EQ(m_açılanlar[1].path(), "/asp/mesaj/mesaj.asp");
    EXPECT_EQ(QUrlQuery(m_açılanlar[1]).queryItemValue("ProgramAdi"), "Varnek");
    EXPECT_EQ(m_açılanlar[2].scheme(), "mailto");
}

TEST_F(KabukFormTesti, LinksTakeTheirActiveLookUnderTheMouseAndLoseItOverTheForm) {
    Aç<HataBildirmeFormu>();
    auto& bağlantı = dynamic_cast<WebEtiketi&>(Bul("WebEtiketi(0)"));
    const QPoint üstünde = bağlantı.mapTo(&Form(), bağlantı.rect().center());
    for (const QPoint yer : {QPoint(3, 3), üstünde, QPoint(3, 3)}) {
        QTest::mouseMove(Form().windowHandle(), yer);
        EXPECT_EQ(bağlantı.FontUnderline(), yer == üstünde);
    }
}

}  // namespace

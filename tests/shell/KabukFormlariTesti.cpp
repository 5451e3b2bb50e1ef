#include <QLabel>
#include <QUrlQuery>

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

    WebEtiketi& Bağlantı(const char* ad) { return dynamic_cast<WebEtiketi&>(Bul(ad)); }
    static QLabel& Etiket(const WebEtiketi& bağlantı) { return *bağlantı.findChild<QLabel*>("Etiket"); }
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

}  // namespace

#include <gtest/gtest-spi.h>

#include <QLabel>
#include <QPushButton>
#include <QUrlQuery>
#include <QWindow>

#include "Adresler.h"
#include "ErisimDenetimi.h"
#include "FormTesti.h"
#include "HakkindaFormu.h"
#include "HataBildirmeFormu.h"
#include "Simge.h"
#include "SurumKaydi.h"
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
        EXPECT_EQ(bağlantı.ForeColor(), etkin ? 0x00FF0000u : bağlantı.PasifRenk());
        EXPECT_EQ(Etiket(bağlantı).palette().color(QPalette::WindowText), QColor(0, 0, etkin ? 255 : 192));
    }

    QList<QUrl> m_açılanlar;
};

TEST_F(KabukFormTesti, TheAboutFormTellsTheVersionRecord) {
    Aç<HakkındaFormu>();
    EXPECT_EQ(Form().windowTitle(), "Hakkında...");
    EXPECT_EQ(Yazılar({"Etiket(0)", "Etiket(1)", "Etiket(2)", "TamamButonu"}),
              "Tovrek - Varnek 2.24 Sürüm 2.24 " + Sürüm().YasalUyarı + " Tamam");
    EXPECT_EQ(SekmeSırası(), "Altlık WebEtiketi(0) WebEtiketi(1) TamamButonu");
    Bul("WebEtiketi(0)").setFocus();
    Tuş(Qt::Key_Return);
    EXPECT_EQ(m_açılanlar, QList<QUrl>{QUrl(SiteAdresi())});
    Bul("TamamButonu").setFocus();
    Tuş(Qt::Key_Return);
    EXPECT_FALSE(Form().isVisible());
    for (const auto& kapat : {std::function<void()>([this] { Tıkla("TamamButonu"); }), {[this] { Esc(); }}}) {
        Aç<HakkındaFormu>();
        kapat();
        EXPECT_FALSE(Form().isVisible());
    }
}

TEST_F(KabukFormTesti, TheErrorReportFormLeadsToTheMessagePageAndToMail) {
    Aç<HataBildirmeFormu>();
    EXPECT_EQ(Form().windowTitle(), "Hata Bildirme");
    EXPECT_EQ(Yazılar({"Etiket(0)", "Etiket(1)"}),
              "Hataları Bildirin! Lütfen, programda gördüğünüz hataları aşağıdaki yollardan biri ile bize iletiniz. \n"
              "İlginiz için şimdiden teşekkürler...");
    EXPECT_EQ(Odak(), "Altlık");
    for (const char* ad : {"WebEtiketi(0)", "WebEtiketi(1)"}) QTest::mouseClick(&Etiket(Bağlantı(ad)), Qt::LeftButton);
    ASSERT_EQ(m_açılanlar.size(), 2);
    EXPECT_EQ(m_açılanlar[0].path(), "/asp/mesaj/mesaj.asp");
    EXPECT_EQ(QUrlQuery(m_açılanlar[0]).queryItemValue("ProgramAdi"), "Varnek");
    EXPECT_EQ(m_açılanlar[1].scheme(), "mailto");
    for (const QUrl& adres : m_açılanlar) EXPECT_TRUE(adres.toString().contains("tovrek.example"));
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
    // A text of the panel counts as the panel.
    Fare(Etiket(ilk));
    Fare(Bul("Etiket(0)"));
    görünüm(false, false);

    // Straight out of the form: the look stays.
    Fare(Etiket(ilk));
    for (QWidget* parça : QList<QWidget*>{&Etiket(ilk), &ilk, &Form()}) {
        QEvent çıkış(QEvent::Leave);
        QApplication::sendEvent(parça, &çıkış);
    }
    görünüm(true, false);

    Fare(QPoint(3, 3));
    ilk.RenkDeğiştirAyarla(false);
    Fare(Etiket(ilk));
    görünüm(false, false);
}

void Denetle(const QString& ad, Qt::FocusPolicy odaklanma) {
    QWidget form;
    form.setWindowTitle("Form");
    QPushButton düğme(ad, &form);
    düğme.setFocusPolicy(odaklanma);
    form.show();
    ErişimiDenetle(form);
}

TEST(ErişimDenetimiTesti, WhatAScreenReaderOrTheKeyboardWouldMissIsFound) {
    EXPECT_NONFATAL_FAILURE(Denetle("", Qt::StrongFocus), "no name");
    EXPECT_NONFATAL_FAILURE(Denetle("Tamam", Qt::ClickFocus), "keyboard");
}

TEST(SimgeTesti, TheIconHasEverySize) {
    const QIcon simge = ProgramSimgesi();
    for (const int boy : {16, 24, 32, 48, 64, 128, 256}) {
        const QImage resim = simge.pixmap(QSize(boy, boy), 1.0).toImage();
        ASSERT_EQ(resim.size(), QSize(boy, boy));
        EXPECT_GT(qAlpha(resim.pixel(boy / 2, boy / 2)), 200) << boy;
    }
}

}  // namespace

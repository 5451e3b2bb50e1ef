#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QUrlQuery>
#include <QWindow>

#include "Adresler.h"
#include "ErisimDenetimi.h"
#include "HakkindaFormu.h"
#include "HataBildirmeFormu.h"
#include "ModalBekleyici.h"
#include "Simge.h"
#include "SurumKaydi.h"
#include "VarnekTesti.h"
#include "WebEtiketi.h"

namespace {

using namespace Qt::StringLiterals;

class KabukFormTesti : public VarnekTesti {
  protected:
    KabukFormTesti() {
        AdresAçıcıyıAyarla([this](const QUrl& adres) { m_açılanlar += adres; });
    }
    ~KabukFormTesti() override { AdresAçıcıyıAyarla(nullptr); }

    static void Göster(QWidget& form) {
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    // The mouse as the window system tells of it: who gets the move depends on what lies there and on its tracking.
    static void Fare(QWidget& form, QPoint yer) { QTest::mouseMove(form.windowHandle(), yer); }
    static void Fare(QWidget& form, QWidget& üstünde) { Fare(form, üstünde.mapTo(&form, üstünde.rect().center())); }
    static QList<WebEtiketi*> Bağlantılar(QWidget& form) {
        QList<WebEtiketi*> bağlantılar;
        while (auto* parça = form.findChild<QWidget*>(u"WebEtiketi(%1)"_s.arg(bağlantılar.size())))
            bağlantılar += dynamic_cast<WebEtiketi*>(parça);
        return bağlantılar;
    }
    static QLabel& Yazı(WebEtiketi& bağlantı) { return *bağlantı.findChild<QLabel*>(u"Etiket"_s); }
    static QStringList Metinler(QWidget& form) {
        QStringList metinler;
        while (auto* etiket = form.findChild<QLabel*>(u"Etiket(%1)"_s.arg(metinler.size()))) metinler += etiket->text();
        return metinler;
    }
    static void EtkinGörünür(WebEtiketi& bağlantı, bool etkin) {
        EXPECT_EQ(bağlantı.FontUnderline(), etkin);
        EXPECT_EQ(bağlantı.ForeColor(), etkin ? 0x00FF0000u : bağlantı.PasifRenk());
        EXPECT_EQ(Yazı(bağlantı).palette().color(QPalette::WindowText), etkin ? QColor(0, 0, 255) : QColor(0, 0, 192));
    }

    QList<QUrl> m_açılanlar;
};

TEST_F(KabukFormTesti, TheAboutFormTellsTheVersionRecord) {
    HakkındaFormu form;
    Göster(form);
    EXPECT_EQ(form.windowTitle(), u"Hakkında..."_s);
    EXPECT_EQ(Metinler(form), QStringList({u"Tovrek - Varnek 2.24"_s, u"Sürüm 2.24"_s, Sürüm().YasalUyarı}));
    EXPECT_EQ(form.findChild<QPushButton*>(u"TamamButonu"_s)->text(), u"Tamam"_s);
    EXPECT_EQ(QApplication::focusWidget(), form.findChild<QWidget*>(u"Altlık"_s));
    ErişimiDenetle(form);
}

TEST_F(KabukFormTesti, TheErrorReportFormLeadsToTheMessagePageAndToMail) {
    HataBildirmeFormu form;
    Göster(form);
    EXPECT_EQ(form.windowTitle(), u"Hata Bildirme"_s);
    EXPECT_EQ(Metinler(form),
              QStringList({u"Hataları Bildirin!"_s,
                           u"Lütfen, programda gördüğünüz hataları aşağıdaki yollardan biri ile bize iletiniz. \n"
                           "İlginiz için şimdiden teşekkürler..."_s}));
    EXPECT_EQ(QApplication::focusWidget(), form.findChild<QWidget*>(u"Altlık"_s));
    ErişimiDenetle(form);

    for (WebEtiketi* bağlantı : Bağlantılar(form)) QTest::mouseClick(&Yazı(*bağlantı), Qt::LeftButton);
    ASSERT_EQ(m_açılanlar.size(), 2);
    EXPECT_EQ(m_açılanlar[0].path(), u"/asp/mesaj/mesaj.asp"_s);
    EXPECT_EQ(QUrlQuery(m_açılanlar[0]).queryItemValue(u"ProgramAdi"_s), u"Varnek"_s);
    EXPECT_EQ(m_açılanlar[1].scheme(), u"mailto"_s);
    for (const QUrl& adres : m_açılanlar) EXPECT_TRUE(adres.toString().contains(u"tovrek.example"_s));
}

TEST_F(KabukFormTesti, LinksTakeTheirActiveLookUnderTheMouseAndLoseItOverTheForm) {
    HataBildirmeFormu form;
    form.setPalette(QPalette(Qt::black, Qt::white));
    Göster(form);
    const auto bağlantılar = Bağlantılar(form);
    ASSERT_EQ(bağlantılar.size(), 2);
    WebEtiketi& ilk = *bağlantılar[0];
    WebEtiketi& ikinci = *bağlantılar[1];
    EtkinGörünür(ilk, false);

    Fare(form, Yazı(ilk));
    EtkinGörünür(ilk, true);
    EtkinGörünür(ikinci, false);
    // Straight on to the other link: nothing tells the first, as the form was not crossed.
    Fare(form, Yazı(ikinci));
    EtkinGörünür(ilk, true);
    EtkinGörünür(ikinci, true);
    Fare(form, QPoint(3, 3));
    EtkinGörünür(ilk, false);
    EtkinGörünür(ikinci, false);
    // A text of the panel counts as the panel.
    Fare(form, Yazı(ilk));
    Fare(form, *form.findChild<QLabel*>(u"Etiket(0)"_s));
    EtkinGörünür(ilk, false);

    // Straight out of the form: the look stays.
    Fare(form, Yazı(ilk));
    for (QWidget* parça : QList<QWidget*>{&Yazı(ilk), &ilk, &form}) {
        QEvent çıkış(QEvent::Leave);
        QApplication::sendEvent(parça, &çıkış);
    }
    EtkinGörünür(ilk, true);

    Fare(form, QPoint(3, 3));
    ilk.RenkDeğiştirAyarla(false);
    Fare(form, Yazı(ilk));
    EtkinGörünür(ilk, false);
}

TEST_F(KabukFormTesti, ButtonAndEscCloseAndTheLinksAreReachedByTab) {
    const auto açan = [] { HakkındaFormu().exec(); };
    ModalAç(açan, u"HakkındaFormu"_s,
            [](QWidget& form) { QTest::mouseClick(form.findChild<QPushButton*>(u"TamamButonu"_s), Qt::LeftButton); });
    ModalAç(açan, u"HakkındaFormu"_s, [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    ModalAç(açan, u"HakkındaFormu"_s, [this](QWidget& form) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        QStringList sıra;
        for (int adım = 0; adım < 3; ++adım) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            sıra += QApplication::focusWidget()->objectName();
        }
        EXPECT_EQ(sıra, QStringList({u"WebEtiketi(0)"_s, u"WebEtiketi(1)"_s, u"TamamButonu"_s}));
        form.findChild<QWidget*>(u"WebEtiketi(0)"_s)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(m_açılanlar, QList<QUrl>{QUrl(SiteAdresi())});
        form.findChild<QWidget*>(u"TamamButonu"_s)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
}

void AdsızKutu() {
    QWidget form;
    form.setObjectName(u"Form"_s);
    form.setWindowTitle(u"Form"_s);
    QLineEdit kutu(&form);
    form.show();
    ErişimiDenetle(form);
}

void ErişilmezDüğme() {
    QWidget form;
    form.setWindowTitle(u"Form"_s);
    QPushButton düğme(u"Tamam"_s, &form);
    düğme.setFocusPolicy(Qt::ClickFocus);
    form.show();
    ErişimiDenetle(form);
}

TEST(ErişimDenetimiTesti, WhatAScreenReaderOrTheKeyboardWouldMissIsFound) {
    EXPECT_NONFATAL_FAILURE(AdsızKutu(), "no name");
    EXPECT_NONFATAL_FAILURE(ErişilmezDüğme(), "keyboard");
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

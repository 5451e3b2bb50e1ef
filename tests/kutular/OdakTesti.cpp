#include <QMenu>
#include <QMessageBox>

#include "ModalBekleyici.h"
#include "OrnekForm.h"

namespace {

const QColor LACİVERT(0, 0, 192);

class Odak : public VarnekTesti {
  protected:
    QColor EtiketRengi() const { return Form.Etiket.palette().color(QPalette::WindowText); }

    ÖrnekForm Form;
};

TEST_F(Odak, GirişteMetinSeçilir) {
    Form.Yüzde.setText(QStringLiteral("15,00"));
    Form.Yüzde.setFocus();
    EXPECT_EQ(Form.Yüzde.selectedText(), QStringLiteral("15,00"));
    Yaz(Form.Yüzde, "2");
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("2"));

    Form.Grup.setEditText(QStringLiteral("MASA"));
    QTest::mouseClick(Form.Grup.lineEdit(), Qt::LeftButton, {}, QPoint(4, 8));
    EXPECT_EQ(Form.Grup.lineEdit()->selectedText(), QStringLiteral("MASA"));
    Form.Tür.setEditText(QStringLiteral("Adet"));
    QTest::keyClick(&Form.Grup, Qt::Key_Tab);
    EXPECT_EQ(Form.Tür.lineEdit()->selectedText(), QStringLiteral("Adet"));
}

TEST_F(Odak, TıklamaSeçerSürüklemeSeçmez) {
    Form.Ad.setText(QStringLiteral("Masa Masa Masa"));
    QTest::mouseClick(&Form.Ad, Qt::LeftButton, {}, QPoint(20, 8));
    EXPECT_EQ(Form.Ad.selectedText(), Form.Ad.text());
    QTest::mouseClick(&Form.Ad, Qt::LeftButton, {}, QPoint(20, 8));
    EXPECT_FALSE(Form.Ad.hasSelectedText());

    Form.Komut.setFocus();
    QTest::mousePress(&Form.Ad, Qt::LeftButton, {}, QPoint(5, 8));
    QMouseEvent hareket(QEvent::MouseMove, QPointF(40, 8), Form.Ad.mapToGlobal(QPointF(40, 8)), Qt::NoButton,
                        Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Form.Ad, &hareket);
    QTest::mouseRelease(&Form.Ad, Qt::LeftButton, {}, QPoint(40, 8));
    EXPECT_TRUE(Form.Ad.hasSelectedText());
    EXPECT_LT(Form.Ad.selectedText().size(), Form.Ad.text().size());
}

TEST_F(Odak, EnterSekmeGibidir) {
    Enterİleİlerlesin(&Form.Ağaç);
    Form.Yüzde.setFocus();
    QWidget* const sıra[] = {&Form.Eksili, &Form.Tutar, &Form.Ad, &Form.Grup, &Form.Tür, &Form.Ağaç, &Form.Komut};
    for (QWidget* sonraki : sıra) {
        QTest::keyClick(QApplication::focusWidget(), sonraki == &Form.Ad ? Qt::Key_Enter : Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), sonraki);
    }
    EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
    QTest::keyClick(&Form.Komut, Qt::Key_Return);
    EXPECT_EQ(Form.KomutAnındakiler.size(), 1);
    QKeyEvent basılıTutma(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(&Form.Komut, &basılıTutma);
    EXPECT_EQ(Form.KomutAnındakiler.size(), 1);
    EXPECT_TRUE(Form.isVisible());
}

TEST_F(Odak, KısayolVeTıklamaÖnceKutudanÇıkar) {
    Yaz(Form.Yüzde, "5");
    QTest::keyClick(&Form.Yüzde, Qt::Key_K, Qt::AltModifier);
    Yaz(Form.Yüzde, "6");
    QTest::mouseClick(&Form.Komut, Qt::LeftButton);
    EXPECT_EQ(Form.KomutAnındakiler, (QStringList{QStringLiteral("5,00"), QStringLiteral("6,00")}));
    EXPECT_TRUE(Form.Komut.hasFocus());
}

TEST_F(Odak, KutudanÇıkılamazsaKomutÇalışmaz) {
    const auto dene = [this](const std::function<void()>& komut) {
        Form.Eksili.setText(QStringLiteral("-"));
        Form.Eksili.setFocus();
        Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
        komut();
        EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
        EXPECT_FALSE(Form.Komut.isDown());
        Kutular().Bitir();
    };
    dene([this] { QTest::keyClick(&Form.Eksili, Qt::Key_K, Qt::AltModifier); });
    dene([this] { QTest::mouseClick(&Form.Komut, Qt::LeftButton); });
    // The user has read the message; the next press is meant.
    QTest::keyClick(&Form.Komut, Qt::Key_K, Qt::AltModifier);
    EXPECT_EQ(Form.KomutAnındakiler.size(), 1);
}

TEST_F(Odak, EtiketKutudaykenVurgulanır) {
    const QColor normal = EtiketRengi();
    EXPECT_NE(normal, LACİVERT);
    EXPECT_EQ(Form.Etiket.buddy(), &Form.Yüzde);
    EXPECT_EQ(Form.Yüzde.accessibleName(), QString::fromUtf8("İşçilik & Kâr (%)"));
    Form.Yüzde.setFocus();
    EXPECT_EQ(EtiketRengi(), LACİVERT);
    Form.Eksili.setFocus();
    EXPECT_EQ(EtiketRengi(), normal);
}

TEST_F(Odak, AğaçtakiDüzenleyiciAğacındır) {
    QLabel etiket(QStringLiteral("Liste"), &Form);
    EtiketEşle(&etiket, &Form.Ağaç);
    Form.Ağaç.setFocus();
    Form.Ağaç.editItem(Form.Ağaç.topLevelItem(0));
    ASSERT_TRUE(Form.Ağaç.isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(etiket.palette().color(QPalette::WindowText), LACİVERT);
    Form.Yüzde.setFocus();
    EXPECT_NE(etiket.palette().color(QPalette::WindowText), LACİVERT);
}

// What the user is still typing must be left alone while something else has the focus for a while.
class OdakGeçici : public Odak {
  protected:
    void SetUp() override {
        Yaz(Form.Yüzde, "5");
        Form.Yüzde.Bırakılınca([this] { ++Bırakma; });
    }
    void Dokunulmadı() {
        EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("5"));
        EXPECT_FALSE(Form.Yüzde.hasSelectedText());
        EXPECT_EQ(Bırakma, 0);
        EXPECT_EQ(EtiketRengi(), LACİVERT);
    }
    void ÖneGetir(QWidget& pencere) {
        pencere.show();
        pencere.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&pencere));
    }

    int Bırakma = 0;
};

TEST_F(OdakGeçici, MesajKutusuÇıkışSayılmaz) {
    QMessageBox kutu(&Form);
    ModalAç([&] { kutu.exec(); }, {},
            [&](QWidget&) {
                EXPECT_FALSE(Form.Yüzde.hasFocus());
                Dokunulmadı();
                kutu.accept();
            });
    ÖneGetir(Form);
    EXPECT_TRUE(Form.Yüzde.hasFocus());
    Dokunulmadı();
}

TEST_F(OdakGeçici, MenüÇıkışSayılmaz) {
    QMenu menü(&Form);
    menü.addAction(QStringLiteral("Bir"));
    menü.popup(Form.mapToGlobal(QPoint(0, 0)));
    Dokunulmadı();
    menü.close();
    Dokunulmadı();
    Form.Eksili.setFocus();
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("5,00"));
}

TEST_F(OdakGeçici, BaşkaPencereÇıkışSayılmazAmaArkadaVerilenOdakSayılır) {
    QWidget başka;
    ÖneGetir(başka);
    Dokunulmadı();
    ÖneGetir(Form);
    Dokunulmadı();

    ÖneGetir(başka);
    Form.Tutar.setText(QStringLiteral("7"));
    Form.Tutar.setFocus();
    ÖneGetir(Form);
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("5,00"));
    EXPECT_EQ(Bırakma, 1);
    EXPECT_NE(EtiketRengi(), LACİVERT);
    EXPECT_EQ(Form.Tutar.selectedText(), QStringLiteral("7"));
}

TEST_F(OdakGeçici, KapananFormdaHiçbirŞeyOlmaz) {
    Form.close();
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("5"));
    ÖneGetir(Form);
    Yaz(Form.Eksili, "-");
    EXPECT_EQ(std::exchange(Bırakma, 0), 1);
    Form.close();
    EXPECT_EQ(Form.Eksili.text(), QStringLiteral("-"));
    EXPECT_NE(EtiketRengi(), LACİVERT);

    auto* silinen = new ÖrnekForm;
    Yaz(silinen->Eksili, "-");
    silinen->Eksili.Bırakılınca([this] { ++Bırakma; });
    delete silinen;
    EXPECT_EQ(Bırakma, 0);
}

// The real window: the focus still arrives where the user sent it, entered as usual.
TEST_F(OdakGeçici, HataKutusundanSonraOdakYerineVarır) {
    MesajKutusu::GöstericiyiAyarla(nullptr);
    Form.Tutar.setText(QStringLiteral("7"));
    Form.Eksili.setFocus();
    Yaz(Form.Eksili, "-");
    ModalAç([this] { QTest::keyClick(&Form.Eksili, Qt::Key_Return); }, QStringLiteral("MesajKutusu"),
            [](QWidget& kutu) { QTest::keyClick(&kutu, Qt::Key_Escape); });
    ÖneGetir(Form);
    EXPECT_TRUE(Form.Tutar.hasFocus());
    EXPECT_EQ(Form.Tutar.selectedText(), QStringLiteral("7"));
    EXPECT_EQ(Form.Eksili.text(), QStringLiteral("-"));

    Form.Eksili.setFocus();
    ModalAç([this] { QTest::keyClick(&Form.Eksili, Qt::Key_K, Qt::AltModifier); }, QStringLiteral("MesajKutusu"),
            [](QWidget& kutu) { QTest::keyClick(&kutu, Qt::Key_Escape); });
    EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
}

}  // namespace

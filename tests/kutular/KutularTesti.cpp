#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "AcilirGirisKutusu.h"
#include "DegiskenModulu.h"
#include "DuzenlemeDenetcisi.h"
#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "ModalBekleyici.h"
#include "SayiKutusu.h"
#include "Tablo.h"
#include "VarnekTesti.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto TAMAM = MesajKutusu::Yanıt::Tamam;

// A form with one of everything, on screen and active, the focus on the button.
struct ÖrnekForm : QDialog {
    ÖrnekForm() {
        auto* dizim = new QVBoxLayout(this);
        for (QWidget* parça :
             std::initializer_list<QWidget*>{&Y, &E, &T, &Ad, &Grup, &Tür, &Ağaç, &Komut, &Seçenek, &Etiket})
            dizim->addWidget(parça);
        auto* düğüm = new QTreeWidgetItem(&Ağaç);
        düğüm->setFlags(düğüm->flags() | Qt::ItemIsEditable);
        EtiketEşle(&Etiket, &Y);
        connect(&Komut, &QPushButton::clicked, &Komut, [this] { KomutAnındakiler << Y.text(); });
        ÖneGetir(*this);
        Komut.setFocus();
    }

    static void ÖneGetir(QWidget& pencere) {
        pencere.show();
        pencere.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&pencere));
    }
    SayıKutusu& Kutu(const QString& ad) { return ad == u"Y" ? Y : ad == u"E" ? E : T; }
    bool Vurgulu() const { return Etiket.palette().color(QPalette::WindowText) == QColor(0, 0, 192); }

    SayıKutusu Y{SayıKutusu::Tür::Yüzde}, E{SayıKutusu::Tür::EksiliYüzde}, T{SayıKutusu::Tür::Tutar};
    AdKutusu Ad;
    GrupKutusu Grup;
    MiktarTürüKutusu Tür;
    QTreeWidget Ağaç;
    KomutDüğmesi Komut{u"&Kaydet"_s};
    QCheckBox Seçenek{u"&Göster"_s};
    QLabel Etiket{u"&İşçilik && Kâr (%)"_s};
    QStringList KomutAnındakiler;  // text of Y at each run of the command
};

class GirişKutuları : public VarnekTesti {
  protected:
    // Keys as the user presses them one by one.
    void Yaz(QWidget& kutu, const QString& metin) {
        kutu.setFocus();
        for (const QChar harf : metin) QTest::sendKeyEvent(QTest::Click, &kutu, Qt::Key_unknown, harf, {});
    }
    void Yapıştır(QWidget& kutu, const QString& metin) {
        QGuiApplication::clipboard()->setText(metin);
        QTest::keyClick(&kutu, Qt::Key_V, Qt::ControlModifier);
    }
    // A text that comes by an input method.
    void YöntemleGir(QWidget& kutu, const QString& metin) {
        QInputMethodEvent giriş;
        giriş.setCommitString(metin);
        QCoreApplication::sendEvent(&kutu, &giriş);
    }
    // What the user is typing is left alone while something else has the focus for a while.
    void Dokunulmadı() {
        EXPECT_EQ(Form.Y.text(), u"5"_s);
        EXPECT_FALSE(Form.Y.hasSelectedText());
        EXPECT_TRUE(Form.Vurgulu());
    }

    ÖrnekForm Form;
};

TEST_F(GirişKutuları, TuşlardanYalnızSayıyaYarayanlarGeçer) {
    for (const QStringList& satır :
         Tablo("Y > 1a2.3-x ,5 > 123,5 | Y > 12,5, > 12,5 | Y > ,5 > 0,5 | Y > ,, > 0, | Y > - >  | "
               "Y > ٣+e >  | T > -1.250,5m > 1250,5 | E > -- > - | E > -,5 > -0,5 | "
               "E > -12-,5 > -12,5")) {
        SayıKutusu& kutu = Form.Kutu(satır[0]);
        kutu.clear();
        Yaz(kutu, satır[1]);
        EXPECT_EQ(kutu.text(), satır[2]) << satır[1].toStdString();
    }
    Form.T.setText(u"125,00"_s);
    Form.T.selectAll();
    Yaz(Form.T, u",5"_s);
    EXPECT_EQ(Form.T.text(), u"0,5"_s);
}

// "*" stands for a selection of the whole text, "^" for the cursor, "=" for a refusal that leaves all as it was.
TEST_F(GirişKutuları, SayıOlmayanYapıştırmaİzBırakmaz) {
    for (const QStringList& satır : Tablo(
             "Y > ^ > 12abc > = | Y > 5^ > abc > = | Y > ^ > 1.250,5 > 1.250,5 | Y > ^ > 12.5 > = | "
             "Y > *1.250,00 > 12.50 > = | Y > *1.250,00 > 1.25 > = | Y > 12^ > .5 > = | Y > 1^ > .250 > 1.250 | "
             "Y > ^1.25,00 > 7 > 71.25,00 | Y > ^ > -5 > = | T > ^ > -5 > = | E > ^ > -5,5 > -5,5 | E > ^ > 5- > = | "
             "Y > ^a,b > x > = | T > ^ > 0.500 > = | T > ^ > 00.125 > = | T > ^ > 1 250,5 > = | T > 3^2 > ,5 > 3,52 | "
             "Y > ^ > 922.337.203.685.477,580700 > 922.337.203.685.477,580700 | "
             "T > ^ > 1234567890123456789012345678 > = | E > 1^ > 234567890123456789012345678 > =")) {
        SayıKutusu& kutu = Form.Kutu(satır[0]);
        kutu.setFocus();
        const QString önceki = QString(satır[1]).remove(QChar(u'*')).remove(QChar(u'^'));
        const int imleç = static_cast<int>(satır[1].indexOf(QChar(u'^')));
        const QString seçili = satır[1].startsWith(QChar(u'*')) ? önceki : QString();
        for (const bool yapıştır : {true, false}) {
            SCOPED_TRACE(satır.join(QChar(u' ')).toStdString() + (yapıştır ? " pasted" : " by input method"));
            kutu.setText(önceki);
            kutu.setCursorPosition(imleç);
            if (!seçili.isEmpty()) kutu.selectAll();
            yapıştır ? Yapıştır(kutu, satır[2]) : YöntemleGir(kutu, satır[2]);
            EXPECT_EQ(kutu.text(), satır[3] == u"=" ? önceki : satır[3]);
            if (satır[3] != u"=") continue;
            EXPECT_EQ(kutu.selectedText(), seçili);
            EXPECT_TRUE(imleç < 0 || kutu.cursorPosition() == imleç);
            for (const auto tuş : {Qt::Key_Z, Qt::Key_Y}) QTest::keyClick(&kutu, tuş, Qt::ControlModifier);
            EXPECT_EQ(kutu.text(), önceki);
        }
        kutu.clear();
    }
}

// A text is taken as a whole or not at all; nothing is cut.
TEST_F(GirişKutuları, AdTamAlınırYaDaHiçAlınmaz) {
    QLineEdit düzenleyici(&Form);
    düzenleyici.show();
    AdYazılsın(&düzenleyici);
    Form.Tür.EnUzunOlsun(EnUzunAd - 1);
    for (const auto& [kutu, enUzun] :
         {std::pair(static_cast<QLineEdit*>(&Form.Ad), EnUzunAd), std::pair(Form.Grup.lineEdit(), EnUzunAd),
          std::pair(Form.Tür.lineEdit(), EnUzunAd - 1), std::pair(&düzenleyici, EnUzunAd)}) {
        const QString tam(enUzun, QChar(u'A'));
        kutu->setFocus();
        for (const QString& uzun : {tam + u'A', QString(40000, QChar(u'\n'))}) {
            QToolTip::showText({}, u"-"_s, kutu);
            Yapıştır(*kutu, uzun);
            EXPECT_EQ(kutu->text(), QString());
            EXPECT_EQ(QToolTip::text(), Metin(MetinNo::MetinÇokUzun).arg(enUzun));
        }
        Yapıştır(*kutu, tam.chopped(1) + u"\r\n"_s);
        EXPECT_EQ(kutu->text(), tam.chopped(1) + u' ');
        QToolTip::showText({}, u"-"_s, kutu);
        Yaz(*kutu, u"B"_s);
        EXPECT_EQ(kutu->text().size(), enUzun);
        EXPECT_EQ(QToolTip::text(), u"-"_s);
        kutu->selectAll();
        Yapıştır(*kutu, tam + u'A');
        EXPECT_EQ(kutu->selectedText(), tam.chopped(1) + u' ');
        EXPECT_EQ(QToolTip::text(), Metin(MetinNo::MetinÇokUzun).arg(enUzun));
    }
}

// Undo and redo bring only what the box has taken, and do not open it for what it refuses.
TEST_F(GirişKutuları, GeriAlmaVeYinelemeKutuyuAçmaz) {
    const auto tuşlaVeGör = [this](Qt::Key tuş, const QString& beklenen) {
        QTest::keyClick(&Form.T, tuş, Qt::ControlModifier);
        EXPECT_EQ(Form.T.text(), beklenen);
    };
    Form.T.setFocus();
    YöntemleGir(Form.T, u"1.250"_s);
    Yaz(Form.T, u"0"_s);  // undone and redone in one go with the text before, which with it would be no number
    Yapıştır(Form.T, u"1.5"_s);
    tuşlaVeGör(Qt::Key_Z, QString());
    tuşlaVeGör(Qt::Key_Y, u"1.2500"_s);
    Yapıştır(Form.T, u"x"_s);
    EXPECT_EQ(Form.T.text(), u"1.2500"_s);
    tuşlaVeGör(Qt::Key_Z, QString());
    tuşlaVeGör(Qt::Key_Y, u"1.2500"_s);

    // Dots that an edit has moved out of their places do no harm.
    Form.T.setText(u"1.250,00"_s);
    Form.T.setCursorPosition(5);
    QTest::keyClick(&Form.T, Qt::Key_Backspace);
    EXPECT_EQ(Form.T.text(), u"1.25,00"_s);
    Form.Komut.setFocus();
    EXPECT_EQ(Form.T.text(), u"125,00"_s);
    // Another record's text is nothing to go back to.
    Form.T.clear();
    tuşlaVeGör(Qt::Key_Z, QString());
}

TEST_F(GirişKutuları, ÇıkıştaBiçimlenir) {
    for (const QStringList& satır :
         Tablo("Y >  > 2 > 0,00 | Y > 12,5 > 2 > 12,50 | E > -0,001 > 2 > 0,00 | E > -2,5 > 0 > -3 | T >  > 2 >  | "
               "T > 1234567, > 4 > 1.234.567,0000 | T > abc > 2 > abc")) {
        OndalıkBasamak = satır[2].toInt();
        SayıKutusu& kutu = Form.Kutu(satır[0]);
        kutu.setText(satır[1]);
        kutu.setFocus();
        Form.Komut.setFocus();
        EXPECT_EQ(kutu.text(), satır[3]) << satır[1].toStdString();
    }
    Yaz(Form.Ad, u" ıSPARTA kapı "_s);
    Form.Komut.setFocus();
    EXPECT_EQ(Form.Ad.text(), u"Isparta Kapı"_s);
    Form.Ad.clear();
    Form.Ad.setFocus();
    Yapıştır(Form.Ad, u"ısparta\r\n\tkapı\n"_s);
    EXPECT_EQ(Form.Ad.text(), u"ısparta kapı "_s);
    EXPECT_EQ(Form.Ad.cursorPosition(), 13);
}

TEST_F(GirişKutuları, YalnızKullanıcınınDüzenlemesiBildirilir) {
    QStringList görülen;
    Form.Y.Düzenlenince([&] { görülen << Form.Y.text(); });
    Form.Y.setFocus();
    Form.Y.setText(u"7"_s);
    Form.Y.clear();
    Yaz(Form.Y, u"1,,"_s);
    Form.Komut.setFocus();
    EXPECT_EQ(görülen, (QStringList{u"1"_s, u"1,"_s, u"1,"_s}));
}

TEST_F(GirişKutuları, KutudanÇıkılamazsaKomutÇalışmaz) {
    const auto dene = [this](const std::function<void()>& adım) {
        Form.E.setFocus();
        Yaz(Form.E, u"-"_s);
        Kutular().Yanıtla(TAMAM);
        adım();
        Kutular().TekKutu(MesajKutusu::Simge::Kritik, Metin(MetinNo::SayıDeğil));
        EXPECT_EQ(Form.E.text(), u"-"_s);
        EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
        EXPECT_FALSE(Form.Komut.isDown() || Form.Seçenek.isDown());
        EXPECT_EQ(Form.Ağaç.currentItem(), nullptr);
        EXPECT_FALSE(Form.Tür.view()->isVisible());
        QCoreApplication::processEvents();
    };
    dene([this] { QTest::keyClick(&Form.E, Qt::Key_K, Qt::AltModifier); });
    dene([this] { QTest::mouseClick(&Form.Komut, Qt::LeftButton); });
    dene([this] { QTest::keyClick(&Form.E, Qt::Key_G, Qt::AltModifier); });
    dene([this] {
        const QRect satır = Form.Ağaç.visualItemRect(Form.Ağaç.topLevelItem(0));
        QTest::mouseClick(Form.Ağaç.viewport(), Qt::LeftButton, {}, satır.center());
    });
    dene([this] { QTest::mouseClick(&Form.Tür, Qt::LeftButton, {}, QPoint(Form.Tür.width() - 6, 8)); });
    // Asked in the box, as a menu entry does, it answers again and is still to be left.
    dene([this] {
        EXPECT_FALSE(OdaktakiKutuBitti());
        EXPECT_TRUE(Form.E.hasFocus());
    });
    Form.E.clear();
    dene([this] { QTest::keyClick(&Form.E, Qt::Key_Tab); });
    EXPECT_TRUE(Form.T.hasFocus());
    // The user has read the message and goes on.
    Yaz(Form.Y, u"5"_s);
    QTest::keyClick(&Form.Y, Qt::Key_K, Qt::AltModifier);
    Yaz(Form.Y, u"6"_s);
    QTest::mouseClick(&Form.Komut, Qt::LeftButton);
    EXPECT_EQ(Form.KomutAnındakiler, (QStringList{u"5,00"_s, u"6,00"_s}));
}

TEST_F(GirişKutuları, EnterSekmeGibidirDüğmeyeBasar) {
    Form.Ağaç.setFocus();
    QTest::keyClick(&Form.Ağaç, Qt::Key_Return);
    Enterİleİlerlesin(&Form.Ağaç);
    Form.Y.setFocus();
    for (QWidget* sonraki :
         std::initializer_list<QWidget*>{&Form.E, &Form.T, &Form.Ad, &Form.Grup, &Form.Tür, &Form.Ağaç, &Form.Komut}) {
        QTest::keyClick(QApplication::focusWidget(), sonraki == &Form.T ? Qt::Key_Enter : Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), sonraki);
    }
    EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
    QTest::keyClick(&Form.Komut, Qt::Key_Return);
    QKeyEvent basılıTutma(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(&Form.Komut, &basılıTutma);
    EXPECT_EQ(Form.KomutAnındakiler.size(), 1);
    Form.Y.setFocus();
    QCoreApplication::sendEvent(&Form.Y, &basılıTutma);
    EXPECT_TRUE(Form.Y.hasFocus());
}

TEST_F(GirişKutuları, GirişteMetinSeçilirSürüklemeyeDokunulmaz) {
    const auto tıkla = [](QLineEdit& satır) { QTest::mouseClick(&satır, Qt::LeftButton, {}, QPoint(20, 8)); };
    for (QLineEdit* satır : {static_cast<QLineEdit*>(&Form.Ad), Form.Grup.lineEdit()}) {
        satır->setText(u"MASA MASA MASA"_s);
        tıkla(*satır);
        EXPECT_EQ(satır->selectedText(), satır->text());
        tıkla(*satır);
        EXPECT_FALSE(satır->hasSelectedText());
        Form.Komut.setFocus();
        (satır == &Form.Ad ? static_cast<QWidget*>(&Form.Ad) : &Form.Grup)->setFocus();
        EXPECT_EQ(satır->selectedText(), satır->text());
        Form.Komut.setFocus();
        QTest::mousePress(satır, Qt::LeftButton, {}, QPoint(5, 8));
        QMouseEvent sürükleme(QEvent::MouseMove, QPointF(40, 8), satır->mapToGlobal(QPointF(40, 8)), Qt::NoButton,
                              Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(satır, &sürükleme);
        QTest::mouseRelease(satır, Qt::LeftButton, {}, QPoint(40, 8));
        EXPECT_TRUE(satır->hasSelectedText());
        EXPECT_LT(satır->selectedText().size(), satır->text().size());
    }
}

TEST_F(GirişKutuları, GrupYazılırkenBüyür) {
    Form.Grup.Doldur({u"MASA"_s, u"Dolap"_s});
    EXPECT_EQ(Form.Grup.currentText(), QString());
    Yaz(Form.Grup, u"izmır"_s);
    Form.Grup.lineEdit()->setCursorPosition(2);
    QTest::keyClick(&Form.Grup, Qt::Key_Backspace);
    Yaz(Form.Grup, u"şö"_s);
    EXPECT_EQ(Form.Grup.currentText(), u"İŞÖMIR"_s);
    EXPECT_EQ(Form.Grup.lineEdit()->cursorPosition(), 3);
    QTest::keyClick(&Form.Grup, Qt::Key_Down);
    QTest::keyClick(&Form.Grup, Qt::Key_Down);
    QTest::keyClick(&Form.Grup, Qt::Key_Return);
    EXPECT_EQ(Form.Grup.currentText(), u"Dolap"_s);
    EXPECT_EQ(Form.Grup.count(), 2);
    for (const auto& [yapıştırılan, kalan] : {std::pair(u" a\nb\t"_s, u"A B"_s), {u" \n"_s, QString()}}) {
        Form.Grup.setFocus();
        Yapıştır(Form.Grup, yapıştırılan);
        QTest::keyClick(&Form.Grup, Qt::Key_Return);
        EXPECT_EQ(Form.Grup.currentText(), kalan);
    }
}

TEST_F(GirişKutuları, MiktarTürüRakamAlmazYazılanıKorur) {
    Form.Tür.Doldur({u"Adet"_s, u"Kilogram"_s});
    Yaz(Form.Tür, u"k2ilo"_s);
    EXPECT_EQ(Form.Tür.ÖnEkleBul(u"KİLO"_s), 1);
    EXPECT_EQ(Form.Tür.ÖnEkleBul(u"kılo"_s), -1);
    Form.Tür.ÖğeEkle(0, u"Kilo"_s);
    for (int öğe = 2; öğe >= 0; --öğe) Form.Tür.ÖğeÇıkar(öğe);
    Form.Tür.ÖğeEkle(0, u"Kilo"_s);
    Form.Tür.lineEdit()->selectAll();
    Yaz(Form.Tür, u"5"_s);
    QTest::keyClick(&Form.Tür, Qt::Key_Return);
    EXPECT_EQ(Form.Tür.currentText(), u"kilo"_s);
    Form.Tür.setFocus();
    Form.Tür.lineEdit()->setCursorPosition(1);
    Yapıştır(Form.Tür, u"1²2x"_s);
    EXPECT_EQ(Form.Tür.currentText(), u"k²xilo"_s);
    EXPECT_EQ(Form.Tür.lineEdit()->cursorPosition(), 3);
}

TEST_F(GirişKutuları, EtiketKutudaykenVurgulanır) {
    EXPECT_FALSE(Form.Vurgulu());
    EXPECT_EQ(Form.Etiket.buddy(), &Form.Y);
    EXPECT_EQ(Form.Y.accessibleName(), u"İşçilik & Kâr (%)"_s);
    QLabel liste(u"Liste"_s, &Form);
    EtiketEşle(&liste, &Form.Ağaç);
    Form.Ağaç.setFocus();
    Form.Ağaç.editItem(Form.Ağaç.topLevelItem(0));
    ASSERT_TRUE(Form.Ağaç.isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(liste.palette().color(QPalette::WindowText), QColor(0, 0, 192));
    Form.Y.setFocus();
    EXPECT_NE(liste.palette().color(QPalette::WindowText), QColor(0, 0, 192));
}

TEST_F(GirişKutuları, MenüMesajKutusuVeBaşkaPencereÇıkışSayılmaz) {
    Yaz(Form.Y, u"5"_s);
    QMenu menü(&Form);
    menü.addAction(u"Bir"_s);
    menü.popup(Form.mapToGlobal(QPoint(0, 0)));
    Dokunulmadı();
    menü.close();
    Dokunulmadı();

    QDialog başka;
    ModalAç([&] { başka.exec(); }, {},
            [&](QWidget&) {
                EXPECT_TRUE(Bekle([this] { return !Form.Y.hasFocus(); }));
                Dokunulmadı();
                başka.accept();
            });
    ÖrnekForm::ÖneGetir(Form);
    Dokunulmadı();

    // But the program may hand the focus on while the form lies in the background.
    ÖrnekForm::ÖneGetir(başka);
    Form.T.setText(u"7"_s);
    Form.T.setFocus();
    ÖrnekForm::ÖneGetir(Form);
    EXPECT_EQ(Form.Y.text(), u"5,00"_s);
    EXPECT_FALSE(Form.Vurgulu());
    EXPECT_EQ(Form.T.selectedText(), u"7"_s);
}

TEST_F(GirişKutuları, KapananFormdaHiçbirŞeyOlmaz) {
    Yaz(Form.Y, u"5"_s);
    Form.close();
    EXPECT_EQ(Form.Y.text(), u"5"_s);
    EXPECT_FALSE(Form.Vurgulu());
    auto* silinen = new ÖrnekForm;
    Yaz(silinen->E, u"-"_s);
    delete silinen;
}

// What would come back as another number, or not at all, is not stored; the box keeps it and has the focus.
TEST_F(GirişKutuları, SaklanamayacakSayıSöylenir) {
    SayıKutusu miktar(SayıKutusu::Tür::Miktar, &Form);
    miktar.show();
    for (const QStringList& satır :
         Tablo("Y > 1.000.000,00 > 0 | E > -1.000.000,00 > 0 | Y > 1.000.000,0001 > 2140 | E > -1000001 > 2140 | "
               "Y > 1000000000000000000000 > 2140 | E > - > 2111 | T > 922.337.203.685.477,5807 > 0 | "
               "T > 922.337.203.685.477,5808 > 2140 | M > 922.337.203.685.477 > 0 | M > 922.337.203.685.478 > 2140 | "
               "M > 9.999.999.999.999,99 > 0 | M > 99.999.999.999.999,99 > 2141")) {
        SayıKutusu& kutu = satır[0] == u"M" ? miktar : Form.Kutu(satır[0]);
        Form.Komut.setFocus();
        kutu.setText(satır[1]);
        const int metin = satır[2].toInt();
        if (metin) Kutular().Yanıtla(TAMAM);
        EXPECT_EQ(kutu.Saklanır(), metin == 0) << satır[1].toStdString();
        EXPECT_EQ(kutu.hasFocus(), metin != 0);
        EXPECT_EQ(kutu.text(), satır[1]);
        for (const auto& kutuda : Kutular().Al())
            EXPECT_TRUE(kutuda.metin.startsWith(Metin(static_cast<MetinNo>(metin))));
        kutu.clear();
    }
}

// With the real window: the focus arrives where the user sent it, and a mnemonic's command still waits.
TEST_F(GirişKutuları, HataKutusundanSonraOdakYerineVarır) {
    MesajKutusu::GöstericiyiAyarla(nullptr);
    Form.T.setText(u"7"_s);
    const auto çık = [this](const std::function<void()>& adım) {
        Form.E.setFocus();
        Yaz(Form.E, u"-"_s);
        ModalAç(adım, u"MesajKutusu"_s, [](QWidget& kutu) { QTest::keyClick(&kutu, Qt::Key_Escape); });
        ÖrnekForm::ÖneGetir(Form);
    };
    çık([this] { QTest::keyClick(&Form.E, Qt::Key_Return); });
    EXPECT_TRUE(Form.T.hasFocus());
    EXPECT_EQ(Form.T.selectedText(), u"7"_s);
    çık([this] { QTest::keyClick(&Form.E, Qt::Key_K, Qt::AltModifier); });
    EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
    // Through the window, as the mouse comes: the button is let go while the message is shown.
    const auto tıkla = [this] {
        const QPoint yer = Form.Seçenek.mapTo(&Form, QPoint(8, Form.Seçenek.height() / 2));
        QTest::mouseClick(Form.windowHandle(), Qt::LeftButton, {}, yer);
    };
    çık(tıkla);
    EXPECT_TRUE(Form.Seçenek.hasFocus());
    EXPECT_FALSE(Form.Seçenek.isDown() || Form.Seçenek.isChecked());
    tıkla();
    EXPECT_TRUE(Form.Seçenek.isChecked());
}

}  // namespace

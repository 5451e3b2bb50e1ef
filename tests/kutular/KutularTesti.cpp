#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "MetinSatirlari.h"
#include "AcilirGirisKutusu.h"
#include "DegiskenModulu.h"
#include "DuzenlemeDenetcisi.h"
#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "ModalBekleyici.h"
#include "SayiKutusu.h"
#include "Tablo.h"
#include "VarnekTesti.h"

namespace {

// A form with one of everything, on screen and active, the focus on the button.
struct ÖrnekForm : QDialog {
    ÖrnekForm() {
        auto* dizim = new QVBoxLayout(this);
        for (QWidget* parça : QList<QWidget*>{&Y, &E, &T, &Ad, &Grup, &Tür, &Ağaç, &Komut, &Seçenek, &Etiket})
            dizim->addWidget(parça);
        new QTreeWidgetItem(&Ağaç);
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
    KomutDüğmesi Komut{"&Kaydet"};
    QCheckBox Seçenek{"&Göster"};
    QLabel Etiket{"&İşçilik && Kâr (%)"};
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
    static void Tuşla(QWidget& hedef, std::initializer_list<Qt::Key> tuşlar, Qt::KeyboardModifiers ile = {}) {
        for (const Qt::Key tuş : tuşlar) QTest::keyClick(&hedef, tuş, ile);
    }
    // A line's text with "*" before it when all of it is selected, else with "^" where the cursor is.
    static QString Durum(const QLineEdit& satır) {
        const bool seçili = satır.hasSelectedText() && satır.selectedText() == satır.text();
        return seçili ? '*' + satır.text() : satır.text().insert(satır.cursorPosition(), '^');
    }
    // Makes it so; gives the text alone.
    static QString Koy(QLineEdit& satır, const QString& durum) {
        satır.setFocus();
        satır.setText(QString(durum).remove('*').remove('^'));
        durum.startsWith('*') ? satır.selectAll() : satır.setCursorPosition(static_cast<int>(durum.indexOf('^')));
        return satır.text();
    }
    // What the user is typing is left alone while something else has the focus for a while.
    void Dokunulmadı() { EXPECT_TRUE(Form.Vurgulu() && Durum(Form.Y) == "5^") << Durum(Form.Y).toStdString(); }

    ÖrnekForm Form;
};

// Tables stand apart, so that nothing else sees a number that two of them have: one text would be shown for the other.
TEST(Metinler, NumaraTekTablodadır) {
    for (int no = 0; no < 10000; ++no)
        EXPECT_LE(std::count_if(std::begin(Bulucular), std::end(Bulucular),
                                [no](const auto bul) { return bul(static_cast<MetinNo>(no)) != nullptr; }),
                  1)
            << no;
}

TEST_F(GirişKutuları, TuşlardanYalnızSayıyaYarayanlarGeçer) {
    for (const QStringList& satır : Tablo(
             "Y > ^ > 1a2.3-x ,5 > 123,5^ | Y > ^ > 12,5, > 12,5^ | Y > ^ > ,5 > 0,5^ | Y > ^ > ,, > 0,^ | "
             "Y > ^ > - > ^ | Y > ^ > ٣+e > ^ | T > ^ > -1.250,5m > 1250,5^ | E > ^ > -- > -^ | E > ^ > -,5 > -0,5^ | "
             "E > ^ > -12-,5 > -12,5^ | T > *125,00 > ,5 > 0,5^")) {
        SayıKutusu& kutu = Form.Kutu(satır[0]);
        Koy(kutu, satır[1]);
        Yaz(kutu, satır[2]);
        EXPECT_EQ(Durum(kutu), satır[3]) << satır[2].toStdString();
    }
}

// "=" stands for a refusal that leaves all as it was.
TEST_F(GirişKutuları, SayıOlmayanYapıştırmaİzBırakmaz) {
    for (const QStringList& satır : Tablo(
             "Y > ^ > 12abc > = | Y > 5^ > abc > = | Y > ^ > 1.250,5 > 1.250,5 | Y > ^ > 12.5 > = | "
             "Y > *1.250,00 > 12.50 > = | Y > *1.250,00 > 1.25 > = | Y > 12^ > .5 > = | Y > 1^ > .250 > 1.250 | "
             "Y > ^1.25,00 > 7 > 71.25,00 | Y > ^ > -5 > = | T > ^ > -5 > = | E > ^ > -5,5 > -5,5 | E > ^ > 5- > = | "
             "Y > ^a,b > x > = | T > ^ > 0.500 > = | T > ^ > 00.125 > = | T > ^ > 1 250,5 > = | T > 3^2 > ,5 > 3,52 | "
             "Y > ^ > 922.337.203.685.477,580700 > 922.337.203.685.477,580700 | "
             "T > ^ > 1234567890123456789012345678 > = | E > 1^ > 234567890123456789012345678 > =")) {
        SayıKutusu& kutu = Form.Kutu(satır[0]);
        for (const bool yapıştır : {true, false}) {
            SCOPED_TRACE(satır.join(' ').toStdString() + (yapıştır ? " pasted" : " by input method"));
            const QString önceki = Koy(kutu, satır[1]);
            yapıştır ? Yapıştır(kutu, satır[2]) : YöntemleGir(kutu, satır[2]);
            EXPECT_EQ(satır[3] == u"=" ? Durum(kutu) : kutu.text(), satır[3] == u"=" ? satır[1] : satır[3]);
            if (satır[3] != u"=") continue;
            Tuşla(kutu, {Qt::Key_Z, Qt::Key_Y}, Qt::ControlModifier);
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
        const auto sığmaz = [&, kutu = kutu, enUzun = enUzun](const QString& uzun) {
            const QString önceki = Durum(*kutu);
            QToolTip::showText({}, "-", kutu);
            Yapıştır(*kutu, uzun);
            EXPECT_EQ(Durum(*kutu), önceki);
            EXPECT_EQ(QToolTip::text(), Metin(MetinNo::MetinÇokUzun).arg(enUzun));
        };
        kutu->setFocus();
        sığmaz(tam + u'A');
        Yapıştır(*kutu, tam.chopped(1) + "\r\n");
        EXPECT_EQ(kutu->text(), tam.chopped(1) + u' ');
    }
}

// Undo and redo bring only what the box has taken, and do not open it for what it refuses.
TEST_F(GirişKutuları, GeriAlmaVeYinelemeKutuyuAçmaz) {
    const auto tuşlaVeGör = [this](Qt::Key tuş, const QString& beklenen) {
        Tuşla(Form.T, {tuş}, Qt::ControlModifier);
        EXPECT_EQ(Form.T.text(), beklenen);
    };
    Form.T.setFocus();
    YöntemleGir(Form.T, "1.250");
    Yaz(Form.T, "0");  // undone and redone in one go with the text before, which with it would be no number
    Yapıştır(Form.T, "1.5");
    tuşlaVeGör(Qt::Key_Z, QString());
    tuşlaVeGör(Qt::Key_Y, "1.2500");
}

TEST_F(GirişKutuları, ÇıkıştaBiçimlenir) {
    for (const QStringList& satır :
         Tablo("Y >  > 2 > 0,00 | Y > 12,5 > 2 > 12,50 | E > -0,001 > 2 > 0,00 | E > -2,5 > 0 > -3 | T >  > 2 >  | "
               "T > 1234567, > 4 > 1.234.567,0000 | T > 1.25,00 > 2 > 125,00 | T > abc > 2 > abc")) {
        OndalıkBasamak = satır[2].toInt();
        SayıKutusu& kutu = Form.Kutu(satır[0]);
        Koy(kutu, satır[1]);
        Form.Komut.setFocus();
        EXPECT_EQ(kutu.text(), satır[3]) << satır[1].toStdString();
    }
    Form.Ad.setFocus();
    Yapıştır(Form.Ad, "\uFEFFıspar\u200Bta\r\n\tkapı\n");
    EXPECT_EQ(Durum(Form.Ad), "ısparta kapı ^");
}

TEST_F(GirişKutuları, KutudanÇıkılamazsaKomutÇalışmaz) {
    const auto dene = [this](const std::function<void()>& adım) {
        Form.E.setFocus();
        Yaz(Form.E, "-");
        Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
        adım();
        Kutular().TekKutu(MesajKutusu::Simge::Kritik, Metin(MetinNo::SayıDeğil));
        EXPECT_TRUE(Form.E.text() == "-" && Form.KomutAnındakiler.isEmpty());
        EXPECT_FALSE(Form.Komut.isDown() || Form.Seçenek.isDown() || Form.Ağaç.currentItem());
        EXPECT_FALSE(Form.Tür.view()->isVisible());
        QCoreApplication::processEvents();
    };
    for (const Qt::Key tuş : {Qt::Key_K, Qt::Key_G}) dene([&] { Tuşla(Form.E, {tuş}, Qt::AltModifier); });
    dene([this] { QTest::mouseClick(&Form.Komut, Qt::LeftButton); });
    const QPoint satır = Form.Ağaç.visualItemRect(Form.Ağaç.topLevelItem(0)).center();
    dene([&] { QTest::mouseClick(Form.Ağaç.viewport(), Qt::LeftButton, {}, satır); });
    dene([this] { QTest::mouseClick(&Form.Tür, Qt::LeftButton, {}, QPoint(Form.Tür.width() - 6, 8)); });
    // Asked in the box, as a menu entry does, it answers again and is still to be left.
    dene([this] { EXPECT_TRUE(!OdaktakiKutuBitti() && Form.E.hasFocus()); });
    Form.E.clear();
    dene([this] { QTest::keyClick(&Form.E, Qt::Key_Tab); });
    EXPECT_TRUE(Form.T.hasFocus());
    // The user has read the message and goes on.
    Yaz(Form.Y, "5");
    Tuşla(Form.Y, {Qt::Key_K}, Qt::AltModifier);
    Yaz(Form.Y, "6");
    QTest::mouseClick(&Form.Komut, Qt::LeftButton);
    EXPECT_EQ(Form.KomutAnındakiler, (QStringList{"5,00", "6,00"}));
    ÖrnekForm silinen;
    Yaz(silinen.E, "-");  // with the form it goes unasked
}

TEST_F(GirişKutuları, EnterSekmeGibidirDüğmeyeBasar) {
    Form.Ağaç.setFocus();
    QTest::keyClick(&Form.Ağaç, Qt::Key_Return);
    Enterİleİlerlesin(&Form.Ağaç);
    Form.Y.setFocus();
    for (QWidget* sonraki :
         QList<QWidget*>{&Form.E, &Form.T, &Form.Ad, &Form.Grup, &Form.Tür, &Form.Ağaç, &Form.Komut}) {
        QTest::keyClick(QApplication::focusWidget(), sonraki == &Form.T ? Qt::Key_Enter : Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), sonraki);
    }
    EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
    Tuşla(Form.Komut, {Qt::Key_Return});
    QKeyEvent basılıTutma(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(&Form.Komut, &basılıTutma);
    EXPECT_EQ(Form.KomutAnındakiler.size(), 1);
    Form.Y.setFocus();
    QCoreApplication::sendEvent(&Form.Y, &basılıTutma);
    EXPECT_TRUE(Form.Y.hasFocus());
}

TEST_F(GirişKutuları, GrupYazılırkenBüyür) {
    Form.Grup.Doldur({"MASA", "Dolap"});
    Yaz(Form.Grup, "izmır");
    Form.Grup.lineEdit()->setCursorPosition(2);
    Tuşla(Form.Grup, {Qt::Key_Backspace});
    Yaz(Form.Grup, "şö");
    EXPECT_EQ(Durum(*Form.Grup.lineEdit()), "İŞÖ^MIR");
    Tuşla(Form.Grup, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(Form.Grup.currentText(), "Dolap") << "as it is stored";
    Form.Grup.setFocus();
    Yapıştır(Form.Grup, " a\nb\t");
    Tuşla(Form.Grup, {Qt::Key_Return});
    EXPECT_EQ(Form.Grup.currentText(), "A B");
}

TEST_F(GirişKutuları, MiktarTürüRakamAlmazYazılanıKorur) {
    Form.Tür.Doldur({"Adet", "Kilogram"});
    Yaz(Form.Tür, "k2ilo");
    EXPECT_EQ(Form.Tür.ÖnEkleBul("KİLO"), 1);
    EXPECT_EQ(Form.Tür.ÖnEkleBul("kılo"), -1);
    Form.Tür.ÖğeEkle(0, "Kilo");
    for (int öğe = 2; öğe >= 0; --öğe) Form.Tür.ÖğeÇıkar(öğe);
    Form.Tür.lineEdit()->selectAll();
    Yaz(Form.Tür, "5");
    QTest::keyClick(&Form.Tür, Qt::Key_Return);
    EXPECT_EQ(Form.Tür.currentText(), "kilo");
}

TEST_F(GirişKutuları, MenüMesajKutusuVeBaşkaPencereÇıkışSayılmaz) {
    Yaz(Form.Y, "5");
    QMenu menü(&Form);
    menü.addAction("Bir");
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
    Form.T.setText("7");
    Form.T.setFocus();
    ÖrnekForm::ÖneGetir(Form);
    EXPECT_EQ(Form.Y.text() + Durum(Form.T), "5,00*7");
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
        const auto bak = [metin](const auto& i) { EXPECT_TRUE(i.metin.startsWith(Metin(MetinNo(metin)))); };
        if (metin) Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam, bak);
        EXPECT_EQ(kutu.Saklanır(), metin == 0) << satır[1].toStdString();
        EXPECT_TRUE(kutu.hasFocus() == (metin != 0) && kutu.text() == satır[1]);
        kutu.clear();
    }
}

// With the real window: the focus arrives where the user sent it, and a mnemonic's command still waits.
TEST_F(GirişKutuları, HataKutusundanSonraOdakYerineVarır) {
    MesajKutusu::GöstericiyiAyarla(nullptr);
    Form.T.setText("7");
    const auto çık = [this](const std::function<void()>& adım) {
        Form.E.setFocus();
        Yaz(Form.E, "-");
        ModalAç(adım, "MesajKutusu", [](QWidget& kutu) { QTest::keyClick(&kutu, Qt::Key_Escape); });
        ÖrnekForm::ÖneGetir(Form);
    };
    çık([this] { QTest::keyClick(&Form.E, Qt::Key_Return); });
    EXPECT_TRUE(Form.T.hasFocus() && Durum(Form.T) == "*7");
    çık([this] { QTest::keyClick(&Form.E, Qt::Key_K, Qt::AltModifier); });
    EXPECT_TRUE(Form.KomutAnındakiler.isEmpty());
    // Through the window, as the mouse comes: the button is let go while the message is shown.
    const QPoint yer = Form.Seçenek.mapTo(&Form, QPoint(8, Form.Seçenek.height() / 2));
    const auto tıkla = [&] { QTest::mouseClick(Form.windowHandle(), Qt::LeftButton, {}, yer); };
    çık(tıkla);
    EXPECT_TRUE(Form.Seçenek.hasFocus());
    EXPECT_FALSE(Form.Seçenek.isDown() || Form.Seçenek.isChecked());
    tıkla();
    EXPECT_TRUE(Form.Seçenek.isChecked());
}

}  // namespace

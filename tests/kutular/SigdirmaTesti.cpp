#include <QHelpEvent>
#include <QLineEdit>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include "SutunluListe.h"
#include "SutunluSatir.h"
#include "SayiSigdirma.h"
#include "VarnekTesti.h"
#include "MetinTablosu.h"

using namespace Qt::StringLiterals;

namespace {

const QString EnGeniş = u"-922.337.203.685.477,580800"_s;

// What a tooltip tells at this place; empty: there is none.
QString İpucu(QWidget& denetim, QPoint yer) {
    const QString önceki = u"before"_s;  // a hidden tooltip stays readable for a moment
    QToolTip::showText({}, önceki, &denetim);
    QHelpEvent olay(QEvent::ToolTip, yer, denetim.mapToGlobal(yer));
    QCoreApplication::sendEvent(&denetim, &olay);
    return QToolTip::text() == önceki ? QString() : QToolTip::text();
}

class Sığdırma : public VarnekTesti {
  protected:
    Sığdırma() {
        for (QLineEdit* satır : {&Kutu, &Düz}) {
            satır->setAlignment(Qt::AlignRight);
            satır->setText(EnGeniş);
        }
        SayıyıSığdır(&Kutu);
        Kutu.show();
    }
    // As a line edit shows it that knows nothing of marks.
    QImage DüzResim() {
        Düz.setFont(Kutu.font());
        Düz.resize(Kutu.size());
        Düz.setCursorPosition(0);
        return Düz.grab().toImage();
    }

    QLineEdit Kutu, Düz;
};

TEST_F(Sığdırma, KutudakiSayıKüçülürSığmazsaİmiGörünür) {
    const QFont asıl = Kutu.font();
    const int gereken = Kutu.fontMetrics().horizontalAdvance(EnGeniş);
    Kutu.resize(gereken + 20, Kutu.sizeHint().height());
    EXPECT_EQ(Kutu.font(), asıl);
    EXPECT_EQ(Kutu.grab().toImage(), DüzResim());
    EXPECT_EQ(İpucu(Kutu, {3, 3}), QString());

    Kutu.resize(gereken * 8 / 10, Kutu.height());
    EXPECT_LT(Kutu.fontMetrics().horizontalAdvance(EnGeniş), Kutu.width());
    EXPECT_EQ(Kutu.grab().toImage(), DüzResim());
    EXPECT_EQ(İpucu(Kutu, {3, 3}), EnGeniş);

    Kutu.resize(gereken / 2, Kutu.height());
    EXPECT_NE(Kutu.grab().toImage(), DüzResim()) << "no mark";
    EXPECT_EQ(Kutu.cursorPosition(), 0) << "the sign and the leading digits are out of sight";
    EXPECT_EQ(İpucu(Kutu, {3, 3}), EnGeniş);
    Kutu.setText(u"1,00"_s);
    EXPECT_EQ(Kutu.font(), asıl);

    Kutu.clear();
    QTest::keyClicks(&Kutu, u"2,5"_s);
    EXPECT_EQ(Kutu.text(), u"2,5"_s) << "the digits come in another order";
}

TEST_F(Sığdırma, SatırKesileniVeGizleneniSöyler) {
    SütunluListe liste({{MetinNo::MiktarıSütunu, 4, false, true},
                        {MetinNo::AdıSütunu, 4, false},
                        {MetinNo::FiyatıSütunu, 4, true},
                        {MetinNo::TutarıSütunu, 4, true}});
    liste.resize(400, 200);
    liste.show();
    liste.SatırlarıKoy(
        {new SütunluSatır({u"1.234,57 Metre"_s, u"Kablo"_s, u"0,10"_s, EnGeniş},
                          {u"1234,5678 Metre"_s, QString(), u"0,0968"_s}),
         new SütunluSatır({u"2,50 Metre"_s, u"Kablo"_s, u"0,10"_s, u"0,25"_s}, {u"2,5 Metre"_s, QString(), u"0,1"_s})});
    const auto ipucu = [&](int satır, int sütun) {
        return İpucu(*liste.viewport(), liste.visualRect(liste.model()->index(satır, sütun)).center());
    };
    const QString gizlenen = u"Miktarı: 1.234,5678 Metre\nFiyatı: 0,0968"_s;
    EXPECT_EQ(ipucu(0, 1), Qt::convertFromPlainText(gizlenen));
    EXPECT_EQ(ipucu(0, 3), Qt::convertFromPlainText(EnGeniş + u'\n' + gizlenen));
    EXPECT_EQ(ipucu(1, 1), QString());
}

}  // namespace

#include "Tablo.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "MetinTablosu.h"

namespace {

class Sayılar : public TabloKaynağı {
  public:
    std::size_t SatırSayısı() const override { return 200; }
    QString Hücre(std::size_t satır, int) const override { return QString::number(satır); }
};

// The focus that a click brings must not move the rows under the pointer; Tab marks the first row.
TEST(Tablo, TıklamaGösterilenSatırıSeçer) {
    Sayılar kaynak;
    TabloModeli model(kaynak, {{MetinNo::AdıSütunu, 10}});
    QWidget form;
    auto* kutu = new QLineEdit;
    auto* tablo = new Tablo(QStringLiteral("Tablo"), model);
    auto* düzen = new QVBoxLayout(&form);
    düzen->addWidget(kutu);
    düzen->addWidget(tablo);
    form.resize(300, 300);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    kutu->setFocus();
    model.Yenile();
    tablo->scrollTo(model.index(150, 0), QAbstractItemView::PositionAtCenter);
    QTest::mouseClick(tablo->viewport(), Qt::LeftButton, {}, tablo->visualRect(model.index(150, 0)).center());
    EXPECT_EQ(tablo->SeçiliSatır(), std::size_t{150});
    kutu->setFocus();
    model.Yenile();
    tablo->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(tablo->SeçiliSatır(), std::size_t{0});
    delete tablo;  // before its model
}

}  // namespace

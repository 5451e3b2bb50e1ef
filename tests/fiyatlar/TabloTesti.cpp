#include "Tablo.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include "ListeCizelgesi.h"
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

// As a price list's rows are: a day, a quantity and a price with more digits than are shown, a tick.
class Malzemeler : public TabloKaynağı {
  public:
    const QList<QStringList> Satırlar{{"=Çam", "2,13 Metre küp", "1.250,50", "05.03.2026"},
                                      {"Boya", "=1+1", "+5,00", "BUGÜN"}};

    std::size_t SatırSayısı() const override { return 2; }
    QString Hücre(std::size_t satır, int sütun) const override { return Satırlar.at(satır).at(sütun); }
    QString Saklanan(std::size_t satır, int sütun) const override {
        if (satır == 1 || sütun == 0 || sütun == 3) return Hücre(satır, sütun);
        return sütun == 1 ? "2,125 Metre küp" : "1250,4956";
    }
    std::optional<bool> İşaret(std::size_t satır) const override { return satır == 0; }
};

TEST(Tablo, ÇizelgedeMiktarİkiSütunRakamlarTamdır) {
    Malzemeler kaynak;
    TabloModeli model(kaynak, {{MetinNo::AdıSütunu, 10},
                               {MetinNo::MiktarıSütunu, 10, false, ÇizelgedeSütun::Miktar},
                               {MetinNo::FiyatıSütunu, 10, true},
                               {MetinNo::KurGünüSütunu, 10, false, ÇizelgedeSütun::Tarih}});
    const QTemporaryDir klasör;
    const QString yol = klasör.filePath("liste.csv");
    ASSERT_TRUE(TabloyuÇizelgeyeYaz(yol, "Liste", model).Tamam());
    QFile dosya(yol);
    ASSERT_TRUE(dosya.open(QIODevice::ReadOnly));
    EXPECT_EQ(dosya.readAll().mid(3).toStdString(), "Adı;Miktarı;Birimi;Fiyatı;" +
                                                        Metin(MetinNo::KurGünüSütunu).toStdString() +
                                                        ";İşareti\r\n"
                                                        "'=Çam;2,125;Metre küp;1250,4956;05.03.2026;işaretli\r\n"
                                                        "Boya;'=1+1;;5,00;BUGÜN;işaretsiz\r\n");
    Tablo tablo(QStringLiteral("Tablo"), model);
    EXPECT_EQ(tablo.GörünenlerinMetni().section('\n', 1).toStdString(),
              "'=Çam\t2,13 Metre küp\t1.250,50\t05.03.2026\nBoya\t'=1+1\t+5,00\tBUGÜN\n");
}

}  // namespace

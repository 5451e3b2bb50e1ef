#include "AnaFormOrtami.h"

// What the menu of products does to the main form.

namespace {

class ÜrünMenüsü : public AnaFormOrtamı {
  protected:
    // The product that is selected, and the group it stands in.
    QString SeçiliÜrün() {
        const QModelIndex yer = Bul<QAbstractItemView>(Ağaç).currentIndex();
        return yer.parent().data().toString() + '/' + yer.data().toString();
    }
};

TEST_F(ÜrünMenüsü, BulYazılanıBulurVeİşaretliOlanaGider) {
    for (int i = 0; i < 250; ++i) MalzemeEkle(QString("Çok Çivi %1").arg(i, 3, 10, QChar('0')), "1");
    for (const auto& [grup, ad] :
         {std::pair("MASA", "Sehpa"), {"İŞLER", "Çivili Sehpa"}, {"ÇİVİ", "Raf"}, {"ÇİVİ", "Sehpa"}})
        ÜrünEkle(grup, ad);
    ÜrünEkle("çivi", "raf");  // the same product
    Aç();
    Seç("MASA", "Sehpa");
    QTest::keyClick(&Bul(Ağaç), Qt::Key_F2);
    ASSERT_TRUE(Bekle([this] { return Düzenleyici() != nullptr; }));
    QTest::keyClick(Düzenleyici(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(QApplication::activeModalWidget()) << "a name is being edited";
    QTest::keyClick(Düzenleyici(), Qt::Key_Escape);

    const auto kısayol = [this] { Tuş(Qt::Key_F, Qt::ControlModifier); };
    Modal(kısayol, "BulFormu", [this] {
        Tuş(Qt::Key_Return);  // nothing is marked: goes nowhere
        Yaz("BulKutusu", "çivi");
        EXPECT_EQ(Satırlar("BulunanlarListesi").section("; ", 0, 1), "Çivili Sehpa|İŞLER|ürün; Çok Çivi 000||malzeme");
        EXPECT_EQ(Satırlar("BulunanlarListesi").count("; "), 199);
        EXPECT_EQ(Yazı("BulunanSayısıEtiketi"), "253 ad bulundu; ilk 200 tanesi listede");
        Yaz("BulKutusu", "i'");
        EXPECT_EQ(Yazı("BulKutusu"), "i’");
        Yaz("BulKutusu", "SEHPA");
        EXPECT_EQ(Satırlar("BulunanlarListesi"), "Sehpa|ÇİVİ|ürün; Sehpa|MASA|ürün; Çivili Sehpa|İŞLER|ürün");
        Tuş(Qt::Key_PageDown);
        EXPECT_EQ(Odak(), "BulKutusu");
        Tuş(Qt::Key_Enter);
    });
    EXPECT_EQ(SeçiliÜrün(), "İŞLER/Çivili Sehpa");
    EXPECT_EQ(Odak(), Ağaç);
    Modal("BulMenüsü", "BulFormu", [this] {
        Yaz("BulKutusu", "ÇOK ÇİVİ 2");
        EXPECT_EQ(Yazı("BulunanSayısıEtiketi"), "50 ad bulundu");
    });
}

}  // namespace

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QUrl>

#include "Adresler.h"
#include "ErisimDenetimi.h"
#include "FormOrtami.h"
#include "ModalBekleyici.h"
#include "Yardim.h"

namespace {

class YardımMenüsü : public FormOrtamı {
  protected:
    YardımMenüsü() {
        Ürün("MASA", "Sehpa");
        Malzeme("MASA", "Sehpa", "Çam Kereste", "2,5 Metre", "4");
        TestVerisi(VeriDosyası())
            .Çalıştır("INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Çam Kereste', '4')");
        Aç();
        AdresAçıcıyıAyarla([this](const QUrl& adres) { m_açılanlar += adres.fileName(); });
    }
    ~YardımMenüsü() override { AdresAçıcıyıAyarla(nullptr); }

    // With the mouse: the menu in the bar, then its entry.
    void Seç(const char* giriş) {
        auto& menü = Bul<QMenu>("YardımMenüsü");
        QMenuBar& çubuk = *Form().menuBar();
        QTest::mouseClick(&çubuk, Qt::LeftButton, {}, çubuk.actionGeometry(menü.menuAction()).center());
        ASSERT_TRUE(menü.isVisible());
        auto* eylem = Form().findChild<QAction*>(QString::fromUtf8(giriş));
        ASSERT_TRUE(eylem && eylem->isEnabled()) << giriş;
        QTest::mouseClick(&menü, Qt::LeftButton, {}, menü.actionGeometry(eylem).center());
    }

    QStringList m_açılanlar;
};

TEST_F(YardımMenüsü, HerGirişBirŞeyAçar) {
    for (const auto& [giriş, form] :
         {std::pair{"HakkındaMenüsü", "HakkındaFormu"}, {"HataBildirmeMenüsü", "HataBildirmeFormu"}}) {
        ModalAç([&] { Seç(giriş); }, QString::fromUtf8(form),
                [](QWidget& açılan) {
                    QTest::mouseClick(açılan.findChild<QPushButton*>(QStringLiteral("TamamButonu")), Qt::LeftButton);
                });
    }
    Seç("İçindekilerMenüsü");
    EXPECT_EQ(m_açılanlar, QStringList("AnaForm.html"));
}

TEST_F(YardımMenüsü, EkranOkuyucuHerFormuOkurVeF1SayfasınıAçar) {
    const YardımTuşu yardım(nullptr);
    ÜrünSeç("MASA", "Sehpa");
    ErişimiDenetle(Form());
    const struct {
        const char* açan;
        const char* form;
        const char* sayfa;
    } formlar[] = {
        {"ÜrünEkleSilMenüsü", "ÜrünEkleSilFormu", "UrunEkleSilFormu.html"},
        {"MalzemeEkleSilMenüsü", "MalzemeEkleSilFormu", "MalzemeEkleSilFormu.html"},
        {"ListeyeMalzemeEkleButonu", "MalzemeListesiOluşturFormu", "MalzemeListesiOlusturFormu.html"},
        {"MiktarlarıGösterDüğmesi", "MiktarGösterFormu", "MiktarGosterFormu.html"},
        {"GünlükMalzemeHareketleriGösterButonu", "MalzemeHareketleriFormu", "MalzemeHareketleriFormu.html"},
        {"MalzemeListesiGösterButonu", "MalzemeListesiFormu", "MalzemeListesiFormu.html"},
        {"ÜrünListesiGösterButonu", "ÜrünListesiFormu", "UrunListesiFormu.html"},
    };
    for (const auto& durum : formlar) {
        SCOPED_TRACE(durum.form);
        m_açılanlar.clear();
        const auto aç = [&] {
            const QString ad = QString::fromUtf8(durum.açan);
            if (auto* giriş = Form().findChild<QAction*>(ad)) return giriş->trigger();
            QTest::mouseClick(&Bul(durum.açan), Qt::LeftButton);
        };
        ModalAç(aç, QString::fromUtf8(durum.form), [](QWidget& form) {
            ErişimiDenetle(form);
            QTest::keyClick(&form, Qt::Key_F1);
            if (auto* tarih = form.findChild<QPushButton*>("TarihDeğiştirButonu")) {
                ModalAç([&] { QTest::mouseClick(tarih, Qt::LeftButton); }, "TarihDeğiştirFormu",
                        [](QWidget& iç) {
                            ErişimiDenetle(iç);
                            QTest::keyClick(&iç, Qt::Key_Escape);
                        });
            }
            QTest::keyClick(&form, Qt::Key_Escape);
        });
        EXPECT_EQ(m_açılanlar, QStringList(durum.sayfa));
    }
}

}  // namespace

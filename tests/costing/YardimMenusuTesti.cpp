#include <QAction>
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

    QStringList m_açılanlar;
};

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
        {"HakkındaMenüsü", "HakkındaFormu", "HakkindaFormu.html"},
        {"HataBildirmeMenüsü", "HataBildirmeFormu", "HataBildirmeFormu.html"},
    };
    Bul<QAction>("İçindekilerMenüsü").trigger();
    EXPECT_EQ(m_açılanlar, QStringList("AnaForm.html"));
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

// The main form's ways into the catalogue forms and the amounts form.

#include <QAbstractButton>

#include "FormOrtami.h"
#include "MetinTablosu.h"
#include "ModalBekleyici.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class KatalogKomutları : public FormOrtamı {
  protected:
    void Bas(const char* düğme) { QTest::mouseClick(&Bul(düğme), Qt::LeftButton); }
    static QString Kutu(QWidget& form, const char* ad) {
        return form.findChild<QLineEdit*>(QString::fromUtf8(ad))->text();
    }
    // In add mode the frame is open and the button saves.
    static void EklemeKipinde(QWidget& form, const char* düğme) {
        EXPECT_TRUE(form.findChild<QWidget*>("Çerçeve")->isEnabled());
        EXPECT_EQ(form.findChild<QAbstractButton*>(QString::fromUtf8(düğme))->text(), "Kaydet");
    }
    static void Kapat(QWidget& form) {
        for (int i = 0; i < 2 && form.isVisible(); ++i) QTest::keyClick(&form, Qt::Key_Escape);
    }
};

TEST_F(KatalogKomutları, BoşÜrünListesiSorulurEvetEklemeKipindeAçar) {
    Kutular().Yanıtla(Yanıt::Hayır);
    Aç();
    Kutular().TekKutu(Simge::Soru, Metin(MetinNo::ÜrünListesiBoş));
    Kutular().Yanıtla(Yanıt::Evet);
    ModalAç([this] { QTest::mouseClick(Ağaç().viewport(), Qt::LeftButton, {}, QPoint(20, 20)); }, "ÜrünEkleSilFormu",
            [](QWidget& form) {
                EklemeKipinde(form, "ÜrünEkleKaydetButonu");
                Kapat(form);
            });
    Kutular().TekKutu(Simge::Soru, Metin(MetinNo::ÜrünListesiBoş));
}

TEST_F(KatalogKomutları, BoşKatalogÖnceMalzemeEklemeyiSorar) {
    Ürün("MASA", "Sehpa");
    Aç();
    ÜrünSeç("MASA", "Sehpa");
    Kutular().Yanıtla(Yanıt::Hayır);
    Bas("ListeyeMalzemeEkleButonu");
    Kutular().TekKutu(Simge::Soru, Metin(MetinNo::MalzemeListesiBoş));
    Kutular().Yanıtla(Yanıt::Evet);
    ModalAç([this] { Bas("ListeyeMalzemeEkleButonu"); }, "MalzemeEkleSilFormu",
            [](QWidget& form) {
                EklemeKipinde(form, "MalzemeEkleKaydetButonu");
                Kapat(form);
            });
}

TEST_F(KatalogKomutları, MiktarFormuTutarlarıKendiKuralıylaGösterir) {
    // 24,99 at 0,50 % is 0,1250 inside the total, but 0,12 on the amounts form.
    Ürün("MASA", "Sehpa", "0,5", "20", "-4", "0");
    Malzeme("MASA", "Sehpa", "Cam", "1 Adet", "24,99");
    Aç();
    ÜrünSeç("MASA", "Sehpa");
    ModalAç([this] { Bas("MiktarlarıGösterDüğmesi"); }, "MiktarGösterFormu",
            [this](QWidget& form) {
                EXPECT_EQ(Kutu(form, "MalzemeMaliyetiKutusu"), "24,99");
                EXPECT_EQ(Kutu(form, "İşçilikMaliyetiKutusu"), "0,12");
                EXPECT_EQ(Kutu(form, "KarMaliyetiKutusu"), "5,00");
                EXPECT_EQ(Kutu(form, "VadeMaliyetiKutusu"), "0,00");
                EXPECT_EQ(Kutu(form, "DiğerVarnekKutusu"), "-1,00");
                EXPECT_EQ(Kutu(form, "ToplamMaliyetKutusu").toStdString(), Yazı("ToplamMaliyetKutusu"));
                Kapat(form);
            });
}

}  // namespace

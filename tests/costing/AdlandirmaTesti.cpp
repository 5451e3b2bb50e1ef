#include "FormOrtami.h"
#include "ModalBekleyici.h"
#include "MetinTablosu.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class Adlandırma : public FormOrtamı {
  protected:
    Adlandırma() {
        Ürün("MASA", "Sehpa", "5");
        Malzeme("MASA", "Sehpa", "Çam", "1 Adet", "10");
        Ürün("MASA", "Yemek Masası");
        Malzeme("MASA", "Yemek Masası", "Meşe", "1 Adet", "20");
        Ürün("SANDALYE", "Tabure");
        Malzeme("SANDALYE", "Tabure", "Ihlamur", "1 Adet", "30");
        Aç();
    }

    QLineEdit* Düzenleyici() { return Ağaç().findChild<QLineEdit*>("AdDüzenleyici"); }

    void Adlandır(QTreeWidgetItem* düğüm, const QString& yeni) {
        Tıkla(düğüm);
        QTest::keyClick(&Ağaç(), Qt::Key_F2);
        // A click on the current node has begun the editing by itself, after a moment.
        ASSERT_TRUE(Bekle([this] { return Düzenleyici() != nullptr; }));
        Düzenleyici()->selectAll();
        Düzenleyici()->insert(yeni);
        QTest::keyClick(Düzenleyici(), Qt::Key_Return);
        // The editor hands the name over and closes, and then the renaming runs, each in its turn of the event loop.
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    QStringList Ürünler() { return Düz("SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"); }
    QStringList Kullanılanlar() {
        return Düz(
            "SELECT KullanilanMalzemeAdi, UrunGrubu, UrunAdi FROM UrunMalzemeTablosu "
            "ORDER BY KullanilanMalzemeAdi ASC");
    }

  private:
    QStringList Düz(const QString& sql) {
        QStringList satırlar;
        for (const QStringList& satır : Oku(sql)) satırlar.append(satır.join('/'));
        return satırlar;
    }
};

TEST_F(Adlandırma, ÜrünVeMalzemeleriYeniAdıAlır) {
    Adlandır(Düğüm("MASA", "Sehpa"), "Küçük\r\nSehpa");
    EXPECT_EQ(Düğümler(), QStringList({"MASA", " Küçük Sehpa", " Yemek Masası", "SANDALYE", " Tabure"}));
    EXPECT_EQ(Ürünler(), QStringList({"MASA/Küçük Sehpa", "MASA/Yemek Masası", "SANDALYE/Tabure"}));
    EXPECT_EQ(Kullanılanlar(),
              QStringList({"Çam/MASA/Küçük Sehpa", "Ihlamur/SANDALYE/Tabure", "Meşe/MASA/Yemek Masası"}));
    // Case alone can be corrected, and the same name is free in another group.
    Adlandır(Düğüm("MASA", "Küçük Sehpa"), "küçük sehpa");
    Adlandır(Düğüm("MASA", "Yemek Masası"), "Tabure");
    EXPECT_EQ(Ürünler(), QStringList({"MASA/küçük sehpa", "MASA/Tabure", "SANDALYE/Tabure"}));
}

TEST_F(Adlandırma, GrubunBaşkaÜrünündekiAdıReddeder) {
    Kutular().Yanıtla(Yanıt::Tamam, [this](const auto&) { EXPECT_EQ(Düzenleyici(), nullptr) << "editor still open"; });
    Adlandır(Düğüm("MASA", "Sehpa"), "yemek masası");
    Kutular().TekKutu(Simge::Bilgi, Metin(MetinNo::ÜrünListedeVar));
    ASSERT_NE(Düzenleyici(), nullptr);  // the name can be typed again
    EXPECT_EQ(Düzenleyici()->text(), "Sehpa");
    QTest::keyClick(Düzenleyici(), Qt::Key_Escape);  // closes the editor, not the form
    EXPECT_EQ(m_kapanmaSorusu, 0);
    EXPECT_EQ(Ürünler(), QStringList({"MASA/Sehpa", "MASA/Yemek Masası", "SANDALYE/Tabure"}));
}

TEST_F(Adlandırma, BoşVeTırnaklıAdEskiAdıBırakır) {
    Adlandır(Düğüm("MASA", "Sehpa"), "   ");
    for (const char* yeni : {"a' OR '1'='1", "O'Nun Sehpası"}) {
        Kutular().Yanıtla(Yanıt::Tamam);
        Adlandır(Düğüm("MASA", "Sehpa"), yeni);
        Kutular().Yanıtla(Yanıt::Tamam);
        Adlandır(Düğüm("SANDALYE"), yeni);
    }
    for (const auto& kutu : Kutular().Al()) EXPECT_EQ(kutu.başlık, Metin(MetinNo::OdbcHatası));
    EXPECT_EQ(Düğümler(), QStringList({"MASA", " Sehpa", " Yemek Masası", "SANDALYE", " Tabure"}));
    EXPECT_EQ(Ürünler(), QStringList({"MASA/Sehpa", "MASA/Yemek Masası", "SANDALYE/Tabure"}));
}

TEST_F(Adlandırma, GrubunAdıÜrünlereVeMalzemelereGider) {
    Adlandır(Düğüm("MASA"), "MASALAR");
    EXPECT_EQ(Düğümler(), QStringList({"MASALAR", " Sehpa", " Yemek Masası", "SANDALYE", " Tabure"}));
    EXPECT_EQ(Kullanılanlar(),
              QStringList({"Çam/MASALAR/Sehpa", "Ihlamur/SANDALYE/Tabure", "Meşe/MASALAR/Yemek Masası"}));
    ÜrünSeç("MASALAR", "Sehpa");
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "10,50");
}

TEST_F(Adlandırma, BirleşenGruplarTekDüğümOlurSeçimKalır) {
    Düğüm("SANDALYE")->setExpanded(true);
    Düğüm("MASA")->setExpanded(true);
    // In other letters it is the same group, as the data file compares.
    Adlandır(Düğüm("SANDALYE"), "masa");
    EXPECT_EQ(Düğümler(), QStringList({"MASA", " Sehpa", " Tabure", " Yemek Masası"}));
    EXPECT_EQ(Ağaç().currentItem(), Düğüm("MASA"));
    EXPECT_TRUE(Düğüm("MASA")->isExpanded());
    ÜrünSeç("MASA", "Tabure");
    EXPECT_EQ(Yazı("ToplamMaliyetKutusu"), "30,00");
    // Both nodes of a group that the file holds in two spellings get the new name; its own letters' case can change.
    Ürün("Masa", "Büro Masası");
    Aç();
    Adlandır(Düğüm("Masa"), "TEZGAH");
    Adlandır(Düğüm("TEZGAH"), "Tezgah");
    EXPECT_EQ(Düğümler(), QStringList({"Tezgah", " Büro Masası", " Sehpa", " Tabure", " Yemek Masası"}));
}

TEST_F(Adlandırma, İkiÜrünüBirEdecekBirleşmeyiSorar) {
    Ürün("SANDALYE", "SEHPA");
    Aç();
    Kutular().Yanıtla(Yanıt::Hayır);
    Adlandır(Düğüm("SANDALYE"), "Masa");
    Kutular().TekKutu(Simge::Soru, Metin(MetinNo::GrupBirleştirmeSorusu) + "\nSehpa");
    EXPECT_EQ(Ürünler(), QStringList({"MASA/Sehpa", "MASA/Yemek Masası", "SANDALYE/SEHPA", "SANDALYE/Tabure"}));
    Kutular().Yanıtla(Yanıt::Evet);
    Adlandır(Düğüm("SANDALYE"), "Masa");
    EXPECT_EQ(Düğümler().size(), 5);
}

}  // namespace

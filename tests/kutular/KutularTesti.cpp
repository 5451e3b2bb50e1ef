#include "OrnekForm.h"

namespace {

class Kutu : public VarnekTesti {
  protected:
    ÖrnekForm Form;
};

TEST_F(Kutu, TuşlardanYalnızSayıyaYarayanlarGeçer) {
    struct {
        SayıKutusu* Kutu;
        const char* Basılan;
        std::string Kalan;
    } const durumlar[] = {
        {&Form.Yüzde, "1a2.3-x ,5", "123,5"},
        {&Form.Yüzde, "12,5,", "12,5"},
        {&Form.Yüzde, ",", ""},
        {&Form.Yüzde, "-", ""},
        {&Form.Yüzde, "٣+e", ""},
        {&Form.Tutar, "-1.250,5m", "1250,5"},
        {&Form.Eksili, "-12-,5", "-12,5"},
        {&Form.Eksili, "--", "-"},
        {&Form.Eksili, "-,", "-"},
    };
    for (const auto& durum : durumlar) {
        durum.Kutu->clear();
        Yaz(*durum.Kutu, durum.Basılan);
        EXPECT_EQ(durum.Kutu->text().toStdString(), durum.Kalan) << durum.Basılan;
    }
}

TEST_F(Kutu, DüzenlemeTuşlarıÇalışır) {
    Yaz(Form.Yüzde, "1234");
    QTest::keyClick(&Form.Yüzde, Qt::Key_Backspace);
    QTest::keyClick(&Form.Yüzde, Qt::Key_Home);
    QTest::keyClick(&Form.Yüzde, Qt::Key_Delete);
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("23"));
    QTest::keyClick(&Form.Yüzde, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Form.Yüzde, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Form.Yüzde.text(), QString());
    QTest::keyClick(&Form.Yüzde, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&Form.Yüzde, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("2323"));
    QTest::keyClick(&Form.Yüzde, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("23"));
}

TEST_F(Kutu, YapıştırılanSayıOlmayanaDekKısalır) {
    struct {
        SayıKutusu* Kutu;
        const char* Önceki;
        int İmleç;  // -1: everything is selected
        const char* Pano;
        std::string Kalan;
    } const durumlar[] = {
        {&Form.Yüzde, "", 0, "12abc", "12"},
        {&Form.Yüzde, "", 0, "abc", ""},
        {&Form.Yüzde, "5", 0, "abc", "5"},
        {&Form.Yüzde, "", 0, "1.250,5", "1.250,5"},
        {&Form.Yüzde, "", 0, "12.5", "12"},
        {&Form.Yüzde, "1.250,00", -1, "1.25", "1"},
        {&Form.Yüzde, "1.250,00", -1, "12.50", "12"},
        {&Form.Yüzde, "12", 2, ".5", "12"},
        {&Form.Yüzde, "1", 1, ".250", "1.250"},
        {&Form.Yüzde, "1.25,00", 0, "7", "71.25,00"},
        {&Form.Yüzde, "", 0, "-5", ""},
        {&Form.Tutar, "", 0, "-5", ""},
        {&Form.Eksili, "", 0, "-5,5", "-5,5"},
        {&Form.Eksili, "", 0, "5-", "5"},
        // Nothing is left before the cursor: the rest stays.
        {&Form.Yüzde, "a,b", 0, "x", "a,b"},
    };
    for (const auto& durum : durumlar) {
        durum.Kutu->setFocus();
        durum.Kutu->setText(QString::fromUtf8(durum.Önceki));
        durum.Kutu->setCursorPosition(durum.İmleç);
        if (durum.İmleç < 0) durum.Kutu->selectAll();
        Yapıştır(*durum.Kutu, durum.Pano);
        EXPECT_EQ(durum.Kutu->text().toStdString(), durum.Kalan) << durum.Önceki << " + " << durum.Pano;
    }
}

TEST_F(Kutu, SilerkenYerindenOynayanNoktalarSayıyıBozmaz) {
    Form.Tutar.setText(QStringLiteral("1.250,00"));
    Form.Tutar.setFocus();
    Form.Tutar.setCursorPosition(5);
    QTest::keyClick(&Form.Tutar, Qt::Key_Backspace);
    EXPECT_EQ(Form.Tutar.text(), QStringLiteral("1.25,00"));
    QTest::keyClick(&Form.Tutar, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Form.Tutar, Qt::Key_Delete);
    QTest::keyClick(&Form.Tutar, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Form.Tutar.text(), QStringLiteral("1.25,00"));
    Form.Tutar.setCursorPosition(1);
    QTest::keyClick(&Form.Tutar, Qt::Key_Backspace);
    EXPECT_EQ(Form.Tutar.text(), QStringLiteral(".25,00"));
    QTest::keyClick(&Form.Tutar, Qt::Key_Tab);
    EXPECT_EQ(Form.Tutar.text(), QStringLiteral("25,00"));
}

TEST_F(Kutu, ÇıkıştaBiçimlenir) {
    struct {
        SayıKutusu* Kutu;
        const char* Metin;
        int Basamak;
        std::string Kalan;
    } const durumlar[] = {
        {&Form.Yüzde, "", 2, "0,00"},
        {&Form.Yüzde, "12,5", 2, "12,50"},
        {&Form.Yüzde, "1234567,895", 2, "1.234.567,90"},
        {&Form.Eksili, "-0,001", 2, "0,00"},
        {&Form.Eksili, "-2,5", 0, "-3"},
        {&Form.Tutar, "", 2, ""},
        {&Form.Tutar, "12,", 4, "12,0000"},
        {&Form.Tutar, "abc", 2, "abc"},
        {&Form.Tutar, ",", 2, ","},
    };
    for (const auto& durum : durumlar) {
        OndalıkBasamak = durum.Basamak;
        durum.Kutu->setFocus();
        durum.Kutu->setText(QString::fromUtf8(durum.Metin));
        Form.Komut.setFocus();
        EXPECT_EQ(durum.Kutu->text().toStdString(), durum.Kalan) << durum.Metin;
    }
}

TEST_F(Kutu, OkunamayanYüzdeBildirilirVeMetinKalır) {
    Yaz(Form.Eksili, "-");
    Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
    QTest::keyClick(&Form.Eksili, Qt::Key_Tab);
    const auto kutular = Kutular().Al();
    ASSERT_EQ(kutular.size(), 1u);
    EXPECT_EQ(kutular[0].simge, MesajKutusu::Simge::Kritik);
    EXPECT_TRUE(kutular[0].ortala);
    EXPECT_EQ(Form.Eksili.text(), QStringLiteral("-"));
    EXPECT_TRUE(Form.Tutar.hasFocus());
}

TEST_F(Kutu, YalnızKullanıcınınDüzenlemesiBildirilir) {
    QStringList görülen;
    Form.Yüzde.Düzenlenince([&] { görülen << Form.Yüzde.text(); });
    Form.Yüzde.setFocus();
    Form.Yüzde.setText(QStringLiteral("7"));
    Form.Yüzde.clear();
    Yaz(Form.Yüzde, "1,,");
    QTest::keyClick(&Form.Yüzde, Qt::Key_Tab);
    EXPECT_EQ(görülen, (QStringList{QStringLiteral("1"), QStringLiteral("1,"), QStringLiteral("1,")}));
    EXPECT_EQ(Form.Yüzde.text(), QStringLiteral("1,00"));
}

TEST_F(Kutu, AdÇıkıştaBaşHarfleriniBüyütür) {
    Yaz(Form.Ad, " ıSPARTA kapı ");
    QString bırakılan;
    Form.Ad.Bırakılınca([&] { bırakılan = Form.Ad.text(); });
    QTest::keyClick(&Form.Ad, Qt::Key_Enter);
    EXPECT_EQ(bırakılan, QStringLiteral("Isparta Kapı"));
    EXPECT_TRUE(Form.Grup.hasFocus());
    Form.Ad.clear();
    Form.Ad.setFocus();
    Yapıştır(Form.Ad, QByteArray(300, 'a'));
    EXPECT_EQ(Form.Ad.text().size(), 254);
}

TEST_F(Kutu, GrupYazılırkenBüyür) {
    Form.Grup.Doldur({QStringLiteral("MASA"), QStringLiteral("Dolap")});
    EXPECT_EQ(Form.Grup.currentText(), QString());
    Yaz(Form.Grup, "izmır");
    EXPECT_EQ(Form.Grup.currentText(), QStringLiteral("İZMIR"));
    Form.Grup.lineEdit()->setCursorPosition(2);
    QTest::keyClick(&Form.Grup, Qt::Key_Backspace);
    Yaz(Form.Grup, "şö");
    EXPECT_EQ(Form.Grup.currentText(), QStringLiteral("İŞÖMIR"));
    EXPECT_EQ(Form.Grup.lineEdit()->cursorPosition(), 3);
    Form.Grup.lineEdit()->selectAll();
    QTest::keyClick(&Form.Grup, Qt::Key_Down);
    QTest::keyClick(&Form.Grup, Qt::Key_Down);
    EXPECT_EQ(Form.Grup.currentText(), QStringLiteral("Dolap"));
    QTest::keyClick(&Form.Grup, Qt::Key_Return);
    EXPECT_TRUE(Form.Tür.hasFocus());
    EXPECT_EQ(Form.Grup.currentText(), QStringLiteral("Dolap"));
    EXPECT_EQ(Form.Grup.count(), 2);
}

TEST_F(Kutu, ListeDeğişseDeYazılanKalır) {
    Form.Tür.Doldur({QStringLiteral("Adet"), QStringLiteral("Kilogram")});
    Yaz(Form.Tür, "kilo");
    EXPECT_EQ(Form.Tür.currentText(), QStringLiteral("kilo"));
    EXPECT_EQ(Form.Tür.ÖnEkleBul(QStringLiteral("KİLO")), 1);
    EXPECT_EQ(Form.Tür.ÖnEkleBul(QStringLiteral("kılo")), -1);
    Form.Tür.ÖğeEkle(0, QStringLiteral("Metre"));
    Form.Tür.ÖğeÇıkar(2);
    Form.Tür.ÖğeÇıkar(0);
    Form.Tür.ÖğeÇıkar(0);
    Form.Tür.ÖğeEkle(0, QStringLiteral("Kilo"));
    EXPECT_EQ(Form.Tür.currentText(), QStringLiteral("kilo"));
    QTest::keyClick(&Form.Tür, Qt::Key_Return);
    EXPECT_EQ(Form.Tür.currentText(), QStringLiteral("kilo"));
    EXPECT_EQ(Form.Tür.count(), 1);
}

TEST_F(Kutu, MiktarTürüRakamAlmaz) {
    Yaz(Form.Tür, "m2e3t");
    EXPECT_EQ(Form.Tür.currentText(), QStringLiteral("met"));
    Form.Tür.lineEdit()->selectAll();
    Yaz(Form.Tür, "5");
    EXPECT_EQ(Form.Tür.currentText(), QStringLiteral("met"));
    Form.Tür.lineEdit()->setCursorPosition(1);
    Yapıştır(Form.Tür, "1²2x");
    EXPECT_EQ(Form.Tür.currentText(), QString::fromUtf8("m²xet"));
    EXPECT_EQ(Form.Tür.lineEdit()->cursorPosition(), 3);
}

}  // namespace

#include <QFile>

#include "OdbcSurucu.h"
#include "VarnekTesti.h"

namespace {

class OdbcHareketiTesti : public VarnekTesti {
  protected:
    OdbcHareketiTesti() {
        VeriDosyasıOluştur(VeriDosyası());
        EXPECT_TRUE(m_bağlantı.Aç(BağlantıMetni(VeriDosyası())).Başarılı());
    }
    OdbcSonucu Ekle(const QString& ad) {
        return m_bağlantı.Çalıştır(
            QStringLiteral("INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('%1', '1')").arg(ad));
    }
    // What another client sees.
    qsizetype Satır() { return TestVerisi(VeriDosyası()).Oku("SELECT MalzemeAdi FROM MalzemeTablosu").size(); }

    OdbcBağlantısı m_bağlantı;
};

TEST_F(OdbcHareketiTesti, YaHepsiYazılırYaHiçbiri) {
    OdbcHareketi hareket(m_bağlantı);
    for (const bool onaylanır : {false, true}) {
        ASSERT_TRUE(hareket.Başla().Başarılı());
        EXPECT_FALSE(OdbcHareketi(m_bağlantı).Başla().Başarılı()) << "a second one would commit the first";
        EXPECT_EQ(Ekle("a").Etkilenen, 1);
        EXPECT_EQ(Ekle("a").Hatalar.value(0).Durum, "23000");
        EXPECT_EQ(Ekle("b").Etkilenen, 1);
        EXPECT_EQ(Satır(), 0);
        EXPECT_TRUE((onaylanır ? hareket.Onayla() : hareket.GeriAl()).Başarılı());
        EXPECT_EQ(Satır(), onaylanır ? 2 : 0);
    }
    EXPECT_FALSE(hareket.Onayla().Başarılı()) << "none is under way";
    EXPECT_EQ(m_bağlantı.Çalıştır("DELETE FROM MalzemeTablosu WHERE MalzemeFiyati= '1'").Etkilenen, 2);
    EXPECT_EQ(Satır(), 0) << "each statement is written at once again";
    try {
        OdbcHareketi yarım(m_bağlantı);
        ASSERT_TRUE(yarım.Başla().Başarılı() && Ekle("c").Başarılı());
        throw 1;
    } catch (int) {
    }
    EXPECT_EQ(Satır(), 0);
    EXPECT_TRUE(hareket.Başla().Başarılı() && Ekle("d").Başarılı());
    m_bağlantı.Kapat();
    EXPECT_EQ(Satır(), 0);
}

TEST_F(OdbcHareketiTesti, OnaylanamayanGeriAlınır) {
    OdbcHareketi hareket(m_bağlantı);
    ASSERT_TRUE(hareket.Başla().Başarılı() && Ekle("a").Başarılı());
    // Another file comes into the data file's place: the commit is refused.
    const QString eski = Klasör() + QStringLiteral("eski");
    ASSERT_TRUE(QFile::rename(VeriDosyası(), eski) && QFile::copy(eski, VeriDosyası()));
    const OdbcSonucu onay = hareket.Onayla();
    EXPECT_TRUE(!onay.Başarılı() && onay.Hatalar.value(0).İleti.contains("yerine başka bir dosya konmuş"));
    EXPECT_TRUE(Ekle("b").Başarılı());
    EXPECT_EQ(Satır(), 1);
    EXPECT_EQ(TestVerisi(eski).Oku("SELECT MalzemeAdi FROM MalzemeTablosu").size(), 0);
}

TEST_F(OdbcHareketiTesti, SatırlarSırayla) {
    const QString uzun(255, QChar(u'ş'));
    ASSERT_TRUE(Ekle("a").Başarılı() && Ekle(uzun).Başarılı());
    const QString sorgu = QStringLiteral("SELECT MalzemeAdi FROM MalzemeTablosu ORDER BY MalzemeAdi ASC");
    for (const int okunacak : {1, 2}) {
        QStringList adlar;
        const auto al = [&](OdbcSatırı& satır) {
            adlar += satır.Metin(1);
            return adlar.size() < okunacak;
        };
        EXPECT_TRUE(m_bağlantı.Oku(sorgu, al).Başarılı());
        EXPECT_EQ(adlar, QStringList({"a", uzun}).mid(0, okunacak));
    }
    const auto yokSütun = [](OdbcSatırı& satır) { return satır.Metin(2).isEmpty(); };
    EXPECT_EQ(m_bağlantı.Oku(sorgu, yokSütun).Hatalar.value(0).Durum, "S1002") << "what cannot be read ends the rows";
}

}  // namespace

#include <gtest/gtest.h>

#include <QFile>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "TestVerisi.h"
#include "VarnekTesti.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

class Odbc : public VarnekTesti {
  protected:
    Odbc() { VeriyeBağlan(); }
    ~Odbc() override { ODBCBağlantısınıKapat(); }

    static QStringList TekSütun(const QString& sql, Okuma beklenen = Okuma::Tamam) {
        QStringList satırlar;
        EXPECT_EQ(SatırlarıOku(sql, [&satırlar] { satırlar.append(SütunOku(1)); }), beklenen);
        return satırlar;
    }
};

TEST_F(Odbc, VeriKaynağıVarolurVeÇıkıştaKalkar) {
    const auto içerik = [this] {
        QFile dosya(OdbcDosyası());
        return dosya.open(QIODevice::ReadOnly) ? dosya.readAll() : QByteArray();
    };
    EXPECT_TRUE(içerik().contains("[Varnek]")) << içerik().constData();
    ODBCBağlantısınıKapat();
    EXPECT_FALSE(içerik().contains("[Varnek]")) << içerik().constData();
    EXPECT_FALSE(SorguÇalıştır()) << "a statement after the connection was closed must fail, not crash";
}

TEST_F(Odbc, İkiYüzElliDörtTürkçeHarfBütünOkunur) {
    const QString tam(254, QChar(u'ğ'));
    ASSERT_TRUE(DeyimiYürüt(Deyimler::MalzemeEkle(tam, QStringLiteral("1"))));
    EXPECT_EQ(TekSütun(Deyimler::MalzemeListesi()), QStringList(tam));
}

TEST_F(Odbc, UzunMetinSonSatırOlurVeEksikSöylenir) {
    const QString uzun(255, QChar(u'ğ'));
    ASSERT_TRUE(DeyimiYürüt(Deyimler::MalzemeEkle(QStringLiteral("A"), QStringLiteral("1"))));
    ASSERT_TRUE(DeyimiYürüt(Deyimler::MalzemeEkle(uzun, QStringLiteral("1"))));
    ASSERT_TRUE(DeyimiYürüt(Deyimler::MalzemeEkle(QStringLiteral("Z"), QStringLiteral("1"))));
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_EQ(TekSütun(Deyimler::MalzemeListesi(), Okuma::Eksik), QStringList({QStringLiteral("A"), uzun.left(254)}));
    const auto kutular = Kutular().Al();
    ASSERT_EQ(kutular.size(), 1u);
    EXPECT_EQ(kutular[0].simge, Simge::Kritik);
    EXPECT_TRUE(kutular[0].metin.startsWith(Metin(MetinNo::KayıtlarEksik))) << kutular[0].metin.toStdString();
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_EQ(KaydıOku(Deyimler::MalzemeVeFiyatı(uzun), [] { SütunOku(1); }), Kayıt::Okunamadı);
    EXPECT_EQ(KaydıOku(Deyimler::MalzemeVarMı(uzun)), Kayıt::Var);
    EXPECT_EQ(KaydıOku(Deyimler::MalzemeVarMı(QStringLiteral("B"))), Kayıt::Yok);
}

TEST_F(Odbc, HataKutusuDeyiminHatasınıGösterirVeBağlantıSürer) {
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_FALSE(DeyimiYürüt(Deyimler::MalzemeEkle(QStringLiteral("O'Neil"), QStringLiteral("1"))));
    const auto kutular = Kutular().Al();
    ASSERT_EQ(kutular.size(), 1u);
    EXPECT_EQ(kutular[0].simge, Simge::Kritik);
    EXPECT_EQ(kutular[0].başlık, QStringLiteral("ODBC Hatası"));
    EXPECT_GT(kutular[0].metin.size(), 10);
    EXPECT_TRUE(kutular[0].ortala);
    EXPECT_TRUE(DeyimiYürüt(Deyimler::MalzemeEkle(QStringLiteral("Tutkal"), QStringLiteral("12,5"))));
    EXPECT_EQ(TekSütun(Deyimler::MalzemeListesi()), QStringList(QStringLiteral("Tutkal")));
}

TEST_F(Odbc, KayıtSayısıHiçSıfırOlmaz) {
    SQLMetni = Deyimler::ÜrünSayısı();
    EXPECT_EQ(KayıtSayısıAl(), 1);
    for (const char* ad : {"A", "B", "C"}) {
        ASSERT_TRUE(DeyimiYürüt(Deyimler::ÜrünEkle(QStringLiteral("G"), QString::fromUtf8(ad))));
    }
    SQLMetni = Deyimler::ÜrünSayısı();
    EXPECT_EQ(KayıtSayısıAl(), 3);
    Kutular().Yanıtla(Yanıt::Tamam);
    SQLMetni = QStringLiteral("SELECT Count(Yok) AS KayitSayisi FROM YokTablo");
    EXPECT_EQ(KayıtSayısıAl(), 1);
    Kutular().Al();
}

TEST_F(Odbc, AçılamayanDosyaHatayıGösterirVeYanlışDöner) {
    ODBCBağlantısınıKapat();
    QFile dosya(VeriDosyası());
    ASSERT_TRUE(dosya.open(QIODevice::WriteOnly | QIODevice::Truncate));
    dosya.write("bu bir veri dosyası değil");
    dosya.close();
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_FALSE(ODBCBağlan());
    const auto kutular = Kutular().Al();
    ASSERT_EQ(kutular.size(), 1u);
    EXPECT_EQ(kutular[0].başlık, QStringLiteral("ODBC Hatası"));
}

}  // namespace

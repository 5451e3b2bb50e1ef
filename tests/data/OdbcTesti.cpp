#include <gtest/gtest.h>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "VarnekTesti.h"

using MesajKutusu::Yanıt;

namespace {

class Odbc : public VarnekTesti {
  protected:
    Odbc() { VeriyeBağlan(); }

    static QStringList TekSütun(const QString& sql, Okuma beklenen = Okuma::Tamam) {
        QStringList satırlar;
        EXPECT_EQ(SatırlarıOku(sql, [&satırlar] { satırlar.append(SütunOku(1)); }), beklenen);
        return satırlar;
    }
};

TEST_F(Odbc, UzunMetinSonSatırOlurVeEksikSöylenir) {
    const QString uzun(255, QChar(u'ğ'));
    for (const QString& ad : {uzun.left(254), uzun, QStringLiteral("Z")}) MalzemeEkle(ad, "1");
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_EQ(TekSütun(Deyimler::MalzemeListesi(), Okuma::Eksik), QStringList({uzun.left(254), uzun.left(254)}));
    const auto kutular = Kutular().Al();
    ASSERT_EQ(kutular.size(), 1u);
    EXPECT_TRUE(kutular[0].metin.startsWith(Metin(MetinNo::KayıtlarEksik))) << kutular[0].metin.toStdString();
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_EQ(KaydıOku(Deyimler::MalzemeVeFiyatı(uzun), [] { SütunOku(1); }), Kayıt::Okunamadı);
    EXPECT_EQ(KaydıOku(Deyimler::MalzemeVarMı(uzun)), Kayıt::Var);
    EXPECT_EQ(KaydıOku(Deyimler::MalzemeVarMı(QStringLiteral("B"))), Kayıt::Yok);
}

TEST_F(Odbc, KayıtSayısıHiçSıfırOlmaz) {
    SQLMetni = Deyimler::ÜrünSayısı();
    EXPECT_EQ(KayıtSayısıAl(), 1);
    for (const char* ad : {"A", "B", "C"}) ÜrünEkle("G", ad);
    SQLMetni = Deyimler::ÜrünSayısı();
    EXPECT_EQ(KayıtSayısıAl(), 3);
    Kutular().Yanıtla(Yanıt::Tamam);
    SQLMetni = QStringLiteral("SELECT Count(Yok) AS KayitSayisi FROM YokTablo");
    EXPECT_EQ(KayıtSayısıAl(), 1);
    Kutular().Al();
}

}  // namespace

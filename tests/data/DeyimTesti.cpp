#include <gtest/gtest.h>

#include "Deyimler.h"

namespace {

struct Durum {
    QString Deyim;
    const char* Beklenen;
};

const QString G = QStringLiteral("MASA");
const QString Ü = QStringLiteral("Çalışma Masası");
const QString M = QStringLiteral("Çam Kereste");
const Deyimler::KullanılanMalzeme Satır{
    G, Ü, M, QStringLiteral("2,5 Metre"), QStringLiteral("1.250,50"), QStringLiteral("#3/7/2004#")};

// The data file's driver takes these texts to the blank.
TEST(Deyimler, MetinleriHarfiHarfineAynıdır) {
    const Durum durumlar[] = {
        {Deyimler::ÜrünSayısı(), "SELECT Count(UrunAdi) AS KayitSayisi FROM UrunTablosu"},
        {Deyimler::ÜrünAğacı(), "SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi"},
        {Deyimler::ÜrünListesiRaporu(),
         "SELECT UrunGrubu, UrunAdi FROM UrunTablosu ORDER BY UrunGrubu ASC, UrunAdi ASC"},
        {Deyimler::ÜrünGrupları(), "SELECT DISTINCT UrunGrubu FROM UrunTablosu ORDER BY UrunGrubu ASC"},
        {Deyimler::ÜrünVarMı(G, Ü),
         "SELECT UrunGrubu FROM UrunTablosu WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası'"},
        {Deyimler::ÜrünAdıVarMı(G, Ü),
         "SELECT UrunAdi, UrunGrubu FROM UrunTablosu WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası'"},
        {Deyimler::ÜrünEkle(G, Ü), "INSERT INTO UrunTablosu (UrunGrubu, UrunAdi) VALUES ('MASA', 'Çalışma Masası')"},
        {Deyimler::GrubuSil(G), "DELETE FROM UrunTablosu WHERE UrunGrubu= 'MASA'"},
        {Deyimler::GrubunMalzemeleriniSil(G), "DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA'"},
        {Deyimler::ÜrünüSil(G, Ü), "DELETE FROM UrunTablosu WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası'"},
        {Deyimler::ÜrününMalzemeleriniSil(G, Ü),
         "DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası'"},
        {Deyimler::GrupAdınıDeğiştir(G, QStringLiteral("MASALAR")),
         "UPDATE UrunTablosu SET UrunGrubu= 'MASALAR' WHERE UrunGrubu= 'MASA'"},
        {Deyimler::MalzemelerdeGrupAdınıDeğiştir(G, QStringLiteral("MASALAR")),
         "UPDATE UrunMalzemeTablosu SET UrunGrubu= 'MASALAR' WHERE UrunGrubu= 'MASA'"},
        {Deyimler::ÜrünAdınıDeğiştir(G, Ü, QStringLiteral("Masa")),
         "UPDATE UrunTablosu SET UrunAdi= 'Masa' WHERE UrunAdi= 'Çalışma Masası' AND UrunGrubu= 'MASA'"},
        {Deyimler::MalzemelerdeÜrünAdınıDeğiştir(G, Ü, QStringLiteral("Masa")),
         "UPDATE UrunMalzemeTablosu SET UrunAdi= 'Masa' WHERE UrunAdi= 'Çalışma Masası' AND UrunGrubu= 'MASA'"},
        {Deyimler::Yüzdeler(G, Ü),
         "SELECT IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM UrunTablosu WHERE UrunGrubu= "
         "'MASA' AND UrunAdi= 'Çalışma Masası'"},
        {Deyimler::YüzdeleriKaydet(QStringLiteral("10,00"), QStringLiteral("20,00"), QStringLiteral("-5,00"),
                                   QStringLiteral("3,00"), G, Ü),
         "UPDATE UrunTablosu SET IscilikYuzdesi= '10,00', KarYuzdesi= '20,00', DigerVarnekYuzdesi= '-5,00', "
         "VadeFarkiYuzdesi= '3,00' WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası'"},
        {Deyimler::MalzemeSayısı(), "SELECT Count(MalzemeAdi) AS KayitSayisi FROM MalzemeTablosu"},
        {Deyimler::MalzemeListesi(), "SELECT MalzemeAdi FROM MalzemeTablosu ORDER BY MalzemeAdi ASC"},
        {Deyimler::MalzemeKataloğuRaporu(),
         "SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi ASC"},
        {Deyimler::MalzemeVarMı(M), "SELECT MalzemeAdi FROM MalzemeTablosu WHERE MalzemeAdi= 'Çam Kereste'"},
        {Deyimler::MalzemeVeFiyatı(M),
         "SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'Çam Kereste'"},
        {Deyimler::MalzemeFiyatı(M), "SELECT MalzemeFiyati FROM MalzemeTablosu WHERE MalzemeAdi= 'Çam Kereste'"},
        {Deyimler::MalzemeEkle(M, QStringLiteral("12,5")),
         "INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('Çam Kereste', '12,5')"},
        {Deyimler::MalzemeSil(M), "DELETE FROM MalzemeTablosu WHERE MalzemeAdi= 'Çam Kereste'"},
        {Deyimler::FiyatDeğiştir(M, QStringLiteral("12,5")),
         "UPDATE MalzemeTablosu SET MalzemeFiyati= '12,5' WHERE MalzemeAdi= 'Çam Kereste'"},
        {Deyimler::KullanılanMalzemeler(G, Ü),
         "SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu WHERE "
         "UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası' ORDER BY KullanilanMalzemeAdi ASC"},
        {Deyimler::KullanılanMalzemeEkle(Satır),
         "INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
         "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#3/7/2004#, 'MASA', 'Çalışma Masası', 'Çam "
         "Kereste', '2,5 Metre', '1.250,50')"},
        {Deyimler::KullanılanMalzemeDeğiştir(Satır),
         "UPDATE UrunMalzemeTablosu SET KullanimTarihi= #3/7/2004#, UrunGrubu= 'MASA', UrunAdi= 'Çalışma Masası', "
         "KullanilanMalzemeAdi= 'Çam Kereste', KullanilanMalzemeMiktari= '2,5 Metre', KullanilanMalzemeFiyati= "
         "'1.250,50' WHERE UrunGrubu= 'MASA' AND UrunAdi= 'Çalışma Masası' AND KullanilanMalzemeAdi= 'Çam Kereste'"},
        {Deyimler::KullanılanMalzemeÇıkar(G, Ü, M),
         "DELETE FROM UrunMalzemeTablosu WHERE UrunGrubu= 'MASA' AND UrunAdi='Çalışma Masası' AND "
         "KullanilanMalzemeAdi= 'Çam Kereste'"},
        {Deyimler::MalzemeyiÜrünlerdenSil(M),
         "DELETE FROM UrunMalzemeTablosu WHERE KullanilanMalzemeAdi= 'Çam Kereste'"},
        {Deyimler::ÜrünlerdeFiyatDeğiştir(M, QStringLiteral("12,5")),
         "UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '12,5' WHERE KullanilanMalzemeAdi= 'Çam Kereste'"},
        {Deyimler::GününHareketleri(QStringLiteral("#3/5/2026#")),
         "SELECT KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati, UrunAdi FROM "
         "UrunMalzemeTablosu WHERE KullanimTarihi = #3/5/2026# ORDER BY UrunAdi ASC"},
    };
    for (const Durum& durum : durumlar) EXPECT_EQ(durum.Deyim.toStdString(), durum.Beklenen);
}

}  // namespace

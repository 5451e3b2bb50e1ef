#include <gtest/gtest.h>

#include "BeklenenDeyimler.h"
#include "Deyimler.h"

namespace {

const QString G = QStringLiteral("MASA");
const QString Ü = QStringLiteral("Çalışma Masası");
const QString M = QStringLiteral("Çam Kereste");
const Deyimler::KullanılanMalzeme Satır{
    G, Ü, M, QStringLiteral("2,5 Metre"), QStringLiteral("1.250,50"), QStringLiteral("#3/7/2004#")};

// The data file's driver takes these texts to the blank.
TEST(Deyimler, MetinleriHarfiHarfineAynıdır) {
    const auto S = [](const char* metin) { return QString::fromUtf8(metin); };
    const QStringList deyimler{Deyimler::ÜrünSayısı(),
                               Deyimler::ÜrünAğacı(),
                               Deyimler::ÜrünListesiRaporu(),
                               Deyimler::ÜrünGrupları(),
                               Deyimler::ÜrünVarMı(G, Ü),
                               Deyimler::ÜrünAdıVarMı(G, Ü),
                               Deyimler::ÜrünEkle(G, Ü),
                               Deyimler::GrubuSil(G),
                               Deyimler::GrubunMalzemeleriniSil(G),
                               Deyimler::ÜrünüSil(G, Ü),
                               Deyimler::ÜrününMalzemeleriniSil(G, Ü),
                               Deyimler::GrupAdınıDeğiştir(G, S("MASALAR")),
                               Deyimler::MalzemelerdeGrupAdınıDeğiştir(G, S("MASALAR")),
                               Deyimler::ÜrünAdınıDeğiştir(G, Ü, S("Masa")),
                               Deyimler::MalzemelerdeÜrünAdınıDeğiştir(G, Ü, S("Masa")),
                               Deyimler::Yüzdeler(G, Ü),
                               Deyimler::YüzdeleriKaydet(S("10,00"), S("20,00"), S("-5,00"), S("3,00"), G, Ü),
                               Deyimler::MalzemeSayısı(),
                               Deyimler::MalzemeListesi(),
                               Deyimler::MalzemeKataloğuRaporu(),
                               Deyimler::MalzemeVarMı(M),
                               Deyimler::MalzemeVeFiyatı(M),
                               Deyimler::MalzemeFiyatı(M),
                               Deyimler::MalzemeEkle(M, S("12,5")),
                               Deyimler::MalzemeSil(M),
                               Deyimler::FiyatDeğiştir(M, S("12,5")),
                               Deyimler::KullanılanMalzemeSayısı(),
                               Deyimler::KullanılanMalzemeler(G, Ü),
                               Deyimler::KullanılanMalzemeEkle(Satır),
                               Deyimler::KullanılanMalzemeDeğiştir(Satır),
                               Deyimler::KullanılanMalzemeÇıkar(G, Ü, M),
                               Deyimler::MalzemeyiÜrünlerdenSil(M),
                               Deyimler::ÜrünlerdeFiyatDeğiştir(M, S("12,5")),
                               Deyimler::GününHareketleri(S("#3/5/2026#"))};
    const QList<BeklenenDeyim> beklenen = BeklenenDeyimler();
    ASSERT_EQ(deyimler.size(), beklenen.size());
    for (qsizetype i = 0; i < beklenen.size(); ++i)
        EXPECT_EQ(deyimler[i].toStdString(), beklenen[i].Metin.toStdString());
}

}  // namespace

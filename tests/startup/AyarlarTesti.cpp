#include <QFile>
#include <QSettings>

#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "KapanisModulu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "VarnekTesti.h"

namespace {

class AyarlarTesti : public VarnekTesti {};

QString Kayıtlı(const char* anahtar) {
    return AyarOku(QStringLiteral("Ayarlar"), QLatin1String(anahtar), QStringLiteral("yok"));
}

TEST_F(AyarlarTesti, DeğerlerOkunuyorÇöplerVarsayılanaDönüyor) {
    const std::pair<const char*, int> ondalıklar[] = {{"1", 1}, {"6", 6},  {" 3 ", 3}, {"0", 2},           {"7", 2},
                                                      {"", 2},  {"-1", 2}, {"iki", 2}, {"99999999999", 2}, {"3,5", 2}};
    for (const auto& [metin, beklenen] : ondalıklar) {
        AyarYaz(QStringLiteral("Ayarlar"), QStringLiteral("Ondalik"), QLatin1String(metin));
        EXPECT_EQ(KayıtlıOndalık(), beklenen) << metin;
    }
    const std::pair<const char*, std::optional<int>> kenarlar[] = {{"1500", 100},
                                                                   {"-225", -15},
                                                                   {"1507,5", 101},
                                                                   {"0", 0},
                                                                   {"", std::nullopt},
                                                                   {"sol", std::nullopt},
                                                                   {"1e999", std::nullopt},
                                                                   {"nan", std::nullopt},
                                                                   {"999999999999", std::nullopt}};
    for (const auto& [metin, beklenen] : kenarlar) {
        AyarYaz(QStringLiteral("Ayarlar"), QStringLiteral("Sol"), QLatin1String(metin));
        EXPECT_EQ(KayıtlıSol(), beklenen) << metin;
        EXPECT_EQ(KayıtlıÜst(), std::nullopt);
    }
}

TEST_F(AyarlarTesti, BozukDosyaYokGibidir) {
    const QString yol = QSettings(QStringLiteral("Tovrek"), QStringLiteral("Varnek")).fileName();
    ASSERT_TRUE(yol.startsWith(Klasör()));
    AyarYaz(QStringLiteral("Ayarlar"), QStringLiteral("Ondalik"), QStringLiteral("4"));
    DosyaYaz(yol, QByteArray("\x00\xff[[[Ayarlar\nOndalik==\"4\nSol\\x", 30));
    EXPECT_EQ(KayıtlıOndalık(), 2);
    EXPECT_EQ(KayıtlıSol(), std::nullopt);
    OndalığıKaydet(5);
    EXPECT_EQ(KayıtlıOndalık(), 5);
}

TEST_F(AyarlarTesti, AncakEvetDenirseBağlantıKapanırAyarlarKaydedilir) {
    const auto veriKaynağıVar = [this] { return Baytlar(OdbcDosyası()).contains("[Varnek]"); };
    for (const bool simgeDurumunda : {false, true}) {
        QFile::remove(VeriDosyası());
        VeriyeBağlan();
        const int önceki = KayıtlıOndalık();
        OndalıkBasamak = simgeDurumunda ? 4 : 3;
        Kutular().Yanıtla(MesajKutusu::Yanıt::Hayır);
        EXPECT_FALSE(ÇıkışıYürüt(simgeDurumunda, {70, 80}));
        EXPECT_EQ(Kutular().Al().back().metin, Metin(MetinNo::ÇıkışSorusu));
        EXPECT_TRUE(veriKaynağıVar() && KayıtlıOndalık() == önceki);
        Kutular().Yanıtla(MesajKutusu::Yanıt::Evet,
                          [&](const MesajKutusu::İstek& kutu) { EXPECT_EQ(kutu.ortala, !simgeDurumunda); });
        EXPECT_TRUE(ÇıkışıYürüt(simgeDurumunda, simgeDurumunda ? QPoint(50, 60) : QPoint(10, 20)));
        EXPECT_FALSE(veriKaynağıVar());
        EXPECT_EQ(KayıtlıOndalık(), OndalıkBasamak);
        EXPECT_EQ(Kayıtlı("Sol"), QStringLiteral("150"));
        // Minimised, the place from before stays.
        EXPECT_EQ(KayıtlıSol(), 10);
        EXPECT_EQ(KayıtlıÜst(), 20);
    }
}

}  // namespace

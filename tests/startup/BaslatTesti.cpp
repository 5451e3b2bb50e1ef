#include "BaslatModulu.h"

#include <QApplication>
#include <QDirIterator>
#include <QLabel>

#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "TekKopya.h"
#include "TestVerisi.h"
#include "VarnekTesti.h"

namespace {

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

QLabel* KarşılamaEtiketi() {
    for (const QWidget* form : QApplication::topLevelWidgets()) {
        if (form->objectName() == QStringLiteral("KarşılamaFormu") && form->isVisible())
            return form->findChild<QLabel*>(QStringLiteral("Etiket"));
    }
    return nullptr;
}

class BaşlatTesti : public VarnekTesti {
  protected:
    BaşlatTesti() {
        Bağlar.ProgramKlasörü = ProgramKlasörü().chopped(1);
        Bağlar.EkranGenişliğiAl = [] { return 800; };
        Bağlar.AnaFormuYükle = [this](const std::function<void()>& karşılamayıKapat) {
            ++Yüklenen;
            EXPECT_NE(KarşılamaEtiketi(), nullptr);
            karşılamayıKapat();
            EXPECT_EQ(KarşılamaEtiketi(), nullptr);
        };
    }
    BaşlatmaSonucu Başlat() {
        TekKopya kopya;
        return Main(kopya, Bağlar);
    }
    QStringList Dosyalar() const {
        QStringList yollar;
        QDirIterator gez(Klasör(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (gez.hasNext()) yollar += gez.next();
        return yollar;
    }

    BaşlatmaBağları Bağlar;
    int Yüklenen = 0;
};

TEST(SistemDenetimiTesti, NTKuralı) {
    const struct {
        SistemSürümü Sürüm;
        bool Yeterli;
    } durumlar[] = {
        {{4, 10, 1, QStringLiteral("Service Pack 1")}, true},  // not of the NT family
        {{3, 51, 2, QString()}, false},
        {{4, 0, 2, QString()}, true},
        {{4, 0, 2, QStringLiteral("Service Pack 1")}, false},
        {{4, 0, 2, QStringLiteral("Service Pack 2")}, false},
        {{4, 0, 2, QStringLiteral("Service Pack 2a")}, true},
        {{4, 0, 2, QStringLiteral("Service Pack 3")}, true},
        {{5, 0, 2, QStringLiteral("Service Pack 1")}, true},
    };
    for (const auto& durum : durumlar)
        EXPECT_EQ(SürümYeterli(durum.Sürüm), durum.Yeterli)
            << durum.Sürüm.Ana << durum.Sürüm.ServisPaketi.toStdString();
}

TEST_F(BaşlatTesti, SırasıylaHazırlayıpAnaFormuYükler) {
    VeriDosyasıOluştur(VeriDosyası());
    AyarYaz(QStringLiteral("Ayarlar"), QStringLiteral("Ondalik"), QStringLiteral("3"));
    UygulamaYolu.clear();
    UygulamaBaşlığı.clear();
    EtkinEtiketRengi = 0;
    Bağlar.SürümAl = [](SistemSürümü& sürüm) {
        EXPECT_TRUE(KarşılamaEtiketi() && KarşılamaEtiketi()->text() == QStringLiteral("Sürüm 2.24"));
        EXPECT_EQ(UygulamaBaşlığı, QStringLiteral("Tovrek - Varnek 2.24"));
        sürüm = {10, 0, NT_PLATFORMU, {}};
        return true;
    };
    EXPECT_EQ(Başlat(), BaşlatmaSonucu::Başladı);
    EXPECT_EQ(Yüklenen, 1);
    EXPECT_TRUE(NTTabanlı);
    EXPECT_EQ(UygulamaYolu, ProgramKlasörü());
    EXPECT_EQ(EtkinEtiketRengi, 0x00C00000u);
    EXPECT_EQ(OndalıkBasamak, 3);
    SQLMetni = QStringLiteral("SELECT Count(UrunAdi) AS KayitSayisi FROM UrunTablosu");
    EXPECT_TRUE(SorguÇalıştır());
}

TEST_F(BaşlatTesti, VeriDosyasıBaşlatıcınınVerdiğiKlasördeOlabilir) {
    const QString klasör = KullanıcıKlasörü() + QStringLiteral("Tovrek/Varnek/");
    ASSERT_TRUE(QDir().mkpath(klasör));
    VeriDosyasıOluştur(klasör + QStringLiteral("Varnek.vtb"));
    qputenv("VARNEK_VERI_KLASORU", QFile::encodeName(klasör.chopped(1)));
    const BaşlatmaSonucu sonuç = Başlat();
    qunsetenv("VARNEK_VERI_KLASORU");
    EXPECT_EQ(sonuç, BaşlatmaSonucu::Başladı);
    EXPECT_EQ(UygulamaYolu, klasör);
    EXPECT_TRUE(QDir(ProgramKlasörü()).isEmpty());
}

TEST_F(BaşlatTesti, YalnızİlkBaşlangıçBoşDosyaKoyar) {
    ASSERT_TRUE(QDir().mkpath(ProgramKlasörü() + QStringLiteral("bos")));
    VeriDosyasıOluştur(ProgramKlasörü() + QStringLiteral("bos/Varnek-bos.vtb"));
    EXPECT_EQ(Başlat(), BaşlatmaSonucu::Başladı);
    ODBCBağlantısınıKapat();
    EXPECT_TRUE(QFile::exists(VeriDosyası()));
    // Whoever has been here lost the file, even without a backup.
    ASSERT_TRUE(QFile::remove(VeriDosyası()));
    QDir(KullanıcıKlasörü() + QStringLiteral("Tovrek")).removeRecursively();
    Kutular().Yanıtla(Yanıt::Tamam);
    EXPECT_EQ(Başlat(), BaşlatmaSonucu::Başlayamadı);
    Kutular().TekKutu(Simge::Kritik, Metin(MetinNo::VeriDosyasıYok));
    EXPECT_FALSE(QFile::exists(VeriDosyası()));
}

TEST_F(BaşlatTesti, DenetimdenGeçmeyenBaşlangıçHiçbirŞeyYazmaz) {
    VeriDosyasıOluştur(VeriDosyası());
    const QStringList önce = Dosyalar();
    const auto sürümVer = [](SistemSürümü sürüm) {
        return [sürüm](SistemSürümü& verilen) {
            verilen = sürüm;
            return true;
        };
    };
    const struct {
        int Genişlik;
        std::function<bool(SistemSürümü&)> SürümAl;
        int Metin;
        bool Ortalı;
    } durumlar[] = {
        {799, SistemSürümünüAl, 100, false},
        {800, [](SistemSürümü&) { return false; }, 10, true},
        {800, sürümVer({3, 51, NT_PLATFORMU, {}}), 20, true},
    };
    for (const auto& durum : durumlar) {
        Bağlar.EkranGenişliğiAl = [&durum] { return durum.Genişlik; };
        Bağlar.SürümAl = durum.SürümAl;
        Kutular().Yanıtla(Yanıt::Tamam, [&](const MesajKutusu::İstek& kutu) {
            EXPECT_EQ(kutu.ortala, durum.Ortalı);
            EXPECT_EQ(KarşılamaEtiketi() != nullptr, durum.Genişlik == 800);
        });
        EXPECT_EQ(Başlat(), BaşlatmaSonucu::Başlayamadı);
        Kutular().TekKutu(Simge::Kritik, Metin(static_cast<MetinNo>(durum.Metin)));
        EXPECT_EQ(KarşılamaEtiketi(), nullptr);
        EXPECT_EQ(Dosyalar(), önce);
    }
    EXPECT_EQ(Yüklenen, 0);
}

}  // namespace

#include <QBuffer>
#include <QDir>
#include <QPdfWriter>
#include <QPrintPreviewWidget>
#include <QTimer>

#include "AygitYuzeyi.h"
#include "BaskiTesti.h"
#include "DoluDisk.h"
#include "MalzemeListesiFormu.h"
#include "RaporCiktilari.h"

namespace {

void ListeYaz(SayfaYüzeyi& yüzey, int satır) {
    MalzemeListesiniYaz(yüzey, "Malzeme Listesi", QList<QStringList>(satır, {"Çam Kereste", "1.250,50"}));
}

class Yazdırma : public BaskıTesti {
  protected:
    Yazdırma() {
        MalzemeEkle("Çam", "5");
        Aç<MalzemeListesiFormu>();
    }
    // Presses the PDF button and types the file's name into the dialog.
    void PdfKaydetDosyaya(const QString& yol, const std::function<void()>& önce = {}) {
        Modal("PdfKaydetButonu", "PdfDosyasıFormu", [&] {
            auto& kutu = Bul<QLineEdit>("fileNameEdit");
            kutu.setText(yol);
            if (önce) önce();
            QTest::keyClick(&kutu, Qt::Key_Return);
        });
    }
};

}  // namespace

// Pages break at the same rows whatever the device's resolution, and where the millimetres say.
TEST(AygıtYüzeyi, SayfalarHerÇözünürlükteAynı) {
    double sonY = 0;
    for (const int çözünürlük : {1200, 600, 300, 72}) {
        QBuffer dosya;
        ASSERT_TRUE(dosya.open(QIODevice::WriteOnly));
        QPdfWriter yazar(&dosya);
        yazar.setResolution(çözünürlük);
        yazar.setPageLayout(
            {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(5, 6, 7, 8), QPageLayout::Millimeter});
        AygıtYüzeyi yüzey(yazar);
        EXPECT_NEAR(yüzey.Genişlik(), 198, 0.2);
        EXPECT_NEAR(yüzey.Yükseklik(), 283, 0.2);
        ListeYaz(yüzey, 400);
        EXPECT_EQ(yüzey.SayfaNo(), 7) << çözünürlük;
        if (çözünürlük == 1200) sonY = yüzey.Y();
        EXPECT_NEAR(yüzey.Y(), sonY, 1e-9) << çözünürlük;
    }
}

TEST_F(Yazdırma, DüğmeVeİmleçGeriGelir) {
    Yazdırılırken = [this] {
        EXPECT_FALSE(Etkin("YazdırButonu"));
        EXPECT_EQ(Form().cursor().shape(), Qt::WaitCursor);
    };
    const auto bas = [this] {
        Tıkla("YazdırButonu");
        EXPECT_TRUE(Etkin("YazdırButonu"));
        EXPECT_EQ(Form().cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(Odak(), "YazdırButonu");
    };
    bas();
    EXPECT_TRUE(Yazdırılan());
    Yazdırılırken = [] { throw std::runtime_error("yazıcı"); };
    Beklenen(Simge::Kritik, MetinNo::BeklenmeyenHata, Yanıt::Tamam, "\nyazıcı");
    bas();
    // The default printer is gone since the start.
    YazıcıyıAyarla(nullptr);
    bas();
    YazıcıVar = false;
    Beklenen(Simge::Kritik, MetinNo::YazıcıYok, Yanıt::Tamam);
    bas();
    EXPECT_FALSE(Yazdırılan());
}

TEST_F(Yazdırma, PdfDosyası) {
    YazıcıVar = false;
    const QString yol = Klasör() + "çıktı.pdf";
    PdfKaydetDosyaya(Klasör() + "çıktı");
    EXPECT_TRUE(Baytlar(yol).startsWith("%PDF-")) << "the name gets its ending";
    EXPECT_TRUE(Baytlar(yol).contains("/MediaBox [0 0 595")) << "A4";

    // An existing file is overwritten only on Evet; after Hayır the dialog stands there again.
    DosyaYaz(yol, "benim");
    Beklenen(Simge::Soru, MetinNo::ÜzerineYazmaSorusu, Yanıt::Hayır, '\n' + yol);
    PdfKaydetDosyaya(yol, [this] {
        QTimer::singleShot(0, &Form(), [this] {
            EXPECT_EQ(Form().objectName(), "PdfDosyasıFormu");
            Esc();
        });
    });
    EXPECT_EQ(Baytlar(yol), "benim");
    Kutular().Yanıtla(Yanıt::Evet);
    PdfKaydetDosyaya(yol);
    EXPECT_TRUE(Baytlar(yol).startsWith("%PDF-"));
}

TEST_F(Yazdırma, YazılamayanPdf) {
    const Yazdırılacak iş{"Malzeme Listesi", [](SayfaYüzeyi& yüzey) { ListeYaz(yüzey, 100); }};
    EXPECT_FALSE(PdfYaz(Klasör() + "yok/liste.pdf", iş));
    const QString yol = Klasör() + "liste.pdf";
    ASSERT_TRUE(PdfYaz(yol, iş));
    const QByteArray önceki = Baytlar(yol);
    {
        const DoluDisk dolu;
        EXPECT_FALSE(PdfYaz(yol, iş));
    }
    EXPECT_EQ(QDir(Klasör()).entryList({"liste*"}).size(), 1) << "nothing is left beside it";
    EXPECT_FALSE(PdfYaz(yol, {"Boş", [](SayfaYüzeyi&) {}})) << "a document that did not begin";
    EXPECT_TRUE(Baytlar(yol) == önceki);

    Kutular().Yanıtla(Yanıt::Evet);
    Beklenen(Simge::Kritik, MetinNo::PdfYazılamadı, Yanıt::Tamam, '\n' + yol);
    {
        const DoluDisk dolu;
        PdfKaydetDosyaya(yol);
    }
    EXPECT_TRUE(Baytlar(yol) == önceki);
    EXPECT_TRUE(Etkin("PdfKaydetButonu"));
}

TEST_F(Yazdırma, Önizleme) {
    for (int i = 0; i < 70; ++i) MalzemeEkle(QString("Malzeme %1").arg(i), "1");
    Aç<MalzemeListesiFormu>();
    Modal("ÖnizlemeButonu", "ÖnizlemeFormu", [this] {
        auto& sayfalar = *Form().findChild<QPrintPreviewWidget*>();
        EXPECT_TRUE(Bekle([&sayfalar] { return sayfalar.pageCount() == 2; })) << sayfalar.pageCount();
    });
}

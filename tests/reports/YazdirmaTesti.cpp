#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <QBuffer>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPdfWriter>
#include <QPrintPreviewWidget>
#include <QTimer>

#include "AygitYuzeyi.h"
#include "DegiskenModulu.h"
#include "MalzemeListesiFormu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "ModalBekleyici.h"
#include "RaporCiktilari.h"
#include "RaporTesti.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {

QList<QStringList> Katalog(int satır) {
    QList<QStringList> satırlar;
    for (int i = 0; i < satır; ++i) satırlar.append({U("Çam Kereste"), U("1.250,50")});
    return satırlar;
}

QByteArray Oku(const QString& yol) {
    QFile dosya(yol);
    return dosya.open(QIODevice::ReadOnly) ? dosya.readAll() : QByteArray();
}

class Yazdırma : public RaporTesti {
  protected:
    Yazdırma() {
        MalzemeEkle("Çam", "5");
        Aç<MalzemeListesiFormu>();
    }
    // Presses the PDF button and types the file's name into the dialog.
    void PdfKaydetDosyaya(const QString& yol) {
        ModalAç([this] { Tıkla("PdfKaydetButonu"); }, U("PdfDosyasıFormu"),
                [&yol](QWidget& form) {
                    auto& kutu = *form.findChild<QLineEdit*>(U("fileNameEdit"));
                    kutu.setText(yol);
                    QTest::keyClick(&kutu, Qt::Key_Return);
                });
    }
};

// Files cannot grow beyond some bytes while it lives: the disk is full.
class DoluDisk {
  public:
    DoluDisk() : m_önceki(signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_sınır);
        rlimit dar = m_sınır;
        dar.rlim_cur = 500;
        setrlimit(RLIMIT_FSIZE, &dar);
    }
    ~DoluDisk() {
        setrlimit(RLIMIT_FSIZE, &m_sınır);
        signal(SIGXFSZ, m_önceki);
    }

  private:
    rlimit m_sınır{};
    sighandler_t m_önceki;
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
        MalzemeListesiniYaz(yüzey, U("Malzeme Listesi"), Katalog(400));
        EXPECT_EQ(yüzey.SayfaNo(), 7) << çözünürlük;
        if (çözünürlük == 1200) sonY = yüzey.Y();
        EXPECT_NEAR(yüzey.Y(), sonY, 1e-9) << çözünürlük;
    }
}

TEST_F(Yazdırma, DüğmeVeİmleçGeriGelir) {
    QAbstractButton& düğme = Bul<QAbstractButton>("YazdırButonu");
    bool bakıldı = false;
    Yazdırılırken = [&] {
        bakıldı = true;
        EXPECT_FALSE(düğme.isEnabled());
        EXPECT_EQ(Form().cursor().shape(), Qt::WaitCursor);
    };
    const auto geriGeldi = [&] {
        EXPECT_TRUE(düğme.isEnabled());
        EXPECT_EQ(Form().cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(QApplication::focusWidget(), &düğme);
    };
    Tıkla("YazdırButonu");
    EXPECT_TRUE(bakıldı);
    geriGeldi();
    Yazdırılırken = [] { throw std::runtime_error("yazıcı"); };
    Kutular().Yanıtla(Yanıt::Tamam);
    Tıkla("YazdırButonu");
    Kutular().TekKutu(Simge::Kritik, Metin(MetinNo::BeklenmeyenHata) + U("\nyazıcı"));
    geriGeldi();
    // The default printer is gone since the start.
    YazıcıyıAyarla(nullptr);
    Tıkla("YazdırButonu");
    geriGeldi();
}

TEST_F(Yazdırma, YazıcıYoksaSöyler) {
    YazıcıVar = false;
    Kutular().Yanıtla(Yanıt::Tamam, [](const MesajKutusu::İstek& istek) { EXPECT_TRUE(istek.ortala); });
    Tıkla("YazdırButonu");
    Kutular().TekKutu(Simge::Kritik,
                      U("Bilgisayarınızda yüklü bir yazıcı yok! Lütfen, bir yazıcı yükleyip tekrar deneyiniz."));
    EXPECT_FALSE(Yazdırılan());
    EXPECT_TRUE(Bul("YazdırButonu").isEnabled());
}

TEST_F(Yazdırma, PdfDosyası) {
    YazıcıVar = false;
    const QString yol = Klasör() + U("çıktı");
    PdfKaydetDosyaya(yol);
    const QByteArray ilk = Oku(yol + U(".pdf"));
    EXPECT_TRUE(ilk.startsWith("%PDF-")) << "the name gets its ending";
    EXPECT_TRUE(ilk.contains("/MediaBox [0 0 595")) << "A4";

    // An existing file is overwritten only on Evet; after Hayır the dialog stands there again.
    QFile dosya(yol + U(".pdf"));
    ASSERT_TRUE(dosya.open(QIODevice::WriteOnly));
    dosya.write("benim");
    dosya.close();
    Kutular().Yanıtla(Yanıt::Hayır);
    ModalAç([this] { Tıkla("PdfKaydetButonu"); }, U("PdfDosyasıFormu"),
            [&](QWidget& form) {
                auto& kutu = *form.findChild<QLineEdit*>(U("fileNameEdit"));
                kutu.setText(yol + U(".pdf"));
                QTimer::singleShot(0, &form, [&form] {
                    EXPECT_TRUE(form.isVisible());
                    QTest::keyClick(&form, Qt::Key_Escape);
                });
                QTest::keyClick(&kutu, Qt::Key_Return);
            });
    Kutular().TekKutu(Simge::Soru, Metin(MetinNo::ÜzerineYazmaSorusu) + U("\n") + yol + U(".pdf"));
    EXPECT_EQ(Oku(yol + U(".pdf")), "benim");
    Kutular().Yanıtla(Yanıt::Evet);
    PdfKaydetDosyaya(yol + U(".pdf"));
    Kutular().Al();
    EXPECT_TRUE(Oku(yol + U(".pdf")).startsWith("%PDF-"));
}

TEST_F(Yazdırma, YazılamayanPdf) {
    const Yazdırılacak iş{U("Malzeme Listesi"),
                          [](SayfaYüzeyi& yüzey) { MalzemeListesiniYaz(yüzey, U("Malzeme Listesi"), Katalog(100)); }};
    EXPECT_FALSE(PdfYaz(Klasör() + U("yok/liste.pdf"), iş));
    const QString yol = Klasör() + U("liste.pdf");
    ASSERT_TRUE(PdfYaz(yol, iş));
    const QByteArray önceki = Oku(yol);
    {
        const DoluDisk dolu;
        EXPECT_FALSE(PdfYaz(yol, iş));
    }
    EXPECT_TRUE(Oku(yol) == önceki);
    EXPECT_EQ(QDir(Klasör()).entryList({U("liste*")}).size(), 1) << "nothing is left beside it";
    EXPECT_FALSE(PdfYaz(yol, {U("Boş"), [](SayfaYüzeyi&) {}})) << "a document that did not begin";
    EXPECT_TRUE(Oku(yol) == önceki);

    Kutular().Yanıtla(Yanıt::Evet);
    Kutular().Yanıtla(Yanıt::Tamam);
    {
        const DoluDisk dolu;
        PdfKaydetDosyaya(yol);
    }
    const auto kutular = Kutular().Al();
    ASSERT_EQ(kutular.size(), 2u);
    EXPECT_EQ(kutular.at(1).metin, Metin(MetinNo::PdfYazılamadı) + U("\n") + yol);
    EXPECT_EQ(kutular.at(1).simge, Simge::Kritik);
    EXPECT_TRUE(Oku(yol) == önceki);
    EXPECT_TRUE(Bul("PdfKaydetButonu").isEnabled());
}

TEST_F(Yazdırma, Önizleme) {
    for (int i = 0; i < 70; ++i) MalzemeEkle(U("Malzeme %1").arg(i).toUtf8().constData(), "1");
    Aç<MalzemeListesiFormu>();
    ModalAç([this] { Tıkla("ÖnizlemeButonu"); }, U("ÖnizlemeFormu"),
            [](QWidget& form) {
                auto& sayfalar = *form.findChild<QPrintPreviewWidget*>();
                EXPECT_TRUE(Bekle([&sayfalar] { return sayfalar.pageCount() == 2; })) << sayfalar.pageCount();
                QTest::keyClick(&form, Qt::Key_Escape);
            });
}

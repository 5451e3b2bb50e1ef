#include "Yazdirma.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <algorithm>
#include <memory>
#include <utility>

#include "AygitYuzeyi.h"
#include "DegiskenModulu.h"
#include "KayitYeri.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;

namespace {

constexpr int PdfÇözünürlüğü = 1200;  // dots per inch
constexpr int SorulmayanSayfa = 50;

std::function<void(const Yazdırılacak&)> YazıcıYerine;

class Bekletenİmleç {
  public:
    Bekletenİmleç() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Bekletenİmleç(const Bekletenİmleç&) = delete;
    Bekletenİmleç& operator=(const Bekletenİmleç&) = delete;
    ~Bekletenİmleç() { QGuiApplication::restoreOverrideCursor(); }
};

// What a running printout changes on its form, put back at the end.
class YazdırmaDurumu {
  public:
    YazdırmaDurumu(QWidget& form, QAbstractButton& düğme)
        : m_form(form), m_düğme(düğme), m_odaktaydı(düğme.hasFocus()) {
        m_düğme.setEnabled(false);
        m_form.setCursor(Qt::WaitCursor);
    }
    YazdırmaDurumu(const YazdırmaDurumu&) = delete;
    YazdırmaDurumu& operator=(const YazdırmaDurumu&) = delete;
    ~YazdırmaDurumu() {
        m_düğme.setEnabled(true);
        m_form.unsetCursor();
        if (m_odaktaydı) m_düğme.setFocus();
    }

  private:
    QWidget& m_form;
    QAbstractButton& m_düğme;
    bool m_odaktaydı;
};

QPageLayout::Orientation Yönü(const Yazdırılacak& iş) {
    return iş.Yatay ? QPageLayout::Landscape : QPageLayout::Portrait;
}

QPageLayout BütünA4(const Yazdırılacak& iş) {
    return {QPageSize(QPageSize::A4), Yönü(iş), QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter};
}

// The default printer (the first one where none is marked so), with its own paper and all of its printable area; null:
// there is none.
std::unique_ptr<QPrinter> VarsayılanYazıcı(const Yazdırılacak& iş) {
    if (!YazıcıVar) return nullptr;
    QPrinterInfo bilgi = QPrinterInfo::defaultPrinter();
    if (bilgi.isNull()) {
        const QStringList adlar = QPrinterInfo::availablePrinterNames();
        if (adlar.isEmpty()) return nullptr;
        bilgi = QPrinterInfo::printerInfo(adlar.constFirst());
    }
    auto yazıcı = std::make_unique<QPrinter>(bilgi, QPrinter::HighResolution);
    if (yazıcı->outputFormat() != QPrinter::NativeFormat) return nullptr;
    yazıcı->setFullPage(false);
    // A printer object starts with A4 whatever lies in the printer.
    if (const QPageSize kâğıt = bilgi.defaultPageSize(); kâğıt.isValid()) yazıcı->setPageSize(kâğıt);
    yazıcı->setPageOrientation(Yönü(iş));
    QPageLayout alan = yazıcı->pageLayout();
    alan.setMargins(alan.minimumMargins());
    yazıcı->setPageLayout(alan);
    return yazıcı;
}

// Lays the pages out without drawing them.
class SayımYüzeyi : public AygıtYüzeyi {
  public:
    using AygıtYüzeyi::AygıtYüzeyi;
    void Çiz(double, double, double, double, QColor) override {}

  protected:
    double MetniKoy(const QString& metin, Yer yer) override { return std::min(MetinGenişliği(metin), yer.Genişlik); }
    void SayfaAç() override {}
};

// Whether so many pages are wanted.
bool SayfalarİsteniyorMu(const Yazdırılacak& iş) {
    if (!iş.UzunsaSor) return true;
    int sayfa = 0;
    {
        const Bekletenİmleç bekler;
        const std::unique_ptr<QPrinter> yazıcı = VarsayılanYazıcı(iş);
        QBuffer boş;
        boş.open(QIODevice::WriteOnly);
        QPdfWriter yazar(&boş);
        yazar.setResolution(PdfÇözünürlüğü);
        yazar.setPageLayout(yazıcı ? yazıcı->pageLayout() : BütünA4(iş));
        SayımYüzeyi yüzey(yazar);
        iş.Yaz(yüzey);
        sayfa = yüzey.SayfaNo();
    }
    if (sayfa <= SorulmayanSayfa) return true;
    MesajKutusuOrtala();
    return MesajKutusu::Göster(Simge::Soru, Düğmeler::EvetHayır, Metin(MetinNo::ÇokSayfaSorusu).arg(sayfa), {},
                               MesajKutusu::Yanıt::Hayır) == MesajKutusu::Yanıt::Evet;
}

void YazıcıdaYaz(const Yazdırılacak& iş) {
    const std::unique_ptr<QPrinter> yazıcı = VarsayılanYazıcı(iş);
    if (!yazıcı) return;
    yazıcı->setDocName(iş.Ad);
    AygıtYüzeyi yüzey(*yazıcı);
    iş.Yaz(yüzey);
}

}  // namespace

bool Yazdır(QWidget& form, QAbstractButton& düğme, const Yazdırılacak& iş) {
    if (!YazıcıVar) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(Simge::Kritik, Düğmeler::Tamam, Metin(MetinNo::YazıcıYok));
        return false;
    }
    if (!SayfalarİsteniyorMu(iş)) return true;
    const YazdırmaDurumu durum(form, düğme);
    YazıcıYerine ? YazıcıYerine(iş) : YazıcıdaYaz(iş);
    return true;
}

void PdfKaydet(QWidget& form, QAbstractButton& düğme, const Yazdırılacak& iş) {
    if (!SayfalarİsteniyorMu(iş)) return;
    const QString yol = KaydedilecekYer(
        form, iş.Ad,
        {QStringLiteral("PdfDosyasıFormu"), QStringLiteral("pdf"), MetinNo::PdfFormuBaşlığı, MetinNo::PdfSüzgeci});
    if (yol.isEmpty()) return;
    bool yazıldı = false;
    {
        const YazdırmaDurumu durum(form, düğme);
        yazıldı = PdfYaz(yol, iş);
    }
    if (yazıldı) return;
    MesajKutusuOrtala();
    MesajKutusu::Göster(Simge::Kritik, Düğmeler::Tamam, Metin(MetinNo::PdfYazılamadı) + QLatin1Char('\n') + yol);
}

void Önizle(QWidget& form, const Yazdırılacak& iş) {
    if (!SayfalarİsteniyorMu(iş)) return;
    std::unique_ptr<QPrinter> yazıcı = VarsayılanYazıcı(iş);
    if (!yazıcı) {
        yazıcı = std::make_unique<QPrinter>(QPrinter::HighResolution);
        yazıcı->setOutputFormat(QPrinter::PdfFormat);
        yazıcı->setPageLayout(BütünA4(iş));
    }
    yazıcı->setDocName(iş.Ad);
    QPrintPreviewDialog kutu(yazıcı.get(), &form);
    kutu.setObjectName(QStringLiteral("ÖnizlemeFormu"));
    kutu.setWindowTitle(Metin(MetinNo::ÖnizlemeBaşlığı));
    QObject::connect(&kutu, &QPrintPreviewDialog::paintRequested, &kutu, [&iş](QPrinter* sayfalar) {
        AygıtYüzeyi yüzey(*sayfalar);
        iş.Yaz(yüzey);
    });
    kutu.exec();
}

bool PdfYaz(const QString& yol, const Yazdırılacak& iş) {
    QSaveFile dosya(yol);
    if (!dosya.open(QIODevice::WriteOnly)) return false;
    {
        const std::unique_ptr<QPrinter> yazıcı = VarsayılanYazıcı(iş);
        QPdfWriter yazar(&dosya);
        yazar.setResolution(PdfÇözünürlüğü);
        yazar.setTitle(iş.Ad);
        yazar.setCreator(UygulamaBaşlığı);
        yazar.setPageLayout(yazıcı ? yazıcı->pageLayout() : BütünA4(iş));
        AygıtYüzeyi yüzey(yazar);
        iş.Yaz(yüzey);
    }
    // Nothing written means that the document could not begin. What still stands in the buffer is written first, as
    // commit alone would not notice that it does not fit on the disk.
    return dosya.pos() > 0 && dosya.flush() && dosya.commit();
}

void YazıcıyıAyarla(std::function<void(const Yazdırılacak&)> yazıcı) {
    YazıcıYerine = std::move(yazıcı);
}

// varnek-baski PROGRAM PDF WIDTH HEIGHT: prints each of the four printouts as the program does, on the default printer,
// which leaves its job in the file PDF; reads the file back and compares it with what should stand there. The program
// folder PROGRAM holds the sample. The printer's paper has this size, in points, and the margins below.

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QTest>
#include <QTreeWidget>
#include <cmath>
#include <cstdio>
#include <memory>

#include "AnaForm.h"
#include "ApilerModulu.h"
#include "AygitYuzeyi.h"
#include "DegiskenModulu.h"
#include "MalzemeHareketleriFormu.h"
#include "MalzemeListesiFormu.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "PdfMetni.h"
#include "UrunListesiFormu.h"
#include "Yazdirma.h"

using namespace Qt::StringLiterals;

namespace {

const QMarginsF Kenarlar(5, 6, 7, 8);  // millimetres: left, top, right, bottom
constexpr double Tolerans = 1;         // millimetres
constexpr int Süre = 30000;            // milliseconds for a job

QSizeF Kâğıt;  // points
int Hatalar = 0;

void Hata(const QString& metin) {
    std::fprintf(stderr, "  %s\n", metin.toUtf8().constData());
    ++Hatalar;
}

// A text of a printout: where its top left corner should stand, in millimetres from the page's corner.
struct BeklenenMetin {
    int Sayfa;
    double X, Y, Genişlik;
    QString Metin;
};

struct ÖlçenAygıt {
    QBuffer Dosya;
    QPdfWriter Yazar{&Dosya};
    explicit ÖlçenAygıt(const QPageLayout& alan) {
        Dosya.open(QIODevice::WriteOnly);
        Yazar.setPageLayout(alan);
    }
};

// Notes where the texts of a printout go on a page with this printable area.
class ÖlçenYüzey : private ÖlçenAygıt, public AygıtYüzeyi {
  public:
    explicit ÖlçenYüzey(const QPageLayout& alan)
        : ÖlçenAygıt(alan), AygıtYüzeyi(Yazar), m_köşe(alan.paintRect(QPageLayout::Millimeter).topLeft()) {}
    QList<BeklenenMetin> Metinler;

  protected:
    double MetniKoy(const QString& metin, Yer yer) override {
        const double genişlik = AygıtYüzeyi::MetniKoy(metin, yer);
        if (!metin.isEmpty()) Metinler.append({SayfaNo(), m_köşe.x() + X(), m_köşe.y() + Y(), genişlik, metin});
        return genişlik;
    }

  private:
    QPointF m_köşe;  // of the printable area
};

bool Yakın(double a, double b) {
    return std::abs(a - b) <= Tolerans;
}

// Takes the word out of the page; null: it does not stand there (x: -1 for anywhere on the line).
std::unique_ptr<PdfKelimesi> Al(QList<PdfKelimesi>& sayfa, const QString& kelime, double x, double y) {
    for (qsizetype i = 0; i < sayfa.size(); ++i) {
        const PdfKelimesi& aday = sayfa.at(i);
        const bool yerinde = Yakın(aday.Yer.top(), y) && (x < 0 || Yakın(aday.Yer.left(), x));
        const bool kesik = aday.Metin.endsWith(u'…') && kelime.startsWith(aday.Metin.chopped(1));
        if (yerinde && (aday.Metin == kelime || kesik)) return std::make_unique<PdfKelimesi>(sayfa.takeAt(i));
    }
    return nullptr;
}

// The text's words stand at its place, on its line and end where it ends. Gives its letters as they were found.
QString MetniBul(QList<PdfKelimesi>& sayfa, const BeklenenMetin& metin) {
    QString harfler;
    double sağ = 0;
    const QStringList kelimeler = metin.Metin.split(u' ', Qt::SkipEmptyParts);
    for (const QString& kelime : kelimeler) {
        const auto bulunan = Al(sayfa, kelime, harfler.isEmpty() ? metin.X : -1, metin.Y);
        if (!bulunan) {
            Hata(u"page %1, (%2, %3): not there: %4"_s.arg(metin.Sayfa).arg(metin.X).arg(metin.Y).arg(kelime));
            return harfler;
        }
        harfler += bulunan->Metin;
        sağ = bulunan->Yer.right();
        if (bulunan->Metin.endsWith(u'…')) break;
    }
    if (!Yakın(sağ, metin.X + metin.Genişlik)) {
        Hata(u"page %1: %2 ends at %3 instead of %4"_s.arg(metin.Sayfa)
                 .arg(metin.Metin)
                 .arg(sağ)
                 .arg(metin.X + metin.Genişlik));
    }
    return harfler;
}

void Karşılaştır(PdfMetni pdf, const QList<BeklenenMetin>& beklenen) {
    const int sayfaSayısı = beklenen.constLast().Sayfa;
    if (pdf.SayfaSayısı != sayfaSayısı || pdf.Sayfalar.size() != sayfaSayısı)
        return Hata(u"%1 pages instead of %2"_s.arg(pdf.SayfaSayısı).arg(sayfaSayısı));
    if (!Yakın(pdf.Kâğıt.width(), Kâğıt.width()) || !Yakın(pdf.Kâğıt.height(), Kâğıt.height()))
        Hata(u"paper of %1 x %2 points"_s.arg(pdf.Kâğıt.width()).arg(pdf.Kâğıt.height()));
    QString akış;
    for (const BeklenenMetin& metin : beklenen) akış += MetniBul(pdf.Sayfalar[metin.Sayfa - 1], metin);
    for (const auto& sayfa : pdf.Sayfalar)
        for (const PdfKelimesi& fazla : sayfa) Hata(u"nobody expects: "_s + fazla.Metin);
    if (pdf.Akış != akış) Hata(u"another order of texts"_s);
}

// Presses the form's button once to learn what it prints, and once more to print it.
void YazdırVeKarşılaştır(const QString& ad, QWidget& form, const QString& pdfYolu) {
    const int önceki = Hatalar;
    auto& düğme = *form.findChild<QAbstractButton*>(u"YazdırButonu"_s);
    if (!QTest::qWaitFor([&düğme] { return düğme.isEnabled(); })) return Hata(ad + u": nothing to print"_s);
    ÖlçenYüzey ölçen(
        QPageLayout(QPageSize(Kâğıt, QPageSize::Point), QPageLayout::Portrait, Kenarlar, QPageLayout::Millimeter));
    YazıcıyıAyarla([&ölçen](const Yazdırılacak& iş) { iş.Yaz(ölçen); });
    QTest::mouseClick(&düğme, Qt::LeftButton);
    YazıcıyıAyarla(nullptr);
    QFile::remove(pdfYolu);
    QTest::mouseClick(&düğme, Qt::LeftButton);
    const bool geldi = QTest::qWaitFor(
        [&pdfYolu] {
            QFile dosya(pdfYolu);
            return dosya.open(QIODevice::ReadOnly) && dosya.readAll().trimmed().endsWith("%%EOF");
        },
        Süre);
    if (!geldi || ölçen.Metinler.isEmpty()) return Hata(ad + u": no job arrived"_s);
    Karşılaştır(PdfOku(pdfYolu), ölçen.Metinler);
    std::printf("%s: %lld texts on %d page(s): %s\n", ad.toUtf8().constData(),
                static_cast<long long>(ölçen.Metinler.size()), ölçen.Metinler.constLast().Sayfa,
                Hatalar == önceki ? "as they should be" : "WRONG");
}

template <typename Form>
void RaporuYazdır(const QString& pdfYolu) {
    Form form;
    if constexpr (requires { form.Yükle(); }) form.Yükle();
    form.show();
    YazdırVeKarşılaştır(form.objectName(), form, pdfYolu);
}

void FişiYazdır(const QString& ürün, const QString& pdfYolu) {
    AnaForm form(AnaFormBağları{[] {}, [](bool, QPoint) { return true; }});
    form.Yükle();
    auto& ağaç = *form.findChild<QTreeWidget*>(u"ÜrünListesi"_s);
    const auto düğümler = ağaç.findItems(ürün, Qt::MatchExactly | Qt::MatchRecursive);
    if (düğümler.isEmpty()) return Hata(u"not in the tree: "_s + ürün);
    ağaç.setCurrentItem(düğümler.first());
    YazdırVeKarşılaştır(u"AnaForm, "_s + ürün, form, pdfYolu);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication uygulama(argc, argv);
    if (argc != 5) {
        std::fprintf(stderr, "varnek-baski PROGRAM PDF WIDTH HEIGHT\n");
        return 2;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    // The driver lies beside this program; nobody answers message boxes here.
    qputenv("ODBCSYSINI", QFile::encodeName(QApplication::applicationDirPath()));
    MesajKutusu::GöstericiyiAyarla([](const MesajKutusu::İstek& istek) {
        Hata(u"message box: "_s + istek.metin);
        return istek.varsayılan;
    });
    UygulamaYolu = QString::fromLocal8Bit(argv[1]) + u'/';
    const QString pdfYolu = QString::fromLocal8Bit(argv[2]);
    Kâğıt = {QByteArray(argv[3]).toDouble(), QByteArray(argv[4]).toDouble()};
    YazıcıVar = YazıcıSayısı() > 0;
    if (!YazıcıVar || !ODBCBağlan()) {
        std::fprintf(stderr, "There is no printer or no data file.\n");
        return 1;
    }
    std::printf("Paper of %g x %g points\n", Kâğıt.width(), Kâğıt.height());
    try {
        FişiYazdır(u"Çalışma Masası"_s, pdfYolu);
        FişiYazdır(u"Üç Kapılı Gardırop"_s, pdfYolu);
        RaporuYazdır<MalzemeHareketleriFormu>(pdfYolu);
        RaporuYazdır<MalzemeListesiFormu>(pdfYolu);
        RaporuYazdır<ÜrünListesiFormu>(pdfYolu);
    } catch (const std::exception& hata) {
        Hata(QString::fromUtf8(hata.what()));
    }
    ODBCBağlantısınıKapat();
    return Hatalar == 0 ? 0 : 1;
}

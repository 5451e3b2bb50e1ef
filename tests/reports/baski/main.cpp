// varnek-baski PROGRAM PDF WIDTH HEIGHT: prints each of the four printouts as the program does, on the default printer,
// which leaves its job in the file PDF; reads the file back and compares it with what should stand there. The program
// folder PROGRAM holds the sample. The printer's paper has this size, in points, and the margins below.

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>

#include "AnaForm.h"
#include "ApilerModulu.h"
#include "AygitYuzeyi.h"
#include "DegiskenModulu.h"
#include "MalzemeHareketleriFormu.h"
#include "MalzemeListesiFormu.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "SayiYereli.h"
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

// A word or text on a page: its place in millimetres from the page's top left corner.
struct BasılıYazı {
    int Sayfa;
    double X, Y, Sağ;
    QString Metin;
};

// What a PDF reader finds in a file. Throws when poppler's tools fail.
struct Pdf {
    int SayfaSayısı = 0;
    QSizeF Kâğıt;  // its first page's size, points
    QList<BasılıYazı> Kelimeler;
    QString Akış;  // all letters in the order in which they were drawn, without blanks

    explicit Pdf(const QString& yol) {
        QXmlStreamReader xml(Oku({u"-bbox"_s, yol, u"-"_s}));
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement) continue;
            const auto sayı = [nitelikler = xml.attributes()](const char* ad) {
                return nitelikler.value(QLatin1String(ad)).toDouble();
            };
            constexpr double mm = 25.4 / 72;
            if (xml.name() == u"page" && ++SayfaSayısı == 1) Kâğıt = {sayı("width"), sayı("height")};
            if (xml.name() == u"word")
                Kelimeler +=
                    {SayfaSayısı, sayı("xMin") * mm, sayı("yMin") * mm, sayı("xMax") * mm, xml.readElementText()};
        }
        if (xml.hasError()) throw std::runtime_error("pdftotext: " + xml.errorString().toStdString());
        Akış = Oku({u"-raw"_s, yol, u"-"_s}).remove(QRegularExpression(u"\\s"_s));
    }

  private:
    static QString Oku(const QStringList& sözler) {
        QProcess süreç;
        süreç.start(u"pdftotext"_s, sözler);
        if (!süreç.waitForFinished() || süreç.exitCode() != 0)
            throw std::runtime_error("pdftotext: " + süreç.readAllStandardError().toStdString());
        return QString::fromUtf8(süreç.readAllStandardOutput());
    }
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
    QList<BasılıYazı> Metinler;

  protected:
    double MetniKoy(const QString& metin, Yer yer) override {
        const double genişlik = AygıtYüzeyi::MetniKoy(metin, yer);
        const double x = m_köşe.x() + X();
        if (!metin.isEmpty()) Metinler.append({SayfaNo(), x, m_köşe.y() + Y(), x + genişlik, metin});
        return genişlik;
    }

  private:
    QPointF m_köşe;  // of the printable area
};

bool Yakın(double a, double b) {
    return std::abs(a - b) <= Tolerans;
}

// Takes the text's words out of those found: they stand at its place, on its line, and end where it ends. Gives its
// letters as they were found.
QString MetniAl(QList<BasılıYazı>& bulunanlar, const BasılıYazı& metin) {
    QString harfler;
    double sağ = 0;
    for (const QString& kelime : metin.Metin.split(u' ', Qt::SkipEmptyParts)) {
        const auto uyar = [&](const BasılıYazı& aday) {
            const bool kesik = aday.Metin.endsWith(u'…') && kelime.startsWith(aday.Metin.chopped(1));
            return aday.Sayfa == metin.Sayfa && Yakın(aday.Y, metin.Y) &&
                   (!harfler.isEmpty() || Yakın(aday.X, metin.X)) && (aday.Metin == kelime || kesik);
        };
        const auto yer = std::find_if(bulunanlar.begin(), bulunanlar.end(), uyar);
        if (yer == bulunanlar.end()) {
            Hata(u"page %1, (%2, %3): not there: %4"_s.arg(metin.Sayfa).arg(metin.X).arg(metin.Y).arg(kelime));
            return harfler;
        }
        harfler += yer->Metin;
        sağ = yer->Sağ;
        bulunanlar.erase(yer);
        if (harfler.endsWith(u'…')) break;
    }
    if (!Yakın(sağ, metin.Sağ)) Hata(u"%1 ends at %2 instead of %3"_s.arg(metin.Metin).arg(sağ).arg(metin.Sağ));
    return harfler;
}

void Karşılaştır(Pdf pdf, const QList<BasılıYazı>& beklenen) {
    if (pdf.SayfaSayısı != beklenen.constLast().Sayfa) Hata(u"%1 pages"_s.arg(pdf.SayfaSayısı));
    if (!Yakın(pdf.Kâğıt.width(), Kâğıt.width()) || !Yakın(pdf.Kâğıt.height(), Kâğıt.height()))
        Hata(u"paper of %1 x %2 points"_s.arg(pdf.Kâğıt.width()).arg(pdf.Kâğıt.height()));
    QString akış;
    for (const BasılıYazı& metin : beklenen) akış += MetniAl(pdf.Kelimeler, metin);
    for (const BasılıYazı& fazla : pdf.Kelimeler) Hata(u"nobody expects: "_s + fazla.Metin);
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
    Karşılaştır(Pdf(pdfYolu), ölçen.Metinler);
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
    SayıYereliniSabitle();
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

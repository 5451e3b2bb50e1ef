#include "PdfMetni.h"

#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <stdexcept>

namespace {

QString Çalıştır(const QString& araç, const QStringList& sözler) {
    QProcess süreç;
    süreç.start(araç, sözler);
    if (!süreç.waitForFinished() || süreç.exitCode() != 0) {
        throw std::runtime_error(araç.toStdString() + ": " + süreç.readAllStandardError().toStdString());
    }
    return QString::fromUtf8(süreç.readAllStandardOutput());
}

double Milimetre(const QXmlStreamAttributes& özellikler, const char* ad) {
    return özellikler.value(QLatin1String(ad)).toDouble() * 25.4 / 72;
}

}  // namespace

PdfMetni PdfOku(const QString& yol) {
    PdfMetni pdf;
    const QString bilgi = Çalıştır(QStringLiteral("pdfinfo"), {yol});
    static const QRegularExpression sayfalar(QStringLiteral("^Pages:\\s+(\\d+)"), QRegularExpression::MultilineOption);
    pdf.SayfaSayısı = sayfalar.match(bilgi).captured(1).toInt();
    static const QRegularExpression boyut(QStringLiteral("^Page size:\\s+([\\d.]+) x ([\\d.]+) pts"),
                                          QRegularExpression::MultilineOption);
    const QRegularExpressionMatch eş = boyut.match(bilgi);
    pdf.Kâğıt = {eş.captured(1).toDouble(), eş.captured(2).toDouble()};

    QXmlStreamReader xml(Çalıştır(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), yol, QStringLiteral("-")}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("page")) pdf.Sayfalar.append(QList<PdfKelimesi>());
        if (xml.name() != QLatin1String("word")) continue;
        const QXmlStreamAttributes yer = xml.attributes();
        const QRectF alan(QPointF(Milimetre(yer, "xMin"), Milimetre(yer, "yMin")),
                          QPointF(Milimetre(yer, "xMax"), Milimetre(yer, "yMax")));
        pdf.Sayfalar.last().append({alan, xml.readElementText()});
    }
    if (xml.hasError()) throw std::runtime_error("pdftotext: " + xml.errorString().toStdString());

    pdf.Akış = Çalıştır(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), yol, QStringLiteral("-")});
    pdf.Akış.remove(QRegularExpression(QStringLiteral("\\s")));
    return pdf;
}

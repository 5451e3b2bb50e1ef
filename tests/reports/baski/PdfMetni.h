#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

struct PdfKelimesi {
    QRectF Yer;  // millimetres from the page's top left corner
    QString Metin;
};

// What a PDF reader finds in a file: pages of words, and the texts in the order in which they were drawn.
struct PdfMetni {
    int SayfaSayısı = 0;  // as the document says
    QSizeF Kâğıt;         // its first page's size, points
    QList<QList<PdfKelimesi>> Sayfalar;
    QString Akış;  // all pages' letters, without blanks
};

// Reads a file with poppler's tools. Throws when they fail.
PdfMetni PdfOku(const QString& yol);

#pragma once

#include <QString>
#include <functional>

class QAbstractButton;
class QWidget;
class SayfaYüzeyi;

// The three ways of a printout: default printer, PDF file, preview. Each puts the same pages on its surface.

struct Yazdırılacak {
    QString Ad;                             // the document's name; a PDF file is offered under it
    std::function<void(SayfaYüzeyi&)> Yaz;  // the printout
    bool UzunsaSor = false;                 // more than 50 pages come only if the user wants them
    bool Yatay = false;                     // landscape
};

// All three keep the button disabled and the form's pointer waiting while pages are written; button, focus and pointer
// come back on every path.

// Sends the pages to the default printer; what fails there is passed over. Without any printer a message says so, and
// the result is false: a box was shown.
bool Yazdır(QWidget& form, QAbstractButton& düğme, const Yazdırılacak& iş);

// Asks for a file and writes the pages there. A file that cannot be written is reported and stays as it was.
void PdfKaydet(QWidget& form, QAbstractButton& düğme, const Yazdırılacak& iş);

// Shows the pages in the toolkit's print preview.
void Önizle(QWidget& form, const Yazdırılacak& iş);

// Writes the pages to a file at once: beside it first, and in its place once complete. False: could not be written.
bool PdfYaz(const QString& yol, const Yazdırılacak& iş);

// Stands in for the default printer; nullptr brings it back.
void YazıcıyıAyarla(std::function<void(const Yazdırılacak&)> yazıcı);

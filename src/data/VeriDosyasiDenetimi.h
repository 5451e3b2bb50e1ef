#pragma once

#include <QString>
#include <QStringList>

// What can be said of a data file that the program is not working on: the present one before the start opens it, or the
// backup.
enum class DosyaDurumu {
    Dolu,      // holds rows: products, materials or used materials
    Boş,       // holds none of them
    Bozuk,     // the driver finds it damaged, or no data file
    Okunamadı  // anything else: another version, in use, no permission
};

struct DosyaDenetimi {
    DosyaDurumu Durum;
    QStringList Hatalar;  // the driver's words when it is Bozuk or Okunamadı
};

// Opens the file on a connection of its own and counts; shows nothing. It does not read the file whole: damage in the
// rows themselves stays unseen.
DosyaDenetimi VeriDosyasınıDenetle(const QString& yol);

#pragma once

#include <QString>
#include <QTemporaryDir>
#include <cstdint>

#include "OdbcTanitici.h"

struct VeriSayıları {
    std::int64_t Ürün = 0;
    std::int64_t Malzeme = 0;
    std::int64_t Satır = 0;  // used materials of all products
};

// A file without one of the tables holds none of it.
OdbcSonucu VeriSayılarınıOku(OdbcBağlantısı& bağlantı, VeriSayıları& sayılar);

enum class YedekDurumu {
    Sağlam,
    Bozuk,       // damaged, or no data file
    BaşkaSürüm,  // another version of the program wrote it
    Okunamadı,   // anything else
    Durduruldu
};

struct YedekBilgisi {
    YedekDurumu Durum = YedekDurumu::Okunamadı;
    VeriSayıları Sayılar;  // of a sound one
    QString Neden;         // the driver's words when it is not
};

// A backup, copied with its journal into a folder of its own below `kök` and opened there: the file itself is never
// opened in place, as that could undo or convert something in it. The copy goes with the object.
class AçılmışYedek {
  public:
    AçılmışYedek(const QString& yol, const QString& kök);

    // Counts and checks; may be stopped by a file named `dur`.
    YedekBilgisi Denetle(const QString& dur = {});

    const QString& Yol() const { return m_yol; }           // the copy
    bool Kopyalandı() const { return m_neden.isEmpty(); }  // otherwise nothing is known of it

    // Of one in Access format, once it was opened: how much was stored otherwise than it stands there; "" when nothing.
    QString Değişenler() const;

    // Keeps the list of that beside the data file, replacing nothing; its path, "" when it could not be written.
    QString DeğişenleriSakla(const QString& dosya) const;

  private:
    QTemporaryDir m_klasör;
    QString m_yol;
    QString m_neden;  // why it cannot be used
};

// Folders that a killed run left of opened backups and of copies for another disk, after a day.
void YarımAçılmışlarıSil(const QString& kök);

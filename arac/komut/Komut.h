#pragma once

#include <QStringList>
#include <stdexcept>

enum ÇıkışKodu { Tamam = 0, Başarısız = 1, YanlışKullanım = 2, BulguVar = 3 };

// A command of the data-file tool. Its results go to stdout, everything else to stderr.
struct Komut {
    const char16_t* Ad;
    const char16_t* Yazılış;  // behind the name
    const char16_t* Özet;     // one line
    const char16_t* Yardım;   // the rest of its own help, exit codes included
    // Gets the words behind the name. Throws VeriHatası for what went wrong, KullanımHatası for words that are no use
    // of it.
    int (*Yürüt)(const QStringList& sözler);
};

class KullanımHatası : public std::runtime_error {
  public:
    explicit KullanımHatası(const QString& metin = {}) : std::runtime_error(metin.toStdString()) {}
    QString Metin() const { return QString::fromUtf8(what()); }
};

// The words where there are exactly so many, none of which begins with "-".
inline QStringList Sözler(const QStringList& sözler, qsizetype sayı) {
    for (const QString& söz : sözler)
        if (söz.startsWith(QLatin1Char('-'))) throw KullanımHatası(QStringLiteral("Bilinmeyen seçenek: %1").arg(söz));
    if (sözler.size() != sayı) throw KullanımHatası();
    return sözler;
}

extern const Komut YeniKomutu;
extern const Komut ÖrnekKomutu;
extern const Komut BüyükKomutu;
extern const Komut DışarıAktarKomutu;
extern const Komut İçeriAktarKomutu;
extern const Komut MaliyetKomutu;
extern const Komut DenetleKomutu;
extern const Komut OnarKomutu;

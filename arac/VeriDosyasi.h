#pragma once

#include <QString>
#include <functional>
#include <stdexcept>

#include "OdbcTanitici.h"

// What went wrong, in words for the terminal.
class VeriHatası : public std::runtime_error {
  public:
    explicit VeriHatası(const QString& metin) : std::runtime_error(metin.toStdString()) {}
    QString Metin() const { return QString::fromUtf8(what()); }
};

// Writes into the data file in the making, one statement after the other.
class VeriYazıcısı {
  public:
    // Throws VeriHatası.
    explicit VeriYazıcısı(OdbcBağlantısı& bağlantı);
    void Çalıştır(const QString& deyim);
    OdbcBağlantısı& Bağlantı() { return m_bağlantı; }
    // Why it cannot be run; empty: it was.
    QString Dene(const QString& deyim);
    QList<OdbcSütunu> Sütunlar(const QString& tablo);

  private:
    OdbcBağlantısı& m_bağlantı;
    OdbcDeyimi m_deyim;
};

// What the program can go on with: the characters that it reads of a name, and a percentage that it still computes
// with.
inline constexpr std::size_t EN_UZUN_METİN = 254;
inline constexpr double EN_BÜYÜK_YÜZDE = 1e15;

// Makes a data file in one piece: it is built in a folder of its own beside the target, and gets its name only when
// all is written and on disk. An existing file is never overwritten; a failure, an interrupt or a killed process
// leaves nothing under the target's name. Throws VeriHatası.
// `doldur` writes the rows, which are written together: without success none of them is kept.
void VeriDosyasıYap(const QString& hedef, const std::function<void(VeriYazıcısı&)>& doldur);
// `tablolar`: the declarations of its tables and indexes; the one above has the tables that every data file has.
void VeriDosyasıYap(const QString& hedef, const QStringList& tablolar,
                    const std::function<void(VeriYazıcısı&)>& doldur);

// Makes the file itself, where no file is yet: the tables, the rows that `doldur` writes in one transaction, and the
// indexes. Throws VeriHatası; what is there then is to be taken away.
void VeriDosyasınıDoldur(const QString& dosya, const std::function<void(VeriYazıcısı&)>& doldur);
void VeriDosyasınıDoldur(const QString& dosya, const QStringList& tablolar,
                         const std::function<void(VeriYazıcısı&)>& doldur);

// Ends the work at the next statement, as a failure. May be called from a signal handler.
void YarıdaKes() noexcept;

// While it lives, YarıdaKes also makes this file, which is not there yet: work of the driver's that looks for it ends.
// One at a time.
class DurmaDosyası {
  public:
    // Throws VeriHatası after YarıdaKes.
    explicit DurmaDosyası(const QString& yol);
    ~DurmaDosyası();
    DurmaDosyası(const DurmaDosyası&) = delete;
    DurmaDosyası& operator=(const DurmaDosyası&) = delete;

  private:
    QByteArray m_yol;
};

// Gives the finished file its name, `hedef`, which nothing may bear yet. Throws VeriHatası.
void VeriDosyasınıYerleştir(const QString& geçici, const QString& hedef);

// To be called by a long `doldur` now and then: throws VeriHatası after YarıdaKes.
void YarıdaKesildiMi();

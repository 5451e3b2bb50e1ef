#pragma once

#include <QString>
#include <stdexcept>

// Plain access to a data file through the driver manager and the driver, for the data-file tool, tests and benchmarks.

// What went wrong, in words for the terminal.
class VeriHatası : public std::runtime_error {
  public:
    explicit VeriHatası(const QString& metin) : std::runtime_error(metin.toStdString()) {}
    QString Metin() const { return QString::fromUtf8(what()); }
};

// Makes the driver manager look for the driver in this folder (it holds odbcinst.ini). To be called before anything
// else here, as the driver manager reads its settings once.
void SürücüKlasörünüAyarla(const QString& klasör);

// Makes a new, empty data file with the program's password. Throws VeriHatası.
void BoşVeriDosyasıOluştur(const QString& yol);

// One open data file. Every failure throws VeriHatası.
class VeriBağlantısı {
  public:
    explicit VeriBağlantısı(const QString& yol);
    ~VeriBağlantısı();
    VeriBağlantısı(const VeriBağlantısı&) = delete;
    VeriBağlantısı& operator=(const VeriBağlantısı&) = delete;

    // Runs one statement that returns no rows.
    void Çalıştır(const QString& deyim);

    // From here to Onayla the statements are written together, which makes many of them fast; without Onayla none of
    // them is kept.
    void Toplucaya();
    void Onayla();

    // Runs a query and gives every row's columns as text.
    QList<QStringList> Oku(const QString& sorgu);

  private:
    void Kapat() noexcept;
    QString Tanı(void* deyim) const;

    void* m_ortam = nullptr;
    void* m_bağlantı = nullptr;
    void* m_deyim = nullptr;
};

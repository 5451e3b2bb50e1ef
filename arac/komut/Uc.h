#pragma once

#include <QElapsedTimer>
#include <QString>
#include <cstdint>
#include <string_view>

// What the commands say at the terminal.

// A result, to stdout. Throws VeriHatası where it cannot be written (a full disk, a reader that is gone).
void ÇıktıYaz(std::string_view baytlar);
void ÇıktıSatırı(const QString& satır);
void ÇıktıyıBitir();

// What was made, on stdout. It is made, so that a failure to say so is none of the work: then it goes to stderr.
void YapılanıBildir(const QString& satır);

// A message, to stderr.
void Bildir(const QString& satır);

// How far the work is, on one line of stderr that is gone at the end; nothing where stderr is no terminal.
class İlerlemeSatırı {
  public:
    explicit İlerlemeSatırı(QString iş);
    ~İlerlemeSatırı() { Sil(); }
    İlerlemeSatırı(const İlerlemeSatırı&) = delete;
    İlerlemeSatırı& operator=(const İlerlemeSatırı&) = delete;

    // Throws VeriHatası after YarıdaKes.
    void Bildir(std::int64_t sayı);

  private:
    void Yaz(std::int64_t sayı);
    void Sil();

    QString m_iş;
    QElapsedTimer m_süre;
    const bool m_uçta;
    bool m_yazıldı = false;
};

#pragma once

#include <QFile>
#include <QString>
#include <cstdint>
#include <string>
#include <vector>

// Reads a text file as disari-aktar writes it, row by row. Whatever does not fit the form is an error that names file
// and line (VeriHatası): nothing is guessed.
class CsvDosyası {
  public:
    explicit CsvDosyası(const QString& yol);

    // The next row's fields, of which those that it had before are written over; false behind the last row.
    bool Sıradaki(std::vector<std::string>& alanlar);

    // For the row at hand.
    [[noreturn]] void Hata(const QString& neden) const;

  private:
    static constexpr int SON = -1;

    int Bak();  // the next byte, or SON
    void İlerle();
    void AlanıOku(std::string& alan);
    void TırnaklıyıOku(std::string& alan);
    bool SatırBitti();

    QFile m_dosya;
    QByteArray m_tampon;
    qsizetype m_yer = 0;
    std::int64_t m_satır = 1;      // of the next byte
    std::int64_t m_satırBaşı = 1;  // of the row at hand
};

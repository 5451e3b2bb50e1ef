#pragma once

#include "CsvKodlama.h"
#include "SayfaKaynagi.h"

// A text file with one row to a line; cells in quotes may hold the separator, line breaks and doubled quotes. All cells
// are texts.
class CsvKaynağı : public SayfaKaynağı {
  public:
    CsvKaynağı(QString yol, const OkumaGözetimi& gözetim) : m_yol(std::move(yol)), m_gözetim(gözetim) {}

    OkumaSonucu SayfalarıOku() override;
    OkumaSonucu Oku(qsizetype sayfa, const SatırAlıcı& alıcı) override;

    char Ayraç = ';';

  private:
    OkumaSonucu DosyayıOku(QByteArray& baytlar) const;

    QString m_yol;
    const OkumaGözetimi& m_gözetim;
    KodluMetin m_metin;
};

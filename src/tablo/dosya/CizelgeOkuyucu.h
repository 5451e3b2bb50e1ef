#pragma once

#include <memory>

#include "Cizelge.h"

class SayfaKaynağı;

enum class ÇizelgeTürü { Xlsx, Ods, Csv };

// Reads a spreadsheet (.xlsx, .ods) or a text file (.csv). Which of them it is its content tells, not its name. Shows
// nothing and may run in a thread of its own.
class ÇizelgeOkuyucu {
  public:
    explicit ÇizelgeOkuyucu(QString yol, OkumaGözetimi gözetim = {});
    ~ÇizelgeOkuyucu();

    // Recognises the file and reads its sheets' names; the others hold after that.
    OkumaSonucu Aç();
    ÇizelgeTürü Tür() const { return m_tür; }
    const QList<SayfaBilgisi>& Sayfalar() const;  // a text file: one without a name
    OkumaSonucu Oku(qsizetype sayfa, const SatırAlıcı& alıcı);

    // Text file: the sign between columns (; , or tab), guessed by Aç.
    char Ayraç() const;
    void AyraçSeç(char ayraç);

  private:
    OkumaSonucu ZipAç();
    OkumaSonucu MetinAç();

    QString m_yol;
    OkumaGözetimi m_gözetim;
    ÇizelgeTürü m_tür = ÇizelgeTürü::Csv;
    std::unique_ptr<SayfaKaynağı> m_kaynak;
};

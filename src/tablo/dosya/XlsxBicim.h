#pragma once

#include <QHash>
#include <QXmlStreamReader>

#include "Cizelge.h"

class XmlParçası;

// What a cell's number format makes of its number.
struct SayıBiçimi {
    OkunamazNedeni Neden = OkunamazNedeni::Yok;  // Yok: it stays a number
    QString ParaBirimi;
};

// Judges a format code such as `#,##0.00\ [$₺-41F];[Red]-#,##0.00\ [$₺-41F]`: a date, a percentage or another currency
// in any of its sections makes all of it one.
SayıBiçimi BiçimKodunuÇöz(QStringView kod);

// The formats of a workbook's cells, in the order in which the cells name them.
class XlsxBiçimleri {
  public:
    void Oku(XmlParçası& parça);
    const SayıBiçimi& Biçim(qsizetype sıra) const;

  private:
    QHash<int, SayıBiçimi> m_kodlar;
    QList<SayıBiçimi> m_biçimler;
};

// A date or percentage cell's number as it is shown, near enough to be recognised: 22.11.2026, %18.
QString SayıyıGöster(const ÇizelgeHücresi& sayı, OkunamazNedeni neden, bool tarih1904);

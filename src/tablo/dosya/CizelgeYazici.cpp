#include "CizelgeYazici.h"

#include "CsvYazici.h"
#include "XlsxYazici.h"

ÇizelgeYazıcı::ÇizelgeYazıcı(const QString& yol, const QString& sayfaAdı, const QList<ÇizelgeSütunu>& sütunlar)
    : m_hedef(yol.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive) ? CsvHedefi(yol, sütunlar)
                                                                       : XlsxHedefi(yol, sayfaAdı, sütunlar)) {}

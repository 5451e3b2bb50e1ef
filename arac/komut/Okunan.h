#pragma once

#include <QString>
#include <QTemporaryDir>

#include "KatalogOkuma.h"
#include "OdbcTanitici.h"

// A data file that is only read: a compacted copy in the temporary folder, so that all tables are of one moment and a
// running program is not kept waiting while the work goes on. Throws VeriHatası: the file is not there, no data file,
// or damaged.
class OkunanDosya {
  public:
    explicit OkunanDosya(const QString& dosya);
    OdbcBağlantısı& Bağlantı() { return m_bağlantı; }

  private:
    QTemporaryDir m_klasör;
    OdbcBağlantısı m_bağlantı;  // closed before the folder goes
};

// Throws VeriHatası unless it is a success.
void Denetle(const OdbcSonucu& sonuç);
void Denetle(const İşSonucu& sonuç);
